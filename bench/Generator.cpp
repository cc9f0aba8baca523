#include "Generator.h"

#include "data/Files.h"
#include "data/modData.h"
#include "text/Text.h"

#include <algorithm>
#include <random>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace
{

// Surnames are made of three parts.
constexpr std::string_view SurnameBeginnings[] = {
    "Bar",  "Bel",  "Brez", "Cind", "Čer", "Dol",  "Drag", "Đur", "Gaj", "Grab", "Hrast", "Iv", "Jag", "Jel",
    "Kalj", "Klen", "Kop",  "Lat",  "Lip", "Ljub", "Mar",  "Mil", "Mrk", "Nad",  "Njeg",  "Or", "Pav", "Per",
    "Rad",  "Rak",  "Sam",  "Skok", "Šim", "Šum",  "Top",  "Trn", "Vid", "Vuk",  "Zor",   "Žit"};
constexpr std::string_view SurnameMiddles[] = {"an", "ar", "en", "er", "ič", "in", "ov", "ul", "uš", ""};
constexpr std::string_view SurnameEndings[] = {"ić", "ović", "ec", "ak", "ek", "ić", "šić", "ac"};

constexpr std::string_view GivenNames[] = {
    "Ana",    "Ante",     "Boris",   "Branka", "Dario",   "Darija", "Davor",  "Đurđica",  "Filip",  "Goran",
    "Hrvoje", "Iva",      "Ivan",    "Ivana",  "Jasna",   "Josip",  "Katica", "Krešimir", "Luka",   "Lucija",
    "Marija", "Marko",    "Martina", "Matej",  "Mirta",   "Nikola", "Petra",  "Saša",     "Siniša", "Sunčana",
    "Tin",    "Tomislav", "Vedrana", "Vesna",  "Zdravko", "Zlatko", "Željka", "Željko"};

constexpr std::string_view Titles[] = {
    "prof. dr. sc.", "izv. prof. dr. sc.", "doc. dr. sc.", "v. pred.", "pred.", ""};

// A course's title has one of the first, one of the second, and sometimes a number.
constexpr std::string_view TitleBeginnings[] = {"Osnove",
                                                "Metode",
                                                "Teorija",
                                                "Ekonomika",
                                                "Povijest",
                                                "Planiranje",
                                                "Sustavi",
                                                "Praktikum iz",
                                                "Seminar iz",
                                                "Modeli",
                                                "Odabrana poglavlja",
                                                "Tehnika",
                                                "Upravljanje u području",
                                                "Kvaliteta",
                                                "Etika",
                                                "Zaštita"};
constexpr std::string_view Subjects[] = {"matematike",
                                         "fizike",
                                         "logistike",
                                         "prometa",
                                         "energetike",
                                         "održivog razvoja",
                                         "zaštite voda",
                                         "geoinformatike",
                                         "krajobraza",
                                         "šumarstva",
                                         "pčelarstva",
                                         "vinogradarstva",
                                         "građevnih materijala",
                                         "željezničkog prijevoza",
                                         "tehničke mehanike",
                                         "statistike",
                                         "računalnih mreža",
                                         "obrade podataka",
                                         "automatizacije",
                                         "gospodarenja otpadom",
                                         "obnovljivih izvora",
                                         "prehrambenih procesa",
                                         "bioraznolikosti",
                                         "hidrologije",
                                         "meteorologije",
                                         "urbanih sredina",
                                         "robotike",
                                         "komunikacija"};
constexpr std::string_view TitleNumbers[] = {"", "", "", " I", " II", " III"};

constexpr std::string_view Types[] = {"obvezni", "obvezni", "izborni"};

constexpr int HolderPlaces = 3;

/// Small random numbers that are the same on every system, unlike the library's distributions.
class Dice
{
public:
    explicit Dice(std::uint64_t seed) : m_engine(seed) {}

    /// From 0 to `count` - 1.
    int Below(int count) { return static_cast<int>(m_engine() % static_cast<std::uint64_t>(count)); }

    std::string_view OneOf(std::span<const std::string_view> texts)
    {
        return texts[static_cast<std::size_t>(Below(static_cast<int>(texts.size())))];
    }

    /// Some different numbers below `count`, in random order.
    std::vector<int> Different(int howMany, int count)
    {
        std::vector<int> chosen;
        while (static_cast<int>(chosen.size()) < howMany)
            if (const int number = Below(count); std::ranges::find(chosen, number) == chosen.end())
                chosen.push_back(number);
        return chosen;
    }

private:
    std::mt19937_64 m_engine;
};

/// A table's file under construction.
class TableFile
{
public:
    explicit TableFile(const modData::TableLayout& layout) : m_layout(layout)
    {
        m_file.AddLine(layout.Header());
    }

    void Add(const std::vector<std::string>& fields) { m_file.AddLine(Joined(fields, ";")); }

    void SaveIn(const std::filesystem::path& folder) const
    {
        const std::u8string path = (folder / ToPath(m_layout.FileName)).u8string();
        m_file.SaveAs(std::string(path.begin(), path.end()));
    }

private:
    const modData::TableLayout& m_layout;
    TextFile m_file;
};

/// Part `index` of a whole that is divided as evenly as whole numbers allow.
int Share(int whole, int parts, int index)
{
    const auto until = [&](std::int64_t i) { return static_cast<int>(whole * i / parts); };
    return until(index + 1) - until(index);
}

/// Three letters; different for each number below 26 cubed.
std::string Letters(int number)
{
    std::string letters;
    for (int divisor = 26 * 26; divisor > 0; divisor /= 26)
        letters += static_cast<char>('A' + number / divisor % 26);
    return letters;
}

/// Each study is on both levels under one name.
std::string_view RazinaOf(int studij)
{
    return studij % 2 == 0 ? modData::Preddiplomski : modData::Diplomski;
}

class Generation
{
public:
    Generation(const CatalogueSize& size, std::uint64_t seed) : m_size(size), m_random(seed) {}

    void SaveIn(const std::filesystem::path& folder)
    {
        MakeZavodi().SaveIn(folder);
        MakeNastavnici().SaveIn(folder);
        MakeStudiji().SaveIn(folder);
        MakeSmjerovi().SaveIn(folder);
        MakeKolegiji().SaveIn(folder);
        MakeKolegijSmjerovi().SaveIn(folder);
        MakeKolegijNastavnici().SaveIn(folder);
    }

private:
    using Fields = std::vector<std::string>;

    struct Course
    {
        int ID;
        int Studij; // from 0
    };

    TableFile MakeZavodi() const
    {
        TableFile file(modData::Zavodi.Layout());
        for (int i = 0; i < m_size.Zavodi; ++i)
        {
            const std::string_view subject = Subjects[static_cast<std::size_t>(i) % std::size(Subjects)];
            file.Add({std::to_string(i + 1),
                      "Zavod " + std::to_string(i + 1) + " za područje " + std::string(subject),
                      "Z" + Letters(i)});
        }
        return file;
    }

    TableFile MakeNastavnici()
    {
        TableFile file(modData::Nastavnici.Layout());
        for (int i = 0; i < m_size.Nastavnici; ++i)
        {
            std::string name = Surname();
            if (m_random.Below(12) == 0)
                name += "-" + Surname();
            name.append(" ").append(m_random.OneOf(GivenNames));
            file.Add({std::to_string(i + 1), std::move(name), std::string(m_random.OneOf(Titles)),
                      std::to_string(m_random.Below(m_size.Zavodi) + 1)});
        }
        return file;
    }

    TableFile MakeStudiji() const
    {
        TableFile file(modData::Studiji.Layout());
        for (int i = 0; i < m_size.Studiji; ++i)
        {
            const auto subject = static_cast<std::size_t>(i / 2) % std::size(Subjects);
            file.Add({std::to_string(i + 1), "Studij " + std::string(Subjects[subject]), Letters(i / 2),
                      std::string(RazinaOf(i))});
        }
        return file;
    }

    /// Direction i belongs to study i modulo their number.
    TableFile MakeSmjerovi()
    {
        TableFile file(modData::Smjerovi.Layout());
        for (int i = 0; i < m_size.Smjerovi; ++i)
        {
            const int studij = i % m_size.Studiji;
            file.Add({std::to_string(i + 1), "Smjer " + std::string(m_random.OneOf(Subjects)),
                      "S" + Letters(i), std::to_string(studij + 1), std::string(RazinaOf(studij))});
        }
        return file;
    }

    TableFile MakeKolegiji()
    {
        TableFile file(modData::Kolegiji.Layout());
        int id = 0;
        for (int i = 0; i < m_size.Kolegiji; ++i)
        {
            id += m_random.Below(10) == 0 ? 2 : 1; // a gap, as after a deleted course
            const int studij = m_random.Below(m_size.Studiji);
            m_courses.push_back({id, studij});
            const int semesters = modData::LastSemestar(RazinaOf(studij));
            std::string title(m_random.OneOf(TitleBeginnings));
            title.append(" ").append(m_random.OneOf(Subjects)).append(m_random.OneOf(TitleNumbers));
            file.Add({std::to_string(id), std::move(title), Number(0, 4), Number(0, 2), Number(0, 4),
                      Number(2, 10), std::string(m_random.OneOf(Types)), Number(1, semesters),
                      std::to_string(studij + 1)});
        }
        return file;
    }

    TableFile MakeKolegijSmjerovi()
    {
        std::vector<Fields> links;
        for (std::size_t i = 0; i < m_courses.size(); ++i)
        {
            const int directions = Share(m_size.Smjerovi, m_size.Studiji, 0);
            const int count = Uneven(i, m_size.KolegijSmjerovi);
            for (const int choice : m_random.Different(std::min(count, directions), directions))
                links.push_back({std::to_string(m_courses[i].ID),
                                 std::to_string(choice * m_size.Studiji + m_courses[i].Studij + 1)});
        }
        return LinkFile(modData::KolegijSmjerovi.Layout(), links);
    }

    TableFile MakeKolegijNastavnici()
    {
        std::vector<Fields> links;
        for (std::size_t i = 0; i < m_courses.size(); ++i)
        {
            const std::vector<int> lecturers =
                m_random.Different(Uneven(i, m_size.KolegijNastavnici), m_size.Nastavnici);
            for (std::size_t j = 0; j < lecturers.size(); ++j)
            {
                const bool holds = j < HolderPlaces;
                links.push_back({std::to_string(m_courses[i].ID), std::to_string(lecturers[j] + 1),
                                 holds ? "Nositelj" : "Suradnik",
                                 std::to_string(holds ? j + 1 : HolderPlaces)});
            }
        }
        return LinkFile(modData::KolegijNastavnici.Layout(), links);
    }

    /// The links in course order, except that some courses' links are at the end, where an edit of the course
    /// puts them.
    TableFile LinkFile(const modData::TableLayout& layout, const std::vector<Fields>& links)
    {
        TableFile file(layout);
        std::vector<const Fields*> edited;
        bool isEdited = false;
        std::string_view course;
        for (const Fields& link : links)
        {
            if (link.front() != course)
                isEdited = m_random.Below(10) == 0;
            course = link.front();
            if (isEdited)
                edited.push_back(&link);
            else
                file.Add(link);
        }
        for (const Fields* link : edited)
            file.Add(*link);
        return file;
    }

    /// A course's number of links: in every second pair of courses one has a link more, the other a link
    /// less.
    int Uneven(std::size_t course, int links) const
    {
        const int even = Share(links, m_size.Kolegiji, static_cast<int>(course));
        if (course / 2 % 2 == 0)
            return even;
        return course % 2 == 0 ? even - 1 : even + 1;
    }

    std::string Surname()
    {
        std::string surname(m_random.OneOf(SurnameBeginnings));
        surname.append(m_random.OneOf(SurnameMiddles)).append(m_random.OneOf(SurnameEndings));
        return surname;
    }

    std::string Number(int smallest, int largest)
    {
        return std::to_string(smallest + m_random.Below(largest - smallest + 1));
    }

    CatalogueSize m_size;
    Dice m_random;
    std::vector<Course> m_courses;
};

} // namespace

void GenerateCatalogue(const CatalogueSize& size, std::uint64_t seed, const std::filesystem::path& folder)
{
    Generation(size, seed).SaveIn(folder);
}

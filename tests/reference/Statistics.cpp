#include "reference/Scan.h"

#include "data/CheckedNumbers.h"
#include "data/Errors.h"
#include "data/modData.h"
#include "text/Numbers.h"

#include <array>
#include <limits>

// The sums and the lists of teaching load.

namespace reference
{

namespace
{

constexpr std::size_t Values = 5; // P, S, V, ECTS, number of courses
constexpr std::size_t EctsValue = 3;
constexpr std::size_t Semesters = 6;
constexpr std::size_t Obvezni = 0;
constexpr std::size_t Izborni = 1;

using Sums = std::array<std::int32_t, Values>;
using Table = std::array<std::array<Sums, Semesters>, 2>; // by type, then semester

std::int32_t Checked(std::int64_t number)
{
    if (number < std::numeric_limits<std::int32_t>::min() ||
        number > std::numeric_limits<std::int32_t>::max())
        throw OverflowError();
    return static_cast<std::int32_t>(number);
}

void AddTo(Sums& sums, const Sums& more)
{
    for (std::size_t i = 0; i < Values; ++i)
        sums[i] = Checked(std::int64_t{sums[i]} + more[i]);
}

ListRow SumRow(const std::string& first, const std::string& second, const Sums& sums, bool bold)
{
    ListRow row = {{first, TextColours::Black, bold}, {second, TextColours::Black, bold}};
    for (const std::int32_t sum : sums)
        row.push_back({std::to_string(sum), TextColours::Black, bold});
    return row;
}

struct Wording
{
    std::string TypeTotal;
    std::string GrandTotal;
    std::string AllTypes;
    bool RedAbove30;
};

std::vector<ListRow> SumRows(const Table& table, const Wording& wording, std::size_t last = Semesters,
                             std::int32_t only = 0)
{
    const std::array<std::string, 2> names = {"Obvezni", "Izborni"};
    std::vector<ListRow> rows;
    for (std::size_t s = 1; s <= last; ++s)
    {
        if (only != 0 && static_cast<std::int32_t>(s) != only)
            continue;
        for (const std::size_t type : {Obvezni, Izborni})
        {
            const Sums& sums = table[type][s - 1];
            rows.push_back(SumRow(std::to_string(s), names[type], sums, false));
            if (wording.RedAbove30 && sums[EctsValue] > 30)
                rows.back()[5].Colour = TextColours::Red;
        }
    }

    Sums all{};
    for (const std::size_t type : {Obvezni, Izborni})
    {
        Sums total{};
        for (std::size_t s = 1; s <= last; ++s)
            AddTo(total, table[type][s - 1]);
        rows.push_back(SumRow(wording.TypeTotal, names[type], total, true));
        AddTo(all, total);
    }
    rows.push_back(SumRow(wording.GrandTotal, wording.AllTypes, all, true));
    return rows;
}

std::int32_t ParseWholeOrZero(const std::string& text)
{
    return IsNumeric(text) ? ToLong(text) : 0;
}

std::int32_t Weight(const Catalogue& catalogue, std::int32_t kolegijID, std::int32_t smjerID)
{
    if (smjerID != 0)
        return HasSmjer(catalogue, kolegijID, smjerID) ? 1 : 0;
    const TextTable& links = catalogue.KolegijSmjerovi;
    std::int32_t count = 0;
    for (const TextRow& link : links.Rows)
        if (Number(links, link, KolegijSmjer::KolegijID) == kolegijID)
            ++count;
    return count;
}

/// What a course adds to the sums: hours, credits and 1, each read by `read`.
template<typename Read>
Sums SumsOf(const Read& read)
{
    Sums sums{};
    std::size_t i = 0;
    for (const Kolegij::Column column : {Kolegij::P, Kolegij::S, Kolegij::V, Kolegij::ECTS})
        sums[i++] = read(column);
    sums[i] = 1;
    return sums;
}

enum class Reading
{
    Strict,
    Safe,
};

std::int32_t Read(const TextTable& table, const TextRow& row, std::size_t column, Reading reading)
{
    return reading == Reading::Strict ? Number(table, row, column) : SafeNumber(table, row, column);
}

/// Calls `visit` with each course that a lecturer is linked to, once per link.
template<typename Visit>
void ForEachTaught(const Catalogue& catalogue, std::int32_t nastavnikID, Reading reading, const Visit& visit)
{
    const TextTable& links = catalogue.KolegijNastavnici;
    const TextTable& kolegiji = catalogue.Kolegiji;
    for (const TextRow& link : links.Rows)
    {
        if (Read(links, link, KolegijNastavnik::NastavnikID, reading) != nastavnikID)
            continue;
        const std::int32_t kolegijID = Read(links, link, KolegijNastavnik::KolegijID, reading);
        for (const TextRow& kolegij : kolegiji.Rows)
            if (Read(kolegiji, kolegij, Kolegij::ID, reading) == kolegijID)
                visit(kolegij);
    }
}

/// A row of the course lists of lecturers and departments.
ListRow TaughtRow(const Catalogue& catalogue, const TextRow& kolegij, Reading reading)
{
    const TextTable& kolegiji = catalogue.Kolegiji;
    const std::int32_t kolegijID = Read(kolegiji, kolegij, Kolegij::ID, reading);
    const std::int32_t studijID = Read(kolegiji, kolegij, Kolegij::StudijID, reading);
    std::vector<std::string> texts;
    for (const Kolegij::Column column :
         {Kolegij::Naziv, Kolegij::P, Kolegij::S, Kolegij::V, Kolegij::ECTS, Kolegij::Tip, Kolegij::Semestar})
        texts.push_back(Field(kolegiji, kolegij, column));
    texts.push_back(TextOfID(catalogue.Studiji, studijID, Studij::Kratica));
    texts.push_back(GetNositeljiString(catalogue, kolegijID));

    const TextColour colour =
        Reads(Field(kolegiji, kolegij, Kolegij::Tip), "IZBORNI") ? TextColours::Blue : TextColours::Black;
    ListRow row;
    for (const std::string& text : texts)
        row.push_back({text, colour, false});
    return row;
}

// Lecturers

constexpr std::string_view All = "Svi";

template<typename Visit>
void ForEachOfLecturer(const Catalogue& catalogue, std::int32_t nastavnikID, const LecturerFilter& filter,
                       const Visit& visit)
{
    const auto visitPassing = [&](const TextRow& kolegij)
    {
        const TextRow* studij =
            FirstWithID(catalogue.Studiji, Number(catalogue.Kolegiji, kolegij, Kolegij::StudijID));
        const std::string razina = studij == nullptr ? "" : Field(catalogue.Studiji, *studij, Studij::Razina);
        const std::string kratica =
            studij == nullptr ? "" : Field(catalogue.Studiji, *studij, Studij::Kratica);
        if ((filter.Razina == All || filter.Razina == razina) &&
            (filter.Program == All || filter.Program == kratica))
            visit(kolegij);
    };
    ForEachTaught(catalogue, nastavnikID, Reading::Strict, visitPassing);
}

Table LecturerTable(const Catalogue& catalogue, std::int32_t nastavnikID, const LecturerFilter& filter,
                    Reading hours)
{
    const TextTable& kolegiji = catalogue.Kolegiji;
    Table table{};
    ForEachOfLecturer(
        catalogue, nastavnikID, filter,
        [&](const TextRow& kolegij)
        {
            const std::int32_t semestar = Number(kolegiji, kolegij, Kolegij::Semestar);
            if (semestar < 1 || semestar > 6)
                return;
            const bool isObvezni = Reads(Field(kolegiji, kolegij, Kolegij::Tip), "OBVEZNI");
            const Sums sums =
                SumsOf([&](std::size_t column) { return Read(kolegiji, kolegij, column, hours); });
            AddTo(table[isObvezni ? Obvezni : Izborni][static_cast<std::size_t>(semestar) - 1], sums);
        });
    return table;
}

// Departments

bool PassesSemestar(std::int32_t semestar, std::string_view wanted)
{
    if (wanted == All)
        return true;
    if (wanted == "Zimski")
        return semestar % 2 == 1;
    if (wanted == "Ljetni")
        return semestar % 2 == 0;
    return semestar == ToLongOrZero(wanted);
}

bool PassesRazina(const Catalogue& catalogue, std::int32_t studijID, std::string_view wanted)
{
    if (wanted == All)
        return true;
    for (const TextRow& studij : catalogue.Studiji.Rows)
        if (SafeNumber(catalogue.Studiji, studij, Studij::ID) == studijID)
            return Field(catalogue.Studiji, studij, Studij::Razina) == wanted;
    return false;
}

template<typename Visit>
void ForEachOfDepartment(const Catalogue& catalogue, std::int32_t zavodID, const DepartmentFilter& filter,
                         const Visit& visit)
{
    const TextTable& nastavnici = catalogue.Nastavnici;
    const TextTable& kolegiji = catalogue.Kolegiji;
    const auto visitPassing = [&](const TextRow& kolegij)
    {
        if (PassesSemestar(SafeNumber(kolegiji, kolegij, Kolegij::Semestar), filter.Semestar) &&
            PassesRazina(catalogue, SafeNumber(kolegiji, kolegij, Kolegij::StudijID), filter.Razina))
            visit(kolegij);
    };
    for (const TextRow& nastavnik : nastavnici.Rows)
        if (SafeNumber(nastavnici, nastavnik, Nastavnik::ZavodID) == zavodID)
            ForEachTaught(catalogue, SafeNumber(nastavnici, nastavnik, Nastavnik::ID), Reading::Safe,
                          visitPassing);
}

Table DepartmentTable(const Catalogue& catalogue, std::int32_t zavodID, const DepartmentFilter& filter)
{
    const TextTable& kolegiji = catalogue.Kolegiji;
    Table table{};
    ForEachOfDepartment(
        catalogue, zavodID, filter,
        [&](const TextRow& kolegij)
        {
            const std::int32_t semestar = SafeNumber(kolegiji, kolegij, Kolegij::Semestar);
            if (semestar < 1 || semestar > 6)
                return;
            const std::string& tip = Field(kolegiji, kolegij, Kolegij::Tip);
            if (!Reads(tip, "OBVEZNI") && !Reads(tip, "IZBORNI"))
                return;
            AddTo(table[Reads(tip, "OBVEZNI") ? Obvezni : Izborni][static_cast<std::size_t>(semestar) - 1],
                  SumsOf([&](std::size_t column) { return SafeNumber(kolegiji, kolegij, column); }));
        });
    return table;
}

const Wording MainWording = {"UKUPNO", "TOTAL", "Sve", true};
const Wording DepartmentWording = {"Ukupno", "Ukupno", "Total", false};

} // namespace

std::vector<ListRow> StatistikaRows(const Catalogue& catalogue, const CourseFilter& filter,
                                    std::string_view razina)
{
    const TextTable& kolegiji = catalogue.Kolegiji;
    const std::int32_t last = razina == "Diplomski" ? 4 : 6;
    Table table{};
    for (const TextRow& kolegij : kolegiji.Rows)
    {
        const std::int32_t id = Number(kolegiji, kolegij, Kolegij::ID);
        const std::int32_t semestar = Number(kolegiji, kolegij, Kolegij::Semestar);
        if (filter.StudijID != 0 && Number(kolegiji, kolegij, Kolegij::StudijID) != filter.StudijID)
            continue;
        if (filter.Semestar != 0 && semestar != filter.Semestar)
            continue;
        if (!MatchesSearch(catalogue, kolegij, filter.Search) || semestar < 1 || semestar > last)
            continue;
        const bool isObvezni = Reads(Field(kolegiji, kolegij, Kolegij::Tip), "OBVEZNI");
        const std::int32_t weight = Weight(catalogue, id, filter.SmjerID);
        if (weight <= 0)
            continue;
        Sums sums =
            SumsOf([&](std::size_t column) { return ParseWholeOrZero(Field(kolegiji, kolegij, column)); });
        for (std::int32_t& sum : sums)
            sum = Checked(std::int64_t{sum} * weight);
        AddTo(table[isObvezni ? Obvezni : Izborni][static_cast<std::size_t>(semestar) - 1], sums);
    }
    return SumRows(table, MainWording, static_cast<std::size_t>(last), filter.Semestar);
}

std::vector<ListRow> LecturerCourseRows(const Catalogue& catalogue, std::int32_t nastavnikID,
                                        const LecturerFilter& filter)
{
    std::vector<ListRow> rows;
    ForEachOfLecturer(catalogue, nastavnikID, filter,
                      [&](const TextRow& kolegij)
                      { rows.push_back(TaughtRow(catalogue, kolegij, Reading::Strict)); });
    return rows;
}

std::vector<ListRow> LecturerTeachingLoadRows(const Catalogue& catalogue, std::int32_t nastavnikID,
                                              const LecturerFilter& filter)
{
    return SumRows(LecturerTable(catalogue, nastavnikID, filter, Reading::Strict), MainWording);
}

std::vector<ListRow> DepartmentCourseRows(const Catalogue& catalogue, std::int32_t zavodID,
                                          const DepartmentFilter& filter)
{
    std::vector<ListRow> rows;
    ForEachOfDepartment(catalogue, zavodID, filter,
                        [&](const TextRow& kolegij)
                        { rows.push_back(TaughtRow(catalogue, kolegij, Reading::Safe)); });
    return rows;
}

std::vector<ListRow> DepartmentTeachingLoadRows(const Catalogue& catalogue, std::int32_t zavodID,
                                                const DepartmentFilter& filter)
{
    return SumRows(DepartmentTable(catalogue, zavodID, filter), DepartmentWording);
}

std::vector<ListRow> LecturerExportRows(const Catalogue& catalogue, std::int32_t nastavnikID,
                                        const LecturerFilter& filter)
{
    return SumRows(LecturerTable(catalogue, nastavnikID, filter, Reading::Safe), MainWording);
}

} // namespace reference

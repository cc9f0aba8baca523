#include "differential/RandomCatalogue.h"

#include "data/Windows1250.h"
#include "differential/RandomTexts.h"
#include "support/TestFolder.h"

#include <algorithm>
#include <cctype>
#include <set>
#include <utility>
#include <vector>

namespace
{

enum class Fault
{
    DuplicateID,
    UnknownID,
    OddlyWrittenNumber,
    Decimal,
    NotNumeric,
    TooLarge,
    HugeHours,
    Negative,
    MissingFields,
    ExtraFields,
    EmptyFirstField,
    BlankName,
    OddSemestar,
    OddPlace,
    OddTip,
    OddRazina,
    OddUloga,
    OddText,
    BlankLine,
    LoneCR,
    LoneLF,
    NoFinalEnd,
    Utf8Mark,
    EmptyFile,
    HeaderOnly,
    AnyBytes,
};

constexpr std::size_t FaultKinds = static_cast<std::size_t>(Fault::AnyBytes) + 1;

constexpr std::string_view Headers[] = {
    "ID;Naziv;Kratica",
    "ID;PrezimeIme;Titula;ZavodID",
    "ID;Naziv;Kratica;Razina",
    "ID;Naziv;Kratica;StudijID;Razina",
    "ID;Naziv;P;S;V;ECTS;Tip;Semestar;StudijID",
    "KolegijID;SmjerID",
    "KolegijID;NastavnikID;Uloga;Redoslijed",
};

/// The kinds of faults in a catalogue, and how often each occurs.
class Faults
{
public:
    explicit Faults(Chance& chance) : m_dice(chance)
    {
        constexpr std::size_t rates[] = {5, 20, 100, 300};
        const std::size_t kinds[] = {0, 1, 1, 2, 3, 6, FaultKinds};
        for (std::size_t left = m_dice.PerMille(120) ? 0 : kinds[m_dice.Below(std::size(kinds))]; left > 0;
             --left)
            m_rates[m_dice.Below(FaultKinds)] = m_dice.OneOf(rates);
    }

    bool Strikes(Fault fault)
    {
        const std::size_t rate = m_rates[static_cast<std::size_t>(fault)];
        return rate != 0 && m_dice.PerMille(rate);
    }

private:
    Chance& m_dice;
    std::array<std::size_t, FaultKinds> m_rates{};
};

class Generator
{
public:
    explicit Generator(Chance& chance) : m_dice(chance), m_has(chance) {}

    CatalogueFiles Make()
    {
        const int most = m_dice.PerMille(200) ? 3 : 14;
        const auto rows = [&](int limit)
        { return m_dice.PerMille(60) ? 0 : m_dice.Between(1, std::min(limit, most)); };
        MakeIDs(m_zavodIDs, rows(4));
        MakeIDs(m_nastavnikIDs, rows(8));
        MakeIDs(m_studijIDs, rows(5));
        MakeIDs(m_smjerIDs, rows(7));
        MakeIDs(m_kolegijIDs, rows(9));

        std::array<std::vector<std::string>, 7> lines;
        for (const int id : m_zavodIDs)
            lines[0].push_back(Line({Number(id), Name(), Text(Codes)}));
        for (const int id : m_nastavnikIDs)
            lines[1].push_back(Line({Number(id), Person(), Text(Titles), Reference(m_zavodIDs)}));
        for (const int id : m_studijIDs)
            lines[2].push_back(Line({Number(id), Name(), Text(Codes), Razina()}));
        for (const int id : m_smjerIDs)
            lines[3].push_back(Line({Number(id), Name(), Text(Codes), Reference(m_studijIDs), Razina()}));
        for (const int id : m_kolegijIDs)
            lines[4].push_back(Line({Number(id), Name(), Hours(4), Hours(3), Hours(3), Hours(20), Tip(),
                                     Semestar(), Reference(m_studijIDs)}));
        for (int i = m_kolegijIDs.empty() || m_smjerIDs.empty() ? 0 : rows(14) + rows(6); i > 0; --i)
            lines[5].push_back(Line({Reference(m_kolegijIDs), Reference(m_smjerIDs)}));
        for (int i = m_kolegijIDs.empty() || m_nastavnikIDs.empty() ? 0 : rows(14) + rows(10); i > 0; --i)
            lines[6].push_back(Line({Reference(m_kolegijIDs), Reference(m_nastavnikIDs), Uloga(), Place()}));

        CatalogueFiles files;
        for (std::size_t i = 0; i < files.size(); ++i)
            files[i] = File(Headers[i], lines[i]);
        return files;
    }

private:
    /// Unique IDs in random order; faults may repeat some.
    void MakeIDs(std::vector<int>& ids, int count)
    {
        while (static_cast<int>(ids.size()) < count)
        {
            const int id = m_dice.Between(1, LargestID);
            if (std::ranges::find(ids, id) == ids.end() || m_has.Strikes(Fault::DuplicateID))
                ids.push_back(id);
        }
    }

    std::string Number(int number)
    {
        std::string plain = std::to_string(number);
        if (m_has.Strikes(Fault::OddlyWrittenNumber))
        {
            const std::string odd[] = {
                " " + plain,  plain + "  ", "0" + plain, plain + ".0",
                plain + ",4", "+" + plain,  plain + ",", std::to_string(number - 1) + ".51"};
            return odd[m_dice.Below(std::size(odd))];
        }
        if (m_has.Strikes(Fault::Decimal))
            return plain + (m_dice.PerMille(500) ? ",5" : ".5");
        if (m_has.Strikes(Fault::NotNumeric))
            return std::string(m_dice.OneOf(NotNumbers));
        if (m_has.Strikes(Fault::TooLarge))
            return std::string(m_dice.OneOf(LargeNumbers));
        if (m_has.Strikes(Fault::Negative))
            return "-" + plain;
        return plain;
    }

    std::string Reference(const std::vector<int>& ids)
    {
        if (ids.empty() || m_has.Strikes(Fault::UnknownID))
            return Number(m_dice.Between(0, LargestID + 2));
        return Number(ids[m_dice.Below(ids.size())]);
    }

    std::string Hours(int most)
    {
        constexpr std::string_view huge[] = {"2147483647",  "1073741824", "715827883",
                                             "-2147483648", "30",         "31"};
        if (m_has.Strikes(Fault::HugeHours))
            return std::string(m_dice.OneOf(huge));
        return Number(m_dice.Between(0, most));
    }

    template<std::size_t Count>
    std::string Text(const std::string_view (&texts)[Count])
    {
        std::string text(m_dice.OneOf(texts));
        if (m_has.Strikes(Fault::OddText))
            text.insert(m_dice.PerMille(500) ? 0 : text.size(),
                        m_dice.PerMille(500) ? ForeignLetter(m_dice) : std::string(m_dice.OneOf(OddTexts)));
        return text;
    }

    std::string Name() { return m_dice.PerMille(300) ? Word(m_dice) : Text(Names); }

    std::string Person()
    {
        return m_has.Strikes(Fault::BlankName) ? std::string(m_dice.Below(3), ' ') : Text(People);
    }

    std::string Razina()
    {
        return m_has.Strikes(Fault::OddRazina) ? Text(OddLevels) : std::string(m_dice.OneOf(Levels));
    }

    std::string Tip()
    {
        return m_has.Strikes(Fault::OddTip) ? Text(OddTypes) : std::string(m_dice.OneOf(Types));
    }

    std::string Uloga()
    {
        return m_has.Strikes(Fault::OddUloga) ? Text(OddRoles) : std::string(m_dice.OneOf(Roles));
    }

    std::string Semestar()
    {
        return Number(m_has.Strikes(Fault::OddSemestar) ? m_dice.Between(-2, 9) : m_dice.Between(1, 6));
    }

    std::string Place()
    {
        return Number(m_has.Strikes(Fault::OddPlace) ? m_dice.Between(-1, 5) : m_dice.Between(1, 3));
    }

    std::string Line(std::vector<std::string> fields)
    {
        if (m_has.Strikes(Fault::EmptyFirstField))
            fields.front().clear();
        if (m_has.Strikes(Fault::MissingFields))
            fields.resize(1 + m_dice.Below(fields.size()));
        if (m_has.Strikes(Fault::ExtraFields))
            for (std::size_t i = 0; i <= m_dice.Below(3); ++i)
                fields.emplace_back(i == 0 ? "" : "višak");
        std::string line = fields.front();
        for (std::size_t i = 1; i < fields.size(); ++i)
            line += ";" + fields[i];
        return line;
    }

    std::string LineEnd()
    {
        if (m_has.Strikes(Fault::LoneCR))
            return "\r";
        if (m_has.Strikes(Fault::LoneLF))
            return "\n";
        if (m_has.Strikes(Fault::BlankLine))
            return "\r\n" + std::string(m_dice.Below(3), ' ') + "\r\n";
        return "\r\n";
    }

    std::string File(std::string_view header, const std::vector<std::string>& lines)
    {
        if (m_has.Strikes(Fault::EmptyFile))
            return m_dice.PerMille(300) ? "\xEF\xBB\xBF" : "";
        std::string text(header);
        if (!m_has.Strikes(Fault::HeaderOnly))
            for (const std::string& line : lines)
                text += LineEnd() + line;
        if (!m_has.Strikes(Fault::NoFinalEnd))
            text += LineEnd();
        std::string bytes = m_has.Strikes(Fault::Utf8Mark) ? "\xEF\xBB\xBF" + text : ToWindows1250(text);
        while (m_has.Strikes(Fault::AnyBytes))
            bytes.insert(m_dice.Below(bytes.size() + 1), 1, static_cast<char>(m_dice.Below(256)));
        return bytes;
    }

    Chance& m_dice;
    Faults m_has;
    std::vector<int> m_zavodIDs;
    std::vector<int> m_nastavnikIDs;
    std::vector<int> m_studijIDs;
    std::vector<int> m_smjerIDs;
    std::vector<int> m_kolegijIDs;
};

std::string Escaped(std::string_view bytes)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    bool afterHex = false; // a following digit would count as part of the byte's number
    for (const char byte : bytes)
    {
        const auto code = static_cast<unsigned char>(byte);
        const bool plain = code >= ' ' && code < 0x7F;
        if (plain && afterHex && std::isxdigit(code) != 0)
            text += "\" \"";
        afterHex = !plain && byte != '\r' && byte != '\n' && byte != '\t';
        if (byte == '\r')
            text += "\\r";
        else if (byte == '\n')
            text += "\\n";
        else if (byte == '\t')
            text += "\\t";
        else if (byte == '"' || byte == '\\')
            text.append("\\").append(1, byte);
        else if (plain)
            text += byte;
        else
            text.append("\\x").append(1, digits[code >> 4U]).append(1, digits[code & 0xFU]);
    }
    return text;
}

} // namespace

CatalogueFiles RandomFiles(Chance& chance)
{
    return Generator(chance).Make();
}

void WriteFiles(const CatalogueFiles& files, const std::filesystem::path& folder)
{
    for (std::size_t i = 0; i < files.size(); ++i)
    {
        std::filesystem::remove(folder / TableFiles[i]); // truncating an old file may wait for the disk
        WriteBytes(folder / TableFiles[i], files[i]);
    }
}

std::string AsSource(const CatalogueFiles& files)
{
    std::string source;
    for (std::size_t i = 0; i < files.size(); ++i)
        source.append("// ").append(TableFiles[i]).append("\n\"").append(Escaped(files[i])).append("\"s,\n");
    return source;
}

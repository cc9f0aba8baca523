#include "differential/RandomCatalogue.h"

#include "data/Windows1250.h"
#include "differential/RandomTexts.h"
#include "support/TestFolder.h"

#include <algorithm>
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

/// Which faults a catalogue has, and how often each.
class Faults
{
public:
    explicit Faults(Chance& chance) : Dice(chance)
    {
        constexpr std::size_t rates[] = {5, 20, 100, 300};
        const std::size_t kinds[] = {0, 1, 1, 2, 3, 6, FaultKinds};
        for (std::size_t left = Dice.PerMille(120) ? 0 : kinds[Dice.Below(std::size(kinds))]; left > 0;
             --left)
            Rates[Dice.Below(FaultKinds)] = Dice.OneOf(rates);
    }

    bool Strikes(Fault fault)
    {
        const std::size_t rate = Rates[static_cast<std::size_t>(fault)];
        return rate != 0 && Dice.PerMille(rate);
    }

private:
    Chance& Dice;
    std::array<std::size_t, FaultKinds> Rates{};
};

class Generator
{
public:
    explicit Generator(Chance& chance) : Dice(chance), Has(chance) {}

    CatalogueFiles Make()
    {
        const int most = Dice.PerMille(200) ? 3 : 14;
        const auto rows = [&](int limit)
        { return Dice.PerMille(60) ? 0 : Dice.Between(1, std::min(limit, most)); };
        MakeIDs(ZavodIDs, rows(4));
        MakeIDs(NastavnikIDs, rows(8));
        MakeIDs(StudijIDs, rows(5));
        MakeIDs(SmjerIDs, rows(7));
        MakeIDs(KolegijIDs, rows(9));

        std::array<std::vector<std::string>, 7> lines;
        for (const int id : ZavodIDs)
            lines[0].push_back(Line({Number(id), Name(), Text(Codes)}));
        for (const int id : NastavnikIDs)
            lines[1].push_back(Line({Number(id), Person(), Text(Titles), Reference(ZavodIDs)}));
        for (const int id : StudijIDs)
            lines[2].push_back(Line({Number(id), Name(), Text(Codes), Razina()}));
        for (const int id : SmjerIDs)
            lines[3].push_back(Line({Number(id), Name(), Text(Codes), Reference(StudijIDs), Razina()}));
        for (const int id : KolegijIDs)
            lines[4].push_back(Line({Number(id), Name(), Hours(4), Hours(3), Hours(3), Hours(20), Tip(),
                                     Semestar(), Reference(StudijIDs)}));
        for (int i = KolegijIDs.empty() || SmjerIDs.empty() ? 0 : rows(14) + rows(6); i > 0; --i)
            lines[5].push_back(Line({Reference(KolegijIDs), Reference(SmjerIDs)}));
        for (int i = KolegijIDs.empty() || NastavnikIDs.empty() ? 0 : rows(14) + rows(10); i > 0; --i)
            lines[6].push_back(Line({Reference(KolegijIDs), Reference(NastavnikIDs), Uloga(), Place()}));

        CatalogueFiles files;
        for (std::size_t i = 0; i < files.size(); ++i)
            files[i] = File(Headers[i], lines[i]);
        return files;
    }

private:
    /// Unique IDs in no order; the faults may repeat some.
    void MakeIDs(std::vector<int>& ids, int count)
    {
        while (static_cast<int>(ids.size()) < count)
        {
            const int id = Dice.Between(1, LargestID);
            if (std::ranges::find(ids, id) == ids.end() || Has.Strikes(Fault::DuplicateID))
                ids.push_back(id);
        }
    }

    std::string Number(int number)
    {
        const std::string plain = std::to_string(number);
        if (Has.Strikes(Fault::OddlyWrittenNumber))
        {
            const std::string odd[] = {
                " " + plain,  plain + "  ", "0" + plain, plain + ".0",
                plain + ",4", "+" + plain,  plain + ",", std::to_string(number - 1) + ".51"};
            return odd[Dice.Below(std::size(odd))];
        }
        if (Has.Strikes(Fault::Decimal))
            return plain + (Dice.PerMille(500) ? ",5" : ".5");
        if (Has.Strikes(Fault::NotNumeric))
            return std::string(Dice.OneOf(NotNumbers));
        if (Has.Strikes(Fault::TooLarge))
            return std::string(Dice.OneOf(LargeNumbers));
        if (Has.Strikes(Fault::Negative))
            return "-" + plain;
        return plain;
    }

    std::string Reference(const std::vector<int>& ids)
    {
        if (ids.empty() || Has.Strikes(Fault::UnknownID))
            return Number(Dice.Between(0, LargestID + 2));
        return Number(ids[Dice.Below(ids.size())]);
    }

    std::string Hours(int most)
    {
        constexpr std::string_view huge[] = {"2147483647",  "1073741824", "715827883",
                                             "-2147483648", "30",         "31"};
        if (Has.Strikes(Fault::HugeHours))
            return std::string(Dice.OneOf(huge));
        return Number(Dice.Between(0, most));
    }

    template<std::size_t Count>
    std::string Text(const std::string_view (&texts)[Count])
    {
        std::string text(Dice.OneOf(texts));
        if (Has.Strikes(Fault::OddText))
            text.insert(Dice.PerMille(500) ? 0 : text.size(),
                        Dice.PerMille(500) ? ForeignLetter(Dice) : std::string(Dice.OneOf(OddTexts)));
        return text;
    }

    std::string Name() { return Dice.PerMille(300) ? Word(Dice) : Text(Names); }

    std::string Person()
    {
        return Has.Strikes(Fault::BlankName) ? std::string(Dice.Below(3), ' ') : Text(People);
    }

    std::string Razina()
    {
        return Has.Strikes(Fault::OddRazina) ? Text(OddLevels) : std::string(Dice.OneOf(Levels));
    }

    std::string Tip() { return Has.Strikes(Fault::OddTip) ? Text(OddTypes) : std::string(Dice.OneOf(Types)); }

    std::string Uloga()
    {
        return Has.Strikes(Fault::OddUloga) ? Text(OddRoles) : std::string(Dice.OneOf(Roles));
    }

    std::string Semestar()
    {
        return Number(Has.Strikes(Fault::OddSemestar) ? Dice.Between(-2, 9) : Dice.Between(1, 6));
    }

    std::string Place()
    {
        return Number(Has.Strikes(Fault::OddPlace) ? Dice.Between(-1, 5) : Dice.Between(1, 3));
    }

    std::string Line(std::vector<std::string> fields)
    {
        if (Has.Strikes(Fault::EmptyFirstField))
            fields.front().clear();
        if (Has.Strikes(Fault::MissingFields))
            fields.resize(1 + Dice.Below(fields.size()));
        if (Has.Strikes(Fault::ExtraFields))
            for (std::size_t i = 0; i <= Dice.Below(3); ++i)
                fields.emplace_back(i == 0 ? "" : "višak");
        std::string line = fields.front();
        for (std::size_t i = 1; i < fields.size(); ++i)
            line += ";" + fields[i];
        return line;
    }

    std::string LineEnd()
    {
        if (Has.Strikes(Fault::LoneCR))
            return "\r";
        if (Has.Strikes(Fault::LoneLF))
            return "\n";
        if (Has.Strikes(Fault::BlankLine))
            return "\r\n" + std::string(Dice.Below(3), ' ') + "\r\n";
        return "\r\n";
    }

    std::string File(std::string_view header, const std::vector<std::string>& lines)
    {
        if (Has.Strikes(Fault::EmptyFile))
            return Dice.PerMille(300) ? "\xEF\xBB\xBF" : "";
        std::string text(header);
        if (!Has.Strikes(Fault::HeaderOnly))
            for (const std::string& line : lines)
                text += LineEnd() + line;
        if (!Has.Strikes(Fault::NoFinalEnd))
            text += LineEnd();
        std::string bytes = Has.Strikes(Fault::Utf8Mark) ? "\xEF\xBB\xBF" + text : ToWindows1250(text);
        while (Has.Strikes(Fault::AnyBytes))
            bytes.insert(Dice.Below(bytes.size() + 1), 1, static_cast<char>(Dice.Below(256)));
        return bytes;
    }

    Chance& Dice;
    Faults Has;
    std::vector<int> ZavodIDs;
    std::vector<int> NastavnikIDs;
    std::vector<int> StudijIDs;
    std::vector<int> SmjerIDs;
    std::vector<int> KolegijIDs;
};

std::string Escaped(std::string_view bytes)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    bool afterHex = false; // a digit behind would be read as part of the byte's number
    for (const char byte : bytes)
    {
        const auto code = static_cast<unsigned char>(byte);
        const bool plain = code >= ' ' && code < 0x7F;
        if (plain && afterHex && digits.find(static_cast<char>(code & ~0x20U)) != std::string_view::npos)
            text += "\" \"";
        else if (plain && afterHex && code >= '0' && code <= '9')
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
        std::filesystem::remove(folder / TableFiles[i]); // cutting off an old content may wait for the disk
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

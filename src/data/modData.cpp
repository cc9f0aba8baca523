#include "data/modData.h"

#include "data/Errors.h"
#include "data/Files.h"
#include "data/Numbers.h"
#include "data/System.h"
#include "data/Text.h"
#include "data/Windows1250.h"

#include <algorithm>
#include <filesystem>

namespace
{

constexpr std::string_view ZavodColumns[] = {"ID", "Naziv", "Kratica"};
constexpr std::string_view NastavnikColumns[] = {"ID", "PrezimeIme", "Titula", "ZavodID"};
constexpr std::string_view StudijColumns[] = {"ID", "Naziv", "Kratica", "Razina"};
constexpr std::string_view SmjerColumns[] = {"ID", "Naziv", "Kratica", "StudijID", "Razina"};
constexpr std::string_view KolegijColumns[] = {"ID",   "Naziv", "P",        "S",       "V",
                                               "ECTS", "Tip",   "Semestar", "StudijID"};
constexpr std::string_view KolegijSmjerColumns[] = {"KolegijID", "SmjerID"};
constexpr std::string_view KolegijNastavnikColumns[] = {"KolegijID", "NastavnikID", "Uloga", "Redoslijed"};

constexpr TableLayout ZavodLayout = {"db_zavod.csv", ZavodColumns};
constexpr TableLayout NastavnikLayout = {"db_nastavnici.csv", NastavnikColumns};
constexpr TableLayout StudijLayout = {"db_studij.csv", StudijColumns};
constexpr TableLayout SmjerLayout = {"db_smjer.csv", SmjerColumns};
constexpr TableLayout KolegijLayout = {"db_kolegij.csv", KolegijColumns};
constexpr TableLayout KolegijSmjerLayout = {"db_kolegij_smjer.csv", KolegijSmjerColumns};
constexpr TableLayout KolegijNastavnikLayout = {"db_kolegij_nastavnik.csv", KolegijNastavnikColumns};

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

std::string FilePath(const Table& table)
{
    return modData::GetDataFolder() + std::string(System::PathSeparator) +
           std::string(table.Layout().FileName);
}

void Load(Table& table)
{
    const std::string path = FilePath(table);
    modData::NormalizeFileEncoding(path);
    table = modData::LoadTable(path, table.Layout());
}

void Save(const Table& table)
{
    modData::SaveTable(FilePath(table), table.Layout().Header(), table);
}

/// Takes the first line off; CR LF or CR ends it, and a lone LF is part of it.
std::string_view TakeLine(std::string_view& content)
{
    const std::string_view line = content.substr(0, content.find('\r'));
    content.remove_prefix(line.size());
    if (content.starts_with("\r\n"))
        content.remove_prefix(2);
    else if (!content.empty())
        content.remove_prefix(1);
    return line;
}

std::string LineOf(const Row& row)
{
    std::string line;
    for (std::size_t i = 0; i < row.FieldCount(); ++i)
        AppendJoined(line, ";", row.Field(i));
    return line;
}

} // namespace

namespace modData
{

Table Zavodi(ZavodLayout);
Table Nastavnici(NastavnikLayout);
Table Studiji(StudijLayout);
Table Smjerovi(SmjerLayout);
Table Kolegiji(KolegijLayout);
Table KolegijSmjerovi(KolegijSmjerLayout);
Table KolegijNastavnici(KolegijNastavnikLayout);

std::string GetDataFolder()
{
    const std::string separator(System::PathSeparator);
    std::string base = System::EnvironmentVariable("LOCALAPPDATA");
    if (base.empty())
        base = System::EnvironmentVariable("USERPROFILE") + separator + "Local Settings" + separator +
               "Application Data";
    if (base.empty())
        return System::ProgramFolder();

    std::string folder = base + separator + "Varlostudiji";
    std::error_code ignored;
    std::filesystem::create_directories(ToPath(folder), ignored);
    return folder;
}

void NormalizeFileEncoding(std::string_view path)
{
    CreateFileIfMissing(path);
    if (ReadFile(path, Utf8Mark.size()) != Utf8Mark)
        return;
    const std::string content = ReadFile(path);
    ReplaceFile(path, ToWindows1250(std::string_view(content).substr(Utf8Mark.size())));
}

Table LoadTable(std::string_view path, const TableLayout& layout)
{
    const std::string content = FromWindows1250(ReadFile(path));
    if (content.empty())
        throw InputPastEnd(path);

    Table table(layout);
    std::string_view rest = content;
    TakeLine(rest); // the header, whatever it says
    for (std::uint32_t lineNumber = 2; !rest.empty(); ++lineNumber)
    {
        const std::string_view line = TakeLine(rest);
        if (!TrimBlanks(line).empty())
            table.AppendLine(line, lineNumber);
    }
    return table;
}

void SaveTable(std::string_view path, std::string_view header, const Table& table)
{
    TextFile file;
    file.AddLine(header);
    for (const Row& row : table)
        file.AddLine(LineOf(row));
    file.SaveAs(path, Former::Kept);
}

void LoadZavodi()
{
    Load(Zavodi);
}
void LoadNastavnici()
{
    Load(Nastavnici);
}
void LoadStudiji()
{
    Load(Studiji);
}
void LoadSmjerovi()
{
    Load(Smjerovi);
}
void LoadKolegiji()
{
    Load(Kolegiji);
}
void LoadKolegijSmjerovi()
{
    Load(KolegijSmjerovi);
}
void LoadKolegijNastavnici()
{
    Load(KolegijNastavnici);
}

void SaveZavodi()
{
    Save(Zavodi);
}
void SaveNastavnici()
{
    Save(Nastavnici);
}
void SaveStudiji()
{
    Save(Studiji);
}
void SaveSmjerovi()
{
    Save(Smjerovi);
}
void SaveKolegiji()
{
    Save(Kolegiji);
}
void SaveKolegijSmjerovi()
{
    Save(KolegijSmjerovi);
}
void SaveKolegijNastavnici()
{
    Save(KolegijNastavnici);
}

void LoadAllTables()
{
    LoadZavodi();
    LoadNastavnici();
    LoadStudiji();
    LoadSmjerovi();
    LoadKolegiji();
    LoadKolegijSmjerovi();
    LoadKolegijNastavnici();
}

void SaveAllTables()
{
    SaveZavodi();
    SaveNastavnici();
    SaveStudiji();
    SaveSmjerovi();
    SaveKolegiji();
    SaveKolegijSmjerovi();
    SaveKolegijNastavnici();
}

std::int32_t NextKolegijID()
{
    std::int32_t largest = 0;
    for (const Row& row : Kolegiji)
        largest = std::max(largest, row.Number(Kolegij::ID));
    return CheckedSum(largest, 1);
}

} // namespace modData

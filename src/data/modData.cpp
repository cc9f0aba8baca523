#include "data/modData.h"

#include "data/CatalogueSave.h"
#include "data/CheckedNumbers.h"
#include "data/DatedCopies.h"
#include "data/Errors.h"
#include "data/Files.h"
#include "data/Product.h"
#include "data/System.h"
#include "data/Windows1250.h"
#include "text/Text.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <memory>
#include <optional>

namespace modData
{

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

// The names here and the columns of modData.h must match.
static_assert(std::size(ZavodColumns) == Zavod::Kratica + 1);
static_assert(std::size(NastavnikColumns) == Nastavnik::ZavodID + 1);
static_assert(std::size(StudijColumns) == Studij::Razina + 1);
static_assert(std::size(SmjerColumns) == Smjer::Razina + 1);
static_assert(std::size(KolegijColumns) == Kolegij::StudijID + 1);
static_assert(std::size(KolegijSmjerColumns) == KolegijSmjer::SmjerID + 1);
static_assert(std::size(KolegijNastavnikColumns) == KolegijNastavnik::Redoslijed + 1);

constexpr TableLayout ZavodLayout = {"db_zavod.csv", ZavodColumns};
constexpr TableLayout NastavnikLayout = {"db_nastavnici.csv", NastavnikColumns};
constexpr TableLayout StudijLayout = {"db_studij.csv", StudijColumns};
constexpr TableLayout SmjerLayout = {"db_smjer.csv", SmjerColumns};
constexpr TableLayout KolegijLayout = {"db_kolegij.csv", KolegijColumns};
constexpr TableLayout KolegijSmjerLayout = {"db_kolegij_smjer.csv", KolegijSmjerColumns};
constexpr TableLayout KolegijNastavnikLayout = {"db_kolegij_nastavnik.csv", KolegijNastavnikColumns};

/// The folder that the Save functions write into; if empty, each replaces its own file.
std::string TargetFolder;

/// Held once a whole catalogue is loaded: the check of a catalogue mends nothing meanwhile.
std::unique_ptr<CatalogueLock> Running;

std::string FilePath(const Table& table)
{
    return PathIn(GetDataFolder(), table.Layout().FileName);
}

void Load(Table& table)
{
    const std::string path = FilePath(table);
    NormalizeFileEncoding(path);
    table = LoadTable(path, table.Layout());
}

/// Takes the first line off. CR LF or CR ends it; a lone LF is part of it.
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

TextFile FileOf(std::string_view header, const Table& table)
{
    TextFile file;
    file.AddLine(header);
    for (const Row& row : table)
        file.AddLine(LineOf(row));
    return file;
}

TextFile FileOf(const Table& table)
{
    return FileOf(table.Layout().Header(), table);
}

void Save(const Table& table)
{
    const std::string path = FilePath(table);
    if (TargetFolder.empty())
        SaveTable(path, table.Layout().Header(), table);
    else
        WriteNewFile(PathIn(TargetFolder, table.Layout().FileName), FileOf(table).Content(), path);
}

void SaveEach()
{
    for (const Table* table : AllTables())
        Save(*table);
}

/// Writes the seven tables into a folder.
void SaveEachInto(const std::string& folder)
{
    struct Restore
    {
        ~Restore() { TargetFolder.clear(); }
    };
    const Restore after;
    TargetFolder = folder;
    SaveEach();
}

/// True if a file already has the bytes that saving the table would write.
bool IsSaved(const Table* table)
{
    try
    {
        return ReadFile(FilePath(*table)) == FileOf(*table).Content();
    }
    catch (const FileError&)
    {
        return false;
    }
}

/// True if a file has the same rows as a table; line ends, blank lines and headers may differ.
bool ReadsAs(const Table* table)
{
    try
    {
        const Table onDisk = LoadTable(FilePath(*table), table->Layout());
        return FileOf(onDisk).Content() == FileOf(*table).Content();
    }
    catch (const RuntimeError&)
    {
        return false;
    }
}

/// The UTF-8 text of a file that NormalizeFileEncoding would convert; nothing for any other file.
std::optional<std::string> MarkedText(std::string_view path)
{
    if (ReadFile(path, Utf8Mark.size()) != Utf8Mark)
        return std::nullopt;
    return ReadFile(path).substr(Utf8Mark.size());
}

/// True if the conversion of a file to windows-1250 turns letters into "?".
bool LosesLetters(const std::string& path)
{
    if (TypeOf(path) == FileType::Missing)
        return false;
    const std::optional<std::string> text = MarkedText(path);
    return text && std::ranges::count(ToWindows1250(*text), '?') > std::ranges::count(*text, '?');
}

/// A folder for tables that cannot be kept beside the catalogue.
std::string FolderAmongTemporaries(std::string_view ending)
{
    return PathIn(System::TemporaryFolder(), ProductName)
        .append("-" + DatedCopies::CurrentTime())
        .append(ending);
}

} // namespace

Table Zavodi(ZavodLayout);
Table Nastavnici(NastavnikLayout);
Table Studiji(StudijLayout);
Table Smjerovi(SmjerLayout);
Table Kolegiji(KolegijLayout);
Table KolegijSmjerovi(KolegijSmjerLayout);
Table KolegijNastavnici(KolegijNastavnikLayout);

std::array<Table*, 7> AllTables()
{
    return {&Zavodi, &Nastavnici, &Studiji, &Smjerovi, &Kolegiji, &KolegijSmjerovi, &KolegijNastavnici};
}

std::string DataFolderPath()
{
    const std::string separator(System::PathSeparator);
    std::string base = System::EnvironmentVariable("LOCALAPPDATA");
    if (base.empty())
        base = System::EnvironmentVariable("USERPROFILE") + separator + "Local Settings" + separator +
               "Application Data";
    if (base.empty()) // cannot happen: the path above is never empty
        return System::ProgramFolder();
    return base + separator + "Varlostudiji";
}

std::string GetDataFolder()
{
    std::string folder = DataFolderPath();
    try
    {
        MakeFolders(folder);
    }
    catch (const FileError&)
    {
        // The next file access reports the cause.
    }
    return folder;
}

void NormalizeFileEncoding(std::string_view path)
{
    CreateFileIfMissing(path);
    if (const std::optional<std::string> text = MarkedText(path))
        ConvertFile(path, ToWindows1250(*text));
}

std::string NormalizedContent(std::string content)
{
    if (!content.starts_with(Utf8Mark))
        return content;
    return ToWindows1250(std::string_view(content).substr(Utf8Mark.size()));
}

Table LoadTable(std::string_view path, const TableLayout& layout)
{
    const std::string content = ReadFile(path);
    if (content.empty())
        throw InputPastEnd(path);
    return ParseTable(content, layout);
}

Table ParseTable(std::string_view bytes, const TableLayout& layout)
{
    Table table(layout);
    const std::string content = FromWindows1250(bytes);
    std::string_view rest = content;
    TakeLine(rest); // the header line; its text does not matter
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
    FileOf(header, table).SaveAs(path);
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

CatalogueOnDisk FilesIn(const std::string& folder)
{
    CatalogueOnDisk files = {folder, {}};
    for (const Table* table : AllTables())
        files.Names.push_back(table->Layout().FileName);
    return files;
}

void LoadAllTables()
{
    const CatalogueOnDisk files = FilesIn(GetDataFolder());
    const CatalogueLock lock(files.Folder, LockKind::Saving);
    CatalogueSave::FinishAtStart(files);
    if (lock.IsHeld()) // without a lock, another copy of the program may need them
        CatalogueSave::RemoveLeftovers(files);
    if (std::ranges::any_of(files.Names,
                            [&](std::string_view name) { return LosesLetters(PathIn(files.Folder, name)); }))
        DatedCopies::KeepAnother(files);
    for (Table* table : AllTables())
        Load(*table);
    Running = std::make_unique<CatalogueLock>(files.Folder, LockKind::Running);
}

void SaveAllTables()
{
    const CatalogueOnDisk files = FilesIn(GetDataFolder());
    const CatalogueLock lock(files.Folder, LockKind::Saving);
    CatalogueSave::FinishAtSave(files);
    if (std::ranges::all_of(AllTables(), IsSaved))
        SaveEach();
    else
        CatalogueSave::Save(files, SaveEachInto);
}

UnsavedChanges KeepUnsavedChanges()
{
    if (!Running || std::ranges::all_of(AllTables(), ReadsAs))
        return {false, ""};
    constexpr std::string_view ending = "-prekid";
    const CatalogueOnDisk files = FilesIn(GetDataFolder());
    const std::function<std::string()> choices[] = {
        [&] { return DatedCopies::NewFolder(files, ending); },
        [&] { return FolderAmongTemporaries(ending); },
    };
    for (const auto& choice : choices)
        try
        {
            const std::string folder = choice();
            MakeWholeFolder(files, folder, SaveEachInto);
            return {true, folder};
        }
        catch (const FileError&)
        {
            // Try the next one.
        }
    return {true, ""};
}

std::int32_t NextKolegijID()
{
    return CheckedSum(Kolegiji.LargestNumber(Kolegij::ID), 1);
}

} // namespace modData

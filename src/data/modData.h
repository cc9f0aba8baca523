#pragma once

#include "data/Table.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

struct CatalogueOnDisk;

// The columns of each record, in the order of its file.

namespace Zavod
{
enum Column : std::size_t
{
    ID,
    Naziv,
    Kratica
};
}
namespace Nastavnik
{
enum Column : std::size_t
{
    ID,
    PrezimeIme,
    Titula,
    ZavodID
};
}
namespace Studij
{
enum Column : std::size_t
{
    ID,
    Naziv,
    Kratica,
    Razina
};
}
namespace Smjer
{
enum Column : std::size_t
{
    ID,
    Naziv,
    Kratica,
    StudijID,
    Razina
};
}
namespace Kolegij
{
enum Column : std::size_t
{
    ID,
    Naziv,
    P,
    S,
    V,
    ECTS,
    Tip,
    Semestar,
    StudijID
};
}
namespace KolegijSmjer
{
enum Column : std::size_t
{
    KolegijID,
    SmjerID
};
}
namespace KolegijNastavnik
{
enum Column : std::size_t
{
    KolegijID,
    NastavnikID,
    Uloga,
    Redoslijed
};
}

/// The data store: the program-wide tables, and their files in the data folder.
namespace modData
{

inline constexpr std::string_view Preddiplomski = "Preddiplomski";
inline constexpr std::string_view Diplomski = "Diplomski";

/// The last semester of a level: 4 for "Diplomski", 6 for any other.
constexpr int LastSemestar(std::string_view razina)
{
    return razina == Diplomski ? 4 : 6;
}

/// The column of the ID in each of the five tables that have one.
inline constexpr std::size_t IDColumn = 0;

extern Table Zavodi;
extern Table Nastavnici;
extern Table Studiji;
extern Table Smjerovi;
extern Table Kolegiji;
extern Table KolegijSmjerovi;
extern Table KolegijNastavnici;

/// The seven tables in the order in which they are loaded and saved.
std::array<Table*, 7> AllTables();

/// The byte-order mark at the start of some UTF-8 files.
inline constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

/// The path of the data folder; the folder may be missing.
std::string DataFolderPath();

/// The path of the data folder, without a separator at its end: "Varlostudiji" in %LOCALAPPDATA%, or in the
/// user profile if that is not set. The folder is made if missing; a failure to make it is ignored.
std::string GetDataFolder();

/// Converts a file that begins with the UTF-8 mark to windows-1250 in place; its line ends stay. Any other
/// file stays untouched; a missing one is created empty. The temporary file is `path` with ".tmp" at its end
/// and replaces one of an earlier run. @throws FileError
void NormalizeFileEncoding(std::string_view path);

/// The content that NormalizeFileEncoding would write.
std::string NormalizedContent(std::string content);

/// Reads the rows of a windows-1250 file. ";" separates fields; CR LF or CR ends a line. The first line and
/// blank lines are skipped; no field is changed. @throws FileError, InputPastEnd for an empty file
Table LoadTable(std::string_view path, const TableLayout& layout);

/// As LoadTable, from the bytes of a file.
Table ParseTable(std::string_view bytes, const TableLayout& layout);

/// Writes a header and the rows. A separator is written only where the line has text already: leading empty
/// fields get none. @throws FileError
void SaveTable(std::string_view path, std::string_view header, const Table& table);

// Each loads one table from its file, after NormalizeFileEncoding, or saves it to its file. During
// SaveAllTables they save to the set of files that replaces the catalogue. @throws as LoadTable, SaveTable

void LoadZavodi();
void LoadNastavnici();
void LoadStudiji();
void LoadSmjerovi();
void LoadKolegiji();
void LoadKolegijSmjerovi();
void LoadKolegijNastavnici();

void SaveZavodi();
void SaveNastavnici();
void SaveStudiji();
void SaveSmjerovi();
void SaveKolegiji();
void SaveKolegijSmjerovi();
void SaveKolegijNastavnici();

/// The files of a catalogue in a folder; they may be missing.
CatalogueOnDisk FilesIn(const std::string& folder);

/// Finishes an interrupted save, then loads the seven tables. If a conversion to windows-1250 would lose
/// letters, the catalogue is copied first. Another copy of the program waits meanwhile. From then on the
/// check of a catalogue sees that a program runs, and mends nothing.
/// @throws FileError, InputPastEnd; SaveNotFinished before anything is loaded
void LoadAllTables();

/// Saves the seven tables, all or none (data/CatalogueSave.h). If the files already hold the same, each file
/// is written by itself: no copy is needed, and a file that cannot be written is still reported.
/// @throws FileError; SaveNotFinished if the changes are safe, but not yet in all files
void SaveAllTables();

/// What happened to changes that were not saved.
struct UnsavedChanges
{
    bool Exist;
    std::string Folder; ///< The folder that has the tables now; empty if none could be written.
};

/// Writes the tables, if they differ from their files, to a folder whose name ends in "-prekid": in "kopije"
/// or, if that fails, in the system's folder for temporary files. The catalogue's files stay untouched.
UnsavedChanges KeepUnsavedChanges();

/// The ID for a new course: the largest one plus 1; 1 for an empty table.
/// @throws DataError for an ID that is not a whole number
std::int32_t NextKolegijID();

} // namespace modData

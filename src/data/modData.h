#pragma once

#include "data/Table.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

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

/// The mark that a UTF-8 file may begin with.
inline constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

/// The path of the data folder, which need not exist.
std::string DataFolderPath();

/// The folder of the seven files, without a separator behind it: "Varlostudiji" in %LOCALAPPDATA%, or in the
/// user profile where that is not set. It is created when missing; a failure to do so is ignored.
std::string GetDataFolder();

/// Turns a file that begins with the UTF-8 byte-order mark into windows-1250 in place, line ends as they are;
/// any other file stays untouched, a missing one is created empty. The temporary file is `path` with ".tmp"
/// at its end; it replaces one of an earlier run. @throws FileError
void NormalizeFileEncoding(std::string_view path);

/// What NormalizeFileEncoding makes of a file's content.
std::string NormalizedContent(std::string content);

/// Reads the rows of a windows-1250 file: ";" between fields, CR LF or CR behind lines, the first line and
/// blank lines passed over, no field changed. @throws FileError, InputPastEnd when there is no first line
Table LoadTable(std::string_view path, const TableLayout& layout);

/// The table that a file with these bytes holds.
Table ParseTable(std::string_view bytes, const TableLayout& layout);

/// Writes a header and the rows. A separator comes only after what is already on the line, so that leading
/// empty fields leave none. @throws FileError, and the old content stays
void SaveTable(std::string_view path, std::string_view header, const Table& table);

// Each loads one table from its file, brought to windows-1250 first, or saves it: called alone, to its own
// file; called by SaveAllTables, to the set of files that replaces the catalogue. @throws as the above

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

/// Finishes an interrupted save, then loads the seven tables. Where a conversion to windows-1250 would lose
/// letters, the catalogue is kept as a dated copy before. Other copies of the program wait meanwhile, and see
/// from then on that this one runs.
/// @throws FileError, InputPastEnd; SaveNotFinished when nothing is loaded yet
void LoadAllTables();

/// Saves the seven tables, all or none (data/CatalogueSave.h). If the files hold the same already, each is
/// written alone.
/// @throws FileError; SaveNotFinished when the changes are safe, but not in all files yet
void SaveAllTables();

/// What has become of changes that were not saved.
struct UnsavedChanges
{
    bool Exist;
    std::string Place; ///< The folder that holds the tables now; empty if nothing could be written.
};

/// Writes tables that differ from their files to a folder ending in "-prekid", in "kopije" or else among the
/// system's temporary files. The tables' own files stay untouched.
UnsavedChanges KeepUnsavedChanges();

/// The ID for a new course: the largest one plus 1, and 1 for an empty table.
/// @throws DataError for an ID that is no whole number
std::int32_t NextKolegijID();

} // namespace modData

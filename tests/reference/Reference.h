#pragma once

#include "ui/controls/ListModel.h"
#include "ui/course_editor/CourseEntry.h"
#include "ui/department_stats/DepartmentStatistics.h"
#include "ui/lecturer_stats/LecturerStatistics.h"
#include "ui/main/CourseList.h"
#include "ui/main/StatistikaExport.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The program's work done in the simplest way: the rules as nested loops over rows of text. Every lookup
/// scans its table from the first row and converts each number that it reads; there is no index and no cache.
/// The program's answers and its speed are compared with it. So the two share only the conversions of numbers
/// and of windows-1250, the errors with their texts, the access to files, and the types of arguments and
/// results.
namespace reference
{

/// The layout of a table: its file and its columns.
struct Layout
{
    std::string_view FileName;
    std::span<const std::string_view> Columns;
};

/// One row: the fields of a file line as UTF-8 text.
struct TextRow
{
    std::vector<std::string> Fields;
    std::size_t Line = 0; ///< In the file, from 1; 0 if no file holds the row.
};

/// A table: its rows in the order of the file.
struct TextTable
{
    const Layout* Fixed;
    std::vector<TextRow> Rows = {};
};

/// The seven tables.
struct Catalogue
{
    Catalogue();

    TextTable Zavodi;
    TextTable Nastavnici;
    TextTable Studiji;
    TextTable Smjerovi;
    TextTable Kolegiji;
    TextTable KolegijSmjerovi;
    TextTable KolegijNastavnici;

    /// The tables in the order in which they are loaded and saved.
    std::array<TextTable*, 7> All();
    std::array<const TextTable*, 7> All() const;
};

// Files

/// Reads the seven files of a folder (no separator at its end); the files stay unchanged. A file with the
/// UTF-8 mark is read as its conversion. @throws FileError, InputPastEnd
Catalogue Load(std::string_view folder);

/// The bytes of a file after its conversion: windows-1250, without the UTF-8 mark.
std::string Normalized(std::string_view bytes);

/// The bytes of each saved file, in the order of All().
std::array<std::string, 7> SavedFiles(const Catalogue& catalogue);

/// Writes the seven files, each in one step and flushed, as the program does. @throws FileError
void Save(const Catalogue& catalogue, std::string_view folder);

// Edits

/// The largest course ID plus 1. @throws DataError
std::int32_t NextKolegijID(const Catalogue& catalogue);

void AddKolegij(Catalogue& catalogue, const CourseEntry& entry);
void ReplaceKolegij(Catalogue& catalogue, std::int32_t id, const CourseEntry& entry);
void DeleteKolegij(Catalogue& catalogue, std::int32_t id);

// Reading. Everything here throws DataError.

/// The messages of all checks; none if the tables may be saved.
std::vector<std::string> Validate(const Catalogue& catalogue);

std::string GetSmjeroviKraticeString(const Catalogue& catalogue, std::int32_t kolegijID);
std::string GetNositeljiString(const Catalogue& catalogue, std::int32_t kolegijID);
std::string GetNositelji123String(const Catalogue& catalogue, std::int32_t kolegijID);

/// The course list.
std::vector<ListRow> CourseRows(const Catalogue& catalogue, const CourseFilter& filter);

/// The rows after a click on a column's header: in the Croatian order of the column's texts; equal ones keep
/// their order.
std::vector<ListRow> SortedRows(std::vector<ListRow> rows, std::size_t column, bool descending);

/// The semester sums of the main window.
std::vector<ListRow> StatistikaRows(const Catalogue& catalogue, const CourseFilter& filter,
                                    std::string_view razina);

std::vector<ListRow> LecturerCourseRows(const Catalogue& catalogue, std::int32_t nastavnikID,
                                        const LecturerFilter& filter);
std::vector<ListRow> LecturerTeachingLoadRows(const Catalogue& catalogue, std::int32_t nastavnikID,
                                              const LecturerFilter& filter);
std::vector<ListRow> DepartmentCourseRows(const Catalogue& catalogue, std::int32_t zavodID,
                                          const DepartmentFilter& filter);
std::vector<ListRow> DepartmentTeachingLoadRows(const Catalogue& catalogue, std::int32_t zavodID,
                                                const DepartmentFilter& filter);

// Exports: the bytes of the file.

std::string ExportKolegiji(const Catalogue& catalogue);
std::string ExportStatistika(const StatistikaFilters& filters, const std::vector<ListRow>& rows);
std::string ExportAllLecturers(const Catalogue& catalogue, const LecturerFilter& filter);
std::string ExportAllDepartments(const Catalogue& catalogue, const DepartmentFilter& filter);

} // namespace reference

#pragma once

#include "data/CheckedNumbers.h"
#include "data/Table.h"
#include "statistics/TeachingLoad.h"
#include "ui/controls/ListModel.h"

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

// What the statistics of lecturers and of departments share: the list of courses, the table of teaching load,
// and the export of all tables.

/// The columns of both course lists.
inline constexpr ListColumn TaughtCourseColumns[] = {
    {"Kolegij", 2200}, {"P", 500},   {"S", 500},      {"V", 500},          {"ECTS", 700},
    {"Tip", 1200},     {"Sem", 600}, {"Studij", 800}, {"Nositelji", 2500},
};

/// The text of an empty course list.
inline constexpr std::string_view NoCourses = "Nema kolegija.";

/// Called with the position of a course in the program's table.
using CourseVisitor = std::function<void(std::size_t position)>;

/// The differences between the two statistics. A `Conversion` says how strictly numbers are read.
struct TeachingStatistic
{
    std::function<bool(const modData::Row& kolegij)> Passes;                              ///< The filter.
    std::function<void(std::int32_t id, const CourseVisitor& visit)> ForEachTaughtCourse; ///< Once per link.
    Conversion IDs;           ///< For identifiers and semesters.
    Conversion ShownHours;    ///< For hours and credits in the window.
    Conversion ExportedHours; ///< For hours and credits in the file.
    OtherTypes Others;
    TeachingLoadStyle Style;
    const modData::Table* Owners; ///< The table of lecturers or departments.
    std::size_t OwnerName;        ///< The column of their names.
    std::string_view OwnerTitle;  ///< The first column's title in the file.
};

/// Calls `visit` with each course that a lecturer is linked to, in any role: once per link, in the order of
/// the links. @throws DataError
void ForEachCourseOfNastavnik(std::int32_t nastavnikID, Conversion conversion, const CourseVisitor& visit);

/// The courses of one lecturer or department; electives are blue. @throws DataError
std::vector<ListRow> TaughtCourseRows(const TeachingStatistic& statistic, std::int32_t id);

/// The teaching load of one lecturer or department. @throws DataError
std::vector<ListRow> TeachingLoadRows(const TeachingStatistic& statistic, std::int32_t id);

/// Writes the tables of all: a header, then a block for each owner, with the owner's name in every line and
/// an empty line at the end. Nothing is quoted: a ";" in a name stays as it is. @throws DataError, FileError
void ExportTeachingLoad(const TeachingStatistic& statistic, std::string_view path);

#pragma once

#include "data/CheckedNumbers.h"
#include "data/Table.h"
#include "statistics/TeachingLoad.h"
#include "ui/controls/ListModel.h"

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

// What the statistics of lecturers and of departments share: the list of courses, the table of load, and the
// file with the tables of all.

/// The columns of both course lists.
inline constexpr ListColumn TaughtCourseColumns[] = {
    {"Kolegij", 2200}, {"P", 500},   {"S", 500},      {"V", 500},          {"ECTS", 700},
    {"Tip", 1200},     {"Sem", 600}, {"Studij", 800}, {"Nositelji", 2500},
};

/// What a course list says when it has no rows.
inline constexpr std::string_view NoCourses = "Nema kolegija.";

/// Takes the position of one of the program's courses.
using CourseVisitor = std::function<void(std::size_t position)>;

/// What is different about the two statistics. A conversion says how strictly numbers are read.
struct TeachingStatistic
{
    std::function<bool(const modData::Row& kolegij)> Passes;                              ///< The filter.
    std::function<void(std::int32_t id, const CourseVisitor& visit)> ForEachTaughtCourse; ///< Once per link.
    Conversion Numbers;       ///< Of identifiers and semesters.
    Conversion ShownHours;    ///< Of hours and credits in the window.
    Conversion ExportedHours; ///< And in the file.
    OtherTypes Others;
    TeachingLoadStyle Style;
    const modData::Table* Owners; ///< The table of those whose load it is.
    std::size_t OwnerName;        ///< The column of their names.
    std::string_view OwnerTitle;  ///< The first column's title in the file.
};

/// Calls `visit` with each course that a lecturer is linked to, once per link, in the order of the links,
/// whatever the role. @throws DataError
void ForEachCourseOfNastavnik(std::int32_t nastavnikID, Conversion conversion, const CourseVisitor& visit);

/// The courses of one lecturer or department; electives are blue. @throws DataError
std::vector<ListRow> TaughtCourseRows(const TeachingStatistic& statistic, std::int32_t id);

/// Their table of load. @throws DataError
std::vector<ListRow> TeachingLoadRows(const TeachingStatistic& statistic, std::int32_t id);

/// Writes the tables of all: a header, then a block each, its name before every line and an empty line after
/// it. Nothing is quoted: a ";" in a name stays as it is. @throws DataError, FileError; an older file stays
void ExportTeachingLoad(const TeachingStatistic& statistic, std::string_view path);

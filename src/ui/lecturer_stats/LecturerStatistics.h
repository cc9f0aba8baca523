#pragma once

#include "ui/controls/ListModel.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The teaching load of lecturers. Unless stated otherwise, everything here throws DataError.

/// The values of the two filter boxes; "Svi" means all. They are compared exactly; a course without a study
/// passes only "Svi".
struct LecturerFilter
{
    std::string Razina;
    std::string Program;
};

/// The courses that a lecturer is linked to, once per link.
std::vector<ListRow> LecturerCourseRows(std::int32_t nastavnikID, const LecturerFilter& filter);

/// The lecturer's table of teaching load. Every type but "obvezni" counts as elective.
std::vector<ListRow> LecturerTeachingLoadRows(std::int32_t nastavnikID, const LecturerFilter& filter);

/// Writes the tables of all lecturers. Here hours and credits that are not numeric count as 0.
/// @throws DataError, FileError
void ExportAllLecturers(std::string_view path, const LecturerFilter& filter);

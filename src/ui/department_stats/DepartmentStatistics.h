#pragma once

#include "ui/controls/ListModel.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The teaching load of departments: the courses of all their lecturers, once per link. Numbers that cannot be
// read count as 0 here; only the lookup of the names of studies and holders is strict. Everything here throws
// DataError, for a row that is too short or a sum that does not fit.

/// The values of the two filters; "Svi" means all. The semester is "Svi", "Zimski" (odd), "Ljetni" (even) or
/// a number.
struct DepartmentFilter
{
    std::string Razina;
    std::string Semestar;
};

/// The courses of a department's lecturers. The lookup of names throws also for a number that cannot be read.
std::vector<ListRow> DepartmentCourseRows(std::int32_t zavodID, const DepartmentFilter& filter);

/// The department's table of teaching load. A type that is neither "obvezni" nor "izborni" does not count.
std::vector<ListRow> DepartmentTeachingLoadRows(std::int32_t zavodID, const DepartmentFilter& filter);

/// Writes the tables of all departments. @throws DataError, FileError
void ExportAllDepartments(std::string_view path, const DepartmentFilter& filter);

/// True if a semester passes the semester filter.
bool PassesSemestar(std::int32_t semestar, std::string_view wanted);

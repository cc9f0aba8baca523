#pragma once

#include "ui/controls/ListModel.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The load of departments: of every lecturer of theirs, a course once per link. Numbers that cannot be read
// count as 0 here; only the names of studies and holders are looked up strictly. Everything throws DataError,
// for a row that is too short or a sum that does not fit.

/// What the two filters say; "Svi" means all. The semester is "Svi", "Zimski" (odd), "Ljetni" (even) or a
/// number.
struct DepartmentFilter
{
    std::string Razina;
    std::string Semestar;
};

/// The courses of a department's lecturers. Here a number that the names need must be one.
std::vector<ListRow> DepartmentCourseRows(std::int32_t zavodID, const DepartmentFilter& filter);

/// The department's table of load: a type that is neither "obvezni" nor "izborni" is not counted.
std::vector<ListRow> DepartmentTeachingLoadRows(std::int32_t zavodID, const DepartmentFilter& filter);

/// Writes the tables of all departments. @throws also FileError, and an older file stays
void ExportAllDepartments(std::string_view path, const DepartmentFilter& filter);

/// The semester filter: whether a semester passes.
bool PassesSemestar(std::int32_t semestar, std::string_view wanted);

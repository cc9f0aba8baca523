#pragma once

#include "ui/controls/ListModel.h"
#include "ui/main/CourseList.h"

#include <string_view>
#include <vector>

// The two lists of the main window as rows that can be compared.

/// All cells of a model.
std::vector<ListRow> RowsOf(const ListModel& model, std::size_t columns);

/// The course list, refreshed. @throws DataError
std::vector<ListRow> CourseRows(const CourseFilter& filter);

/// The semester sums, refreshed. @throws DataError
std::vector<ListRow> StatistikaRows(const CourseFilter& filter, std::string_view razina);

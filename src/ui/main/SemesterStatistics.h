#pragma once

#include "ui/controls/ListModel.h"
#include "ui/main/CourseList.h"

#include <cstdint>
#include <string_view>
#include <vector>

// The semester sums of the main window. Everything here throws DataError.

/// The sums' rows for the courses that pass the filter, for the semesters that the level has. A course counts
/// once for every direction it is linked to, or once when it is linked to the filter's direction; without a
/// link it does not count. Every type but "obvezni" counts as elective.
std::vector<ListRow> StatistikaRows(const CourseFilter& filter, Search& search, std::string_view razina);

/// How often a course counts: 1 or 0 for one direction, the number of its links when the direction is 0.
std::int32_t CountKolegijSmjerLinks(std::int32_t kolegijID, std::int32_t smjerID);

/// Hours and credits as a number: 0 for a text that is empty or not numeric.
std::int32_t ParseWholeOrZero(std::string_view text);

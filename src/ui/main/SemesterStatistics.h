#pragma once

#include "ui/controls/ListModel.h"
#include "ui/main/CourseList.h"

#include <cstdint>
#include <string_view>
#include <vector>

// The semester sums of the main window. Everything here throws DataError.

/// The rows of the sums of the courses that pass the filter, for the level's semesters. A course counts once
/// for each direction that it is linked to or, if the filter has a direction, once for that one. A course
/// without a link does not count. Every type but "obvezni" counts as elective.
std::vector<ListRow> StatistikaRows(const CourseFilter& filter, Search& search, std::string_view razina);

/// How many times a course counts: 1 or 0 for one direction; for direction 0 the number of its links.
std::int32_t CountKolegijSmjerLinks(std::int32_t kolegijID, std::int32_t smjerID);

/// Hours or credits as a number; 0 for a text that is empty or not numeric.
std::int32_t ParseWholeOrZero(std::string_view text);

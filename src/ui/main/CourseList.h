#pragma once

#include "data/Table.h"
#include "lists/ListRow.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// The course list: which courses pass the filters, and what their rows say. Everything here throws
// TypeMismatch, Overflow or SubscriptOutOfRange for a number that it needs and cannot read.

/// What the filter boxes and the search box say; 0, or a search text of blanks only, means "all".
struct CourseFilter
{
    std::int32_t StudijID = 0;
    std::int32_t SmjerID = 0;
    std::int32_t Semestar = 0;
    std::string Search = {};
};

/// The course list's rows: one per course that passes the filter, in table order; electives are blue.
std::vector<ListRow> CourseRows(const CourseFilter& filter);

/// The search rule: a row of the program's courses matches when the text occurs in its title, credits, type
/// or lecturers, upper and lower case alike. `search` is trimmed and upper-cased already; empty matches every
/// course.
bool MatchesSearch(const Row& kolegij, std::string_view search);

/// A search text made ready for MatchesSearch: trimmed and upper-cased.
std::string SearchKey(std::string_view typed);

/// True when a course is linked to a direction.
bool KolegijHasSmjer(std::int32_t kolegijID, std::int32_t smjerID);

/// The short names of a course's directions in link order, joined with ", "; links to unknown ones left out.
std::string GetSmjeroviForKolegijString(std::int32_t kolegijID);

/// The names of a course's lecturers by place, joined with ", ".
std::string GetNastavniciForKolegijString(std::int32_t kolegijID);

/// The names of a course's holders in places 1 to 3, joined with " + "; empty places left out.
std::string GetNositelji123String(std::int32_t kolegijID);

#pragma once

#include "data/Table.h"

#include <array>
#include <cstdint>
#include <memory_resource>
#include <string_view>
#include <vector>

/// What the search looks through, course by course: made when first needed and kept as long as the tables
/// stay as they are. A key stroke in the search box asks for each course twice, for the list and for the
/// sums, and making its text takes ten times as long as searching it.
class SearchTexts
{
public:
    /// The text of a row of the program's courses, upper-cased; it stays until a table changes.
    /// @throws TypeMismatch, Overflow, SubscriptOutOfRange for a number that it needs and cannot read
    std::string_view Of(const Row& kolegij);

private:
    std::array<std::uint64_t, 3> Revisions = {}; // of the tables that the texts were made from
    std::vector<std::string_view> Texts;         // by the course's position; none is empty once it is made
    std::pmr::monotonic_buffer_resource Memory;  // where they lie
};

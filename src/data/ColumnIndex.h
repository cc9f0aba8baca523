#pragma once

#include "data/Numbers.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <unordered_map>
#include <vector>

class Row;

/// Where the rows of a table stand that hold a number in one column, so that a search need not pass them all.
/// It gives what a scan from the first row would give, errors included: it covers the rows up to the first
/// one whose field cannot be read as a whole number, since a scan ends there.
class ColumnIndex
{
public:
    static constexpr std::uint32_t None = UINT32_MAX;

    ColumnIndex(std::span<const Row> rows, std::size_t column, Conversion conversion);

    /// The positions of the rows with the number, in table order.
    std::span<const std::uint32_t> Positions(std::int32_t number) const;

    /// The position of the first of them, or None.
    std::uint32_t First(std::int32_t number) const;

    /// The number of a row that the index covers.
    std::int32_t NumberAt(std::size_t position) const { return Numbers[position]; }

    /// How many rows the index covers.
    std::size_t Covered() const { return Numbers.size(); }

private:
    std::uint32_t PlaceOf(std::int32_t number) const;
    void GivePlaces();
    void GroupPositions();

    std::vector<std::int32_t> Numbers; // by position

    // Each number has a place. Identifiers are mostly given one after the other: then it follows from the
    // number, which is several times as fast as a map; numbers that lie far apart need the map.
    std::int64_t Smallest = 0;
    std::unordered_map<std::int32_t, std::uint32_t> Places;

    std::vector<std::uint32_t> Begins;  // by place: where its group of positions begins; one more behind all
    std::vector<std::uint32_t> Grouped; // the positions
};

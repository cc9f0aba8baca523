#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <unordered_map>
#include <vector>

/// Where each number of a column stands, so that a search need not pass all rows.
class ColumnIndex
{
public:
    static constexpr std::uint32_t None = UINT32_MAX;

    /// `numbers` are the column's, by position.
    explicit ColumnIndex(std::span<const std::int32_t> numbers);

    /// The positions of the rows with the number, in table order.
    std::span<const std::uint32_t> Positions(std::int32_t number) const;

    /// The position of the first of them, or None.
    std::uint32_t First(std::int32_t number) const;

private:
    std::uint32_t PlaceOf(std::int32_t number) const;
    void GivePlaces(std::span<const std::int32_t> numbers);
    void GroupPositions(std::span<const std::int32_t> numbers);

    // Each number has a place. Identifiers are mostly given one after the other: then it follows from the
    // number, which is several times as fast as a map; numbers that lie far apart need the map.
    std::int64_t Smallest = 0;
    std::unordered_map<std::int32_t, std::uint32_t> Places;

    std::vector<std::uint32_t> Begins;  // by place: where its group of positions begins; one more behind all
    std::vector<std::uint32_t> Grouped; // the positions
};

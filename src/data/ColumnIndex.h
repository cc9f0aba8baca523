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

    /// The position of the first row with the number, or None.
    std::uint32_t First(std::int32_t number) const;

    /// The position of the next row with the same number, or None.
    std::uint32_t Next(std::uint32_t position) const { return Following[position]; }

    /// How many rows the index covers.
    std::size_t Covered() const { return Following.size(); }

private:
    struct Chain
    {
        std::uint32_t First;
        std::uint32_t Last;
    };

    std::unordered_map<std::int32_t, Chain> Chains;
    std::vector<std::uint32_t> Following;
};

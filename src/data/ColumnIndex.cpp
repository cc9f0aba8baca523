#include "data/ColumnIndex.h"

#include "data/Table.h"

#include <algorithm>
#include <numeric>

namespace
{

/// Numbers whose range is at most this many times their count are dense.
constexpr std::int64_t MostPlacesPerRow = 4;

/// Reads a field as a scan would; false where a scan would end in an error.
bool ReadKey(const Row& row, std::size_t column, Conversion conversion, std::int32_t& key)
{
    if (column >= row.FieldCount())
        return false;
    key = 0;
    return ReadLong(row.Field(column), key) == NumberReading::Whole || conversion == Conversion::Safe;
}

/// The column's numbers, up to the first row where there is none.
std::vector<std::int32_t> ReadKeys(std::span<const Row> rows, std::size_t column, Conversion conversion)
{
    std::vector<std::int32_t> keys;
    keys.reserve(rows.size());
    for (const Row& row : rows)
    {
        std::int32_t key = 0;
        if (!ReadKey(row, column, conversion, key))
            break;
        keys.push_back(key);
    }
    return keys;
}

} // namespace

ColumnIndex::ColumnIndex(std::span<const Row> rows, std::size_t column, Conversion conversion)
    : Numbers(ReadKeys(rows, column, conversion))
{
    if (Numbers.empty())
        return;
    GivePlaces();
    GroupPositions();
}

std::span<const std::uint32_t> ColumnIndex::Positions(std::int32_t number) const
{
    const std::uint32_t place = PlaceOf(number);
    if (place == None)
        return {};
    return std::span(Grouped).subspan(Begins[place], Begins[place + 1] - Begins[place]);
}

std::uint32_t ColumnIndex::First(std::int32_t number) const
{
    const std::span<const std::uint32_t> positions = Positions(number);
    return positions.empty() ? None : positions.front();
}

std::uint32_t ColumnIndex::PlaceOf(std::int32_t number) const
{
    if (Places.empty())
    {
        const std::int64_t place = number - Smallest;
        const bool isInside = place >= 0 && place + 1 < static_cast<std::int64_t>(Begins.size());
        return isInside ? static_cast<std::uint32_t>(place) : None;
    }
    const auto entry = Places.find(number);
    return entry == Places.end() ? None : entry->second;
}

void ColumnIndex::GivePlaces()
{
    const auto [smallest, largest] = std::ranges::minmax(Numbers);
    Smallest = smallest;
    std::int64_t count = std::int64_t{largest} - smallest + 1;
    if (count > MostPlacesPerRow * static_cast<std::int64_t>(Numbers.size()))
    {
        for (const std::int32_t number : Numbers)
            Places.try_emplace(number, static_cast<std::uint32_t>(Places.size()));
        count = static_cast<std::int64_t>(Places.size());
    }
    Begins.resize(static_cast<std::size_t>(count) + 1);
}

void ColumnIndex::GroupPositions()
{
    for (const std::int32_t number : Numbers)
        ++Begins[PlaceOf(number)];
    std::partial_sum(Begins.begin(), Begins.end(), Begins.begin()); // where each group ends

    // From the last row to the first, each group is filled from its end and so ends up in table order.
    Grouped.resize(Numbers.size());
    for (std::size_t i = Numbers.size(); i-- > 0;)
        Grouped[--Begins[PlaceOf(Numbers[i])]] = static_cast<std::uint32_t>(i);
}

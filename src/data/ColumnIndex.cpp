#include "data/ColumnIndex.h"

#include <algorithm>
#include <numeric>

namespace
{

/// Numbers whose range is at most this many times their count are dense.
constexpr std::int64_t MostPlacesPerRow = 4;

} // namespace

ColumnIndex::ColumnIndex(std::span<const std::int32_t> numbers)
{
    if (numbers.empty())
        return;
    GivePlaces(numbers);
    GroupPositions(numbers);
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

void ColumnIndex::GivePlaces(std::span<const std::int32_t> numbers)
{
    const auto [smallest, largest] = std::ranges::minmax(numbers);
    Smallest = smallest;
    std::int64_t count = std::int64_t{largest} - smallest + 1;
    if (count > MostPlacesPerRow * static_cast<std::int64_t>(numbers.size()))
    {
        for (const std::int32_t number : numbers)
            Places.try_emplace(number, static_cast<std::uint32_t>(Places.size()));
        count = static_cast<std::int64_t>(Places.size());
    }
    Begins.resize(static_cast<std::size_t>(count) + 1);
}

void ColumnIndex::GroupPositions(std::span<const std::int32_t> numbers)
{
    for (const std::int32_t number : numbers)
        ++Begins[PlaceOf(number)];
    std::partial_sum(Begins.begin(), Begins.end(), Begins.begin()); // where each group ends

    // From the last row to the first, each group is filled from its end and so ends up in table order.
    Grouped.resize(numbers.size());
    for (std::size_t i = numbers.size(); i-- > 0;)
        Grouped[--Begins[PlaceOf(numbers[i])]] = static_cast<std::uint32_t>(i);
}

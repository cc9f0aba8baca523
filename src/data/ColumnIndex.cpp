#include "data/ColumnIndex.h"

#include <algorithm>
#include <numeric>

namespace
{

/// Numbers whose range is at most this many times their count are dense.
constexpr std::int64_t MaxGroupsPerRow = 4;

} // namespace

ColumnIndex::ColumnIndex(std::span<const std::int32_t> numbers)
{
    if (numbers.empty())
        return;
    NumberGroups(numbers);
    FillGroups(numbers);
}

std::uint32_t ColumnIndex::FarGroupOf(std::int32_t number) const
{
    const auto entry = m_groups.find(number);
    return entry == m_groups.end() ? NoGroup : entry->second;
}

void ColumnIndex::NumberGroups(std::span<const std::int32_t> numbers)
{
    const auto [smallest, largest] = std::ranges::minmax(numbers);
    m_smallest = smallest;
    std::int64_t count = std::int64_t{largest} - smallest + 1;
    if (count > MaxGroupsPerRow * static_cast<std::int64_t>(numbers.size()))
    {
        for (const std::int32_t number : numbers)
            m_groups.try_emplace(number, static_cast<std::uint32_t>(m_groups.size()));
        count = static_cast<std::int64_t>(m_groups.size());
    }
    m_begins.resize(static_cast<std::size_t>(count) + 1);
}

void ColumnIndex::FillGroups(std::span<const std::int32_t> numbers)
{
    for (const std::int32_t number : numbers)
        ++m_begins[GroupOf(number)];
    std::partial_sum(m_begins.begin(), m_begins.end(), m_begins.begin()); // where each group ends

    // From the last row to the first, each group is filled from its end and so is in table order.
    m_positions.resize(numbers.size());
    for (std::size_t i = numbers.size(); i-- > 0;)
        m_positions[--m_begins[GroupOf(numbers[i])]] = static_cast<std::uint32_t>(i);
}

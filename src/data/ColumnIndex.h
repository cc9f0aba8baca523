#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <unordered_map>
#include <vector>

/// Finds the rows that have a number in a column without reading all rows.
class ColumnIndex
{
public:
    /// `numbers` are the column's numbers, by position of the row.
    explicit ColumnIndex(std::span<const std::int32_t> numbers);

    /// The positions of the rows with the number, in table order.
    std::span<const std::uint32_t> Positions(std::int32_t number) const
    {
        const std::uint32_t group = GroupOf(number);
        if (group == NoGroup)
            return {};
        return std::span(m_positions).subspan(m_begins[group], m_begins[group + 1] - m_begins[group]);
    }

private:
    static constexpr std::uint32_t NoGroup = UINT32_MAX;

    std::uint32_t GroupOf(std::int32_t number) const
    {
        if (!m_groups.empty())
            return FarGroupOf(number);
        const std::int64_t group = number - m_smallest;
        const bool isInside = group >= 0 && group + 1 < static_cast<std::int64_t>(m_begins.size());
        return isInside ? static_cast<std::uint32_t>(group) : NoGroup;
    }
    std::uint32_t FarGroupOf(std::int32_t number) const;
    void NumberGroups(std::span<const std::int32_t> numbers);
    void FillGroups(std::span<const std::int32_t> numbers);

    // Each number has a group of positions. Identifiers mostly follow one another; the group is then the
    // number less the smallest one, which is several times as fast as a map. Numbers far apart need the map.
    std::int64_t m_smallest = 0;
    std::unordered_map<std::int32_t, std::uint32_t> m_groups;

    std::vector<std::uint32_t> m_begins;    // by group: where its positions begin; one more at the end
    std::vector<std::uint32_t> m_positions; // group by group
};

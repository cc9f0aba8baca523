#include "data/ColumnIndex.h"

#include "data/Numbers.h"
#include "data/Table.h"

ColumnIndex::ColumnIndex(std::span<const Row> rows, std::size_t column)
{
    Chains.reserve(rows.size());
    Following.reserve(rows.size());
    for (const Row& row : rows)
    {
        std::int32_t number = 0;
        if (column >= row.FieldCount() || ReadLong(row.Field(column), number) != NumberReading::Whole)
            return;
        const auto position = static_cast<std::uint32_t>(Following.size());
        const auto [entry, isNew] = Chains.try_emplace(number, Chain{position, position});
        if (!isNew)
        {
            Following[entry->second.Last] = position;
            entry->second.Last = position;
        }
        Following.push_back(None);
    }
}

std::uint32_t ColumnIndex::First(std::int32_t number) const
{
    const auto entry = Chains.find(number);
    return entry == Chains.end() ? None : entry->second.First;
}

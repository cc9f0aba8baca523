#include "data/ColumnIndex.h"

#include "data/Table.h"

namespace
{

/// Reads a field as a scan would; false where a scan would end in an error.
bool ReadKey(const Row& row, std::size_t column, Conversion conversion, std::int32_t& key)
{
    if (column >= row.FieldCount())
        return false;
    key = 0;
    return ReadLong(row.Field(column), key) == NumberReading::Whole || conversion == Conversion::Safe;
}

} // namespace

ColumnIndex::ColumnIndex(std::span<const Row> rows, std::size_t column, Conversion conversion)
{
    Chains.reserve(rows.size());
    Following.reserve(rows.size());
    for (const Row& row : rows)
    {
        std::int32_t number = 0;
        if (!ReadKey(row, column, conversion, number))
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

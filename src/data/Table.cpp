#include "data/Table.h"

#include "data/Errors.h"
#include "data/Text.h"

#include <algorithm>
#include <cstring>

namespace
{

/// The line of a row that was entered in the program.
constexpr std::uint32_t EnteredLine = 0;

std::uint64_t NextRevision()
{
    static std::uint64_t last = 0;
    return ++last;
}

} // namespace

std::string TableLayout::Header() const
{
    std::string header;
    for (const std::string_view column : Columns)
        AppendJoined(header, ";", column);
    return header;
}

void Row::ThrowTooShort(std::size_t column) const
{
    throw SubscriptOutOfRange({Layout->FileName, Line, Layout->Columns[column]});
}

std::int32_t Row::Number(std::size_t column, Conversion conversion) const
{
    const std::string_view text = Field(column);
    if (conversion == Conversion::Safe)
        return ToLongOrZero(text);
    std::int32_t value = 0;
    const NumberReading reading = ReadLong(text, value);
    if (reading == NumberReading::NotNumeric)
        throw TypeMismatch(text, {Layout->FileName, Line, Layout->Columns[column]});
    if (reading == NumberReading::TooLarge)
        throw Overflow(text, {Layout->FileName, Line, Layout->Columns[column]});
    return value;
}

Table::Table(const TableLayout& layout)
    : TableColumns(&layout),
      Memory(std::make_unique<std::pmr::monotonic_buffer_resource>()),
      Indexes(layout.Columns.size()),
      ContentRevision(NextRevision())
{
}

void Table::Append(std::span<const std::string_view> fields, std::uint32_t line)
{
    Rows.push_back(NewRow(fields, line));
    ContentChanged();
}

void Table::Append(const std::vector<std::string>& fields)
{
    Append(std::vector<std::string_view>(fields.begin(), fields.end()), EnteredLine);
}

void Table::Replace(std::size_t position, const std::vector<std::string>& fields)
{
    Rows[position] = NewRow(std::vector<std::string_view>(fields.begin(), fields.end()), EnteredLine);
    ContentChanged();
}

void Table::RemoveMatches(std::size_t column, std::int32_t number)
{
    std::vector<Row> kept;
    kept.reserve(Rows.size());
    std::ranges::copy_if(Rows, std::back_inserter(kept),
                         [&](const Row& row) { return row.Number(column) != number; });
    Rows.swap(kept);
    ContentChanged();
}

const Row* Table::FindFirst(std::size_t column, std::int32_t number, Conversion conversion) const
{
    const std::optional<std::size_t> position = FindPosition(column, number, conversion);
    return position ? &Rows[*position] : nullptr;
}

std::optional<std::size_t> Table::FindPosition(std::size_t column, std::int32_t number,
                                               Conversion conversion) const
{
    const ColumnIndex& index = IndexOf(column, conversion);
    const std::uint32_t position = index.First(number);
    if (position != ColumnIndex::None)
        return position;
    RequireCovered(index, column);
    return std::nullopt;
}

std::int32_t Table::NumberOf(const Row& row, std::size_t column, Conversion conversion) const
{
    const ColumnIndex& index = IndexOf(column, conversion);
    const std::size_t position = PositionOf(row);
    return position < index.Covered() ? index.NumberAt(position) : row.Number(column, conversion);
}

Row Table::NewRow(std::span<const std::string_view> fields, std::uint32_t line)
{
    std::size_t length = 0;
    for (const std::string_view field : fields)
        length += field.size();

    void* block = Memory->allocate(fields.size() * sizeof(std::uint32_t) + length, alignof(std::uint32_t));
    auto* ends = static_cast<std::uint32_t*>(block);
    char* text = reinterpret_cast<char*>(ends + fields.size());
    std::uint32_t end = 0;
    for (std::size_t i = 0; i < fields.size(); ++i)
    {
        std::ranges::copy(fields[i], text + end);
        end += static_cast<std::uint32_t>(fields[i].size());
        ends[i] = end;
    }

    Row row;
    row.Layout = TableColumns;
    row.Ends = ends;
    row.Count = static_cast<std::uint32_t>(fields.size());
    row.Line = line;
    return row;
}

const ColumnIndex& Table::IndexOf(std::size_t column, Conversion conversion) const
{
    std::optional<ColumnIndex>& index = Indexes[column][static_cast<std::size_t>(conversion)];
    if (!index)
    {
        index.emplace(Rows, column, conversion);
        HasIndexes = true;
    }
    return *index;
}

/// A scan that went on to the end met the first row that the index does not cover.
void Table::RequireCovered(const ColumnIndex& index, std::size_t column) const
{
    if (index.Covered() < Rows.size())
        Rows[index.Covered()].Number(column); // throws: that row is not covered because it cannot be read
}

void Table::ContentChanged()
{
    ContentRevision = NextRevision();
    if (!HasIndexes) // as for each row but the first while a table is loaded
        return;
    HasIndexes = false;
    for (auto& ofColumn : Indexes)
        ofColumn = {};
}

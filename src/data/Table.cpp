#include "data/Table.h"

#include "data/CheckedNumbers.h"
#include "data/Errors.h"
#include "text/Numbers.h"
#include "text/Text.h"

#include <algorithm>
#include <utility>

namespace modData
{

namespace
{

/// The line number of a row that no file holds.
constexpr std::uint32_t EnteredLine = 0;

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
    throw SubscriptOutOfRange(Place(column));
}

std::int32_t Row::Number(std::size_t column, Conversion conversion) const
{
    const std::string_view text = Field(column);
    if (conversion == Conversion::Safe)
        return ToLongOrZero(text);
    std::int32_t value = 0;
    const NumberKind reading = ParseLong(text, value);
    if (reading == NumberKind::NotNumeric)
        throw TypeMismatch(text, Place(column));
    if (reading == NumberKind::TooLarge)
        throw OverflowError(text, Place(column));
    return value;
}

Table::Table(const TableLayout& layout)
    : m_layout(&layout),
      m_memory(std::make_unique<std::pmr::monotonic_buffer_resource>())
{
}

void Table::AppendLine(std::string_view line, std::uint32_t lineNumber)
{
    m_fieldEnds.clear();
    for (std::size_t end = line.find(';'); end != std::string_view::npos; end = line.find(';', end + 1))
        m_fieldEnds.push_back(static_cast<std::uint32_t>(end));
    m_fieldEnds.push_back(static_cast<std::uint32_t>(line.size()));
    m_rows.push_back(NewRow(line, m_fieldEnds, lineNumber));
    m_indexes.clear();
}

void Table::Append(const std::vector<std::string>& fields)
{
    m_rows.push_back(EnteredRow(fields));
    m_indexes.clear();
}

void Table::Replace(std::size_t position, const std::vector<std::string>& fields)
{
    m_rows[position] = EnteredRow(fields);
    m_indexes.clear();
}

void Table::RemoveMatches(std::size_t column, std::int32_t number)
{
    std::vector<Row> kept;
    kept.reserve(m_rows.size());
    std::copy_if(m_rows.rbegin(), m_rows.rend(), std::back_inserter(kept),
                 [&](const Row& row) { return row.Number(column) != number; });
    std::ranges::reverse(kept);
    m_rows.swap(kept);
    m_indexes.clear();
}

Matches Table::Matching(std::size_t column, std::int32_t number, Conversion conversion) const
{
    const IndexedColumn& indexed = Indexed(column);
    const std::size_t end = indexed.End(conversion);
    const std::span<const std::uint32_t> positions = indexed.Index.Positions(number);
    if (end == m_rows.size())
        return {m_rows.data(), positions, nullptr, column};
    const auto before =
        static_cast<std::size_t>(std::ranges::lower_bound(positions, end) - positions.begin());
    return {m_rows.data(), positions.first(before), &m_rows[end], column};
}

const Row* Table::FindFirst(std::size_t column, std::int32_t number, Conversion conversion) const
{
    const std::optional<std::size_t> position = FindPosition(column, number, conversion);
    return position ? &m_rows[*position] : nullptr;
}

std::optional<std::size_t> Table::FindPosition(std::size_t column, std::int32_t number,
                                               Conversion conversion) const
{
    const IndexedColumn& indexed = Indexed(column);
    const std::size_t end = indexed.End(conversion);
    const std::span<const std::uint32_t> positions = indexed.Index.Positions(number);
    if (!positions.empty() && positions.front() < end)
        return positions.front();
    if (end < m_rows.size())
        m_rows[end].Number(column); // throws
    return std::nullopt;
}

std::int32_t Table::LargestNumber(std::size_t column) const
{
    const IndexedColumn& indexed = Indexed(column);
    if (indexed.NumbersEnd < m_rows.size())
        m_rows[indexed.NumbersEnd].Number(column); // throws
    return indexed.Largest;
}

std::int32_t Table::NumberAt(std::size_t position, std::size_t column, Conversion conversion) const
{
    const IndexedColumn& indexed = Indexed(column);
    return position < indexed.End(conversion) ? indexed.Numbers[position]
                                              : m_rows[position].Number(column, conversion);
}

Row Table::NewRow(std::string_view line, std::span<const std::uint32_t> ends, std::uint32_t lineNumber)
{
    void* block = m_memory->allocate(ends.size_bytes() + line.size(), alignof(std::uint32_t));
    auto* keptEnds = static_cast<std::uint32_t*>(block);
    auto* keptLine = reinterpret_cast<char*>(keptEnds + ends.size());
    std::ranges::copy(ends, keptEnds);
    std::ranges::copy(line, keptLine);

    Row row;
    row.m_layout = m_layout;
    row.m_ends = keptEnds;
    row.m_count = static_cast<std::uint32_t>(ends.size());
    row.m_lineNumber = lineNumber;
    return row;
}

/// The fields are taken as they are: an entered one may contain ";".
Row Table::EnteredRow(const std::vector<std::string>& fields)
{
    std::string line;
    m_fieldEnds.clear();
    for (const std::string& field : fields)
    {
        if (!m_fieldEnds.empty())
            line += ';';
        line += field;
        m_fieldEnds.push_back(static_cast<std::uint32_t>(line.size()));
    }
    return NewRow(line, m_fieldEnds, EnteredLine);
}

Table::IndexedColumn Table::MakeIndex(std::size_t column) const
{
    std::vector<std::int32_t> numbers;
    numbers.reserve(m_rows.size());
    std::optional<std::size_t> numbersEnd;
    std::int32_t largest = 0;
    for (const Row& row : m_rows)
    {
        if (column >= row.FieldCount())
            break;
        std::int32_t number = 0;
        if (ParseLong(row.Field(column), number) != NumberKind::Whole && !numbersEnd)
            numbersEnd = numbers.size();
        numbers.push_back(number);
        largest = std::max(largest, number);
    }
    const std::size_t end = numbersEnd.value_or(numbers.size());
    ColumnIndex index(numbers);
    return {std::move(numbers), end, largest, std::move(index)};
}

const Table::IndexedColumn& Table::Indexed(std::size_t column) const
{
    if (m_indexes.empty())
        m_indexes.resize(m_layout->Columns.size());
    std::optional<IndexedColumn>& indexed = m_indexes[column];
    if (!indexed)
        indexed = MakeIndex(column);
    return *indexed;
}

} // namespace modData

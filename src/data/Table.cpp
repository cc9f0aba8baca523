#include "data/Table.h"

#include "data/Errors.h"
#include "data/Text.h"

#include <algorithm>

namespace
{

/// The line of a row that was entered in the program.
constexpr std::uint32_t EnteredLine = 0;

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
    throw SubscriptOutOfRange(Place(column));
}

std::int32_t Row::Number(std::size_t column, Conversion conversion) const
{
    const std::string_view text = Field(column);
    if (conversion == Conversion::Safe)
        return ToLongOrZero(text);
    std::int32_t value = 0;
    const NumberReading reading = ReadLong(text, value);
    if (reading == NumberReading::NotNumeric)
        throw TypeMismatch(text, Place(column));
    if (reading == NumberReading::TooLarge)
        throw Overflow(text, Place(column));
    return value;
}

Table::Table(const TableLayout& layout)
    : TableColumns(&layout),
      Memory(std::make_unique<std::pmr::monotonic_buffer_resource>()),
      ReadColumns(layout.Columns.size()),
      ContentRevision(NextRevision())
{
}

void Table::AppendLine(std::string_view line, std::uint32_t lineNumber)
{
    FieldEnds.clear();
    for (std::size_t end = line.find(';'); end != std::string_view::npos; end = line.find(';', end + 1))
        FieldEnds.push_back(static_cast<std::uint32_t>(end));
    FieldEnds.push_back(static_cast<std::uint32_t>(line.size()));
    Rows.push_back(NewRow(line, FieldEnds, lineNumber));
    ContentChanged();
}

void Table::Append(const std::vector<std::string>& fields)
{
    Rows.push_back(EnteredRow(fields));
    ContentChanged();
}

void Table::Replace(std::size_t position, const std::vector<std::string>& fields)
{
    Rows[position] = EnteredRow(fields);
    ContentChanged();
}

void Table::RemoveMatches(std::size_t column, std::int32_t number)
{
    std::vector<Row> kept;
    kept.reserve(Rows.size());
    std::copy_if(Rows.rbegin(), Rows.rend(), std::back_inserter(kept),
                 [&](const Row& row) { return row.Number(column) != number; });
    std::ranges::reverse(kept);
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
    const ReadColumn& searched = Indexed(column, conversion);
    const std::uint32_t position = searched.Index->First(number);
    if (position != ColumnIndex::None)
        return position;
    RequireWhole(searched, column);
    return std::nullopt;
}

std::int32_t Table::NumberOf(const Row& row, std::size_t column, Conversion conversion) const
{
    const std::vector<std::int32_t>& numbers = Read(column, conversion).Numbers;
    const std::size_t position = PositionOf(row);
    return position < numbers.size() ? numbers[position] : row.Number(column, conversion);
}

Row Table::NewRow(std::string_view line, std::span<const std::uint32_t> ends, std::uint32_t lineNumber)
{
    void* block = Memory->allocate(ends.size_bytes() + line.size(), alignof(std::uint32_t));
    auto* keptEnds = static_cast<std::uint32_t*>(block);
    auto* keptLine = reinterpret_cast<char*>(keptEnds + ends.size());
    std::ranges::copy(ends, keptEnds);
    std::ranges::copy(line, keptLine);

    Row row;
    row.Layout = TableColumns;
    row.Ends = keptEnds;
    row.Count = static_cast<std::uint32_t>(ends.size());
    row.LineNumber = lineNumber;
    return row;
}

/// A field that was entered may hold a ";" of its own.
Row Table::EnteredRow(const std::vector<std::string>& fields)
{
    std::string line;
    FieldEnds.clear();
    for (const std::string& field : fields)
    {
        if (!FieldEnds.empty())
            line += ';';
        line += field;
        FieldEnds.push_back(static_cast<std::uint32_t>(line.size()));
    }
    return NewRow(line, FieldEnds, EnteredLine);
}

Table::ReadColumn& Table::Read(std::size_t column, Conversion conversion) const
{
    std::optional<ReadColumn>& read = ReadColumns[column][static_cast<std::size_t>(conversion)];
    if (!read)
    {
        read = ReadColumn{ReadKeys(Rows, column, conversion), std::nullopt};
        HasReadColumns = true;
    }
    return *read;
}

const Table::ReadColumn& Table::Indexed(std::size_t column, Conversion conversion) const
{
    ReadColumn& read = Read(column, conversion);
    if (!read.Index)
        read.Index.emplace(read.Numbers);
    return read;
}

/// A search that has not found enough ends as a scan does: in the error of the first row that cannot be read.
void Table::RequireWhole(const ReadColumn& searched, std::size_t column) const
{
    if (searched.Numbers.size() < Rows.size())
        Rows[searched.Numbers.size()].Number(column); // throws; where reading is safe, the row is too short
}

void Table::ContentChanged()
{
    ContentRevision = NextRevision();
    if (!HasReadColumns) // as for every row while a table is loaded
        return;
    HasReadColumns = false;
    for (auto& ofColumn : ReadColumns)
        ofColumn = {};
}

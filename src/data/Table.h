#pragma once

#include "data/CheckedNumbers.h"
#include "data/ColumnIndex.h"
#include "data/Errors.h"

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <memory_resource>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace modData
{

/// The layout of a table's file: its name in the data folder and its columns.
struct TableLayout
{
    std::string_view FileName;
    std::span<const std::string_view> Columns;

    /// The file's first line: the column names joined by ";".
    std::string Header() const;
};

/// One row: the fields of a line of the file as text (UTF-8), in column order. There may be fewer or more
/// fields than columns. A light view: the table owns the text and keeps it until it is loaded again.
class Row
{
public:
    std::size_t FieldCount() const { return m_count; }

    /// A field exactly as stored. @throws DataError if the row is too short
    std::string_view Field(std::size_t column) const
    {
        if (column >= m_count)
            ThrowTooShort(column);
        const char* line = reinterpret_cast<const char*>(m_ends + m_count);
        const std::uint32_t begin = column == 0 ? 0 : m_ends[column - 1] + 1;
        return {line + begin, m_ends[column] - begin};
    }

    /// A field as a whole number. @throws DataError, which names the place, if the row is too short or, in a
    /// strict conversion, the field is not a whole number
    std::int32_t Number(std::size_t column, Conversion conversion = Conversion::Strict) const;

    /// The place of a field in one of the layout's columns.
    FieldPlace Place(std::size_t column) const
    {
        return {m_layout->FileName, m_lineNumber, m_layout->Columns[column]};
    }

private:
    friend class Table;

    [[noreturn]] void ThrowTooShort(std::size_t column) const;

    const TableLayout* m_layout = nullptr;
    const std::uint32_t* m_ends = nullptr; // where each field ends; the line's text follows these numbers
    std::uint32_t m_count = 0;
    std::uint32_t m_lineNumber = 0; // in the file; 0 if no file holds the row yet
};

/// The rows of a table that hold a number in a column, in table order, for a loop. If a row cannot be
/// compared, the loop throws that row's DataError after the last match before it, as a scan would.
class Matches
{
public:
    class Iterator
    {
    public:
        explicit Iterator(const Matches& matches) : m_matches(&matches), m_next(matches.m_positions.begin())
        {
        }

        std::size_t Position() const { return *m_next; } ///< The row's position in its table.
        const Row& operator*() const { return m_matches->m_rows[*m_next]; }
        Iterator& operator++()
        {
            ++m_next;
            return *this;
        }
        bool operator==(std::default_sentinel_t) const
        {
            if (m_next != m_matches->m_positions.end())
                return false;
            if (m_matches->m_unreadable != nullptr)
                m_matches->m_unreadable->Number(m_matches->m_column); // throws
            return true;
        }

    private:
        const Matches* m_matches;
        std::span<const std::uint32_t>::iterator m_next;
    };

    Iterator begin() const { return Iterator(*this); }
    std::default_sentinel_t end() const { return {}; }

private:
    friend class Table;

    Matches(const Row* rows, std::span<const std::uint32_t> positions, const Row* unreadable,
            std::size_t column)
        : m_rows(rows),
          m_positions(positions),
          m_unreadable(unreadable),
          m_column(column)
    {
    }

    const Row* m_rows;
    std::span<const std::uint32_t> m_positions;
    const Row* m_unreadable; // the first row that cannot be compared
    std::size_t m_column;
};

/// An ordered collection of rows. A search gives what a scan from the first row would give, errors included.
class Table
{
public:
    explicit Table(const TableLayout& layout);

    const TableLayout& Layout() const { return *m_layout; }

    std::size_t RowCount() const { return m_rows.size(); }
    const Row& operator[](std::size_t position) const { return m_rows[position]; }
    auto begin() const { return m_rows.begin(); }
    auto end() const { return m_rows.end(); }

    /// Adds a row at the end from a line of the file, in which ";" separates the fields.
    void AppendLine(std::string_view line, std::uint32_t lineNumber);

    /// Adds a row that no file holds yet at the end.
    void Append(const std::vector<std::string>& fields);

    /// Replaces the row at a position by a new one that no file holds yet.
    void Replace(std::size_t position, const std::vector<std::string>& fields);

    /// Removes every row that holds the number in the column, from the last row to the first.
    /// @throws DataError for the last row that cannot be compared; then no row is removed
    void RemoveMatches(std::size_t column, std::int32_t number);

    /// The rows that hold the number in the column; valid until the table changes.
    /// @throws DataError in the loop, not here, for a row that cannot be compared: it is too short or, in a
    /// strict conversion, holds no number
    Matches Matching(std::size_t column, std::int32_t number,
                     Conversion conversion = Conversion::Strict) const;

    /// The first row that holds the number in the column; null if there is none.
    /// @throws DataError for a row before it that cannot be compared
    const Row* FindFirst(std::size_t column, std::int32_t number,
                         Conversion conversion = Conversion::Strict) const;

    /// The position of that row. @throws as FindFirst
    std::optional<std::size_t> FindPosition(std::size_t column, std::int32_t number,
                                            Conversion conversion = Conversion::Strict) const;

    /// The largest number in the column, or 0 if none is larger.
    /// @throws DataError for the first row that holds no number
    std::int32_t LargestNumber(std::size_t column) const;

    /// Row::Number for the row at a position, from the column's index: faster for many rows out of order.
    /// @throws as Row::Number
    std::int32_t NumberAt(std::size_t position, std::size_t column, Conversion conversion) const;

private:
    /// The index of a column, made when first needed. A text that is not a number counts as 0.
    struct IndexedColumn
    {
        /// Where a search ends: the first row that cannot be compared.
        std::size_t End(Conversion conversion) const
        {
            return conversion == Conversion::Strict ? NumbersEnd : Numbers.size();
        }

        std::vector<std::int32_t> Numbers; // by position, up to the first row that is too short
        std::size_t NumbersEnd;            // the first row that holds no number
        std::int32_t Largest;              // at least 0
        ColumnIndex Index;
    };

    Row NewRow(std::string_view line, std::span<const std::uint32_t> ends, std::uint32_t lineNumber);
    Row EnteredRow(const std::vector<std::string>& fields);
    IndexedColumn MakeIndex(std::size_t column) const;
    const IndexedColumn& Indexed(std::size_t column) const;

    const TableLayout* m_layout;
    std::unique_ptr<std::pmr::monotonic_buffer_resource> m_memory; // the lines of all rows
    std::vector<std::uint32_t> m_fieldEnds;                        // of the line that is being added
    std::vector<Row> m_rows;
    mutable std::vector<std::optional<IndexedColumn>> m_indexes; // by column; dropped by every change
};

} // namespace modData

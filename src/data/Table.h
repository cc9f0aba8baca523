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

/// What the program knows of a table's file: its name in the data folder and its columns.
struct TableLayout
{
    std::string_view FileName;
    std::span<const std::string_view> Columns;

    /// The file's first line: the column names joined by ";".
    std::string Header() const;
};

/// One row: the fields of one file line as text (UTF-8), in column order; there may be fewer or more than
/// columns. A light view: the text belongs to the table and stays until the table is loaded again.
class Row
{
public:
    std::size_t FieldCount() const { return m_count; }

    /// A field exactly as stored. @throws DataError when the row is too short
    std::string_view Field(std::size_t column) const
    {
        if (column >= m_count)
            ThrowTooShort(column);
        const char* line = reinterpret_cast<const char*>(m_ends + m_count);
        const std::uint32_t begin = column == 0 ? 0 : m_ends[column - 1] + 1;
        return {line + begin, m_ends[column] - begin};
    }

    /// A field as a whole number. @throws DataError, which names the place, when the row is too short or,
    /// where the conversion is strict, the field is no whole number
    std::int32_t Number(std::size_t column, Conversion conversion = Conversion::Strict) const;

    /// Where a field of one of the layout's columns is.
    FieldPlace Place(std::size_t column) const
    {
        return {m_layout->FileName, m_lineNumber, m_layout->Columns[column]};
    }

private:
    friend class Table;

    [[noreturn]] void ThrowTooShort(std::size_t column) const;

    const TableLayout* m_layout = nullptr;
    const std::uint32_t* m_ends = nullptr; // where each field ends in the line, which follows them
    std::uint32_t m_count = 0;
    std::uint32_t m_lineNumber = 0; // in the file; 0 when no file holds the row yet
};

/// The rows of a table that hold a number in a column, in table order, for a loop. They are what a scan
/// finds: where a scan would meet a row that cannot be compared, the step beyond the last match throws its
/// DataError.
class Matches
{
public:
    class Iterator
    {
    public:
        explicit Iterator(const Matches& matches) : m_matches(&matches), m_next(matches.m_positions.begin())
        {
        }

        std::size_t Position() const { return *m_next; } ///< Of the row in its table.
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

/// An ordered collection of rows. Searches give what a scan from the first row gives, errors included.
class Table
{
public:
    explicit Table(const TableLayout& layout);

    const TableLayout& Layout() const { return *m_layout; }

    std::size_t RowCount() const { return m_rows.size(); }
    const Row& operator[](std::size_t position) const { return m_rows[position]; }
    auto begin() const { return m_rows.begin(); }
    auto end() const { return m_rows.end(); }

    /// Adds a row at the end: the fields of a line of the file, which ";" separates.
    void AppendLine(std::string_view line, std::uint32_t lineNumber);

    /// Adds a row at the end that no file holds yet.
    void Append(const std::vector<std::string>& fields);

    /// Puts a new row, which no file holds yet, in the place of the one at a position.
    void Replace(std::size_t position, const std::vector<std::string>& fields);

    /// Removes every row that holds the number in the column, from the last row to the first.
    /// @throws DataError for the first row on that way that cannot be compared; then none is removed
    void RemoveMatches(std::size_t column, std::int32_t number);

    /// The rows that hold the number in the column; they are valid until the table changes.
    /// @throws DataError for a row that is too short or, where the conversion is strict, holds no number: not
    /// here but in the loop, see Matches
    Matches Matching(std::size_t column, std::int32_t number,
                     Conversion conversion = Conversion::Strict) const;

    /// The first row that holds the number in the column; null when there is none.
    /// @throws DataError for a row before it that cannot be compared
    const Row* FindFirst(std::size_t column, std::int32_t number,
                         Conversion conversion = Conversion::Strict) const;

    /// The position of the row that FindFirst gives. @throws as FindFirst
    std::optional<std::size_t> FindPosition(std::size_t column, std::int32_t number) const;

    /// Row::Number for the row at a position, from the column's index: faster where many rows are read out of
    /// order. @throws as Row::Number
    std::int32_t NumberAt(std::size_t position, std::size_t column, Conversion conversion) const;

private:
    /// The index of a column, made when first needed. A text that is no number counts as 0 in it; how far it
    /// is searched depends on how strictly numbers are read.
    struct IndexedColumn
    {
        /// Where a search ends: at the first row that cannot be compared.
        std::size_t End(Conversion conversion) const
        {
            return conversion == Conversion::Strict ? NumbersEnd : Numbers.size();
        }

        std::vector<std::int32_t> Numbers; // by position, up to the first row that is too short
        std::size_t NumbersEnd;            // the first row that holds no number
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
    mutable std::vector<std::optional<IndexedColumn>> m_indexes; // by column; none after a change
};

} // namespace modData

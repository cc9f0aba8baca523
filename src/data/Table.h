#pragma once

#include "data/ColumnIndex.h"
#include "data/Errors.h"
#include "data/Numbers.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <memory_resource>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// What the program knows of a table's file: its name in the data folder and its columns.
struct TableLayout
{
    std::string_view FileName;
    std::span<const std::string_view> Columns;

    /// The file's first line: the column names joined by ";".
    std::string Header() const;
};

/// One row: the fields of one file line as text (UTF-8), in column order; there may be fewer or more than
/// columns. A light view: the text belongs to the table and stays until the table is loaded anew.
class Row
{
public:
    std::size_t FieldCount() const { return Count; }

    /// A field exactly as stored. @throws SubscriptOutOfRange when the row is too short
    std::string_view Field(std::size_t column) const
    {
        if (column >= Count)
            ThrowTooShort(column);
        const char* line = reinterpret_cast<const char*>(Ends + Count);
        const std::uint32_t begin = column == 0 ? 0 : Ends[column - 1] + 1;
        return {line + begin, Ends[column] - begin};
    }

    /// A field as a whole number. @throws SubscriptOutOfRange when the row is too short, and where the
    /// conversion is strict TypeMismatch and Overflow, each naming the place
    std::int32_t Number(std::size_t column, Conversion conversion = Conversion::Strict) const;

    /// Where a field of one of the layout's columns is.
    FieldPlace Place(std::size_t column) const
    {
        return {Layout->FileName, LineNumber, Layout->Columns[column]};
    }

private:
    friend class Table;

    [[noreturn]] void ThrowTooShort(std::size_t column) const;

    const TableLayout* Layout = nullptr;
    const std::uint32_t* Ends = nullptr; // where each field ends in the line, which follows them
    std::uint32_t Count = 0;
    std::uint32_t LineNumber = 0; // in the file; 0 when no file holds the row yet
};

/// An ordered collection of rows. Searches give what a scan from the first row gives, errors included.
class Table
{
public:
    explicit Table(const TableLayout& layout);

    const TableLayout& Layout() const { return *TableColumns; }

    /// A number that no table's content before this one has had: what was made from the table holds as long
    /// as it stays.
    std::uint64_t Revision() const { return ContentRevision; }

    std::size_t RowCount() const { return Rows.size(); }
    const Row& operator[](std::size_t position) const { return Rows[position]; }
    /// The position of one of the table's own rows; a copy has none.
    std::size_t PositionOf(const Row& row) const { return static_cast<std::size_t>(&row - Rows.data()); }
    auto begin() const { return Rows.begin(); }
    auto end() const { return Rows.end(); }

    /// Adds a row behind the last one: the fields of a line of the file, which ";" separates.
    void AppendLine(std::string_view line, std::uint32_t lineNumber);

    /// Adds a row that no file holds yet behind the last one.
    void Append(const std::vector<std::string>& fields);

    /// Puts a new row, which no file holds yet, in the place of the one at a position.
    void Replace(std::size_t position, const std::vector<std::string>& fields);

    /// Removes every row that holds the number in the column, from the last row to the first.
    /// @throws TypeMismatch, Overflow, SubscriptOutOfRange for the first row on that way that cannot be
    /// compared; then none is removed
    void RemoveMatches(std::size_t column, std::int32_t number);

    /// The first row that holds the number in the column; null when there is none.
    /// @throws TypeMismatch, Overflow, SubscriptOutOfRange for a row before it that cannot be compared
    const Row* FindFirst(std::size_t column, std::int32_t number,
                         Conversion conversion = Conversion::Strict) const;

    /// The position of the row that FindFirst gives. @throws as FindFirst
    std::optional<std::size_t> FindPosition(std::size_t column, std::int32_t number,
                                            Conversion conversion = Conversion::Strict) const;

    /// Row::Number for one of the table's own rows, from the numbers that are kept of the column: for going
    /// through many rows, each of which would otherwise have to be fetched from memory and read. @throws as
    /// Row::Number
    std::int32_t NumberOf(const Row& row, std::size_t column,
                          Conversion conversion = Conversion::Strict) const;

    /// Calls `test` with each row that holds the number in the column, in table order, until one answers
    /// true; returns whether one did. @throws as FindFirst, once the rows before the faulty one are tested
    template<typename Test>
    bool AnyMatch(std::size_t column, std::int32_t number, const Test& test,
                  Conversion conversion = Conversion::Strict) const
    {
        const ReadColumn& searched = Indexed(column, conversion);
        for (const std::uint32_t position : searched.Index->Positions(number))
            if (test(Rows[position]))
                return true;
        RequireWhole(searched, column);
        return false;
    }

    /// Calls `visit` with each row that holds the number in the column, in table order. @throws as AnyMatch
    template<typename Visit>
    void ForEachMatch(std::size_t column, std::int32_t number, const Visit& visit,
                      Conversion conversion = Conversion::Strict) const
    {
        const auto visitAndGoOn = [&](const Row& row)
        {
            visit(row);
            return false;
        };
        AnyMatch(column, number, visitAndGoOn, conversion);
    }

private:
    /// The numbers of a column by position, up to the first row whose field cannot be read as one, since a
    /// scan ends there in an error; and where they stand, once something was searched.
    struct ReadColumn
    {
        std::vector<std::int32_t> Numbers;
        std::optional<ColumnIndex> Index;
    };

    Row NewRow(std::string_view line, std::span<const std::uint32_t> ends, std::uint32_t lineNumber);
    Row EnteredRow(const std::vector<std::string>& fields);
    ReadColumn& Read(std::size_t column, Conversion conversion) const;
    const ReadColumn& Indexed(std::size_t column, Conversion conversion) const;
    void RequireWhole(const ReadColumn& searched, std::size_t column) const;
    void ContentChanged();

    const TableLayout* TableColumns;
    std::unique_ptr<std::pmr::monotonic_buffer_resource> Memory; // the lines of all rows
    std::vector<std::uint32_t> FieldEnds;                        // of the line that is being added
    std::vector<Row> Rows;
    mutable std::vector<std::array<std::optional<ReadColumn>, 2>> ReadColumns; // by column and conversion,
                                                                               // each read when first needed
    mutable bool HasReadColumns = false;
    std::uint64_t ContentRevision;
};

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

/// A colour as the platform's list has it: 0xBBGGRR.
using ListColour = std::uint32_t;

inline constexpr ListColour Black = 0x000000;
inline constexpr ListColour Red = 0x0000FF;
inline constexpr ListColour Blue = 0xFF0000;

/// A column of a list: its caption (UTF-8) and its width in twips (1440 to the inch) for text of the usual
/// size. Larger text makes it wider, and so does a caption that would not fit.
struct ListColumn
{
    std::string_view Caption;
    int Twips;
};

/// One cell of a list: its text (UTF-8) and how it is drawn.
struct ListCell
{
    std::string Text;
    ListColour Colour = Black;
    bool Bold = false;
};

/// As many columns as a list may have: those of the course list.
inline constexpr std::size_t MostColumns = 11;

/// One row of a list, a cell for each column. The texts of all cells lie in one: a long list takes less than
/// half of the memory that way, and is made and thrown away faster with every key stroke in the search box.
class ListRow
{
public:
    ListRow() = default;
    ListRow(std::initializer_list<ListCell> cells);

    /// Adds a cell behind the last one. @throws std::out_of_range beyond MostColumns
    void push_back(const ListCell& cell) { Add(cell.Text, cell.Colour, cell.Bold); }
    void Add(std::string_view text, ListColour colour = Black, bool bold = false);

    /// Draws one cell, or all of them, in a colour, and not bold.
    void SetColour(std::size_t column, ListColour colour) { Cells.at(column).Look = colour; }
    void SetColour(ListColour colour);

    /// Takes all cells away.
    void clear();

    /// A cell's text. @throws std::out_of_range
    std::string_view Text(std::size_t column) const;

    // As of any container; the cells are copies. @throws std::out_of_range

    bool empty() const { return Count == 0; }
    std::size_t size() const { return Count; }
    ListCell at(std::size_t column) const;
    ListCell operator[](std::size_t column) const { return at(column); }
    ListCell front() const { return at(0); }

    /// Walks over the cells, each made when it is asked for.
    class Iterator
    {
    public:
        using value_type = ListCell;
        using difference_type = std::ptrdiff_t;

        Iterator() = default;
        Iterator(const ListRow& row, std::size_t column) : Row(&row), Column(column) {}

        ListCell operator*() const { return Row->at(Column); }
        Iterator& operator++()
        {
            ++Column;
            return *this;
        }
        void operator++(int) { ++Column; }
        bool operator==(const Iterator&) const = default;

    private:
        const ListRow* Row = nullptr;
        std::size_t Column = 0;
    };

    Iterator begin() const { return {*this, 0}; }
    Iterator end() const { return {*this, Count}; }

private:
    /// Where a cell's text ends, which begins where the one before it ends, and how it is drawn.
    struct CellOfRow
    {
        std::uint32_t End = 0;
        std::uint32_t Look = Black; // the colour, and above it whether it is bold
    };

    static constexpr std::uint32_t BoldLook = 0x1000000;

    std::string Texts;
    std::array<CellOfRow, MostColumns> Cells;
    std::size_t Count = 0;
};

/// A row whose cells are all drawn alike.
ListRow UniformRow(const std::vector<std::string>& texts, ListColour colour, bool bold = false);

/// The colour of a course's row in every course list: blue for an elective, by its type's text.
ListColour ElectiveColour(std::string_view tip);

/// How a list is sorted: by a column's texts in the Croatian order, equal ones as they stood.
struct ListOrder
{
    std::size_t Column;
    bool Descending;
};

/// The order that the rows are to be shown in: the position of each, first to last.
std::vector<std::size_t> SortedPositions(const std::vector<ListRow>& rows, ListOrder order);

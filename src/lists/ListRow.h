#pragma once

#include <cstddef>
#include <cstdint>
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

/// One row of a list, a cell for each column.
using ListRow = std::vector<ListCell>;

/// A row whose cells are all drawn alike.
ListRow UniformRow(std::vector<std::string> texts, ListColour colour, bool bold = false);

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

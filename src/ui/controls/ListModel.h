#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// A colour as the platform's list has it: 0xBBGGRR.
using ListColour = std::uint32_t;

namespace ListColours
{
inline constexpr ListColour Black = 0x000000;
inline constexpr ListColour Red = 0x0000FF;
inline constexpr ListColour Blue = 0xFF0000;
} // namespace ListColours

/// The colour of a course's row in every course list: blue for an elective, by its type's text.
ListColour ElectiveColour(std::string_view tip);

/// A column of a list: its caption (UTF-8) and its width in twips (1440 to the inch) for text of the usual
/// size. Larger text makes it wider, and so does a caption that would not fit.
struct ListColumn
{
    std::string_view Caption;
    int Twips;
};

/// How a cell is drawn.
struct CellStyle
{
    ListColour Colour = ListColours::Black;
    bool Bold = false;

    bool operator==(const CellStyle&) const = default;
};

/// What a list shows. The list asks for the cells on the screen and no others; to answer is no error.
class ListModel
{
public:
    ListModel() = default;
    ListModel(const ListModel&) = delete;
    ListModel& operator=(const ListModel&) = delete;
    virtual ~ListModel() = default;

    virtual std::size_t RowCount() const = 0;
    virtual std::string Text(std::size_t row, std::size_t column) const = 0; ///< UTF-8.
    virtual CellStyle Style(std::size_t row, std::size_t column) const = 0;
};

/// A cell of a row that is kept.
struct ListCell
{
    std::string Text;
    ListColour Colour = ListColours::Black;
    bool Bold = false;
};

/// A row that is kept, a cell for each column.
using ListRow = std::vector<ListCell>;

/// A row whose cells are all drawn alike.
ListRow UniformRow(const std::vector<std::string>& texts, ListColour colour, bool bold = false);

/// Rows that keep what they show, whatever becomes of the tables.
class KeptRows : public ListModel
{
public:
    explicit KeptRows(std::vector<ListRow> rows) : m_rows(std::move(rows)) {}

    std::size_t RowCount() const override { return m_rows.size(); }
    std::string Text(std::size_t row, std::size_t column) const override { return m_rows[row][column].Text; }
    CellStyle Style(std::size_t row, std::size_t column) const override
    {
        return {m_rows[row][column].Colour, m_rows[row][column].Bold};
    }

private:
    std::vector<ListRow> m_rows;
};

/// How a list is sorted: by a column's texts in the Croatian order; equal ones keep the model's order.
struct ListOrder
{
    std::size_t Column;
    bool Descending;
};

/// The order that the model's rows are to be shown in: the position of each, first to last.
std::vector<std::size_t> SortedPositions(const ListModel& model, ListOrder order);

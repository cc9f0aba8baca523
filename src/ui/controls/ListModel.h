#pragma once

#include "ui/controls/TextColour.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// The colour of a course's row in every course list, by the text of its type: blue for an elective.
TextColour ElectiveColour(std::string_view tip);

/// A column of a list: its caption (UTF-8) and its width in twips (1440 to the inch) for text of the usual
/// size. The column gets wider for larger text, and for a caption that would not fit.
struct ListColumn
{
    std::string_view Caption;
    int Twips;
};

/// The look of a cell.
struct CellStyle
{
    TextColour Colour = TextColours::Black;
    bool Bold = false;

    bool operator==(const CellStyle&) const = default;
};

/// The rows of a list. The list asks only for the cells on the screen, while it paints: none of these
/// functions may throw.
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

/// A cell of a kept row.
struct ListCell
{
    std::string Text;
    TextColour Colour = TextColours::Black;
    bool Bold = false;
};

/// A kept row: a cell for each column.
using ListRow = std::vector<ListCell>;

/// A row whose cells all have the same look.
ListRow UniformRow(const std::vector<std::string>& texts, TextColour colour, bool bold = false);

/// Rows with texts of their own: they stay when the tables change.
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

/// The order of a sorted list: by a column's texts in the Croatian order. Equal rows keep the model's order.
struct ListOrder
{
    std::size_t Column;
    bool Descending;
};

/// The positions of the model's rows in this order.
std::vector<std::size_t> SortedPositions(const ListModel& model, ListOrder order);

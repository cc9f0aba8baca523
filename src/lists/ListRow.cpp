#include "lists/ListRow.h"

#include "data/Text.h"
#include "lists/CroatianOrder.h"

#include <algorithm>
#include <numeric>
#include <stdexcept>
#include <utility>

ListRow::ListRow(std::initializer_list<ListCell> cells)
{
    for (const ListCell& cell : cells)
        push_back(cell);
}

void ListRow::Add(std::string_view text, ListColour colour, bool bold)
{
    CellOfRow& cell = Cells.at(Count);
    Texts += text;
    cell.End = static_cast<std::uint32_t>(Texts.size());
    cell.Look = colour | (bold ? BoldLook : 0);
    ++Count;
}

void ListRow::SetColour(ListColour colour)
{
    for (std::size_t column = 0; column < Count; ++column)
        SetColour(column, colour);
}

void ListRow::clear()
{
    Texts.clear();
    Count = 0;
}

std::string_view ListRow::Text(std::size_t column) const
{
    if (column >= Count)
        throw std::out_of_range("ListRow::Text");
    const std::size_t begin = column == 0 ? 0 : Cells[column - 1].End;
    return std::string_view(Texts).substr(begin, Cells[column].End - begin);
}

ListCell ListRow::at(std::size_t column) const
{
    std::string text(Text(column));
    const std::uint32_t look = Cells[column].Look;
    return {std::move(text), look & ~BoldLook, (look & BoldLook) != 0};
}

ListRow UniformRow(const std::vector<std::string>& texts, ListColour colour, bool bold)
{
    ListRow row;
    for (const std::string& text : texts)
        row.Add(text, colour, bold);
    return row;
}

ListColour ElectiveColour(std::string_view tip)
{
    return IsWord(tip, "IZBORNI") ? Blue : Black;
}

std::vector<std::size_t> SortedPositions(const std::vector<ListRow>& rows, ListOrder order)
{
    std::vector<std::string> keys;
    keys.reserve(rows.size());
    for (const ListRow& row : rows)
        keys.push_back(CroatianSortKey(row.Text(order.Column)));

    std::vector<std::size_t> positions(rows.size());
    std::iota(positions.begin(), positions.end(), std::size_t{0});
    std::ranges::stable_sort(positions, [&](std::size_t a, std::size_t b)
                             { return order.Descending ? keys[b] < keys[a] : keys[a] < keys[b]; });
    return positions;
}

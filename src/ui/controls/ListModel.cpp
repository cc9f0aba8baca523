#include "ui/controls/ListModel.h"

#include "text/CroatianOrder.h"
#include "text/Text.h"

#include <algorithm>
#include <numeric>

TextColour ElectiveColour(std::string_view tip)
{
    return EqualsIgnoreCase(tip, "IZBORNI") ? TextColours::Blue : TextColours::Black;
}

ListRow UniformRow(const std::vector<std::string>& texts, TextColour colour, bool bold)
{
    ListRow row;
    for (const std::string& text : texts)
        row.push_back({text, colour, bold});
    return row;
}

std::vector<std::size_t> SortedPositions(const ListModel& model, ListOrder order)
{
    std::vector<std::string> keys;
    keys.reserve(model.RowCount());
    for (std::size_t row = 0; row < model.RowCount(); ++row)
        keys.push_back(CroatianSortKey(model.Text(row, order.Column)));

    std::vector<std::size_t> positions(keys.size());
    std::iota(positions.begin(), positions.end(), std::size_t{0});
    std::ranges::stable_sort(positions, [&](std::size_t a, std::size_t b)
                             { return order.Descending ? keys[b] < keys[a] : keys[a] < keys[b]; });
    return positions;
}

#include "lists/ListRow.h"

#include "data/Text.h"
#include "lists/CroatianOrder.h"

#include <algorithm>
#include <numeric>
#include <utility>

ListRow UniformRow(std::vector<std::string> texts, ListColour colour, bool bold)
{
    ListRow row;
    row.reserve(texts.size());
    for (std::string& text : texts)
        row.push_back({std::move(text), colour, bold});
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
        keys.push_back(CroatianSortKey(row[order.Column].Text));

    std::vector<std::size_t> positions(rows.size());
    std::iota(positions.begin(), positions.end(), std::size_t{0});
    std::ranges::stable_sort(positions, [&](std::size_t a, std::size_t b)
                             { return order.Descending ? keys[b] < keys[a] : keys[a] < keys[b]; });
    return positions;
}

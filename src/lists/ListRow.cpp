#include "lists/ListRow.h"

#include "lists/CroatianOrder.h"

#include <algorithm>
#include <numeric>

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

#include "support/Lists.h"

#include "ui/main/SemesterStatistics.h"

#include <iterator>

std::vector<ListRow> RowsOf(const ListModel& model, std::size_t columns)
{
    std::vector<ListRow> rows(model.RowCount());
    for (std::size_t row = 0; row < rows.size(); ++row)
        for (std::size_t column = 0; column < columns; ++column)
        {
            const CellStyle style = model.Style(row, column);
            rows[row].push_back({model.Text(row, column), style.Colour, style.Bold});
        }
    return rows;
}

std::vector<ListRow> CourseRows(const CourseFilter& filter)
{
    Search search(filter.Search);
    return RowsOf(CourseListModel(CoursesThatPass(filter, search)), std::size(CourseListColumns));
}

std::vector<ListRow> StatistikaRows(const CourseFilter& filter, std::string_view razina)
{
    Search search(filter.Search);
    return StatistikaRows(filter, search, razina);
}

#include "ui/controls/ListPairSizer.h"

#include "ui/controls/Controls.h"
#include "ui/controls/ListSizes.h"
#include "ui/controls/ListView.h"

#include <algorithm>

namespace
{

constexpr int FewestRows = 6;

/// The room in which a list shows all its columns and so many rows, at least the fewest.
wxSize RoomFor(const ListView& list, int rows)
{
    return {std::max(WidthForColumns(list), list.GetEffectiveMinSize().x),
            HeightForRows(list, std::max(rows, FewestRows))};
}

} // namespace

ListPairSizer::ListPairSizer(ListView* courses, ListView* sums) : Courses(courses), Sums(sums)
{
    Add(courses);
    Add(sums);
}

wxSize ListPairSizer::CalcMin()
{
    return {Courses->GetEffectiveMinSize().x,
            RoomFor(*Courses, FewestRows).y + Gap(Sums) + RoomFor(*Sums, FewestRows).y};
}

void ListPairSizer::RepositionChildren(const wxSize&)
{
    const int gap = Gap(Sums);
    const wxSize courses = RoomFor(*Courses, FewestRows);
    const wxSize sums = RoomFor(*Sums, Sums->RowCount());
    wxRect first(m_position, m_size);
    wxRect second(m_position, m_size);
    if (m_size.x >= courses.x + gap + sums.x)
    {
        second.SetSize({sums.x, std::min(sums.y, m_size.y)});
        first.width -= second.width + gap;
        second.x += first.width + gap;
    }
    else
    {
        const int room = m_size.y - gap - courses.y;
        second.height = std::max(std::min(sums.y, room), RoomFor(*Sums, FewestRows).y);
        first.height = std::max(m_size.y - gap - second.height, courses.y);
        second.y += first.height + gap;
    }
    Courses->SetSize(first);
    Sums->SetSize(second);
}

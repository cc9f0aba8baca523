#include "ui/controls/ListPairSizer.h"

#include "ui/controls/Controls.h"
#include "ui/controls/ListSizes.h"
#include "ui/controls/ListView.h"

#include <algorithm>

namespace
{

constexpr int FewestRows = 6;

/// The size in which a list shows all its columns and `rows` rows, or FewestRows if that is more.
wxSize RoomFor(const ListView& list, int rows)
{
    return {std::max(WidthForColumns(list), list.GetEffectiveMinSize().x),
            HeightForRows(list, std::max(rows, FewestRows))};
}

} // namespace

ListPairSizer::ListPairSizer(ListView* courses, ListView* sums) : m_courses(courses), m_sums(sums)
{
    Add(courses);
    Add(sums);
}

wxSize ListPairSizer::CalcMin()
{
    return {m_courses->GetEffectiveMinSize().x,
            RoomFor(*m_courses, FewestRows).y + Gap(m_sums) + RoomFor(*m_sums, FewestRows).y};
}

void ListPairSizer::RepositionChildren(const wxSize&)
{
    const int gap = Gap(m_sums);
    const wxSize courses = RoomFor(*m_courses, FewestRows);
    const wxSize sums = RoomFor(*m_sums, m_sums->RowCount());
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
        second.height = std::max(std::min(sums.y, room), RoomFor(*m_sums, FewestRows).y);
        first.height = std::max(m_size.y - gap - second.height, courses.y);
        second.y += first.height + gap;
    }
    m_courses->SetSize(first);
    m_sums->SetSize(second);
}

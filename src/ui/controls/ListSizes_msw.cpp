// The sizes of the list on Windows.

#include "ui/controls/ListSizes.h"

#include "ui/controls/ListView.h"

#include <wx/listctrl.h>
#include <wx/msw/wrapwin.h>
#include <wx/settings.h>

#include <commctrl.h>

namespace
{

const wxListCtrl& ControlOf(const ListView& list)
{
    return *dynamic_cast<const wxListCtrl*>(list.GetChildren().front());
}

int RowHeight(const wxListCtrl& control)
{
    wxRect row;
    if (control.GetItemCount() > 0 && control.GetItemRect(0, row))
        return row.height;
    return control.GetCharHeight() + control.FromDIP(4); // an empty list does not know its row height
}

int HeaderHeight(const wxListCtrl& control)
{
    RECT header = {};
    GetWindowRect(ListView_GetHeader(control.GetHWND()), &header);
    return header.bottom - header.top;
}

} // namespace

int WidthForColumns(const ListView& list)
{
    const wxListCtrl& control = ControlOf(list);
    int width = control.GetWindowBorderSize().x + wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, &control);
    for (int column = 0; column < list.ColumnCount(); ++column)
        width += list.ColumnWidth(column);
    return width;
}

int HeightForRows(const ListView& list, int rows)
{
    const wxListCtrl& control = ControlOf(list);
    return control.GetWindowBorderSize().y + HeaderHeight(control) + rows * RowHeight(control);
}

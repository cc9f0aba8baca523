// The sizes of the list on Windows.

#include "ui/controls/ListSizes.h"

#include "ui/controls/ListView.h"

#include <wx/msw/wrapwin.h>
#include <wx/settings.h>

#include <commctrl.h>

int WidthForColumns(const ListView& list)
{
    const wxWindow* control = list.GetChildren().front();
    int width = control->GetWindowBorderSize().x + wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, control);
    for (int column = 0; column < list.ColumnCount(); ++column)
        width += list.ColumnWidth(column);
    return width;
}

int HeightForRows(const ListView& list, int rows)
{
    const wxWindow* control = list.GetChildren().front();
    const LRESULT size = SendMessageW(control->GetHWND(), LVM_APPROXIMATEVIEWRECT, static_cast<WPARAM>(rows),
                                      MAKELPARAM(-1, -1));
    return HIWORD(size) + control->GetWindowBorderSize().y;
}

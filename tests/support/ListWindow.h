#pragma once

#include "support/Windows.h"

#include <wx/uiaction.h>

#include <algorithm>
#include <vector>

#ifdef _WIN32
#include <wx/listctrl.h>

#include <windows.h>

#include <commctrl.h>
#else
#include "ui/controls/NativeFunction_gtk.h"

#include <wx/dataview.h>
#endif

// A ListView on the screen: its columns' widths and arrows, and the places of its rows and headers.

#ifdef _WIN32

inline wxListCtrl* InnerList(const ListView* list)
{
    return dynamic_cast<wxListCtrl*>(list->GetChildren().front());
}

/// A cell on the screen.
inline wxRect CellPlace(const ListView* list, int row, int column)
{
    wxRect place;
    InnerList(list)->GetSubItemRect(row, column, place);
    return {InnerList(list)->ClientToScreen(place.GetPosition()), place.GetSize()};
}

/// The header of a column on the screen.
inline wxRect HeaderPlace(const ListView* list, int column)
{
    HWND header = ListView_GetHeader(InnerList(list)->GetHWND());
    RECT item;
    Header_GetItemRect(header, column, &item);
    POINT corner = {item.left, item.top};
    ClientToScreen(header, &corner);
    return {corner.x, corner.y, item.right - item.left, item.bottom - item.top};
}

/// The columns whose headers show an arrow.
inline std::vector<int> Arrows(const ListView* list)
{
    std::vector<int> columns;
    for (int column = 0; column < list->ColumnCount(); ++column)
    {
        LVCOLUMNW item = {};
        item.mask = LVCF_FMT;
        SendMessageW(InnerList(list)->GetHWND(), LVM_GETCOLUMNW, static_cast<WPARAM>(column),
                     reinterpret_cast<LPARAM>(&item));
        if ((item.fmt & (HDF_SORTUP | HDF_SORTDOWN)) != 0)
            columns.push_back(column);
    }
    return columns;
}

#else

inline wxDataViewCtrl* InnerList(const ListView* list)
{
    return dynamic_cast<wxDataViewCtrl*>(list->GetChildren().front());
}

/// A cell on the screen.
inline wxRect CellPlace(const ListView* list, int row, int column)
{
    const auto* model = dynamic_cast<const wxDataViewVirtualListModel*>(InnerList(list)->GetModel());
    const wxRect place =
        InnerList(list)->GetItemRect(model->GetItem(static_cast<unsigned>(row)),
                                     InnerList(list)->GetColumn(static_cast<unsigned>(column)));
    return {InnerList(list)->ClientToScreen(place.GetPosition()), place.GetSize()};
}

/// The header of a column on the screen.
inline wxRect HeaderPlace(const ListView* list, int column)
{
    int left = 0;
    for (int i = 0; i < column; ++i)
        left += list->ColumnWidth(i);
    int height = 0;
    NativeFunction<void (*)(GtkWidget*, int, int, int*, int*)>(
        "gtk_tree_view_convert_bin_window_to_widget_coords")(InnerList(list)->GtkGetTreeView(), 0, 0, nullptr,
                                                             &height);
    return {InnerList(list)->ClientToScreen(wxPoint(left, 0)), wxSize(list->ColumnWidth(column), height)};
}

/// The columns whose headers show an arrow.
inline std::vector<int> Arrows(const ListView* list)
{
    std::vector<int> columns;
    for (int column = 0; column < list->ColumnCount(); ++column)
        if (InnerList(list)->GetColumn(static_cast<unsigned>(column))->IsSortKey())
            columns.push_back(column);
    return columns;
}

#endif

inline wxPoint MiddleOf(const wxRect& place)
{
    return place.GetPosition() + place.GetSize() / 2;
}

/// Clicks on a row with the mouse.
inline void ClickRow(const ListView* list, int row)
{
    ClickAt(MiddleOf(CellPlace(list, row, 0)));
}

/// Clicks with the mouse on the header of a column.
inline void ClickHeader(const ListView* list, int column)
{
    ClickAt(MiddleOf(HeaderPlace(list, column)));
}

struct ExpectedColumn
{
    const char* Caption;
    int Twips;
};

/// The columns of a list: their captions and widths. A column is wider than given only if its caption would
/// not fit.
inline void ExpectColumns(const ListView* list, const std::vector<ExpectedColumn>& expected)
{
    ASSERT_EQ(list->ColumnCount(), static_cast<int>(expected.size()));
    for (int i = 0; i < list->ColumnCount(); ++i)
    {
        const ExpectedColumn& column = expected[static_cast<std::size_t>(i)];
        EXPECT_EQ(list->ColumnCaption(i), column.Caption);
        const int given = list->FromDIP(column.Twips / 15);
#ifdef _WIN32
        constexpr int padding = 18; // of the header around a caption
        const int needed = InnerList(list)->GetTextExtent(column.Caption).x + list->FromDIP(padding);
        EXPECT_EQ(list->ColumnWidth(i), std::max(given, needed)) << column.Caption;
#else
        // The padding around the bold captions depends on the theme.
        const wxFont bold = list->GetFont().Bold();
        wxSize caption;
        list->GetTextExtent(column.Caption, &caption.x, &caption.y, nullptr, nullptr, &bold);
        EXPECT_GE(list->ColumnWidth(i), given) << column.Caption;
        EXPECT_LE(list->ColumnWidth(i), std::max(given, caption.x + list->FromDIP(30))) << column.Caption;
#endif
    }
}

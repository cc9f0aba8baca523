// The sizes of the list on GTK.

#include "ui/controls/ListSizes.h"

#include "ui/controls/ListView.h"
#include "ui/controls/NativeFunction_gtk.h"

#include <wx/dataview.h>
#include <wx/settings.h>

#include <algorithm>

namespace
{

wxDataViewCtrl& ControlOf(const ListView& list)
{
    return *dynamic_cast<wxDataViewCtrl*>(list.GetChildren().front());
}

int StyleProperty(GtkWidget* widget, const char* name)
{
    int value = 0;
    NativeFunction<void (*)(GtkWidget*, const char*, ...)>("gtk_widget_style_get")(widget, name, &value,
                                                                                   nullptr);
    return value;
}

int HeaderHeight(const wxDataViewColumn& column)
{
    int least = 0;
    int natural = 0;
    GtkWidget* header =
        NativeFunction<GtkWidget* (*)(GtkWidget*)>("gtk_tree_view_column_get_button")(column.GetGtkHandle());
    NativeFunction<void (*)(GtkWidget*, int*, int*)>("gtk_widget_get_preferred_height")(header, &least,
                                                                                        &natural);
    return natural;
}

int CellHeight(const wxDataViewColumn& column)
{
    int height = 0;
    NativeFunction<void (*)(GtkWidget*, void*, int*, int*, int*, int*)>("gtk_tree_view_column_cell_get_size")(
        column.GetGtkHandle(), nullptr, nullptr, nullptr, nullptr, &height);
    return height;
}

} // namespace

int WidthForColumns(const ListView& list)
{
    // Before the list is on the screen, a column has only the width that it was given.
    wxDataViewCtrl& control = ControlOf(list);
    int width = wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, &control);
    for (unsigned i = 0; i < control.GetColumnCount(); ++i)
        width += NativeFunction<int (*)(GtkWidget*)>("gtk_tree_view_column_get_fixed_width")(
            control.GetColumn(i)->GetGtkHandle());
    return width;
}

int HeightForRows(const ListView& list, int rows)
{
    // GTK measures new rows only later, so compute their height.
    wxDataViewCtrl& control = ControlOf(list);
    int header = 0;
    int row = control.GetCharHeight();
    if (control.GetColumnCount() > 0) // all columns have the same height
    {
        header = HeaderHeight(*control.GetColumn(0));
        row = std::max(row, CellHeight(*control.GetColumn(0)));
    }
    GtkWidget* tree = control.GtkGetTreeView();
    row += StyleProperty(tree, "vertical-separator") + StyleProperty(tree, "grid-line-width");
    return header + rows * row;
}

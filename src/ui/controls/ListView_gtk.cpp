// The list on GTK: a wxDataViewCtrl over a virtual model.

#include "ui/controls/ListView.h"
#include "ui/controls/NativeFunction_gtk.h"
#include "ui/controls/NativeList.h"
#include "ui/controls/TreeCursor_gtk.h"

#include <wx/dataview.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace
{

// The least that a header of the theme can be drawn in.
constexpr int FillerWidth = 16;

class Model : public wxDataViewVirtualListModel
{
public:
    explicit Model(const ListView& view) : View(view) {}

    unsigned GetColumnCount() const override { return static_cast<unsigned>(View.ColumnCount()); }
    wxString GetColumnType(unsigned) const override { return "string"; }

    void GetValueByRow(wxVariant& value, unsigned row, unsigned column) const override
    {
        value = column < GetColumnCount() ? View.CellText(static_cast<int>(row), static_cast<int>(column))
                                          : wxString();
    }

    bool GetAttrByRow(unsigned row, unsigned column, wxDataViewItemAttr& attr) const override
    {
        if (column >= GetColumnCount())
            return false;
        const CellStyle style = View.Style(static_cast<int>(row), static_cast<int>(column));
        // Black is left to the theme, whose text may be light on dark.
        if (style.Colour != ListColours::Black)
            attr.SetColour(wxColour(style.Colour));
        attr.SetBold(style.Bold);
        return style != CellStyle();
    }

    bool SetValueByRow(const wxVariant&, unsigned, unsigned) override { return false; }

private:
    const ListView& View;
};

class GtkList : public NativeList
{
public:
    GtkList(ListView& view, Listener listener)
        : ToView(std::move(listener)),
          Rows(new Model(view)),
          Control(new wxDataViewCtrl(&view, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                     wxDV_SINGLE | wxDV_ROW_LINES | wxDV_HORIZ_RULES | wxDV_VERT_RULES))
    {
        Control->AssociateModel(Rows.get());
        // GTK's own search box would open at a character that no key event announces.
        if (const auto enableSearch =
                NativeFunction<void (*)(GtkWidget*, int)>("gtk_tree_view_set_enable_search"))
            enableSearch(Control->GtkGetTreeView(), 0);
        Control->Bind(wxEVT_DATAVIEW_COLUMN_HEADER_CLICK,
                      [this](wxDataViewEvent& event)
                      {
                          if (event.GetColumn() < static_cast<int>(Rows->GetColumnCount()))
                              ToView.ColumnClicked(event.GetColumn());
                      });
        Control->Bind(wxEVT_DATAVIEW_ITEM_ACTIVATED,
                      [this](wxDataViewEvent& event) { ToView.Activated(RowOf(event.GetItem())); });
        Control->Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) { event.Skip(!ToView.KeyPressed(event)); });
    }

    wxWindow* Window() override { return Control; }

    void AddColumn(const wxString& caption, int pixels) override
    {
        Control->AppendTextColumn(caption, Control->GetColumnCount(), wxDATAVIEW_CELL_INERT, pixels,
                                  wxALIGN_LEFT, wxDATAVIEW_COL_RESIZABLE);
    }

    void ColumnsComplete() override
    {
        // GTK gives the last column all the width that is left: this one takes it, so that the others keep
        // theirs.
        Control->AppendTextColumn(wxString(), Control->GetColumnCount(), wxDATAVIEW_CELL_INERT, FillerWidth);
    }

    int CaptionWidth(const wxString& caption) const override
    {
        constexpr int padding = 18; // what the themes leave on both sides of the bold caption
        wxSize extent;
        Control->GetTextExtent(caption, &extent.x, &extent.y, nullptr, nullptr, &HeaderFont);
        return extent.x + padding;
    }

    int ColumnWidth(int column) const override
    {
        return Control->GetColumn(static_cast<unsigned>(column))->GetWidth();
    }

    void ShowNewRows(int count) override
    {
        Rows->Reset(static_cast<unsigned>(count));
        if (count == 0)
            return;
        // Without a current row the focus would select the first one.
        SetTreeCursor(Control->GtkGetTreeView(), 0);
        Control->UnselectAll();
    }

    // The model has no memory of cells: repainting shows what stands where now. A reset would scroll to the
    // top.
    void ShowReorderedRows() override { Control->Refresh(); }

    void ShowSortArrow(int column, bool descending) override
    {
        if (wxDataViewColumn* former = Control->GetSortingColumn())
            former->UnsetAsSortKey();
        Control->GetColumn(static_cast<unsigned>(column))->SetSortOrder(!descending);
    }

    int SelectedRow() const override
    {
        const wxDataViewItem item = Control->GetSelection();
        return item.IsOk() ? RowOf(item) : -1;
    }

    void SelectRow(int row) override
    {
        if (row < 0)
            Control->UnselectAll();
        else // scrolls by itself; the toolkit would scroll later, to a row that may be gone by then
            SetTreeCursor(Control->GtkGetTreeView(), row);
    }

    Place PlaceOf(int row) const override
    {
        if (Scroll && Scroll->Row == row)
            return Scroll->At;
        const TreePlace place = TreePlaceOf(Control->GtkGetTreeView(), row);
        if (place.Row.height <= 0)
            return {};
        const double height = place.Row.height;
        return {place.Row.y / height, place.ViewHeight / height};
    }

    void ScrollTo(int row, const Place& place) override
    {
        // GTK scrolls when it has measured the new rows, which it does before the toolkit is idle.
        Scroll = {row, place};
        Control->CallAfter([this] { Scroll.reset(); });

        const double last = place.Page - 1; // the last place that shows a row whole
        if (place.Row >= 0 && place.Row <= last)
        {
            ScrollTree(Control->GtkGetTreeView(), row, last > 0 ? place.Row / last : 0);
            return;
        }
        // A row that is out of sight, or cut, cannot be aligned: the first row on the screen can.
        const int first = row - static_cast<int>(std::lround(place.Row));
        ScrollTree(Control->GtkGetTreeView(), std::clamp(first, 0, static_cast<int>(Rows->GetCount()) - 1),
                   0);
    }

    void ClickColumn(int column) override
    {
        wxDataViewEvent click(wxEVT_DATAVIEW_COLUMN_HEADER_CLICK, Control,
                              Control->GetColumn(static_cast<unsigned>(column)));
        Control->ProcessWindowEvent(click);
    }

    void ActivateRow(int row) override
    {
        SelectRow(row);
        wxDataViewEvent activation(wxEVT_DATAVIEW_ITEM_ACTIVATED, Control,
                                   Rows->GetItem(static_cast<unsigned>(row)));
        Control->ProcessWindowEvent(activation);
    }

private:
    struct RowAtPlace
    {
        int Row;
        Place At;
    };

    int RowOf(const wxDataViewItem& item) const { return static_cast<int>(Rows->GetRow(item)); }

    Listener ToView;
    wxObjectDataPtr<Model> Rows;
    wxDataViewCtrl* Control;
    std::optional<RowAtPlace> Scroll; // that GTK has yet to do
    wxFont HeaderFont = Control->GetFont().Bold();
};

} // namespace

std::unique_ptr<NativeList> CreateNativeList(ListView& view, NativeList::Listener listener)
{
    return std::make_unique<GtkList>(view, std::move(listener));
}

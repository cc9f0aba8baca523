// The list on GTK: a wxDataViewCtrl over a virtual model.

#include "ui/controls/ListView.h"
#include "ui/controls/NativeFunction_gtk.h"
#include "ui/controls/NativeList.h"
#include "ui/controls/ReadableColour.h"
#include "ui/controls/TreeCursor_gtk.h"

#include <wx/dataview.h>
#include <wx/graphics.h>
#include <wx/settings.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>

namespace
{

// The smallest column width that themes can draw.
constexpr int FillerWidth = 16;

class Model : public wxDataViewVirtualListModel
{
public:
    explicit Model(const ListView& view) : m_view(view) {}

    unsigned GetColumnCount() const override { return static_cast<unsigned>(m_view.ColumnCount()); }
    wxString GetColumnType(unsigned) const override { return "string"; }

    void GetValueByRow(wxVariant& value, unsigned row, unsigned column) const override
    {
        value = column < GetColumnCount() ? m_view.CellText(static_cast<int>(row), static_cast<int>(column))
                                          : wxString();
    }

    bool GetAttrByRow(unsigned row, unsigned column, wxDataViewItemAttr& attr) const override
    {
        if (column >= GetColumnCount())
            return false;
        const CellStyle style = m_view.Style(static_cast<int>(row), static_cast<int>(column));
        // Black is the theme's text colour, which may be light on dark.
        if (style.Colour != TextColours::Black)
            attr.SetColour(ReadableColour(wxColour(style.Colour), wxSYS_COLOUR_LISTBOX));
        attr.SetBold(style.Bold);
        return style != CellStyle();
    }

    bool SetValueByRow(const wxVariant&, unsigned, unsigned) override { return false; }

private:
    const ListView& m_view;
};

/// GTK calls this after it has painted the tree; the result 0 lets other handlers run.
int PaintEmptyText(GtkWidget* tree, void* canvas, const ListView* view)
{
    if (view->RowCount() > 0)
        return 0;
    const std::unique_ptr<wxGraphicsContext> graphics(wxGraphicsContext::CreateFromNative(canvas));
    graphics->SetFont(view->GetFont(), wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT));
    double width = 0;
    double height = 0;
    graphics->GetTextExtent(view->EmptyText(), &width, &height);
    const double left = std::max(0.0, (view->GetClientSize().x - width) / 2);
    graphics->DrawText(view->EmptyText(), std::floor(left), TreeHeaderHeight(tree) + height);
    return 0;
}

class GtkList : public NativeList
{
public:
    GtkList(ListView& view, Listener listener)
        : m_toView(std::move(listener)),
          m_rows(new Model(view)),
          m_control(new wxDataViewCtrl(&view, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                                       wxDV_SINGLE | wxDV_ROW_LINES | wxDV_HORIZ_RULES | wxDV_VERT_RULES))
    {
        m_control->AssociateModel(m_rows.get());
        // Without this, GTK opens its search box for some characters that no key event reports.
        if (const auto enableSearch =
                NativeFunction<void (*)(GtkWidget*, int)>("gtk_tree_view_set_enable_search"))
            enableSearch(m_control->GtkGetTreeView(), 0);
        if (const auto connect =
                NativeFunction<unsigned long (*)(void*, const char*, void (*)(), void*, void*, int)>(
                    "g_signal_connect_data"))
        {
            constexpr int after = 1;
            connect(m_control->GtkGetTreeView(), "draw", reinterpret_cast<void (*)()>(&PaintEmptyText), &view,
                    nullptr, after);
        }
        m_control->Bind(wxEVT_DATAVIEW_COLUMN_HEADER_CLICK,
                        [this](wxDataViewEvent& event)
                        {
                            if (event.GetColumn() < static_cast<int>(m_rows->GetColumnCount()))
                                m_toView.ColumnClicked(event.GetColumn());
                        });
        m_control->Bind(wxEVT_DATAVIEW_ITEM_ACTIVATED,
                        [this](wxDataViewEvent& event) { m_toView.Activated(RowOf(event.GetItem())); });
        m_control->Bind(wxEVT_DATAVIEW_ITEM_CONTEXT_MENU,
                        [this](wxDataViewEvent&) { m_toView.MenuWanted(wxGetMousePosition()); });
        m_control->Bind(wxEVT_CONTEXT_MENU, // by the key
                        [this](wxContextMenuEvent& event) { m_toView.MenuWanted(event.GetPosition()); });
        m_control->Bind(wxEVT_KEY_DOWN,
                        [this](wxKeyEvent& event) { event.Skip(!m_toView.KeyPressed(event)); });
    }

    wxWindow* Window() override { return m_control; }

    void AddColumn(const wxString& caption, int pixels) override
    {
        wxDataViewColumn* column =
            m_control->AppendTextColumn(caption, m_control->GetColumnCount(), wxDATAVIEW_CELL_INERT, pixels,
                                        wxALIGN_LEFT, wxDATAVIEW_COL_RESIZABLE);
        column->GetRenderer()->EnableEllipsize(wxELLIPSIZE_END);
    }

    void ColumnsComplete() override
    {
        // GTK gives the last column all the remaining width. This extra column takes it, so that the others
        // keep theirs.
        m_control->AppendTextColumn(wxString(), m_control->GetColumnCount(), wxDATAVIEW_CELL_INERT,
                                    FillerWidth);
    }

    int CaptionWidth(const wxString& caption) const override
    {
        constexpr int padding = 18; // the themes' padding on both sides of the bold caption
        wxSize extent;
        m_control->GetTextExtent(caption, &extent.x, &extent.y, nullptr, nullptr, &m_headerFont);
        return extent.x + padding;
    }

    int ColumnWidth(int column) const override
    {
        return m_control->GetColumn(static_cast<unsigned>(column))->GetWidth();
    }

    void ShowNewRows(int count) override
    {
        m_rows->Reset(static_cast<unsigned>(count));
        if (count == 0)
            return;
        // Without a current row, the focus would select the first one.
        SetTreeCursor(m_control->GtkGetTreeView(), 0);
        m_control->UnselectAll();
    }

    // The control does not cache cells, so repainting shows the new order. A reset would scroll to the top.
    void ShowReorderedRows() override { m_control->Refresh(); }

    void ShowSortArrow(int column, bool descending) override
    {
        if (wxDataViewColumn* former = m_control->GetSortingColumn())
            former->UnsetAsSortKey();
        m_control->GetColumn(static_cast<unsigned>(column))->SetSortOrder(!descending);
    }

    int SelectedRow() const override
    {
        const wxDataViewItem item = m_control->GetSelection();
        return item.IsOk() ? RowOf(item) : -1;
    }

    void SelectRow(int row) override
    {
        if (row < 0)
            m_control->UnselectAll();
        else // scrolls at once; the toolkit scrolls later, when the row may be gone
            SetTreeCursor(m_control->GtkGetTreeView(), row);
    }

    Place PlaceOf(int row) const override
    {
        if (m_scroll && m_scroll->Row == row)
            return m_scroll->At;
        const TreePlace place = TreePlaceOf(m_control->GtkGetTreeView(), row);
        if (place.Row.height <= 0)
            return {};
        const double height = place.Row.height;
        return {place.Row.y / height, place.ViewHeight / height};
    }

    void ScrollTo(int row, const Place& place) override
    {
        // GTK scrolls again after it has measured the new rows, before the toolkit is idle.
        m_scroll = {row, place};
        m_control->CallAfter([this] { m_scroll.reset(); });

        const double last = place.Page - 1; // the last place for a whole row
        if (place.Row >= 0 && place.Row <= last)
        {
            ScrollTree(m_control->GtkGetTreeView(), row, last > 0 ? place.Row / last : 0);
            return;
        }
        // A row that is cut or not visible cannot be aligned; align the first visible row instead.
        const int first = row - static_cast<int>(std::lround(place.Row));
        ScrollTree(m_control->GtkGetTreeView(),
                   std::clamp(first, 0, static_cast<int>(m_rows->GetCount()) - 1), 0);
    }

    std::optional<Cell> CellAt(const wxPoint& point) const override
    {
        wxDataViewItem item;
        wxDataViewColumn* column = nullptr;
        m_control->HitTest(point, item, column);
        if (!item.IsOk() || column == nullptr || column->GetModelColumn() >= m_rows->GetColumnCount())
            return std::nullopt;
        return Cell{RowOf(item), static_cast<int>(column->GetModelColumn())};
    }

    wxRect RowArea(int row) const override
    {
        return m_control->GetItemRect(m_rows->GetItem(static_cast<unsigned>(row)));
    }

    int TextWidth(int column) const override
    {
        constexpr int padding = 8; // of the cell and its text, on both sides
        return ColumnWidth(column) - padding;
    }

    void ClickColumn(int column) override
    {
        wxDataViewEvent click(wxEVT_DATAVIEW_COLUMN_HEADER_CLICK, m_control,
                              m_control->GetColumn(static_cast<unsigned>(column)));
        m_control->ProcessWindowEvent(click);
    }

    void ActivateRow(int row) override
    {
        SelectRow(row);
        wxDataViewEvent activation(wxEVT_DATAVIEW_ITEM_ACTIVATED, m_control,
                                   m_rows->GetItem(static_cast<unsigned>(row)));
        m_control->ProcessWindowEvent(activation);
    }

private:
    struct RowAtPlace
    {
        int Row;
        Place At;
    };

    int RowOf(const wxDataViewItem& item) const { return static_cast<int>(m_rows->GetRow(item)); }

    Listener m_toView;
    wxObjectDataPtr<Model> m_rows;
    wxDataViewCtrl* m_control;
    std::optional<RowAtPlace> m_scroll; // still to be done by GTK
    wxFont m_headerFont = m_control->GetFont().Bold();
};

} // namespace

std::unique_ptr<NativeList> CreateNativeList(ListView& view, NativeList::Listener listener)
{
    return std::make_unique<GtkList>(view, std::move(listener));
}

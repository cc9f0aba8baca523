// The list on Windows: the system's report list view in its virtual form.

#include "ui/controls/ListView.h"
#include "ui/controls/NativeList.h"
#include "ui/controls/ReadableColour.h"

#include <wx/bitmap.h>
#include <wx/dcmemory.h>
#include <wx/imaglist.h>
#include <wx/itemattr.h>
#include <wx/listctrl.h>
#include <wx/settings.h>

#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cmath>

namespace
{

class MswList : public wxListCtrl, public NativeList
{
public:
    MswList(ListView& view, Listener listener)
        : wxListCtrl(&view, wxID_ANY, wxDefaultPosition, wxDefaultSize,
                     wxLC_REPORT | wxLC_VIRTUAL | wxLC_SINGLE_SEL),
          m_view(view),
          m_toView(std::move(listener))
    {
        // The system's own tips show the first column alone.
        ListView_SetExtendedListViewStyleEx(GetHWND(), LVS_EX_LABELTIP, 0);
        Bind(wxEVT_LIST_COL_CLICK,
             [this](wxListEvent& event)
             {
                 if (event.GetColumn() >= 0)
                     m_toView.ColumnClicked(event.GetColumn());
             });
        Bind(wxEVT_LIST_ITEM_ACTIVATED, [this](wxListEvent& event) { m_toView.Activated(event.GetIndex()); });
        Bind(wxEVT_CONTEXT_MENU,
             [this](wxContextMenuEvent& event) { m_toView.MenuWanted(event.GetPosition()); });
        Bind(wxEVT_KEY_DOWN, [this](wxKeyEvent& event) { event.Skip(!m_toView.KeyPressed(event)); });
    }

    wxWindow* Window() override { return this; }

    void AddColumn(const wxString& caption, int pixels) override
    {
        AppendColumn(caption, wxLIST_FORMAT_LEFT, pixels);
    }

    int CaptionWidth(const wxString& caption) const override
    {
        constexpr int padding = 18; // at 96 dots to the inch; the widest header's own, on both sides
        return GetTextExtent(caption).x + FromDIP(padding);
    }

    int ColumnWidth(int column) const override { return GetColumnWidth(column); }

    void ShowNewRows(int count) override
    {
        SelectRow(-1);
        SetItemCount(count);
        if (count > 0)
            EnsureVisible(0);
        Refresh();
    }

    void ShowReorderedRows() override { Refresh(); }

    void ShowSortArrow(int column, bool descending) override { ShowSortIndicator(column, !descending); }

    int SelectedRow() const override
    {
        return static_cast<int>(GetNextItem(-1, wxLIST_NEXT_ALL, wxLIST_STATE_SELECTED));
    }

    void SelectRow(int row) override
    {
        constexpr long marks = wxLIST_STATE_SELECTED | wxLIST_STATE_FOCUSED;
        if (const int selected = SelectedRow(); selected >= 0)
            SetItemState(selected, 0, marks);
        if (row < 0)
            return;
        SetItemState(row, marks, marks);
        EnsureVisible(row);
    }

    Place PlaceOf(int row) const override
    {
        return {static_cast<double>(row - GetTopItem()), static_cast<double>(GetCountPerPage())};
    }

    void ScrollTo(int row, const Place& place) override
    {
        // Upwards from the end, a row that is scrolled to becomes the first on the screen.
        EnsureVisible(GetItemCount() - 1);
        EnsureVisible(std::clamp<long>(row - std::lround(place.Row), 0, GetItemCount() - 1));
    }

    std::optional<Cell> CellAt(const wxPoint& point) const override
    {
        int flags = 0;
        long column = 0;
        const long row = HitTest(point, flags, &column);
        if (row < 0 || column < 0)
            return std::nullopt;
        return Cell{static_cast<int>(row), static_cast<int>(column)};
    }

    wxRect RowArea(int row) const override
    {
        wxRect area;
        GetItemRect(row, area);
        return area;
    }

    int TextWidth(int column) const override
    {
        constexpr int padding = 12; // at 96 dots to the inch; the system's own, on both sides
        return ColumnWidth(column) - FromDIP(padding);
    }

    void ClickColumn(int column) override
    {
        wxListEvent click(wxEVT_LIST_COL_CLICK, GetId());
        click.SetEventObject(this);
        click.m_col = column;
        ProcessWindowEvent(click);
    }

    void ActivateRow(int row) override
    {
        SelectRow(row);
        wxListEvent activation(wxEVT_LIST_ITEM_ACTIVATED, GetId());
        activation.SetEventObject(this);
        activation.m_itemIndex = row;
        ProcessWindowEvent(activation);
    }

protected:
    bool MSWOnNotify(int control, WXLPARAM data, WXLPARAM* result) override
    {
        // The system asks for the row that begins with the characters typed; there is no such search here.
        if (reinterpret_cast<const NMHDR*>(data)->code != LVN_ODFINDITEM)
            return wxListCtrl::MSWOnNotify(control, data, result);
        *result = NoRow;
        return true;
    }

    WXLRESULT MSWWindowProc(WXUINT message, WXWPARAM word, WXLPARAM data) override
    {
        if (message == WM_ERASEBKGND)
            return 1; // PaintBuffered erases
        if (message == WM_PAINT)
        {
            PaintBuffered();
            return 0;
        }
        const WXLRESULT result = wxListCtrl::MSWWindowProc(message, word, data);
        if (m_view.RowCount() == 0 && (message == WM_SIZE || message == WM_HSCROLL))
            Refresh(); // the text of the empty list stays in the middle
        return result;
    }

    wxString OnGetItemText(long row, long column) const override
    {
        return IsShown(row) ? m_view.CellText(static_cast<int>(row), static_cast<int>(column)) : wxString();
    }

    int OnGetItemImage(long) const override { return NoImage; }
    int OnGetItemColumnImage(long, long) const override { return NoImage; }
    wxItemAttr* OnGetItemAttr(long) const override { return nullptr; }

    wxItemAttr* OnGetItemColumnAttr(long row, long column) const override
    {
        m_attributes = wxItemAttr();
        if (!IsShown(row))
            return &m_attributes;
        const CellStyle style = m_view.Style(static_cast<int>(row), static_cast<int>(column));
        if (style.Colour != TextColours::Black)
            m_attributes.SetTextColour(ReadableColour(wxColour(style.Colour), wxSYS_COLOUR_LISTBOX));
        if (style.Bold)
            m_attributes.SetFont(GetFont().Bold());
        return &m_attributes;
    }

private:
    static constexpr int NoImage = -1;
    static constexpr int NoRow = -1;

    /// While the rows are replaced by fewer, the control still asks for some that are gone.
    bool IsShown(long row) const { return row < m_view.RowCount(); }

    /// Paints in memory first: painted in place, the list would be empty for a moment at every refresh.
    void PaintBuffered()
    {
        PAINTSTRUCT paint;
        const HDC screen = BeginPaint(GetHWND(), &paint);
        const RECT& part = paint.rcPaint;
        wxBitmap picture(std::max<int>(part.right, 1), std::max<int>(part.bottom, 1));
        wxMemoryDC canvas(picture);
        const auto memory = reinterpret_cast<WXWPARAM>(canvas.GetHDC());
        MSWDefWindowProc(WM_ERASEBKGND, memory, 0);
        MSWDefWindowProc(WM_PAINT, memory, 0);
        RECT header = {};
        ::GetClientRect(ListView_GetHeader(GetHWND()), &header);
        if (m_view.RowCount() == 0)
            DrawEmptyText(canvas, static_cast<int>(header.bottom));
        else
            DrawGrid(canvas);
        ExcludeClipRect(screen, header.left, header.top, header.right, header.bottom);
        BitBlt(screen, part.left, part.top, part.right - part.left, part.bottom - part.top, canvas.GetHDC(),
               part.left, part.top, SRCCOPY);
        EndPaint(GetHWND(), &paint);
    }

    void DrawGrid(wxDC& canvas) const
    {
        const int top = static_cast<int>(GetTopItem());
        wxRect row;
        if (!GetItemRect(top, row))
            return;
        const int rows = std::min(GetCountPerPage() + 1, GetItemCount() - top); // the last one may be cut
        const int bottom = row.y + rows * row.height;
        canvas.SetPen(wxPen(wxSystemSettings::GetColour(wxSYS_COLOUR_3DLIGHT)));
        for (int y = row.y; y <= bottom; y += row.height)
            canvas.DrawLine(0, y - 1, GetClientSize().x, y - 1);
        for (int column = 0, x = row.x; column < GetColumnCount(); ++column)
        {
            x += GetColumnWidth(column);
            canvas.DrawLine(x - 1, row.y, x - 1, bottom);
        }
    }

    void DrawEmptyText(wxDC& canvas, int top) const
    {
        canvas.SetFont(GetFont());
        canvas.SetTextForeground(wxSystemSettings::GetColour(wxSYS_COLOUR_GRAYTEXT));
        canvas.DrawLabel(m_view.EmptyText(),
                         wxRect(0, top + GetCharHeight(), GetClientSize().x, GetCharHeight()),
                         wxALIGN_CENTRE_HORIZONTAL);
    }

    ListView& m_view;
    Listener m_toView;
    // Of the cell asked for last: the list takes it over before it asks again.
    mutable wxItemAttr m_attributes;
};

} // namespace

std::unique_ptr<NativeList> CreateNativeList(ListView& view, NativeList::Listener listener)
{
    auto list = std::make_unique<MswList>(view, std::move(listener));
    // A container that handles the navigation keys by itself also ends the system's search for an access key,
    // so the window around it has to handle them. The toolkit sets the style whenever a child is made.
    view.SetWindowStyleFlag(view.GetWindowStyleFlag() & ~wxTAB_TRAVERSAL);
    // The way in for the Tab key, which goes with that style.
    const LONG_PTR style = GetWindowLongPtrW(view.GetHWND(), GWL_EXSTYLE);
    SetWindowLongPtrW(view.GetHWND(), GWL_EXSTYLE, style | WS_EX_CONTROLPARENT);
    return list;
}

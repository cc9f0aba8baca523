#include "ui/controls/ListView.h"

#include "ui/controls/AccessibleName.h"
#include "ui/controls/Controls.h"
#include "ui/controls/ListMenu.h"
#include "ui/controls/NativeList.h"
#include "ui/controls/Strings.h"

#include <wx/sizer.h>
#include <wx/tooltip.h>

#include <algorithm>
#include <numeric>

namespace
{

constexpr int TwipsPerPixel = 15; // at 96 dots to the inch

std::size_t Index(int i)
{
    return static_cast<std::size_t>(i);
}

/// True if a key types a character; with Ctrl or Alt it is a command.
bool IsCharacter(const wxKeyEvent& key)
{
    const wxChar character = key.GetUnicodeKey();
    return character >= WXK_SPACE && character != WXK_DELETE && !key.HasModifiers();
}

/// The model's rows in display order: the model's own order unless the list is sorted.
std::vector<std::size_t> PositionsOf(const ListModel& model, std::optional<ListOrder> order)
{
    if (order)
        return SortedPositions(model, *order);
    std::vector<std::size_t> positions(model.RowCount());
    std::iota(positions.begin(), positions.end(), std::size_t{0});
    return positions;
}

} // namespace

ListView::ListView(wxWindow* parent, const wxString& name, std::string_view accessibleName)
    : m_model(std::make_unique<KeptRows>(std::vector<ListRow>()))
{
    Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxBORDER_NONE | wxTAB_TRAVERSAL, name);
    m_native = CreateNativeList(
        *this,
        {.ColumnClicked =
             [this](int column)
         {
             if (m_columnClicked)
                 m_columnClicked(column);
         },
         .Activated =
             [this](int)
         {
             if (m_activated)
                 m_activated();
         },
         // Characters mean nothing in a list: the system must neither search for them nor activate a row.
         .KeyPressed = [this](const wxKeyEvent& key)
         { return (m_keyPressed && m_keyPressed(key)) || IsCharacter(key); },
         .MenuWanted = [this](const wxPoint& place) { ShowMenu(place); }});
    m_native->Window()->Bind(wxEVT_MOTION,
                             [this](wxMouseEvent& event)
                             {
                                 ShowTip();
                                 event.Skip();
                             });
    SetAccessibleName(*m_native->Window(), accessibleName);
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(m_native->Window(), wxSizerFlags(1).Expand());
    SetSizer(sizer);
}

ListView::~ListView() = default;

void ListView::SetColumns(std::span<const ListColumn> columns)
{
    m_columns = columns;
    for (const ListColumn& column : columns)
    {
        const wxString caption = ToWx(column.Caption);
        const int pixels = WithTextSize(*this, FromDIP(column.Twips / TwipsPerPixel));
        m_native->AddColumn(caption, std::max(pixels, m_native->CaptionWidth(caption)));
    }
    m_native->ColumnsComplete();
}

void ListView::SetEmptyText(std::string_view text)
{
    m_emptyText = ToWx(text);
    m_native->Window()->Refresh();
}

void ListView::Show(std::unique_ptr<const ListModel> model)
{
    m_model = std::move(model);
    m_positions = PositionsOf(*m_model, m_order);
    m_native->ShowNewRows(RowCount());
    m_native->Window()->UnsetToolTip();
}

void ListView::Show(std::unique_ptr<const ListModel> model, std::optional<std::size_t> selected)
{
    const int former = SelectedRow();
    const NativeList::Place place = former >= 0 ? m_native->PlaceOf(former) : NativeList::Place();
    Show(std::move(model));
    if (!selected)
        return;
    const int row = RowOf(*selected);
    SelectRow(row);
    if (former >= 0)
        m_native->ScrollTo(row, place);
}

void ListView::SortBy(ListOrder order)
{
    m_order = order;
    m_native->ShowSortArrow(static_cast<int>(order.Column), order.Descending);

    const int selected = SelectedRow();
    const std::size_t kept = selected >= 0 ? ModelRow(selected) : 0;
    m_positions = PositionsOf(*m_model, m_order);
    m_native->ShowReorderedRows();
    if (selected >= 0)
        SelectModelRow(kept);
}

int ListView::RowOf(std::size_t modelRow) const
{
    return static_cast<int>(std::ranges::find(m_positions, modelRow) - m_positions.begin());
}

void ListView::ShowMenu(wxPoint place)
{
    wxWindow* rows = m_native->Window();
    rows->SetFocus(); // some systems do not do so for a right click
    if (place == wxDefaultPosition)
    {
        const wxRect selected = SelectedRow() >= 0 ? m_native->RowArea(SelectedRow()) : wxRect();
        place = rows->ClientToScreen(selected.IsEmpty() ? wxPoint() : selected.GetBottomLeft());
    }
    ShowListMenu(*this, place, m_commands);
}

void ListView::ShowTip()
{
    wxWindow* rows = m_native->Window();
    wxString tip;
    if (const std::optional<NativeList::Cell> cell =
            m_native->CellAt(rows->ScreenToClient(wxGetMousePosition())))
    {
        const wxString text = CellText(cell->Row, cell->Column);
        const wxFont font = CellBold(cell->Row, cell->Column) ? rows->GetFont().Bold() : rows->GetFont();
        wxSize extent;
        rows->GetTextExtent(text, &extent.x, &extent.y, nullptr, nullptr, &font);
        if (extent.x > m_native->TextWidth(cell->Column))
            tip = text;
    }
    if (tip != rows->GetToolTipText())
        rows->SetToolTip(tip);
}

wxString ListView::ColumnCaption(int column) const
{
    return ToWx(m_columns[Index(column)].Caption);
}

int ListView::ColumnWidth(int column) const
{
    return m_native->ColumnWidth(column);
}

std::string ListView::Text(int row, int column) const
{
    return m_model->Text(ModelRow(row), Index(column));
}

CellStyle ListView::Style(int row, int column) const
{
    return m_model->Style(ModelRow(row), Index(column));
}

wxString ListView::CellText(int row, int column) const
{
    return ToWx(Text(row, column));
}

wxColour ListView::CellColour(int row, int column) const
{
    return wxColour(Style(row, column).Colour);
}

bool ListView::CellBold(int row, int column) const
{
    return Style(row, column).Bold;
}

int ListView::SelectedRow() const
{
    return m_native->SelectedRow();
}

void ListView::SelectRow(int row)
{
    m_native->SelectRow(row);
}

void ListView::ClickColumn(int column)
{
    m_native->ClickColumn(column);
}

void ListView::ActivateRow(int row)
{
    m_native->ActivateRow(row);
}

wxSize ListView::DoGetBestClientSize() const
{
    // The native list's best size is the sum of its columns, too wide for a window's best size. A few rows
    // and columns are enough; the layout gives it more.
    constexpr int rows = 6;
    return {FromDIP(200), (GetCharHeight() + FromDIP(8)) * (rows + 1)};
}

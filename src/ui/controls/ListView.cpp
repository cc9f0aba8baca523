#include "ui/controls/ListView.h"

#include "ui/controls/Controls.h"
#include "ui/controls/NativeList.h"
#include "ui/controls/SpokenName.h"
#include "ui/controls/Strings.h"

#include <wx/sizer.h>

#include <algorithm>

namespace
{

constexpr int TwipsPerPixel = 15; // at 96 dots to the inch

std::size_t Index(int i)
{
    return static_cast<std::size_t>(i);
}

/// Whether a key types a character. With Ctrl or Alt it is a command.
bool IsCharacter(const wxKeyEvent& key)
{
    const wxChar character = key.GetUnicodeKey();
    return character >= WXK_SPACE && character != WXK_DELETE && !key.HasModifiers();
}

} // namespace

ListView::ListView(wxWindow* parent, const wxString& name, std::string_view spokenName)
{
    Create(parent, wxID_ANY, wxDefaultPosition, wxDefaultSize, wxBORDER_NONE | wxTAB_TRAVERSAL, name);
    Native = CreateNativeList(
        *this,
        {.ColumnClicked =
             [this](int column)
         {
             if (ColumnClicked)
                 ColumnClicked(column);
         },
         .Activated =
             [this](int)
         {
             if (Activated)
                 Activated();
         },
         // Characters have no meaning in a list: the system must not search for them, nor activate a row.
         .KeyPressed = [this](const wxKeyEvent& key)
         { return (KeyPressed && KeyPressed(key)) || IsCharacter(key); }});
    SetSpokenName(*Native->Window(), spokenName);
    auto* sizer = new wxBoxSizer(wxVERTICAL);
    sizer->Add(Native->Window(), wxSizerFlags(1).Expand());
    SetSizer(sizer);
}

ListView::~ListView() = default;

void ListView::SetColumns(std::span<const ListColumn> columns)
{
    Columns = columns;
    for (const ListColumn& column : columns)
    {
        const wxString caption = ToWx(column.Caption);
        const int pixels = WithTextSize(*this, FromDIP(column.Twips / TwipsPerPixel));
        Native->AddColumn(caption, std::max(pixels, Native->CaptionWidth(caption)));
    }
    Native->ColumnsComplete();
}

void ListView::SetRows(std::vector<ListRow> rows)
{
    Rows = std::move(rows);
    if (Order)
        Reorder(SortedPositions(Rows, *Order));
    Native->ShowNewRows(RowCount());
}

void ListView::SortBy(ListOrder order)
{
    Order = order;
    Native->ShowSortArrow(static_cast<int>(order.Column), order.Descending);

    const std::vector<std::size_t> positions = SortedPositions(Rows, order);
    const int selected = SelectedRow();
    Reorder(positions);
    Native->ShowReorderedRows();
    if (selected >= 0)
        SelectRow(static_cast<int>(std::ranges::find(positions, Index(selected)) - positions.begin()));
}

void ListView::Reorder(const std::vector<std::size_t>& positions)
{
    std::vector<ListRow> ordered;
    ordered.reserve(Rows.size());
    for (const std::size_t position : positions)
        ordered.push_back(std::move(Rows[position]));
    Rows = std::move(ordered);
}

wxString ListView::ColumnCaption(int column) const
{
    return ToWx(Columns[Index(column)].Caption);
}

int ListView::ColumnWidth(int column) const
{
    return Native->ColumnWidth(column);
}

ListCell ListView::Cell(int row, int column) const
{
    return Rows.at(Index(row)).at(Index(column));
}

wxString ListView::CellText(int row, int column) const
{
    return ToWx(Cell(row, column).Text);
}

wxColour ListView::CellColour(int row, int column) const
{
    return wxColour(Cell(row, column).Colour);
}

bool ListView::CellBold(int row, int column) const
{
    return Cell(row, column).Bold;
}

int ListView::SelectedRow() const
{
    return Native->SelectedRow();
}

void ListView::SelectRow(int row)
{
    Native->SelectRow(row);
}

void ListView::ClickColumn(int column)
{
    Native->ClickColumn(column);
}

void ListView::ActivateRow(int row)
{
    Native->ActivateRow(row);
}

wxSize ListView::DoGetBestClientSize() const
{
    // A list's own best size follows the sum of its columns, which is too wide for a window to grow to; a few
    // rows are enough to be useful, and the window's layout gives it more.
    constexpr int rows = 6;
    return {FromDIP(200), (GetCharHeight() + FromDIP(8)) * (rows + 1)};
}

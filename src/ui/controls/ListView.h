#pragma once

#include "lists/ListRow.h"

#include <wx/containr.h>
#include <wx/window.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

class NativeList;
class wxKeyEvent;

/// A report list with grid lines, full-row selection of one row, and colour and bold per cell: the system's
/// own list view behind one face. Rows are counted in display order.
class ListView : public wxNavigationEnabled<wxWindow>
{
public:
    /// `spokenName` is what a screen reader says for the list (UTF-8).
    ListView(wxWindow* parent, const wxString& name, std::string_view spokenName);
    ~ListView() override;

    /// Sets the columns; once, before any row.
    void SetColumns(std::span<const ListColumn> columns);

    /// Replaces all rows, sorted if sorting is on; no row is selected then.
    void SetRows(std::vector<ListRow> rows);

    /// Switches sorting on and sorts the rows. The selected row stays selected.
    void SortBy(ListOrder order);

    /// What to call with the column when its header is clicked.
    void OnColumnClick(std::function<void(int column)> handler) { ColumnClicked = std::move(handler); }

    /// What to call on a double click on a row.
    void OnActivate(std::function<void()> handler) { Activated = std::move(handler); }

    /// What to call with a key pressed in the list; it answers whether the key is dealt with.
    void OnKey(std::function<bool(const wxKeyEvent& key)> handler) { KeyPressed = std::move(handler); }

    // Reading the list as it is shown.

    int ColumnCount() const { return static_cast<int>(Columns.size()); }
    wxString ColumnCaption(int column) const;
    int ColumnWidth(int column) const; ///< In pixels.
    int RowCount() const { return static_cast<int>(Rows.size()); }
    wxString CellText(int row, int column) const;
    wxColour CellColour(int row, int column) const;
    bool CellBold(int row, int column) const;
    int SelectedRow() const; ///< -1 when none is selected.

    // Driving it as the mouse does.

    void SelectRow(int row); ///< Also scrolls to the row; -1 selects none.
    void ClickColumn(int column);
    void ActivateRow(int row);

    ListCell Cell(int row, int column) const;

protected:
    wxSize DoGetBestClientSize() const override;

private:
    void Reorder(const std::vector<std::size_t>& positions);

    std::span<const ListColumn> Columns;
    std::vector<ListRow> Rows;
    std::optional<ListOrder> Order;
    std::function<void(int)> ColumnClicked;
    std::function<void()> Activated;
    std::function<bool(const wxKeyEvent&)> KeyPressed;
    std::unique_ptr<NativeList> Native;
};

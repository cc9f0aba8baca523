#pragma once

#include "ui/controls/ListModel.h"

#include <wx/containr.h>
#include <wx/window.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

class NativeList;
class wxKeyEvent;

/// A command of a list's context menu.
struct ListCommand
{
    std::string_view Caption; ///< With its access key.
    bool NeedsRow;            ///< Greyed while no row is selected.
    std::function<void()> Run;
};

/// A report list with grid lines, full-row selection of one row, and colour and bold per cell: the system's
/// own list view behind one face. Rows are counted in display order.
class ListView : public wxNavigationEnabled<wxWindow>
{
public:
    /// `accessibleName` is what a screen reader says for the list (UTF-8).
    ListView(wxWindow* parent, const wxString& name, std::string_view accessibleName);
    ~ListView() override;

    /// Sets the columns; once, before any row.
    void SetColumns(std::span<const ListColumn> columns);

    /// What the list says in grey while it has no rows (UTF-8).
    void SetEmptyText(std::string_view text);

    /// Shows the model's rows instead of what was shown, sorted if sorting is on; no row is selected then.
    void Show(std::unique_ptr<const ListModel> model);

    /// The same with a row selected, by its number in the model: it takes the place on the screen that the
    /// selected row had, or is scrolled to if none was selected.
    void Show(std::unique_ptr<const ListModel> model, std::optional<std::size_t> selected);

    /// The same with rows that stay as they are.
    void ShowRows(std::vector<ListRow> rows) { Show(std::make_unique<KeptRows>(std::move(rows))); }

    /// Switches sorting on and sorts the rows. The selected row stays selected.
    void SortBy(ListOrder order);

    /// What to call with the column when its header is clicked.
    void OnColumnClick(std::function<void(int column)> handler) { m_columnClicked = std::move(handler); }

    /// What to call on a double click on a row.
    void OnActivate(std::function<void()> handler) { m_activated = std::move(handler); }

    /// What to call with a key pressed in the list; it answers whether the key is dealt with.
    void OnKey(std::function<bool(const wxKeyEvent& key)> handler) { m_keyPressed = std::move(handler); }

    /// The commands of the context menu. Those that copy rows, which every list has, follow them.
    void SetCommands(std::vector<ListCommand> commands) { m_commands = std::move(commands); }

    // Reading the list as it is shown.

    int ColumnCount() const { return static_cast<int>(m_columns.size()); }
    wxString ColumnCaption(int column) const;
    int ColumnWidth(int column) const; ///< In pixels.
    int RowCount() const { return static_cast<int>(m_positions.size()); }
    std::string Text(int row, int column) const; ///< UTF-8.
    CellStyle Style(int row, int column) const;
    wxString CellText(int row, int column) const;
    wxColour CellColour(int row, int column) const;
    bool CellBold(int row, int column) const;
    const wxString& EmptyText() const { return m_emptyText; }
    int SelectedRow() const; ///< -1 when none is selected.
    std::size_t ModelRow(int row) const { return m_positions.at(static_cast<std::size_t>(row)); }

    // Driving it as the mouse does.

    void SelectRow(int row); ///< Also scrolls to the row; -1 selects none.
    void SelectModelRow(std::size_t row) { SelectRow(RowOf(row)); }
    void ClickColumn(int column);
    void ActivateRow(int row);

protected:
    wxSize DoGetBestClientSize() const override;

private:
    int RowOf(std::size_t modelRow) const;

    /// Shows the context menu at a point of the screen; without a point at the selected row.
    void ShowMenu(wxPoint place);
    /// Shows the whole text of the cell at the pointer as a tooltip if it is cut.
    void ShowTip();

    std::span<const ListColumn> m_columns;
    std::unique_ptr<const ListModel> m_model;
    std::vector<std::size_t> m_positions; ///< The model's rows in the order in which they are shown.
    std::optional<ListOrder> m_order;
    std::vector<ListCommand> m_commands;
    wxString m_emptyText;
    std::function<void(int)> m_columnClicked;
    std::function<void()> m_activated;
    std::function<bool(const wxKeyEvent&)> m_keyPressed;
    std::unique_ptr<NativeList> m_native;
};

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
    bool NeedsRow;            ///< Greyed if no row is selected.
    std::function<void()> Run;
};

/// A report list with grid lines, in which one whole row can be selected; each cell has a colour and may be
/// bold. Wraps the system's own list. It asks a ListModel for the cells on the screen, has a context menu and
/// tooltips for cut texts, and shows a text if it is empty. Rows are counted in display order.
class ListView : public wxNavigationEnabled<wxWindow>
{
public:
    /// `accessibleName` is the list's name for screen readers (UTF-8).
    ListView(wxWindow* parent, const wxString& name, std::string_view accessibleName);
    ~ListView() override;

    /// Sets the columns. Call it once, before any row is shown.
    void SetColumns(std::span<const ListColumn> columns);

    /// The grey text of the list when it has no rows (UTF-8).
    void SetEmptyText(std::string_view text);

    /// Replaces the rows by those of a model, sorted if sorting is on; no row is selected.
    void Show(std::unique_ptr<const ListModel> model);

    /// As above, and selects a row by its number in the model. That row is shown where the selected row was
    /// on the screen; if no row was selected, the list scrolls to it.
    void Show(std::unique_ptr<const ListModel> model, std::optional<std::size_t> selected);

    /// Shows rows that keep their texts.
    void ShowRows(std::vector<ListRow> rows) { Show(std::make_unique<KeptRows>(std::move(rows))); }

    /// Switches sorting on and sorts the rows. The selected row stays selected.
    void SortBy(ListOrder order);

    /// Sets the handler for a click on a header.
    void OnColumnClick(std::function<void(int column)> handler) { m_columnClicked = std::move(handler); }

    /// Sets the handler for a double click on a row.
    void OnActivate(std::function<void()> handler) { m_activated = std::move(handler); }

    /// Sets the handler for keys; it returns true if it has handled the key.
    void OnKey(std::function<bool(const wxKeyEvent& key)> handler) { m_keyPressed = std::move(handler); }

    /// Sets the commands of the context menu. The two commands that copy rows follow them in every list.
    void SetCommands(std::vector<ListCommand> commands) { m_commands = std::move(commands); }

    // Reading the list as shown.

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

    // Driving the list as the mouse does.

    void SelectRow(int row); ///< Also scrolls to the row; -1 selects none.
    void SelectModelRow(std::size_t row) { SelectRow(RowOf(row)); }
    void ClickColumn(int column);
    void ActivateRow(int row);

protected:
    wxSize DoGetBestClientSize() const override;

private:
    int RowOf(std::size_t modelRow) const;

    /// Shows the context menu at a point of the screen, or at the selected row if there is no point.
    void ShowMenu(wxPoint place);
    /// Shows the whole text of the cell under the pointer as a tooltip, if it is cut.
    void ShowTip();

    std::span<const ListColumn> m_columns;
    std::unique_ptr<const ListModel> m_model;
    std::vector<std::size_t> m_positions; ///< The model's rows in display order.
    std::optional<ListOrder> m_order;
    std::vector<ListCommand> m_commands;
    wxString m_emptyText;
    std::function<void(int)> m_columnClicked;
    std::function<void()> m_activated;
    std::function<bool(const wxKeyEvent&)> m_keyPressed;
    std::unique_ptr<NativeList> m_native;
};

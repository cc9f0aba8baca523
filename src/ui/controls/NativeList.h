#pragma once

#include <functional>
#include <memory>
#include <optional>

class ListView;
class wxKeyEvent;
class wxPoint;
class wxRect;
class wxString;
class wxWindow;

/// The system's own list inside a ListView. The ListView has the rows; the native list asks it for the cells
/// that it shows.
class NativeList
{
public:
    /// The events for the ListView.
    struct Listener
    {
        std::function<void(int column)> ColumnClicked;
        std::function<void(int row)> Activated;
        std::function<bool(const wxKeyEvent& key)> KeyPressed;
        /// The pointer is a point of the screen; wxDefaultPosition for a key.
        std::function<void(const wxPoint& pointer)> MenuWanted;
    };

    virtual ~NativeList() = default;

    virtual wxWindow* Window() = 0;
    virtual void AddColumn(const wxString& caption, int pixels) = 0;

    /// Called after the last column was added.
    virtual void ColumnsComplete() {}

    virtual int ColumnWidth(int column) const = 0;

    /// The smallest width in pixels in which a column shows this caption whole.
    virtual int CaptionWidth(const wxString& caption) const = 0;

    /// Shows new rows from the top; none is selected.
    virtual void ShowNewRows(int count) = 0;

    /// Shows the same rows in another order, at the same scroll position.
    virtual void ShowReorderedRows() = 0;

    virtual void ShowSortArrow(int column, bool descending) = 0;

    virtual int SelectedRow() const = 0;
    virtual void SelectRow(int row) = 0;

    /// A row's place on the screen, in rows.
    struct Place
    {
        double Row = 0;  ///< Distance from the first visible place; negative above it.
        double Page = 0; ///< Number of visible places.
    };

    virtual Place PlaceOf(int row) const = 0;
    /// Scrolls so that a row is at a place, or as near to it as possible.
    virtual void ScrollTo(int row, const Place& place) = 0;

    struct Cell
    {
        int Row;
        int Column;
    };

    /// The cell at a point of Window(); nothing if there is none.
    virtual std::optional<Cell> CellAt(const wxPoint& point) const = 0;
    /// A row's area in Window(); empty if the row is not visible.
    virtual wxRect RowArea(int row) const = 0;
    /// The width that a column leaves for its cells' texts, in pixels.
    virtual int TextWidth(int column) const = 0;

    // These do what a click on a header and a double click on a row do.

    virtual void ClickColumn(int column) = 0;
    virtual void ActivateRow(int row) = 0;
};

/// Creates this system's list.
std::unique_ptr<NativeList> CreateNativeList(ListView& view, NativeList::Listener listener);

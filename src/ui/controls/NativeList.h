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

/// The system's own list inside a ListView, which has the rows; the list asks it for the cells it shows.
class NativeList
{
public:
    /// What the list reports to its ListView.
    struct Listener
    {
        std::function<void(int column)> ColumnClicked;
        std::function<void(int row)> Activated;
        std::function<bool(const wxKeyEvent& key)> KeyPressed;
        std::function<void(const wxPoint& pointer)> MenuWanted; ///< On the screen; no point for a key.
    };

    virtual ~NativeList() = default;

    virtual wxWindow* Window() = 0;
    virtual void AddColumn(const wxString& caption, int pixels) = 0;
    virtual void ColumnsComplete() = 0;
    virtual int ColumnWidth(int column) const = 0;

    /// The least width of a column that shows this caption whole, in pixels.
    virtual int CaptionWidth(const wxString& caption) const = 0;

    /// All rows are new: shows them from the top, none selected.
    virtual void ShowNewRows(int count) = 0;

    /// The same rows stand in another order: shows them where the user is.
    virtual void ShowReorderedRows() = 0;

    virtual void ShowSortArrow(int column, bool descending) = 0;

    virtual int SelectedRow() const = 0;
    virtual void SelectRow(int row) = 0;

    /// How far a row is below the first place on the screen, and how many places there are, in rows.
    struct Place
    {
        double Row = 0; ///< Less than 0 above the first place.
        double Page = 0;
    };

    virtual Place PlaceOf(int row) const = 0;
    /// Scrolls until a row is at a place, or as near to it as the rows allow.
    virtual void ScrollTo(int row, const Place& place) = 0;

    struct Cell
    {
        int Row;
        int Column;
    };

    /// The cell at a point of Window(), if there is one.
    virtual std::optional<Cell> CellAt(const wxPoint& point) const = 0;
    /// Where a row is in Window(); empty while it is out of sight.
    virtual wxRect RowArea(int row) const = 0;
    /// How much of a column's width its cells have for their text, in pixels.
    virtual int TextWidth(int column) const = 0;

    // What a click on a header and a double click on a row set off.

    virtual void ClickColumn(int column) = 0;
    virtual void ActivateRow(int row) = 0;
};

/// Creates the list of this system.
std::unique_ptr<NativeList> CreateNativeList(ListView& view, NativeList::Listener listener);

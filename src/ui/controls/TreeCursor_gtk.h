#pragma once

#include "ui/controls/NativeFunction_gtk.h"

#include <wx/gdicmn.h>

// Functions for the rows of a GTK tree view that the toolkit does not offer.

/// Calls `use` with a row's GTK path.
template<typename Use>
void WithTreePath(int row, const Use& use)
{
    const auto newPath = NativeFunction<void* (*)(int, ...)>("gtk_tree_path_new_from_indices");
    const auto freePath = NativeFunction<void (*)(void*)>("gtk_tree_path_free");
    if (newPath == nullptr || freePath == nullptr)
        return;
    constexpr int endOfIndices = -1;
    void* path = newPath(row, endOfIndices);
    use(path);
    freePath(path);
}

/// Makes a row of a GTK tree view the current one, which has the focus. This also selects it, unless the view
/// allows no selection.
inline void SetTreeCursor(GtkWidget* tree, int row)
{
    const auto setCursor =
        NativeFunction<void (*)(GtkWidget*, void*, void*, int)>("gtk_tree_view_set_cursor");
    if (setCursor != nullptr)
        WithTreePath(row, [&](void* path) { setCursor(tree, path, nullptr, 0); });
}

/// A row's position in the visible part of the rows, and the height of that part. A row's height is 0 until
/// GTK has measured it.
struct TreePlace
{
    wxRect Row;
    int ViewHeight = 0;
};

inline TreePlace TreePlaceOf(GtkWidget* tree, int row)
{
    using RowArea = void (*)(GtkWidget*, void*, void*, wxRect*);
    const auto rowArea = NativeFunction<RowArea>("gtk_tree_view_get_background_area");
    const auto viewArea = NativeFunction<void (*)(GtkWidget*, wxRect*)>("gtk_tree_view_get_visible_rect");
    if (rowArea == nullptr || viewArea == nullptr)
        return {};
    TreePlace place; // GDK's rectangle has the same members
    wxRect view;
    WithTreePath(row, [&](void* path) { rowArea(tree, path, nullptr, &place.Row); });
    viewArea(tree, &view);
    place.ViewHeight = view.height;
    return place;
}

/// Scrolls to a row: alignment 0 puts it at the upper edge, 1 at the lower one, as far as the rows allow.
inline void ScrollTree(GtkWidget* tree, int row, double alignment)
{
    const auto scroll =
        NativeFunction<void (*)(GtkWidget*, void*, void*, int, float, float)>("gtk_tree_view_scroll_to_cell");
    if (scroll == nullptr)
        return;
    constexpr int useAlignment = 1;
    WithTreePath(row, [&](void* path)
                 { scroll(tree, path, nullptr, useAlignment, static_cast<float>(alignment), 0); });
}

/// The height of the headers above the rows of a GTK tree view.
inline int TreeHeaderHeight(GtkWidget* tree)
{
    int height = 0;
    if (const auto toWidget = NativeFunction<void (*)(GtkWidget*, int, int, int*, int*)>(
            "gtk_tree_view_convert_bin_window_to_widget_coords"))
        toWidget(tree, 0, 0, nullptr, &height);
    return height;
}

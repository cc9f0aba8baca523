#pragma once

#include "ui/controls/NativeFunction_gtk.h"

#include <wx/defs.h>

/// Makes a row of a GTK tree view the current one, to which the keys and the focus go. That also selects it,
/// unless the view allows no selection.
inline void SetTreeCursor(GtkWidget* tree, int row)
{
    using Path = void;
    const auto newPath = NativeFunction<Path* (*)(int, ...)>("gtk_tree_path_new_from_indices");
    const auto setCursor =
        NativeFunction<void (*)(GtkWidget*, Path*, void*, int)>("gtk_tree_view_set_cursor");
    const auto freePath = NativeFunction<void (*)(Path*)>("gtk_tree_path_free");
    if (newPath == nullptr || setCursor == nullptr || freePath == nullptr)
        return;
    constexpr int endOfIndices = -1;
    Path* path = newPath(row, endOfIndices);
    setCursor(tree, path, nullptr, 0);
    freePath(path);
}

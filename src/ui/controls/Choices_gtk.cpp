// Choices on GTK.

#include "ui/controls/Choices.h"

#include "ui/controls/NativeFunction_gtk.h"
#include "ui/controls/TreeCursor_gtk.h"

#include <wx/choice.h>
#include <wx/listbox.h>

namespace
{

// GTK's types, incomplete here: this program does not use GTK's headers.
using Object = void;
using Callback = void (*)();

/// A drop-down list, and the entry that was selected when its menu last opened or closed.
struct Menu
{
    wxChoice* Box;
    int Selection;
};

// The menu has opened or closed. A chosen entry is selected only after the menu has closed.
void OnPopup(Object*, Object*, Menu* menu)
{
    menu->Selection = menu->Box->GetSelection();
}

// An entry is chosen from the menu. If it is another one, the toolkit has already raised the event.
void OnChosen(Object*, const char*, Menu* menu)
{
    if (menu->Box->GetSelection() == menu->Selection)
        menu->Box->SendSelectionChangedEvent(wxEVT_CHOICE);
}

} // namespace

void ReportEveryChoice(wxChoice& box)
{
    const auto accessibleOf = NativeFunction<Object* (*)(GtkWidget*)>("gtk_combo_box_get_popup_accessible");
    const auto widgetOf = NativeFunction<Object* (*)(Object*)>("gtk_accessible_get_widget");
    const auto connect = NativeFunction<unsigned long (*)(
        Object*, const char*, Callback, Menu*, void (*)(Menu*, Object*), int)>("g_signal_connect_data");
    if (accessibleOf == nullptr || widgetOf == nullptr || connect == nullptr)
        return;
    GtkWidget* combo = box.GetConnectWidget();
    Object* accessible = accessibleOf(combo);
    if (accessible == nullptr)
        return;
    // Freed together with its drop-down list, by the first of the two connections.
    auto* menu = new Menu{&box, wxNOT_FOUND};
    connect(
        combo, "notify::popup-shown", reinterpret_cast<Callback>(OnPopup), menu,
        [](Menu* used, Object*) { delete used; }, 0);
    connect(widgetOf(accessible), "menu-activate", reinterpret_cast<Callback>(OnChosen), menu, nullptr, 0);
}

void LetFocusSelectNothing(wxListBox& list)
{
    const auto selectionOf = NativeFunction<Object* (*)(GtkWidget*)>("gtk_tree_view_get_selection");
    const auto modeOf = NativeFunction<int (*)(Object*)>("gtk_tree_selection_get_mode");
    const auto setMode = NativeFunction<void (*)(Object*, int)>("gtk_tree_selection_set_mode");
    if (selectionOf == nullptr || modeOf == nullptr || setMode == nullptr)
        return;
    // The focus selects the first entry unless an entry is current. Make one current without selecting it.
    constexpr int noSelection = 0;
    Object* selection = selectionOf(list.GetConnectWidget());
    const int mode = modeOf(selection);
    setMode(selection, noSelection);
    SetTreeCursor(list.GetConnectWidget(), 0);
    setMode(selection, mode);
}

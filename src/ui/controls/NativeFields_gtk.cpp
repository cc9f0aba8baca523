// Fields and buttons on GTK.

#include "ui/controls/NativeFields.h"

#include "ui/controls/NativeFunction_gtk.h"

#include <wx/button.h>
#include <wx/combobox.h>
#include <wx/event.h>
#include <wx/textctrl.h>

namespace
{

using ForEachChild = void (*)(void* container, void (*visit)(void* child, void* data), void* data);

/// The widget with the text of a one-line box.
void* TextWidget(wxTextEntry& box)
{
    if (const auto* combo = dynamic_cast<wxComboBox*>(&box))
        return NativeFunction<void* (*)(void*)>("gtk_bin_get_child")(combo->GetHandle());
    return dynamic_cast<wxWindow&>(box).GetHandle();
}

/// Takes a combo box's arrow button, which is somewhere among its child widgets, out of the tab order.
void RefuseFocusOfArrow(void* widget, void*)
{
    if (IsNative(widget, "gtk_toggle_button_get_type"))
        NativeFunction<void (*)(void*, int)>("gtk_widget_set_can_focus")(widget, 0);
    else if (IsNative(widget, "gtk_container_get_type"))
        NativeFunction<ForEachChild>("gtk_container_forall")(widget, RefuseFocusOfArrow, nullptr);
}

int GrabFocus(void* widget, int, void*)
{
    NativeFunction<void (*)(void*)>("gtk_widget_grab_focus")(widget);
    return 0; // then the key presses the button
}

} // namespace

void PasteFirstLineOnly(wxTextEntry& box)
{
    NativeFunction<void (*)(void*, const char*, ...)>("g_object_set")(TextWidget(box), "truncate-multiline",
                                                                      1, nullptr);
}

void KeepTabOffArrow(wxComboBox& box)
{
    RefuseFocusOfArrow(box.GetHandle(), nullptr);
}

bool LeavesField(const wxFocusEvent& lostFocus)
{
    // When the user switches to another window, this window still remembers its focused widget.
    const auto* field = dynamic_cast<wxWindow*>(lostFocus.GetEventObject());
    return NativeFunction<int (*)(void*)>("gtk_widget_is_focus")(field->GetHandle()) == 0;
}

bool IsKeyOfOpenList()
{
    return false; // an open list is a separate window and gets its own keys
}

void MakeDefault(wxButton& button)
{
    button.SetDefault();
    // Themes draw a default button like any other one; this class gives it their accent colour.
    void* style = NativeFunction<void* (*)(void*)>("gtk_widget_get_style_context")(button.GetHandle());
    NativeFunction<void (*)(void*, const char*)>("gtk_style_context_add_class")(style, "suggested-action");
}

void FocusByAccessKey(wxButton& button)
{
    using Connect = unsigned long (*)(void* object, const char* signal, int (*)(void*, int, void*),
                                      void* data, void (*destroy)(void*, void*), int flags);
    NativeFunction<Connect>("g_signal_connect_data")(button.GetHandle(), "mnemonic-activate", GrabFocus,
                                                     nullptr, nullptr, 0);
}

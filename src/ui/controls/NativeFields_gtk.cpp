// Fields on GTK.

#include "ui/controls/NativeFields.h"

#include "ui/controls/NativeFunction_gtk.h"

#include <wx/combobox.h>
#include <wx/textctrl.h>

#include <cstddef>

namespace
{

using ForEachChild = void (*)(void* container, void (*visit)(void* child, void* data), void* data);

/// The widget that holds the text of a one-line box.
void* TextWidget(wxTextEntry& box)
{
    if (const auto* combo = dynamic_cast<wxComboBox*>(&box))
        return NativeFunction<void* (*)(void*)>("gtk_bin_get_child")(combo->GetHandle());
    return dynamic_cast<wxWindow&>(box).GetHandle();
}

bool IsA(void* widget, const char* typeOf)
{
    const std::size_t type = NativeFunction<std::size_t (*)()>(typeOf)();
    return NativeFunction<int (*)(void*, std::size_t)>("g_type_check_instance_is_a")(widget, type) != 0;
}

/// Takes the button with the arrow, somewhere in the widgets that a combo box is made of, out of the tab
/// order.
void RefuseFocusOfArrow(void* widget, void*)
{
    if (IsA(widget, "gtk_toggle_button_get_type"))
        NativeFunction<void (*)(void*, int)>("gtk_widget_set_can_focus")(widget, 0);
    else if (IsA(widget, "gtk_container_get_type"))
        NativeFunction<ForEachChild>("gtk_container_forall")(widget, RefuseFocusOfArrow, nullptr);
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

#include "support/NativeSaveDialog.h"

#include "ui/controls/NativeFunction_gtk.h"

std::optional<std::string> FocusedNameBoxText(const wxFileDialog& dialog)
{
    static auto* const focusOf = NativeFunction<void* (*)(void*)>("gtk_window_get_focus");
    static auto* const entryType = NativeFunction<unsigned long (*)()>("gtk_entry_get_type");
    static auto* const isA = NativeFunction<int (*)(void*, unsigned long)>("g_type_check_instance_is_a");
    static auto* const textOf = NativeFunction<const char* (*)(void*)>("gtk_entry_get_text");

    void* const focus = focusOf(dialog.GetHandle());
    if (focus == nullptr || isA(focus, entryType()) == 0)
        return std::nullopt;
    return textOf(focus);
}

bool ShowsOwnMessage(const wxFileDialog& dialog)
{
    static auto* const current = NativeFunction<void* (*)()>("gtk_grab_get_current");
    static auto* const topLevelOf = NativeFunction<void* (*)(void*)>("gtk_widget_get_toplevel");
    void* const grabber = current();
    return grabber != nullptr && topLevelOf(grabber) != dialog.GetHandle();
}

#pragma once

#include "support/Windows.h"
#include "ui/controls/NativeFunction_gtk.h"

/// Changes a setting of the desktop for this program, as GTK names it, and lets the windows follow.
template<typename Value>
void SetGtkSetting(const char* name, Value value)
{
    void* settings = NativeFunction<void* (*)()>("gtk_settings_get_default")();
    NativeFunction<void (*)(void*, const char*, ...)>("g_object_set")(settings, name, value, nullptr);
    Settle();
}

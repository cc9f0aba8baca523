#pragma once

#include <wx/dynlib.h>

#include <cstddef>

/// A function of GTK or of one of its libraries, found in the running program, so that the build does not
/// need their headers. Null if there is none with this name.
template<typename Function>
Function NativeFunction(const char* name)
{
    return reinterpret_cast<Function>(
        wxDynamicLibrary::RawGetSymbol(wxDynamicLibrary::GetProgramHandle(), name));
}

/// True if a widget is of the type that a function such as "gtk_dialog_get_type" gives.
inline bool IsNative(void* widget, const char* typeFunction)
{
    const auto type = NativeFunction<std::size_t (*)()>(typeFunction);
    const auto isA = NativeFunction<int (*)(void*, std::size_t)>("g_type_check_instance_is_a");
    return isA(widget, type()) != 0;
}

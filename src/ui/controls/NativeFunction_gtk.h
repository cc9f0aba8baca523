#pragma once

#include <wx/dynlib.h>

/// A function of GTK or of a library that GTK brings, found in the running program, so that building needs
/// none of their headers. Null when there is none of this name.
template<typename Function>
Function NativeFunction(const char* name)
{
    return reinterpret_cast<Function>(
        wxDynamicLibrary::RawGetSymbol(wxDynamicLibrary::GetProgramHandle(), name));
}

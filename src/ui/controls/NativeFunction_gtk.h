#pragma once

#include <wx/dynlib.h>

/// A function of GTK or of one of its libraries, found in the running program, so that the build does not
/// need their headers. Null if there is none with this name.
template<typename Function>
Function NativeFunction(const char* name)
{
    return reinterpret_cast<Function>(
        wxDynamicLibrary::RawGetSymbol(wxDynamicLibrary::GetProgramHandle(), name));
}

#include "ui/app/VarlostudijiApp.h"

#include <windows.h>

wxIMPLEMENT_APP_NO_MAIN(VarlostudijiApp);

namespace
{

// Someone could plant a library beside the portable program, for example in the downloads folder. From here
// on libraries come only from the system's folder. Windows 7 may lack this function; the program then runs
// without it.
void LoadLibrariesFromSystemOnly()
{
    using SetDefaultDirectories = BOOL(WINAPI*)(DWORD);
    const auto setDefaultDirectories = reinterpret_cast<SetDefaultDirectories>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "SetDefaultDllDirectories")));
    if (setDefaultDirectories != nullptr)
        setDefaultDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
}

} // namespace

extern "C" int WINAPI WinMain(HINSTANCE instance, HINSTANCE previous, LPSTR, int show)
{
    wxDISABLE_DEBUG_SUPPORT();
    LoadLibrariesFromSystemOnly();
    return wxEntry(instance, previous, nullptr, show);
}

#include "support/NativeSaveDialog.h"

#include <array>

#include <windows.h>

std::optional<std::string> FocusedNameBoxText(const wxFileDialog&)
{
    const HWND focus = GetFocus();
    std::array<wchar_t, 16> className{};
    if (focus == nullptr || GetForegroundWindow() != GetAncestor(focus, GA_ROOT) ||
        GetClassNameW(focus, className.data(), static_cast<int>(className.size())) == 0 ||
        wxString(className.data()) != "Edit")
        return std::nullopt;
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(focus)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(focus, text.data(), static_cast<int>(text.size()))));
    return wxString(text).utf8_string();
}

bool ShowsOwnMessage(const wxFileDialog&)
{
    const HWND top = GetForegroundWindow();
    const HWND owner = GetWindow(top, GW_OWNER);
    std::array<wchar_t, 16> ownerClass{};
    GetClassNameW(owner, ownerClass.data(), static_cast<int>(ownerClass.size()));
    return wxString(ownerClass.data()) == "#32770";
}

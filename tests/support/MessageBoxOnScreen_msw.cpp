#include "support/MessageBoxOnScreen.h"

#include <wx/control.h>
#include <wx/msw/wrapwin.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>
#include <utility>

namespace
{

constexpr int IconSize = 32;

using Pixels = std::array<DWORD, static_cast<std::size_t>(IconSize) * IconSize>;

/// The picture of an icon; two handles of one picture compare equal.
Pixels PixelsOf(HICON icon)
{
    BITMAPINFO info = {};
    info.bmiHeader.biSize = sizeof(info.bmiHeader);
    info.bmiHeader.biWidth = IconSize;
    info.bmiHeader.biHeight = IconSize;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const HDC memory = CreateCompatibleDC(nullptr);
    const HBITMAP bitmap = CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ former = SelectObject(memory, bitmap);
    DrawIconEx(memory, 0, 0, icon, IconSize, IconSize, 0, nullptr, DI_NORMAL);
    GdiFlush();
    Pixels pixels;
    std::copy_n(static_cast<const DWORD*>(bits), pixels.size(), pixels.begin());
    SelectObject(memory, former);
    DeleteObject(bitmap);
    DeleteDC(memory);
    return pixels;
}

std::wstring TextOf(HWND window)
{
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

bool IsOfClass(HWND window, std::wstring_view name)
{
    wchar_t type[32] = L"";
    GetClassNameW(window, type, static_cast<int>(std::size(type)));
    return name == type;
}

long IconOf(HICON icon)
{
    const std::pair<LPCWSTR, long> icons[] = {{IDI_INFORMATION, wxICON_INFORMATION},
                                              {IDI_WARNING, wxICON_WARNING},
                                              {IDI_QUESTION, wxICON_QUESTION},
                                              {IDI_ERROR, wxICON_ERROR}};
    const Pixels shown = PixelsOf(icon);
    for (const auto& [name, style] : icons)
        if (shown == PixelsOf(LoadIconW(nullptr, name)))
            return style;
    return wxICON_NONE;
}

BOOL CALLBACK TakeControl(HWND control, LPARAM into)
{
    auto& found = *reinterpret_cast<MessageBoxOnScreen*>(into);
    const wxString text(TextOf(control));
    const LONG_PTR style = GetWindowLongPtrW(control, GWL_STYLE);
    if (IsOfClass(control, L"Button"))
        found.Buttons.push_back(wxControl::RemoveMnemonics(text).utf8_string());
    else if ((style & SS_TYPEMASK) != SS_ICON)
        found.Text = text.utf8_string();
    else if (IsWindowVisible(control))
        found.Icon = IconOf(reinterpret_cast<HICON>(SendMessageW(control, STM_GETICON, 0, 0)));
    return TRUE;
}

BOOL CALLBACK TakeBox(HWND window, LPARAM into)
{
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != GetCurrentProcessId() || !IsWindowVisible(window) || !IsOfClass(window, L"#32770"))
        return TRUE;
    *reinterpret_cast<HWND*>(into) = window;
    return FALSE;
}

} // namespace

std::optional<MessageBoxOnScreen> FindMessageBox()
{
    HWND box = nullptr;
    EnumWindows(TakeBox, reinterpret_cast<LPARAM>(&box));
    if (box == nullptr)
        return std::nullopt;

    MessageBoxOnScreen found;
    found.Title = wxString(TextOf(box)).utf8_string();
    found.Icon = wxICON_NONE;
    EnumChildWindows(box, TakeControl, reinterpret_cast<LPARAM>(&found));
    std::ranges::sort(found.Buttons);
    RECT place;
    GetWindowRect(box, &place);
    found.Place = wxRect(place.left, place.top, place.right - place.left, place.bottom - place.top);
    return found;
}

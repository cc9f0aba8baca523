#pragma once

#include "support/Windows.h"

#ifdef _WIN32
#include <windows.h>

#include <array>
#else
#include "support/GtkSetting.h"
#endif

/// While it lives, windows and lists have light text on a dark background, like a user's setting for the
/// whole desktop.
class DarkDesktop
{
public:
    DarkDesktop() { Set(true); }
    ~DarkDesktop() { Set(false); }
    DarkDesktop(const DarkDesktop&) = delete;
    DarkDesktop& operator=(const DarkDesktop&) = delete;

private:
#ifdef _WIN32
    void Set(bool dark)
    {
        const std::array<COLORREF, 4> colours = {RGB(32, 32, 32), RGB(255, 255, 255), RGB(32, 32, 32),
                                                 RGB(255, 255, 255)};
        SetSysColors(static_cast<int>(m_parts.size()), m_parts.data(),
                     dark ? colours.data() : m_former.data());
        Settle();
    }

    static std::array<COLORREF, 4> Present(const std::array<INT, 4>& parts)
    {
        std::array<COLORREF, 4> colours = {};
        for (std::size_t i = 0; i < parts.size(); ++i)
            colours[i] = GetSysColor(parts[i]);
        return colours;
    }

    std::array<INT, 4> m_parts = {COLOR_WINDOW, COLOR_WINDOWTEXT, COLOR_BTNFACE, COLOR_BTNTEXT};
    std::array<COLORREF, 4> m_former = Present(m_parts);
#else
    static void Set(bool dark)
    {
        SetGtkSetting("gtk-theme-name", dark ? "HighContrastInverse" : "Adwaita");
    }
#endif
};

#pragma once

#include "support/Windows.h"

#ifndef _WIN32
#include "support/GtkSetting.h"
#endif

/// While it lives, this program's text has that many per cent of the usual size, like a user's setting for
/// the whole desktop. On Windows the size is a setting of the session, read once at its start, and does not
/// change here.
class TextScale
{
public:
    explicit TextScale(int percent) { Set(percent); }
    ~TextScale() { Set(100); }
    TextScale(const TextScale&) = delete;
    TextScale& operator=(const TextScale&) = delete;

private:
#ifdef _WIN32
    static void Set(int) {}
#else
    static void Set(int percent)
    {
        constexpr int usualDotsToTheInch = 96;
        constexpr int unitsOfADot = 1024;
        SetGtkSetting("gtk-xft-dpi", usualDotsToTheInch * unitsOfADot * percent / 100);
    }
#endif
};

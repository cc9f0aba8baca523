#include "ui/controls/DecimalSeparator.h"

#include "ui/controls/Strings.h"

#include <windows.h>

std::string SystemDecimalSeparator()
{
    // The program runs in the "C" locale; ask the system for the user's setting.
    constexpr int longest = 8;
    wchar_t text[longest] = {};
    if (GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, text, longest) <= 1)
        return ".";
    return ToUtf8(text);
}

#pragma once

#include <wx/string.h>

#include <string>
#include <string_view>

/// A text of the rules (UTF-8) as a toolkit string.
inline wxString ToWx(std::string_view text)
{
    return wxString::FromUTF8(text.data(), text.size());
}

/// A toolkit string as a text of the rules (UTF-8).
inline std::string ToUtf8(const wxString& text)
{
    return text.utf8_string();
}

#pragma once

#include <wx/string.h>

#include <string>
#include <string_view>

/// A text of the rules (UTF-8) as the toolkit takes it.
inline wxString ToWx(std::string_view text)
{
    return wxString::FromUTF8(text.data(), text.size());
}

/// A text of the toolkit as the rules take it (UTF-8).
inline std::string ToUtf8(const wxString& text)
{
    return text.utf8_string();
}

#pragma once

#include <string>
#include <string_view>

/// Windows-1250 bytes as UTF-8. The five bytes without a character (81 83 88 90 98) become the control
/// characters of the same number, so that every byte survives the way back.
std::string FromWindows1250(std::string_view bytes);

/// The windows-1250 bytes of a UTF-8 text; "?" for each character that windows-1250 lacks.
std::string ToWindows1250(std::string_view text);

/// Appends those bytes.
void AppendWindows1250(std::string& bytes, std::string_view text);

#include "check/Letters.h"

#include "check/FileLines.h"
#include "data/Windows1250.h"
#include "data/modData.h"
#include "text/Text.h"

#include <algorithm>

namespace Check
{

namespace
{

bool IsAscii(std::string_view bytes)
{
    TakeAsciiPrefix(bytes);
    return bytes.empty();
}

/// Looks for UTF-16: its mark, or a 0 in the first two bytes, since a header is ASCII.
bool IsUtf16(std::string_view bytes)
{
    return bytes.starts_with("\xFF\xFE") || bytes.starts_with("\xFE\xFF") ||
           (bytes.size() >= 2 && (bytes[0] == '\0') != (bytes[1] == '\0'));
}

bool IsInWindows1250(std::string_view character)
{
    return ToWindows1250(character) != "?";
}

/// Calls `visit` with each character beyond ASCII and true, or with a byte that is not UTF-8 and false, until
/// it returns false.
template<typename Visit>
void ForEachBeyondAscii(std::string_view text, const Visit& visit)
{
    while (!text.empty())
    {
        TakeAsciiPrefix(text);
        if (text.empty())
            return;
        const std::string_view before = text;
        const bool isReplaced = DecodeUtf8(text) == U'\uFFFD';
        const std::string_view character = before.substr(0, before.size() - text.size());
        if (!visit(character, !isReplaced || character.size() > 1))
            return;
    }
}

} // namespace

bool IsBeyondAsciiUtf8(std::string_view bytes)
{
    bool isUtf8 = false;
    ForEachBeyondAscii(bytes, [&](std::string_view, bool isCharacter) { return isUtf8 = isCharacter; });
    return isUtf8;
}

bool IsUtf8Text(std::string_view bytes)
{
    bool isShared = false;
    if (IsBeyondAsciiUtf8(bytes))
        ForEachBeyondAscii(bytes, [&](std::string_view character, bool)
                           { return !(isShared = IsInWindows1250(character)); });
    return isShared;
}

std::string LettersLost(std::string_view text)
{
    std::string lost;
    ForEachBeyondAscii(text,
                       [&](std::string_view character, bool)
                       {
                           if (!IsInWindows1250(character) && lost.find(character) == std::string::npos)
                               lost += character;
                           return true;
                       });
    return lost;
}

Encoding EncodingOf(std::string_view bytes)
{
    if (IsUtf16(bytes))
        return {false, Letters::Utf16};
    const bool hasMark = bytes.starts_with(modData::Utf8Mark);
    if (hasMark)
        bytes.remove_prefix(modData::Utf8Mark.size());
    if (IsAscii(bytes) || IsBeyondAsciiUtf8(bytes))
        return {hasMark, hasMark || !IsAscii(bytes) ? Letters::Utf8 : Letters::Windows1250};
    bool isMixed = false;
    ForEachLine(bytes, [&](const FileLine& line) { isMixed = isMixed || IsUtf8Text(line.Text); });
    return {hasMark, isMixed ? Letters::Mixed : Letters::Windows1250};
}

} // namespace Check

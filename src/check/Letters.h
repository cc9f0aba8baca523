#pragma once

#include <string>
#include <string_view>

namespace Check
{

/// The encoding of a file's letters.
enum class Letters
{
    Windows1250, ///< Or plain ASCII.
    Utf8,
    Mixed, ///< Some lines in windows-1250, others in UTF-8.
    Utf16
};

struct Encoding
{
    bool HasMark; ///< The file begins with the UTF-8 mark.
    Letters In;
};

Encoding EncodingOf(std::string_view bytes);

/// True for valid UTF-8 with at least one character beyond ASCII.
bool IsBeyondAsciiUtf8(std::string_view bytes);

/// As IsBeyondAsciiUtf8, with at least one character that windows-1250 has too. Croatian text in windows-1250
/// never looks like that.
bool IsUtf8Text(std::string_view bytes);

/// The characters of a UTF-8 text that windows-1250 lacks; each once.
std::string LettersLost(std::string_view text);

} // namespace Check

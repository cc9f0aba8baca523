#pragma once

#include <string>
#include <string_view>

namespace Check
{

/// How a file's letters are written.
enum class Letters
{
    Windows1250, ///< Or nothing but ASCII.
    Utf8,
    Mixed, ///< Some lines in windows-1250, others in UTF-8.
    Utf16
};

struct Writing
{
    bool HasMark; ///< The UTF-8 mark is at the start.
    Letters In;
};

Writing WritingOf(std::string_view bytes);

/// Whether bytes are UTF-8 with at least one character beyond ASCII.
bool IsBeyondAsciiUtf8(std::string_view bytes);

/// As IsBeyondAsciiUtf8, with at least one character that windows-1250 has too. In Croatian windows-1250 text
/// no letters in a row look like one.
bool IsUtf8Text(std::string_view bytes);

/// The characters of a UTF-8 text that windows-1250 lacks, each once.
std::string LettersLost(std::string_view text);

} // namespace Check

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// The text without blanks (U+0020, no other white space) at both ends.
std::string_view TrimBlanks(std::string_view text);

/// The text with every letter that windows-1250 has in upper case, whatever the system's locale; "ß" stays.
std::string UpperCase(std::string_view text);

/// The same in place.
void MakeUpperCase(std::string& text);

/// True when the text, trimmed and upper-cased, is the given upper-case word.
bool EqualsIgnoreCase(std::string_view text, std::string_view upperCaseWord);

/// Takes off the ASCII characters that a text begins with: most of a text is ASCII, and in one piece it goes
/// over in half of the time.
std::string_view TakeAsciiPrefix(std::string_view& text);

/// Takes the first character off a UTF-8 text that is not empty; U+FFFD stands for a byte that fits nowhere.
char32_t DecodeUtf8(std::string_view& text);

/// Appends a character as UTF-8.
void AppendCodePoint(std::string& text, char32_t character);

/// Appends an item to a list in one text: the separator only where something stands before it.
void AppendJoined(std::string& list, std::string_view separator, std::string_view item);

/// The texts with the separator between them, after empty ones too.
std::string Joined(const std::vector<std::string>& texts, std::string_view separator);

/// A text as a message shows it: not longer than so many characters, control characters as "\x00".
std::string Shown(std::string_view text, std::size_t maxCharacters = 60);

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// The text without blanks (U+0020, no other white space) at both ends.
std::string_view TrimBlanks(std::string_view text);

/// The text with every letter of windows-1250 in upper case, in any locale; "ß" stays.
std::string UpperCase(std::string_view text);

/// The same in place.
void MakeUpperCase(std::string& text);

/// True if the text, trimmed and in upper case, is the given upper-case word.
bool EqualsIgnoreCase(std::string_view text, std::string_view upperCaseWord);

/// Takes off the ASCII characters at the start of a text. Most of a text is ASCII; copying it in one piece
/// halves the time.
std::string_view TakeAsciiPrefix(std::string_view& text);

/// Takes the first character off a UTF-8 text, which must not be empty; U+FFFD for a byte that is not valid.
char32_t DecodeUtf8(std::string_view& text);

/// Appends a character as UTF-8.
void AppendCodePoint(std::string& text, char32_t character);

/// Appends an item to a joined list; the separator only if the list has text already.
void AppendJoined(std::string& list, std::string_view separator, std::string_view item);

/// The texts joined by the separator; empty ones get one too.
std::string Joined(const std::vector<std::string>& texts, std::string_view separator);

/// The text in quotation marks, with its own doubled, if it has one of the characters; otherwise as it is.
std::string QuotedIfAny(std::string_view text, std::string_view characters);

/// A text as a message shows it: cut to so many characters, control characters as "\x00".
std::string Shown(std::string_view text, std::size_t maxCharacters = 60);

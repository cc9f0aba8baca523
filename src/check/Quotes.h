#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Quotes as a spreadsheet puts them around a whole field. The catalogue's files know none: to the program a
// quote is a letter like any other.
namespace Check
{

/// Whether a field is in quotes as a whole, with every quote inside doubled.
bool IsQuoted(std::string_view field);

/// A quoted field without its quotes.
std::string Unquoted(std::string_view field);

/// Whether every field of a line is quoted.
bool IsQuotedThroughout(std::string_view line);

/// The size of the record that the bytes begin with, where a field in quotes holds a ";" or a line break and
/// the record then has so many columns; 0 otherwise.
std::size_t QuotedRecordSize(std::string_view bytes, std::size_t columns);

} // namespace Check

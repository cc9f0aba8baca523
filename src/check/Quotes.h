#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Quotes as a spreadsheet puts them around a whole field. To the program a quote is a letter like any other.
namespace Check
{

/// True for a field that is quoted as a whole, with every quote inside doubled.
bool IsQuoted(std::string_view field);

/// A quoted field without its quotes.
std::string Unquoted(std::string_view field);

/// True if every field of a line is quoted.
bool IsQuotedThroughout(std::string_view line);

/// The size of the record at the start of the bytes, if a quoted field in it holds a ";" or a line break and
/// the record has that many columns; otherwise 0.
std::size_t QuotedRecordSize(std::string_view bytes, std::size_t columns);

} // namespace Check

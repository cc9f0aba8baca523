#include "check/Quotes.h"

#include "check/FileLines.h"

namespace Check
{

namespace
{

constexpr std::string_view FieldEnds = ";\r\n";
constexpr std::string_view LineBreaks = "\r\n";

/// The position of the quote that closes a field; the opening one is at `begin`. npos if there is none.
std::size_t ClosingQuote(std::string_view bytes, std::size_t begin)
{
    std::size_t quote = bytes.find('"', begin + 1);
    while (quote != std::string_view::npos && bytes.substr(quote + 1).starts_with('"'))
        quote = bytes.find('"', quote + 2);
    return quote;
}

} // namespace

bool IsQuoted(std::string_view field)
{
    return field.size() >= 2 && field.front() == '"' && ClosingQuote(field, 0) == field.size() - 1;
}

std::string Unquoted(std::string_view field)
{
    std::string text;
    field = field.substr(1, field.size() - 2);
    for (std::size_t i = 0; i < field.size(); ++i)
    {
        text += field[i];
        if (field[i] == '"')
            ++i; // skip the second of two
    }
    return text;
}

bool IsQuotedThroughout(std::string_view line)
{
    bool isQuoted = true;
    ForEachField(line, [&](std::string_view field, std::size_t) { isQuoted = isQuoted && IsQuoted(field); });
    return isQuoted;
}

std::size_t QuotedRecordSize(std::string_view bytes, std::size_t columns)
{
    constexpr std::size_t longest = 4096; // limits the search for a missing closing quote
    bytes = bytes.substr(0, longest);
    bool holdsEnd = false;
    std::size_t at = 0;
    for (std::size_t column = 1; column <= columns; ++column, ++at)
    {
        if (bytes.substr(at).starts_with('"'))
        {
            const std::size_t closing = ClosingQuote(bytes, at);
            if (closing == std::string_view::npos)
                return 0;
            const std::string_view field = bytes.substr(at, closing - at);
            holdsEnd = holdsEnd || field.find_first_of(FieldEnds) != std::string_view::npos;
            at = closing + 1;
        }
        else
        {
            at = bytes.find_first_of(FieldEnds, at);
        }
        if (at >= bytes.size()) // the end of the file, or the limit
            return column == columns && holdsEnd && bytes.size() < longest ? bytes.size() : 0;
        if (LineBreaks.find(bytes[at]) != std::string_view::npos)
            return column == columns && holdsEnd ? at : 0;
        if (bytes[at] != ';') // more text after the closing quote
            return 0;
    }
    return 0;
}

} // namespace Check

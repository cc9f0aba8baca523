#include "text/Text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace
{

constexpr char32_t Replacement = 0xFFFD;

// The letters of windows-1250 beyond ASCII, each under its upper-case form. All are below U+0180.
constexpr std::u32string_view Lower = U"šśťžźłąşľżŕáâăäĺćçčéęëěíîďđńňóôőöřůúűüýţ";
constexpr std::u32string_view Upper = U"ŠŚŤŽŹŁĄŞĽŻŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖŘŮÚŰÜÝŢ";
static_assert(Lower.size() == Upper.size());

constexpr std::size_t UpperTableSize = 0x180;

constexpr std::array<char32_t, UpperTableSize> UpperTable = []
{
    std::array<char32_t, UpperTableSize> table{};
    for (char32_t code = 0; code < UpperTableSize; ++code)
        table[code] = code >= U'a' && code <= U'z' ? code - U'a' + U'A' : code;
    for (std::size_t i = 0; i < Lower.size(); ++i)
        table[Lower[i]] = Upper[i];
    return table;
}();

// The range of the first bytes of the table's characters beyond ASCII. Each is two bytes in either case.
constexpr std::uint8_t FirstLead = 0xC2;
constexpr std::uint8_t EndOfLeads = 0xC0 | UpperTableSize >> 6U;

struct Lead
{
    int Followers;
    char32_t Bits;
    char32_t Smallest; // a smaller code in this many bytes is not valid UTF-8
};

/// What the first byte of a character beyond ASCII says about it.
Lead DecodeLead(std::uint8_t byte)
{
    if (byte >= 0xC2 && byte < 0xE0)
        return {1, byte & 0x1FU, 0x80};
    if (byte >= 0xE0 && byte < 0xF0)
        return {2, byte & 0x0FU, 0x800};
    if (byte >= 0xF0 && byte < 0xF5)
        return {3, byte & 0x07U, 0x10000};
    return {0, Replacement, 0};
}

bool IsCharacter(char32_t code)
{
    return code < 0x110000 && !(code >= 0xD800 && code < 0xE000);
}

char32_t UpperCase(char32_t character)
{
    return character < UpperTableSize ? UpperTable[character] : character;
}

} // namespace

std::string_view TrimBlanks(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string UpperCase(std::string_view text)
{
    std::string upper(text);
    MakeUpperCase(upper);
    return upper;
}

void MakeUpperCase(std::string& text)
{
    for (char& c : text) // no branch, so that the compiler can vectorise the loop
        c = static_cast<char>(c - (c >= 'a' && c <= 'z' ? 'a' - 'A' : 0));

    std::string_view rest = text;
    for (TakeAsciiPrefix(rest); rest.size() > 1; TakeAsciiPrefix(rest))
    {
        const auto first = static_cast<std::uint8_t>(rest[0]);
        const bool isInTable = first >= FirstLead && first < EndOfLeads;
        if (isInTable)
        {
            const char32_t upper =
                UpperTable[(first & 0x1FU) << 6U | (static_cast<std::uint8_t>(rest[1]) & 0x3FU)];
            const std::size_t at = text.size() - rest.size();
            text[at] = static_cast<char>(0xC0U | upper >> 6U);
            text[at + 1] = static_cast<char>(0x80U | (upper & 0x3FU));
        }
        rest.remove_prefix(isInTable ? 2 : 1);
    }
}

bool EqualsIgnoreCase(std::string_view text, std::string_view upperCaseWord)
{
    text = TrimBlanks(text);
    while (!text.empty() && !upperCaseWord.empty())
        if (UpperCase(DecodeUtf8(text)) != DecodeUtf8(upperCaseWord))
            return false;
    return text.empty() && upperCaseWord.empty();
}

std::string_view TakeAsciiPrefix(std::string_view& text)
{
    constexpr std::uint64_t highBits = 0x8080808080808080;
    std::size_t size = 0;
    for (std::uint64_t word = 0; size + sizeof word <= text.size(); size += sizeof word)
    {
        std::memcpy(&word, text.data() + size, sizeof word);
        if (const std::uint64_t high = word & highBits; high != 0)
        {
            size += static_cast<std::size_t>(std::countr_zero(high)) / 8; // the lowest byte is the first
            break;
        }
    }
    while (size < text.size() && (text[size] & 0x80) == 0)
        ++size;
    const std::string_view ascii = text.substr(0, size);
    text.remove_prefix(size);
    return ascii;
}

char32_t DecodeUtf8(std::string_view& text)
{
    if (const auto first = static_cast<std::uint8_t>(text.front()); first < 0x80)
    {
        text.remove_prefix(1); // most characters
        return first;
    }
    const auto [followers, bits, smallest] = DecodeLead(static_cast<std::uint8_t>(text.front()));
    char32_t code = bits;
    text.remove_prefix(1);
    std::string_view rest = text;
    for (int i = 0; i < followers; ++i)
    {
        if (rest.empty() || (static_cast<std::uint8_t>(rest.front()) & 0xC0U) != 0x80U)
            return Replacement;
        code = (code << 6U) | (static_cast<std::uint8_t>(rest.front()) & 0x3FU);
        rest.remove_prefix(1);
    }
    if (code < smallest || !IsCharacter(code))
        return Replacement;
    text = rest;
    return code;
}

void AppendCodePoint(std::string& text, char32_t character)
{
    const auto follower = [&](unsigned shift)
    { text += static_cast<char>(0x80U | ((character >> shift) & 0x3FU)); };

    if (character < 0x80)
    {
        text += static_cast<char>(character);
    }
    else if (character < 0x800)
    {
        text += static_cast<char>(0xC0U | (character >> 6U));
        follower(0);
    }
    else if (character < 0x10000)
    {
        text += static_cast<char>(0xE0U | (character >> 12U));
        follower(6);
        follower(0);
    }
    else
    {
        text += static_cast<char>(0xF0U | (character >> 18U));
        follower(12);
        follower(6);
        follower(0);
    }
}

void AppendJoined(std::string& list, std::string_view separator, std::string_view item)
{
    if (!list.empty())
        list += separator;
    list += item;
}

std::string Joined(const std::vector<std::string>& texts, std::string_view separator)
{
    std::string joined;
    for (std::size_t i = 0; i < texts.size(); ++i)
        joined.append(i == 0 ? std::string_view() : separator).append(texts[i]);
    return joined;
}

std::string QuotedIfAny(std::string_view text, std::string_view characters)
{
    if (text.find_first_of(characters) == std::string_view::npos)
        return std::string(text);
    std::string quoted = "\"";
    for (const char c : text)
        quoted.append(c == '"' ? 2 : 1, c);
    return quoted + "\"";
}

std::string Shown(std::string_view text, std::size_t maxCharacters)
{
    const auto digit = [](char32_t number)
    { return static_cast<char>(number < 10 ? '0' + number : 'a' + number - 10); };
    std::string shown;
    for (std::size_t count = 0; !text.empty(); ++count)
    {
        if (count == maxCharacters)
            return shown + "…";
        const char32_t character = DecodeUtf8(text);
        const bool isControl = character < 0x20 || (character >= 0x7F && character < 0xA0);
        if (isControl)
            shown.append({'\\', 'x', digit(character / 16), digit(character % 16)});
        else
            AppendCodePoint(shown, character);
    }
    return shown;
}

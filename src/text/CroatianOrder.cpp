#include "text/CroatianOrder.h"

#include "text/Text.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace
{

// The letters in upper case.
constexpr std::u32string_view Alphabet[] = {
    U"A", U"B", U"C",  U"Č", U"Ć", U"D", U"DŽ", U"Đ", U"E", U"F", U"G", U"H", U"I", U"J", U"K", U"L", U"LJ",
    U"M", U"N", U"NJ", U"O", U"P", U"Q", U"R",  U"S", U"Š", U"T", U"U", U"V", U"W", U"X", U"Y", U"Z", U"Ž",
};

// The other letters of windows-1250; below each the letter that it is sorted as.
constexpr std::u32string_view Foreign = U"ŚŤŹŁĄŞĽŻŔÁÂĂÄĹÇÉĘËĚÍÎĎŃŇÓÔŐÖŘŮÚŰÜÝŢß";
constexpr std::u32string_view SortedAs = U"STZLASLZRAAAALCEEEEIIDNNOOOORUUUUYTS";
static_assert(Foreign.size() == SortedAs.size());

// The keys of letters are above ASCII and below the lead bytes of other characters in UTF-8.
constexpr std::uint8_t FirstLetterKey = 0x80;
static_assert(FirstLetterKey + std::size(Alphabet) <= 0xC2);

constexpr std::size_t KeyTableSize = 0x180;

constexpr std::array<std::uint8_t, KeyTableSize> LetterKeys = []
{
    std::array<std::uint8_t, KeyTableSize> keys{};
    for (std::size_t i = 0; i < std::size(Alphabet); ++i)
        if (Alphabet[i].size() == 1)
            keys[Alphabet[i].front()] = static_cast<std::uint8_t>(FirstLetterKey + i);
    for (std::size_t i = 0; i < Foreign.size(); ++i)
        keys[Foreign[i]] = keys[SortedAs[i]];
    return keys;
}();

/// True if two characters make one letter. In the alphabet that letter directly follows its first character.
bool MakesDigraph(char32_t first, char32_t second)
{
    return (first == U'D' && second == U'Ž') || ((first == U'L' || first == U'N') && second == U'J');
}

} // namespace

std::string CroatianSortKey(std::string_view text)
{
    const std::string upper = UpperCase(text);
    std::string_view rest = upper;
    std::string key;
    key.reserve(upper.size());
    while (!rest.empty())
    {
        const char32_t character = DecodeUtf8(rest);
        const std::uint8_t letter = character < KeyTableSize ? LetterKeys[character] : 0;
        if (letter == 0)
        {
            AppendCodePoint(key, character);
            continue;
        }
        std::string_view afterNext = rest;
        if (!afterNext.empty() && MakesDigraph(character, DecodeUtf8(afterNext)))
        {
            key += static_cast<char>(letter + 1);
            rest = afterNext;
        }
        else
        {
            key += static_cast<char>(letter);
        }
    }
    return key;
}

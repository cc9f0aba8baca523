#include "data/Windows1250.h"

#include "text/Text.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace
{

// The characters of the bytes 80 to FF.
constexpr std::array<char32_t, 128> UpperHalf = {
    0x20AC, 0x0081, 0x201A, 0x0083, 0x201E, 0x2026, 0x2020, 0x2021, // 80
    0x0088, 0x2030, 0x0160, 0x2039, 0x015A, 0x0164, 0x017D, 0x0179, // 88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, // 90
    0x0098, 0x2122, 0x0161, 0x203A, 0x015B, 0x0165, 0x017E, 0x017A, // 98
    0x00A0, 0x02C7, 0x02D8, 0x0141, 0x00A4, 0x0104, 0x00A6, 0x00A7, // A0
    0x00A8, 0x00A9, 0x015E, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x017B, // A8
    0x00B0, 0x00B1, 0x02DB, 0x0142, 0x00B4, 0x00B5, 0x00B6, 0x00B7, // B0
    0x00B8, 0x0105, 0x015F, 0x00BB, 0x013D, 0x02DD, 0x013E, 0x017C, // B8
    0x0154, 0x00C1, 0x00C2, 0x0102, 0x00C4, 0x0139, 0x0106, 0x00C7, // C0
    0x010C, 0x00C9, 0x0118, 0x00CB, 0x011A, 0x00CD, 0x00CE, 0x010E, // C8
    0x0110, 0x0143, 0x0147, 0x00D3, 0x00D4, 0x0150, 0x00D6, 0x00D7, // D0
    0x0158, 0x016E, 0x00DA, 0x0170, 0x00DC, 0x00DD, 0x0162, 0x00DF, // D8
    0x0155, 0x00E1, 0x00E2, 0x0103, 0x00E4, 0x013A, 0x0107, 0x00E7, // E0
    0x010D, 0x00E9, 0x0119, 0x00EB, 0x011B, 0x00ED, 0x00EE, 0x010F, // E8
    0x0111, 0x0144, 0x0148, 0x00F3, 0x00F4, 0x0151, 0x00F6, 0x00F7, // F0
    0x0159, 0x016F, 0x00FA, 0x0171, 0x00FC, 0x00FD, 0x0163, 0x02D9, // F8
};

constexpr std::size_t ByteTableSize = 0x2123; // one past the largest character above

// For each character its byte; 0 where windows-1250 lacks it.
constexpr std::array<std::uint8_t, ByteTableSize> ByteTable = []
{
    std::array<std::uint8_t, ByteTableSize> table{};
    for (std::size_t i = 0; i < UpperHalf.size(); ++i)
        table[UpperHalf[i]] = static_cast<std::uint8_t>(0x80 + i);
    return table;
}();

/// The byte of a character beyond ASCII.
char ByteOf(char32_t character)
{
    const std::uint8_t byte = character < ByteTableSize ? ByteTable[character] : 0;
    return byte == 0 ? '?' : static_cast<char>(byte);
}

} // namespace

std::string FromWindows1250(std::string_view bytes)
{
    std::string text;
    text.reserve(bytes.size() + bytes.size() / 8);
    while (!bytes.empty())
    {
        text += TakeAsciiPrefix(bytes);
        if (!bytes.empty())
        {
            AppendCodePoint(text, UpperHalf[static_cast<std::uint8_t>(bytes.front()) - 0x80U]);
            bytes.remove_prefix(1);
        }
    }
    return text;
}

std::string ToWindows1250(std::string_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    AppendWindows1250(bytes, text);
    return bytes;
}

void AppendWindows1250(std::string& bytes, std::string_view text)
{
    while (!text.empty())
    {
        bytes += TakeAsciiPrefix(text);
        if (!text.empty())
            bytes += ByteOf(DecodeUtf8(text));
    }
}

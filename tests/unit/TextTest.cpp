#include "text/Text.h"
#include "data/Windows1250.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <utility>

TEST(Text, TrimmingTakesBlanksAlone)
{
    EXPECT_EQ(TrimBlanks("  a b  "), "a b");
    EXPECT_EQ(TrimBlanks("\ta\n"), "\ta\n");
    EXPECT_EQ(TrimBlanks("\xC2\xA0 "), "\xC2\xA0") << "a no-break space is no blank";
    EXPECT_EQ(TrimBlanks("   "), "");
    EXPECT_EQ(TrimBlanks(""), "");
}

TEST(Text, UpperCaseCoversEveryLetterOfWindows1250)
{
    EXPECT_EQ(UpperCase("abcxyz019 -;"), "ABCXYZ019 -;");
    EXPECT_EQ(UpperCase("čćđšž"), "ČĆĐŠŽ");
    EXPECT_EQ(UpperCase("śťźłąşľżŕáâăäĺçéęëěíîďńňóôőöřůúűüýţ"), "ŚŤŹŁĄŞĽŻŔÁÂĂÄĹÇÉĘËĚÍÎĎŃŇÓÔŐÖŘŮÚŰÜÝŢ");
    EXPECT_EQ(UpperCase("ß÷×˙µ€"), "ß÷×˙µ€");
    EXPECT_EQ(UpperCase("ČĆĐŠŽ"), "ČĆĐŠŽ");
}

TEST(Text, UpperCaseChangesTheLowerCaseLettersOfWindows1250AndNoOtherByte)
{
    const auto expected = [](int byte) -> int
    {
        if ((byte >= 'a' && byte <= 'z') || (byte >= 0xE0 && byte <= 0xFE && byte != 0xF7))
            return byte - 0x20;
        if (byte == 0x9A || (byte >= 0x9C && byte <= 0x9F)) // š, ś ť ž ź
            return byte - 0x10;
        switch (byte)
        {
        case 0xB3: // ł
        case 0xBA: // ş
        case 0xBF: // ż
            return byte - 0x10;
        case 0xB9: // ą
            return 0xA5;
        case 0xBE: // ľ
            return 0xBC;
        default:
            return byte;
        }
    };
    for (int byte = 0; byte < 256; ++byte)
        EXPECT_EQ(ToWindows1250(UpperCase(FromWindows1250(std::string(1, static_cast<char>(byte))))),
                  std::string(1, static_cast<char>(expected(byte))))
            << byte;
}

TEST(Text, ALetterThatWindows1250LacksKeepsItsCase)
{
    EXPECT_EQ(UpperCase("ж ñ ÿ"), "ж ñ ÿ");
    EXPECT_EQ(UpperCase("a€čb😀šž€€đ"), "A€ČB😀ŠŽ€€Đ") << "beside characters of three and four bytes";
}

TEST(Text, AWordIsFoundTrimmedAndInAnyCase)
{
    EXPECT_TRUE(EqualsIgnoreCase(" Izborni ", "IZBORNI"));
    EXPECT_FALSE(EqualsIgnoreCase("izborni.", "IZBORNI"));
    EXPECT_FALSE(EqualsIgnoreCase("", "IZBORNI"));
}

TEST(Text, CharactersAreReadAndWrittenAsUtf8)
{
    const std::string text = "A\xC4\x8D\xE2\x82\xAC\xF0\x9F\x98\x80";
    std::string_view rest = text;
    std::u32string characters;
    std::string written;
    while (!rest.empty())
    {
        characters += DecodeUtf8(rest);
        AppendCodePoint(written, characters.back());
    }
    EXPECT_EQ(characters, U"A\u010D\u20AC\U0001F600");
    EXPECT_EQ(written, text);
}

TEST(Text, ABrokenByteIsOneReplacementCharacter)
{
    // A continuation byte alone, a truncated sequence, an overlong form, a surrogate, a code beyond the last
    // one.
    for (const std::string_view broken :
         {"\x80", "\xC4", "\xC0\x80", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xFF"})
    {
        std::string_view rest = broken;
        while (!rest.empty())
            EXPECT_EQ(DecodeUtf8(rest), U'\uFFFD');
    }
    std::string_view rest = "\xC4z";
    EXPECT_EQ(DecodeUtf8(rest), U'\uFFFD');
    EXPECT_EQ(rest, "z");
}

TEST(Text, ListsAreJoinedWithSeparatorsBetween)
{
    std::string list;
    AppendJoined(list, "; ", "");
    AppendJoined(list, "; ", "a");
    AppendJoined(list, "; ", "");
    EXPECT_EQ(list, "a; ");
    EXPECT_EQ(Joined({"", "a", "", "b"}, ";"), ";a;;b");
    EXPECT_EQ(Joined({}, ";"), "");
}

TEST(Text, TheAsciiBeforeAnyOtherByteIsTakenOff)
{
    for (std::size_t place = 0; place < 17; ++place)
        for (int byte = 0x80; byte < 0x100; ++byte)
        {
            std::string text(24, 'x');
            text[place] = static_cast<char>(byte);
            std::string_view rest = text;
            EXPECT_EQ(TakeAsciiPrefix(rest), std::string(place, 'x')) << byte;
            EXPECT_EQ(rest, std::string_view(text).substr(place)) << byte << " at " << place;
        }
    std::string_view ascii = "\x7F with nothing else";
    EXPECT_EQ(TakeAsciiPrefix(ascii), "\x7F with nothing else");
    EXPECT_EQ(ascii, "");
}

TEST(Text, EveryBitOfACharacterSurvivesAsUtf8)
{
    const std::pair<char32_t, std::string_view> characters[] = {
        {U'\x7F', "\x7F"},
        {U'\u0080', "\xC2\x80"},
        {U'\u0180', "\xC6\x80"},
        {U'\u07FF', "\xDF\xBF"},
        {U'\u0800', "\xE0\xA0\x80"},
        {U'\uFB01', "\xEF\xAC\x81"},
        {U'\uFFFF', "\xEF\xBF\xBF"},
        {U'\U00010000', "\xF0\x90\x80\x80"},
        {U'\U0001F601', "\xF0\x9F\x98\x81"},
        {U'\U0010FFFF', "\xF4\x8F\xBF\xBF"},
    };
    for (const auto& [character, bytes] : characters)
    {
        std::string_view rest = bytes;
        EXPECT_EQ(DecodeUtf8(rest), character);
        EXPECT_EQ(rest, "") << testing::PrintToString(bytes);
        std::string written;
        AppendCodePoint(written, character);
        EXPECT_EQ(written, bytes);
    }
}

TEST(Text, ABrokenSequenceIsLeftAfterItsFirstByte)
{
    // Beyond the last first byte, beyond the last character, two surrogates, a form of three bytes for two,
    // and sequences that end or break off too soon.
    for (const std::string_view broken :
         {"\xF8\x90\x80\x80", "\xF5\x80\x80\x80", "\xF4\x90\x80\x80", "\xED\xA0\x80", "\xED\xBF\xBF",
          "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xC1\xBF", "\xE2\x82", "\xE2\x82z", "\xE2z\x82"})
    {
        std::string_view rest = broken;
        EXPECT_EQ(DecodeUtf8(rest), U'\uFFFD');
        EXPECT_EQ(rest, broken.substr(1)) << testing::PrintToString(broken);
    }
}

TEST(Text, UpperCaseLeavesWhatItsTableDoesNotHold)
{
    EXPECT_EQ(UpperCase("\xC6\x80"), "\xC6\x80") << "U+0180, the first character beyond the table";
    EXPECT_EQ(UpperCase("\xF8\x90\x80\x80z"), "\xF8\x90\x80\x80Z") << "bytes that are no character";
    EXPECT_EQ(UpperCase("\xEF\xAC\x81"), "\xEF\xAC\x81") << "U+FB01";
    EXPECT_EQ(UpperCase("z\xC5"), "Z\xC5") << "a character that is cut off";
    EXPECT_FALSE(EqualsIgnoreCase("\xC6\x80", "A"));
}

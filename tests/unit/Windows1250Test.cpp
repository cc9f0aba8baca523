#include "data/Windows1250.h"

#include <gtest/gtest.h>

#include <string>

TEST(Windows1250, EveryByteSurvivesTheWayThereAndBack)
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    EXPECT_EQ(ToWindows1250(FromWindows1250(bytes)), bytes);
}

TEST(Windows1250, CroatianLettersHaveTheirBytes)
{
    EXPECT_EQ(ToWindows1250("čćđšžČĆĐŠŽ"), "\xE8\xE6\xF0\x9A\x9E\xC8\xC6\xD0\x8A\x8E");
    EXPECT_EQ(FromWindows1250("\x80\x96\x9B"), "€–›");
}

TEST(Windows1250, BytesWithoutACharacterReadAsControlCharacters)
{
    EXPECT_EQ(FromWindows1250("\x81\x83\x88\x90\x98"), "\xC2\x81\xC2\x83\xC2\x88\xC2\x90\xC2\x98");
}

TEST(Windows1250, ACharacterThatItLacksBecomesAQuestionMark)
{
    EXPECT_EQ(ToWindows1250("a\u0416ñ\U0001F600z"), "a???z");
    EXPECT_EQ(ToWindows1250("\xC4"), "?");
    EXPECT_EQ(ToWindows1250("\xC2\x80"), "?") << "80 itself is the euro sign";
}

TEST(Windows1250, EveryByteIsItsCharacter)
{
    std::string upperHalf;
    for (int byte = 0x80; byte < 256; ++byte)
        upperHalf += static_cast<char>(byte);
    EXPECT_EQ(FromWindows1250(upperHalf), "€\u0081‚\u0083„…†‡\u0088‰Š‹ŚŤŽŹ"
                                          "\u0090‘’“”•–—\u0098™š›śťžź"
                                          "\u00A0ˇ˘Ł¤Ą¦§¨©Ş«¬\u00AD®Ż°±˛ł´µ¶·¸ąş»Ľ˝ľż"
                                          "ŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢß"
                                          "ŕáâăäĺćçčéęëěíîďđńňóôőö÷řůúűüýţ˙");
}

TEST(Windows1250, TheLowerHalfIsAscii)
{
    for (int code = 0; code < 0x80; ++code)
    {
        const std::string byte(1, static_cast<char>(code));
        EXPECT_EQ(FromWindows1250(byte), byte) << code;
        EXPECT_EQ(ToWindows1250(byte), byte) << code;
    }
}

TEST(Windows1250, NeighboursOfItsCharactersAreNotTakenForThem)
{
    EXPECT_EQ(ToWindows1250("\u0082\u009F\u0100\u02DA\u2121\u2123\uFFFD"), "???????");
}

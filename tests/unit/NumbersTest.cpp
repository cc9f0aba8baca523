#include "text/Numbers.h"
#include "data/CheckedNumbers.h"
#include "data/Errors.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

TEST(Numbers, ANumberIsBlanksASignDigitsAndOneSeparator)
{
    for (const char* text : {"7", " 7 ", "+7", "-7", "7.", ".5", "7,0", "0007", "  -0,5  "})
        EXPECT_TRUE(IsNumeric(text)) << text;
    for (const char* text : {"", " ", "-", "+", ".", "-,", "7a", "1e3", "0x10", "1.000.000", "1.2,3", "- 7",
                             "7 7", "\t7", "7\n", "--7",
                             "\xC2\xA0"
                             "7"})
        EXPECT_FALSE(IsNumeric(text)) << text;
}

TEST(Numbers, HalvesAreRoundedToEven)
{
    EXPECT_EQ(ToLong("0.5"), 0);
    EXPECT_EQ(ToLong("1,5"), 2);
    EXPECT_EQ(ToLong("2.5"), 2);
    EXPECT_EQ(ToLong("2.50000000000000000001"), 3);
    EXPECT_EQ(ToLong("-1.5"), -2);
    EXPECT_EQ(ToLong("-0.5"), 0);
    EXPECT_EQ(ToLong("1.49999"), 1);
    EXPECT_EQ(ToLong("7.0"), 7);
}

TEST(Numbers, TheRangeEndsWithRounding)
{
    EXPECT_EQ(ToLong("2147483647"), INT32_MAX);
    EXPECT_EQ(ToLong("2147483647.4"), INT32_MAX);
    EXPECT_THROW(ToLong("2147483647.5"), OverflowError);
    EXPECT_EQ(ToLong("-2147483648.5"), INT32_MIN);
    EXPECT_THROW(ToLong("-2147483648.51"), OverflowError);
    EXPECT_THROW(ToLong("99999999999999999999999999"), OverflowError);
    EXPECT_EQ(ToLong("00000000000000000000000007"), 7);
}

TEST(Numbers, ATextThatIsNoNumberIsATypeMismatch)
{
    EXPECT_THROW(ToLong(""), TypeMismatch);
    EXPECT_THROW(ToLong("abc"), TypeMismatch);
    try
    {
        ToLong("sedam");
        FAIL();
    }
    catch (const RuntimeError& error)
    {
        EXPECT_EQ(error.Number(), 13);
        EXPECT_STREQ(error.what(), "Vrijednost \"sedam\" nije broj.");
    }
}

TEST(Numbers, SafeConversionNeverFails)
{
    EXPECT_EQ(ToLongOrZero(""), 0);
    EXPECT_EQ(ToLongOrZero("abc"), 0);
    EXPECT_EQ(ToLongOrZero("99999999999"), 0);
    EXPECT_EQ(ToLongOrZero(" 12,5 "), 12);
}

TEST(Numbers, SumsAndProductsAreChecked)
{
    EXPECT_EQ(CheckedSum(INT32_MAX, -1), INT32_MAX - 1);
    EXPECT_THROW(CheckedSum(INT32_MAX, 1), OverflowError);
    EXPECT_THROW(CheckedSum(INT32_MIN, -1), OverflowError);
    EXPECT_EQ(CheckedProduct(46340, 46340), 2147395600);
    EXPECT_THROW(CheckedProduct(46341, 46341), OverflowError);
}

TEST(Numbers, WhatOnlyLooksLikeANumberIsNone)
{
    for (const char* text : {"1,2.3", "1..2", "1 000", "7-", "(7)", "7 kn", "&H10", "7%", "nan", "inf", "1e",
                             "\u0667", "\uFF17", "\u22127", "½"})
        EXPECT_FALSE(IsNumeric(text)) << text;
}

TEST(Numbers, ANumberMayHaveAnySize)
{
    EXPECT_TRUE(IsNumeric("99999999999999999999"));
    EXPECT_TRUE(IsNumeric(std::string(100'000, '9')));
    EXPECT_THROW(ToLong(std::string(100'000, '9')), OverflowError);
    EXPECT_EQ(ToLong("7," + std::string(100'000, '4')), 7);
}

TEST(Numbers, AReadingThatFailsLeavesTheValueAlone)
{
    std::int32_t value = 42;
    EXPECT_EQ(ParseLong("abc", value), NumberKind::NotNumeric);
    EXPECT_EQ(ParseLong("2147483648", value), NumberKind::TooLarge);
    EXPECT_EQ(value, 42);
    EXPECT_EQ(ParseLong("-2147483648", value), NumberKind::Whole);
    EXPECT_EQ(value, INT32_MIN);
}

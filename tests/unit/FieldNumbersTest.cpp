#include "ects/FieldNumbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <random>

namespace
{

double Read(std::string_view text)
{
    const double value = ReadNumber(text, ",");
    EXPECT_EQ(ReadNumber(text, "."), value) << text << ": the user's separator changes no value";
    return value;
}

std::string Shown(double value)
{
    return FormatFixed(value, OneDecimal, ",");
}

std::string Shown2(double value)
{
    return FormatFixed(value, TwoDecimals, ",");
}

TEST(ReadNumber, TakesPointAndComma)
{
    EXPECT_EQ(Read("2.5"), 2.5);
    EXPECT_EQ(Read("2,5"), 2.5);
    EXPECT_EQ(Read("1.250"), 1.25);
    EXPECT_EQ(Read("7"), 7);
    EXPECT_EQ(Read("  7 "), 7);
    EXPECT_EQ(Read("-3,5"), -3.5);
    EXPECT_EQ(Read("+3.5"), 3.5);
    EXPECT_EQ(Read(",5"), 0.5);
    EXPECT_EQ(Read("5."), 5);
    EXPECT_EQ(Read("1e3"), 1000);
    EXPECT_EQ(Read("2,5E-1"), 0.25);
    EXPECT_EQ(Read("00000000000000000000000000000000007"), 7);
}

TEST(ReadNumber, ReadsEverythingElseAsZero)
{
    for (const char* text :
         {"",   " ",    "abc", "1.2.3", "1,250.5", "12 3", "1-",   "--1",      "+-1",   "-+1",    "++1",
          ".",  ",",    "-",   "+",     "e5",      "1e",   "0x10", "inf",      "-inf",  "nan",    "NaN",
          "7h", "5 kn", "\t7", "7\n",   "žao",     "\xFF", "½",    "infinity", "1e400", "-1e400", "1e-400"})
        EXPECT_EQ(Read(text), 0) << text;
    EXPECT_EQ(Read(std::string(400, '9')), 0);
    EXPECT_EQ(Read(std::string("7\0", 2)), 0);
}

TEST(ReadNumber, TakesAnySeparatorOfTheUser)
{
    EXPECT_EQ(ReadNumber("2٫5", "٫"), 2.5);
    EXPECT_EQ(ReadNumber("2,5", "٫"), 2.5);
    EXPECT_EQ(ReadNumber("2'5", "'"), 2.5);
    EXPECT_EQ(ReadNumber("2'5", ","), 0);
    EXPECT_EQ(FormatFixed(-2.5, OneDecimal, "٫"), "-2٫5");
}

TEST(FormatFixed, ShowsTheDecimalsOfThePattern)
{
    EXPECT_EQ(Shown(0), "0,0");
    EXPECT_EQ(Shown2(0), "0,00");
    EXPECT_EQ(Shown(12.5), "12,5");
    EXPECT_EQ(FormatFixed(12.5, TwoDecimals, "."), "12.50");
    EXPECT_EQ(Shown(1234567), "1234567,0");
    EXPECT_EQ(Shown(-7), "-7,0");
}

TEST(FormatFixed, RoundsHalvesAwayFromZeroAsOnPaper)
{
    EXPECT_EQ(Shown(0.25), "0,3");
    EXPECT_EQ(Shown(-0.25), "-0,3");
    EXPECT_EQ(Shown(0.35), "0,4");
    EXPECT_EQ(Shown(0.45), "0,5");
    EXPECT_EQ(Shown(1.15), "1,2");
    EXPECT_EQ(Shown(0.05), "0,1");
    EXPECT_EQ(Shown(0.04), "0,0");
    EXPECT_EQ(Shown(0.0499999999), "0,0");
    EXPECT_EQ(Shown(0.049999999999), "0,0") << "twelve decimals count";
    EXPECT_EQ(Shown(999.949999999999), "999,9");
    EXPECT_EQ(Shown(99999.9499999999), "99999,9") << "fifteen digits count";
    EXPECT_EQ(Shown2(0.00499999999), "0,00");
    EXPECT_EQ(Shown(0.95), "1,0");
    EXPECT_EQ(Shown(9.95), "10,0");
    EXPECT_EQ(Shown(99.949), "99,9");
    EXPECT_EQ(Shown(999999.95), "1000000,0");
    EXPECT_EQ(Shown2(1.005), "1,01");
    EXPECT_EQ(Shown2(2.675), "2,68");
    EXPECT_EQ(Shown2(-9.995), "-10,00");
}

TEST(FormatFixed, IgnoresBinaryRoundingNoise)
{
    EXPECT_EQ(Shown(45.0 / 100 * 7), "3,2");
    EXPECT_EQ(Shown(0.1 + 0.7 - 0.55), "0,3");
    EXPECT_EQ(Shown(100.1 - 100.05), "0,1");
    EXPECT_EQ(Shown(1000.3 - 1000.25), "0,1");
    EXPECT_EQ(Shown(0.1 + 0.2 - 0.3), "0,0");
    EXPECT_EQ(Shown(0.3 - 0.1 - 0.2), "0,0");
    EXPECT_EQ(Shown2(0.7 / 28), "0,03");
    EXPECT_EQ(Shown(4.35 * 100 / 100 + 1e6), "1000004,4");
    EXPECT_EQ(Shown2(1e13 + 0.045), "10000000000000,05"); // in binary 0.0449 after the point
}

TEST(FormatFixed, ShowsNoMinusOnAZero)
{
    EXPECT_EQ(Shown(-0.0), "0,0");
    EXPECT_EQ(Shown(-0.04), "0,0");
    EXPECT_EQ(Shown2(-0.004), "0,00");
    EXPECT_EQ(Shown(-1e-300), "0,0");
}

TEST(FormatFixed, ShowsZeroForWhatIsNoNumber)
{
    EXPECT_EQ(Shown(std::numeric_limits<double>::infinity()), "0,0");
    EXPECT_EQ(Shown2(-std::numeric_limits<double>::infinity()), "0,00");
    EXPECT_EQ(Shown(std::numeric_limits<double>::quiet_NaN()), "0,0");
}

TEST(FormatFixed, ShowsTheLargestNumberWhole)
{
    const std::string text = Shown(-std::numeric_limits<double>::max());
    EXPECT_EQ(text.size(), 1U + 309U + 2U);
    EXPECT_EQ(text.substr(0, 6), "-17976");
}

TEST(FormatFixed, RoundsEveryHalfOfATenthUp)
{
    for (int tenths = 0; tenths < 200000; ++tenths)
    {
        const std::string text = std::to_string(tenths / 10) + "." + std::to_string(tenths % 10) + "5";
        const int up = tenths + 1;
        ASSERT_EQ(FormatFixed(ReadNumber(text, "."), OneDecimal, "."),
                  std::to_string(up / 10) + "." + std::to_string(up % 10))
            << text;
    }
}

/// A number, given by its digits and the number of decimals among them, rounded as on paper.
std::string OnPaper(std::int64_t digits, int decimals, int shown)
{
    for (; decimals < shown; ++decimals)
        digits *= 10;
    std::int64_t unit = 1;
    for (; decimals > shown; --decimals)
        unit *= 10;
    const std::int64_t rounded = (2 * std::abs(digits) + unit) / (2 * unit);
    std::string text = std::to_string(rounded);
    const auto least = static_cast<std::size_t>(shown) + 1;
    if (text.size() < least)
        text.insert(0, least - text.size(), '0');
    text.insert(text.size() - least + 1, ",");
    return (digits < 0 && rounded != 0 ? "-" : "") + text;
}

class RandomDigits
{
public:
    int Below(int limit) { return std::uniform_int_distribution(0, limit - 1)(m_engine); }

    /// A digit that occurs in many halves and in numbers just below and above one.
    int Next()
    {
        constexpr int usual[] = {0, 0, 4, 5, 9, 9};
        return Below(4) == 0 ? Below(10) : usual[Below(static_cast<int>(std::size(usual)))];
    }

private:
    std::mt19937 m_engine{20260309};
};

TEST(FormatFixed, RoundsEveryNumberOfFifteenDigitsAsOnPaper)
{
    constexpr int mostDigits = 15;
    constexpr int mostDecimals = 12;
    RandomDigits random;
    for (int round = 0; round < 100000; ++round)
    {
        const int wholeDigits = 1 + random.Below(10);
        const int decimals = random.Below(1 + std::min(mostDigits - wholeDigits, mostDecimals));
        std::int64_t digits = 0;
        std::string text = random.Below(4) == 0 ? "-" : "";
        const bool negative = !text.empty();
        for (int i = 0; i < wholeDigits + decimals; ++i)
        {
            const int digit = random.Next();
            digits = digits * 10 + digit;
            text.append(i == wholeDigits ? "," : "").append(std::to_string(digit));
        }
        const double value = ReadNumber(text, ",");
        ASSERT_EQ(Shown(value), OnPaper(negative ? -digits : digits, decimals, 1)) << text;
        ASSERT_EQ(Shown2(value), OnPaper(negative ? -digits : digits, decimals, 2)) << text;
    }
}

TEST(HoursSum, IsRoundedAsOnPaper)
{
    constexpr int decimals = 4;
    RandomDigits random;
    for (int round = 0; round < 100000; ++round)
    {
        std::int64_t exact = 0;
        HoursSum sum;
        const int limit = random.Below(2) == 0 ? 1000 : 1000000;
        for (int entries = 1 + random.Below(9); entries > 0; --entries)
        {
            std::int64_t digits = random.Below(limit);
            for (int i = 0; i < decimals; ++i)
                digits = digits * 10 + random.Next();
            if (random.Below(4) == 0)
                digits = -digits;
            exact += digits;
            sum.Add(ReadNumber(std::to_string(digits) + "e-4", ","));
        }
        ASSERT_EQ(Shown(sum.Value()), OnPaper(exact, decimals, 1));
        ASSERT_EQ(Shown2(sum.Value()), OnPaper(exact, decimals, 2));
    }
}

TEST(HoursSum, IsNotFiniteIfItIsTooLarge)
{
    HoursSum sum;
    for (int i = 0; i < 2; ++i)
        sum.Add(std::numeric_limits<double>::max());
    EXPECT_FALSE(std::isfinite(sum.Value()));
    EXPECT_EQ(HoursSum().Value(), 0);
}

TEST(FieldNumbers, WhatWasWrittenReadsBackAsTheSameFigure)
{
    std::mt19937_64 random(20260309);
    std::uniform_real_distribution<double> magnitude(-20, 300);
    std::uniform_real_distribution<double> digits(-1, 1);
    for (int i = 0; i < 200000; ++i)
    {
        const double value = digits(random) * std::pow(10, magnitude(random) / (i % 2 == 0 ? 1 : 20));
        for (const std::string_view pattern : {OneDecimal, TwoDecimals})
        {
            const std::string text = FormatFixed(value, pattern, ",");
            ASSERT_EQ(FormatFixed(ReadNumber(text, ","), pattern, ","), text) << value;
        }
    }
}

} // namespace

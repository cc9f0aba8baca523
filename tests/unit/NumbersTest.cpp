#include "data/Numbers.h"
#include "data/Errors.h"

#include <gtest/gtest.h>

TEST(Numbers, HalvesAreRoundedToEven)
{
    EXPECT_EQ(ToLong("0.5"), 0);
    EXPECT_EQ(ToLong("1,5"), 2);
    EXPECT_EQ(ToLong("2.5"), 2);
    EXPECT_EQ(ToLong("2.50000000000000000001"), 3);
    EXPECT_EQ(ToLong("-1.5"), -2);
    EXPECT_EQ(ToLong("-0.5"), 0);
    EXPECT_EQ(ToLong("1.49999"), 1);
}

TEST(Numbers, TheRangeEndsWithRounding)
{
    EXPECT_EQ(ToLong("2147483647"), 2147483647);
    EXPECT_EQ(ToLong("2147483647.4"), 2147483647);
    EXPECT_THROW(ToLong("2147483647.5"), Overflow);
    EXPECT_EQ(ToLong("-2147483648.5"), INT32_MIN);
    EXPECT_THROW(ToLong("-2147483648.51"), Overflow);
    EXPECT_THROW(ToLong("99999999999999999999999999"), Overflow);
    EXPECT_EQ(ToLong("00000000000000000000000007"), 7);
}

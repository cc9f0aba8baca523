#include "text/TabSeparated.h"

#include <gtest/gtest.h>

namespace
{

using Rows = std::vector<std::vector<std::string>>;

TEST(TabSeparated, PutsATabBetweenCellsAndALineEndAfterEachRow)
{
    EXPECT_EQ(TabSeparated(Rows{}, "\r\n"), "");
    EXPECT_EQ(TabSeparated(Rows{{"ID", "Kolegij", "P"}, {"1", "Uvod", ""}, {"2", "", "3"}}, "\r\n"),
              "ID\tKolegij\tP\r\n1\tUvod\t\r\n2\t\t3\r\n");
    EXPECT_EQ(TabSeparated(Rows{{"Žičano"}}, "\n"), "Žičano\n");
}

TEST(TabSeparated, MakesATabAndALineBreakInsideACellABlank)
{
    EXPECT_EQ(TabSeparated(Rows{{"a\tb", "c\rd", "e\nf", "g\r\nh", "\n\n\r", "\r\r\n"}}, "\n"),
              "a b\tc d\te f\tg h\t   \t  \n");
}

TEST(TabSeparated, LeavesQuotesAndSemicolonsAsTheyAre)
{
    EXPECT_EQ(TabSeparated(Rows{{"\"a\"; b", "=1+1"}}, "\n"), "\"a\"; b\t=1+1\n");
}

} // namespace

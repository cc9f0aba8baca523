#include "lists/ListRow.h"

#include <gtest/gtest.h>

namespace
{

TEST(ListRow, AnElectiveIsBlueHoweverItsTypeIsWritten)
{
    for (const char* tip : {"izborni", "Izborni", "IZBORNI", "  izBorni "})
        EXPECT_EQ(ElectiveColour(tip), 0xFF0000U) << tip;
}

TEST(ListRow, EveryOtherTypeIsBlack)
{
    for (const char* tip : {"obvezni", "Obvezni ", "izborni.", "izborni predmet", "izborn", "\tizborni", ""})
        EXPECT_EQ(ElectiveColour(tip), 0U) << tip;
}

TEST(ListRow, TheCellsOfAUniformRowAreDrawnAlike)
{
    const ListRow row = UniformRow({"a", "", "b"}, Red, true);
    ASSERT_EQ(row.size(), 3U);
    EXPECT_EQ(row[0].Text + row[1].Text + row[2].Text, "ab");
    for (const ListCell& cell : row)
    {
        EXPECT_EQ(cell.Colour, 255U);
        EXPECT_TRUE(cell.Bold);
    }
}

} // namespace

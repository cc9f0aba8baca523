#include "lists/ListRow.h"

#include <gtest/gtest.h>

#include <stdexcept>

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

TEST(ListRow, EachCellKeepsItsTextAndItsLook)
{
    ListRow row = {{"prva"}, {""}, {"š;č"}, {"zadnja", Red, true}};
    row.SetColour(0, Blue);
    ASSERT_EQ(row.size(), 4U);
    EXPECT_EQ(row[0].Text + "|" + row[1].Text + "|" + row[2].Text + "|" + row[3].Text, "prva||š;č|zadnja");
    EXPECT_EQ(row.Text(2), "š;č");
    EXPECT_EQ(row[0].Colour, Blue);
    EXPECT_EQ(row[1].Colour, Black);
    EXPECT_EQ(row[3].Colour, Red);
    EXPECT_FALSE(row[2].Bold);
    EXPECT_TRUE(row[3].Bold);
}

TEST(ListRow, IsReadInOrderAndFilledAnew)
{
    ListRow row = {{"a"}, {"b"}, {"c"}};
    std::string read;
    for (const ListCell& cell : row)
        read += cell.Text;
    EXPECT_EQ(read, "abc");

    row.clear();
    EXPECT_TRUE(row.empty());
    row.Add("d");
    EXPECT_EQ(row.size(), 1U);
    EXPECT_EQ(row.front().Text, "d");
}

TEST(ListRow, ACellThatIsNotThereIsAnError)
{
    ListRow row = {{"a"}};
    EXPECT_THROW(static_cast<void>(row[1]), std::out_of_range);
    while (row.size() < MostColumns)
        row.Add("x");
    EXPECT_THROW(row.Add("beyond"), std::out_of_range);
    EXPECT_EQ(row.size(), MostColumns);
}

} // namespace

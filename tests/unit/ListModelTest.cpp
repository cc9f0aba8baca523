#include "ui/controls/ListModel.h"

#include <gtest/gtest.h>

namespace
{

TEST(ListModel, AnElectiveIsBlueInEverySpellingOfItsType)
{
    for (const char* tip : {"izborni", "Izborni", "IZBORNI", "  izBorni "})
        EXPECT_EQ(ElectiveColour(tip), 0xFF0000U) << tip;
}

TEST(ListModel, EveryOtherTypeIsBlack)
{
    for (const char* tip : {"obvezni", "Obvezni ", "izborni.", "izborni predmet", "izborn", "\tizborni", ""})
        EXPECT_EQ(ElectiveColour(tip), 0U) << tip;
}

TEST(ListModel, TheCellsOfAUniformRowLookAlike)
{
    const ListRow row = UniformRow({"a", "", "b"}, TextColours::Red, true);
    ASSERT_EQ(row.size(), 3U);
    EXPECT_EQ(row[0].Text + row[1].Text + row[2].Text, "ab");
    for (const ListCell& cell : row)
    {
        EXPECT_EQ(cell.Colour, 255U);
        EXPECT_TRUE(cell.Bold);
    }
}

TEST(ListModel, KeptRowsAnswerForTheirCells)
{
    const KeptRows rows({{{"a"}, {"b", TextColours::Red, true}}, {{"c", TextColours::Blue}, {""}}});
    ASSERT_EQ(rows.RowCount(), 2U);
    EXPECT_EQ(rows.Text(0, 0) + rows.Text(0, 1) + rows.Text(1, 0) + rows.Text(1, 1), "abc");
    EXPECT_EQ(rows.Style(0, 0), CellStyle());
    EXPECT_EQ(rows.Style(0, 1), (CellStyle{TextColours::Red, true}));
    EXPECT_EQ(rows.Style(1, 0), (CellStyle{TextColours::Blue, false}));
}

} // namespace

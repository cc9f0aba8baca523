#include "text/CroatianOrder.h"
#include "ui/controls/ListModel.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

using Texts = std::vector<std::string>;

/// Expects that these texts are in ascending order.
void ExpectOrder(const Texts& texts)
{
    for (std::size_t i = 0; i + 1 < texts.size(); ++i)
        EXPECT_LT(CroatianSortKey(texts[i]), CroatianSortKey(texts[i + 1]))
            << texts[i] << " < " << texts[i + 1];
}

TEST(CroatianOrder, FollowsTheAlphabet)
{
    ExpectOrder({"a", "b", "c",  "č", "ć", "d", "dž", "đ", "e", "f", "g", "h", "i", "j", "k", "l", "lj",
                 "m", "n", "nj", "o", "p", "q", "r",  "s", "š", "t", "u", "v", "w", "x", "y", "z", "ž"});
}

TEST(CroatianOrder, ADigraphIsOneLetter)
{
    ExpectOrder({"ludost", "lužina", "ljeto"});
    ExpectOrder({"nz", "njegov", "o"});
    ExpectOrder({"dz", "džep", "đak"});
    EXPECT_EQ(CroatianSortKey("Ljeto"), CroatianSortKey("LJETO"));
    EXPECT_EQ(CroatianSortKey("Džep"), CroatianSortKey("DŽEP"));
}

TEST(CroatianOrder, CaseDoesNotMatterAndForeignLettersSortWithTheirOwn)
{
    EXPECT_EQ(CroatianSortKey("ČĆĐ š"), CroatianSortKey("čćđ Š"));
    EXPECT_EQ(CroatianSortKey("Müller ß é ł"), CroatianSortKey("muller s E l"));
}

TEST(CroatianOrder, EveryForeignLetterOfWindows1250SortsWithItsOwn)
{
    EXPECT_EQ(CroatianSortKey("śťźłąşľżŕáâăäĺçéęëěíîďńňóôőöřůúűüýţß"),
              CroatianSortKey("stzlaslzraaaalceeeeiidnnooooruuuuyts"));
    EXPECT_EQ(CroatianSortKey("ŚŤŹŁĄŞĽŻŔÁÂĂÄĹÇÉĘËĚÍÎĎŃŇÓÔŐÖŘŮÚŰÜÝŢ"),
              CroatianSortKey("STZLASLZRAAAALCEEEEIIDNNOOOORUUUUYT"));
}

TEST(CroatianOrder, ADigraphIsOneInEveryCase)
{
    for (const char* text : {"dž", "Dž", "dŽ", "DŽ"})
        EXPECT_EQ(CroatianSortKey(text), CroatianSortKey("dž")) << text;
    ExpectOrder({"lz", "lJ", "m"});
    ExpectOrder({"Nz", "nJ", "O"});
    ExpectOrder({"l j", "lz", "lj"});
}

TEST(CroatianOrder, ATextComesBeforeALongerOneThatBeginsWithIt)
{
    ExpectOrder({"n", "na", "nz", "nj", "nja"});
}

TEST(CroatianOrder, NumbersSortAsTextBeforeLetters)
{
    ExpectOrder({"", " a", "(1)", "10", "5", "5a", "a", "a 1", "a1", "ab", "–"});
}

Texts Sorted(const Texts& texts, bool descending)
{
    std::vector<ListRow> rows;
    for (const std::string& text : texts)
        rows.push_back({{"x"}, {text}});
    Texts sorted;
    for (const std::size_t position :
         SortedPositions(KeptRows(rows), {.Column = 1, .Descending = descending}))
        sorted.push_back(texts[position]);
    return sorted;
}

TEST(Sorting, EqualTextsKeepTheirOrderInBothDirections)
{
    EXPECT_EQ(Sorted({"b", "A", "a", "B", "č"}, false), (Texts{"A", "a", "b", "B", "č"}));
    EXPECT_EQ(Sorted({"b", "A", "a", "B", "č"}, true), (Texts{"č", "b", "B", "A", "a"}));
    EXPECT_EQ(Sorted({}, false), Texts{});
}

TEST(Sorting, ManyEqualTextsKeepTheirOrderInBothDirections)
{
    const KeptRows rows(std::vector<ListRow>(100, ListRow{{"Lov"}}));
    std::vector<std::size_t> asTheyStood;
    for (std::size_t i = 0; i < rows.RowCount(); ++i)
        asTheyStood.push_back(i);
    EXPECT_EQ(SortedPositions(rows, {.Column = 0, .Descending = false}), asTheyStood);
    EXPECT_EQ(SortedPositions(rows, {.Column = 0, .Descending = true}), asTheyStood);
}

TEST(Sorting, NumbersAreTexts)
{
    EXPECT_EQ(Sorted({"5", "10", "9", "1"}, false), (Texts{"1", "10", "5", "9"}));
    EXPECT_EQ(Sorted({"5", "10", "9", "1"}, true), (Texts{"9", "5", "10", "1"}));
}

} // namespace

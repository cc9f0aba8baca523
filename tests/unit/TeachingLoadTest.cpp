#include "statistics/TeachingLoad.h"

#include "data/Errors.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace
{

constexpr std::int32_t Largest = std::numeric_limits<std::int32_t>::max();

/// A row as one text: cells joined by "|", "*" before a bold cell, "!" before a red one.
std::string Shown(const ListRow& row)
{
    std::string shown;
    for (const ListCell& cell : row)
    {
        shown += shown.empty() ? "" : "|";
        shown += (cell.Bold ? "*" : "") + std::string(cell.Colour == TextColours::Red ? "!" : "") + cell.Text;
    }
    return shown;
}

std::vector<std::string> Shown(const std::vector<ListRow>& rows)
{
    std::vector<std::string> shown;
    for (const ListRow& row : rows)
        shown.push_back(Shown(row));
    return shown;
}

// Types

TEST(TeachingLoad, ATypeIsRecognisedInAnyCaseAndWithBlanksAround)
{
    for (const OtherTypes others : {OtherTypes::CountAsElective, OtherTypes::DoNotCount})
    {
        EXPECT_EQ(TipOf("obvezni", others), Tip::Obvezni);
        EXPECT_EQ(TipOf(" OBVEZNI ", others), Tip::Obvezni);
        EXPECT_EQ(TipOf("izborni", others), Tip::Izborni);
        EXPECT_EQ(TipOf("  Izborni", others), Tip::Izborni);
    }
}

TEST(TeachingLoad, AnyOtherTypeIsElectiveOrDoesNotCount)
{
    for (const char* text : {"", "  ", "fakultativni", "obvezni.", "obv ezni"})
    {
        EXPECT_EQ(TipOf(text, OtherTypes::CountAsElective), Tip::Izborni) << text;
        EXPECT_EQ(TipOf(text, OtherTypes::DoNotCount), std::nullopt) << text;
    }
}

// Sums

void ExpectLoad(const TeachingLoad& load, std::int32_t p, std::int32_t s, std::int32_t v, std::int32_t ects,
                std::int32_t count)
{
    EXPECT_EQ(load.P, p);
    EXPECT_EQ(load.S, s);
    EXPECT_EQ(load.V, v);
    EXPECT_EQ(load.ECTS, ects);
    EXPECT_EQ(load.Kolegija, count);
}

TEST(TeachingLoad, LoadsAddAndMultiplyFieldByField)
{
    TeachingLoad load{1, 2, 3, 4, 5};
    load += TeachingLoad{10, 20, 30, 40, 50};
    ExpectLoad(load, 11, 22, 33, 44, 55);
    ExpectLoad(load.Times(3), 33, 66, 99, 132, 165);
    ExpectLoad(load.Times(0), 0, 0, 0, 0, 0);
}

TEST(TeachingLoad, ASumOrProductThatDoesNotFitIsAnErrorInEveryField)
{
    const TeachingLoad large[] = {
        {.P = Largest}, {.S = Largest}, {.V = Largest}, {.ECTS = Largest}, {.Kolegija = Largest}};
    const TeachingLoad one = {1, 1, 1, 1, 1};
    for (TeachingLoad load : large)
    {
        EXPECT_THROW(load += one, OverflowError);
        EXPECT_THROW(load.Times(2), OverflowError);
        EXPECT_NO_THROW(load.Times(1));
    }
    TeachingLoad small = {.P = -Largest};
    small += TeachingLoad{.P = -1};
    EXPECT_EQ(small.P, std::numeric_limits<std::int32_t>::min());
    EXPECT_THROW(small += TeachingLoad{.P = -1}, OverflowError);
}

TEST(TeachingLoad, SumsKeepSemestersAndTypesApart)
{
    TeachingLoadSums sums;
    sums.Add(1, Tip::Obvezni, {1, 0, 0, 5, 1});
    sums.Add(1, Tip::Obvezni, {2, 1, 0, 6, 1});
    sums.Add(1, Tip::Izborni, {4, 0, 0, 3, 1});
    sums.Add(6, Tip::Izborni, {8, 0, 0, 2, 1});
    ExpectLoad(sums.Of(1, Tip::Obvezni), 3, 1, 0, 11, 2);
    ExpectLoad(sums.Of(1, Tip::Izborni), 4, 0, 0, 3, 1);
    ExpectLoad(sums.Of(6, Tip::Izborni), 8, 0, 0, 2, 1);
    ExpectLoad(sums.Of(6, Tip::Obvezni), 0, 0, 0, 0, 0);
    ExpectLoad(sums.Total(Tip::Izborni, 6), 12, 0, 0, 5, 2);
    ExpectLoad(sums.Total(Tip::Izborni, 5), 4, 0, 0, 3, 1);
}

TEST(TeachingLoad, SemestersThatAreNoneAreLeftOut)
{
    TeachingLoadSums sums;
    for (const std::int32_t semestar : {0, 7, -1, Largest, std::numeric_limits<std::int32_t>::min()})
        sums.Add(semestar, Tip::Obvezni, {1, 1, 1, 1, 1});
    ExpectLoad(sums.Total(Tip::Obvezni, 6), 0, 0, 0, 0, 0);
}

// Rows

TEST(TeachingLoad, ListsSemestersThenTypesThenBoldTotals)
{
    TeachingLoadSums sums;
    sums.Add(1, Tip::Obvezni, {3, 2, 1, 30, 4});
    sums.Add(2, Tip::Izborni, {1, 1, 1, 31, 2});
    EXPECT_EQ(Shown(TeachingLoadRows(sums, FlaggingStyle, {.Last = 2})),
              (std::vector<std::string>{
                  "1|Obvezni|3|2|1|30|4",
                  "1|Izborni|0|0|0|0|0",
                  "2|Obvezni|0|0|0|0|0",
                  "2|Izborni|1|1|1|!31|2",
                  "*UKUPNO|*Obvezni|*3|*2|*1|*30|*4",
                  "*UKUPNO|*Izborni|*1|*1|*1|*31|*2",
                  "*TOTAL|*Sve|*4|*3|*2|*61|*6",
              }));
}

TEST(TeachingLoad, ThePlainStyleHasItsOwnLabelsAndNoRed)
{
    TeachingLoadSums sums;
    sums.Add(1, Tip::Obvezni, {3, 2, 1, 31, 4});
    EXPECT_EQ(Shown(TeachingLoadRows(sums, PlainStyle, {.Last = 1})), (std::vector<std::string>{
                                                                          "1|Obvezni|3|2|1|31|4",
                                                                          "1|Izborni|0|0|0|0|0",
                                                                          "*Ukupno|*Obvezni|*3|*2|*1|*31|*4",
                                                                          "*Ukupno|*Izborni|*0|*0|*0|*0|*0",
                                                                          "*Ukupno|*Total|*3|*2|*1|*31|*4",
                                                                      }));
}

TEST(TeachingLoad, HasTwoRowsPerSemesterAndThreeOfTotals)
{
    EXPECT_EQ(TeachingLoadRows({}, FlaggingStyle).size(), 15U);
    EXPECT_EQ(TeachingLoadRows({}, FlaggingStyle, {.Last = 4}).size(), 11U);
    EXPECT_EQ(TeachingLoadRows({}, FlaggingStyle, {.Last = 6, .Only = 5}).size(), 5U);
    EXPECT_EQ(TeachingLoadRows({}, FlaggingStyle, {.Last = 4, .Only = 5}).size(), 3U) << "no such semester";
}

TEST(TeachingLoad, TheTotalsOfOneSemesterCoverAllThatAreSummed)
{
    TeachingLoadSums sums;
    sums.Add(1, Tip::Obvezni, {1, 0, 0, 0, 1});
    sums.Add(2, Tip::Obvezni, {2, 0, 0, 0, 1});
    sums.Add(5, Tip::Obvezni, {4, 0, 0, 0, 1});
    const std::vector<ListRow> rows = TeachingLoadRows(sums, FlaggingStyle, {.Last = 4, .Only = 2});
    EXPECT_EQ(Shown(rows.front()), "2|Obvezni|2|0|0|0|1");
    EXPECT_EQ(Shown(rows.back()), "*TOTAL|*Sve|*3|*0|*0|*0|*2");
}

TEST(TeachingLoad, ATotalThatDoesNotFitIsAnError)
{
    TeachingLoadSums ofOneType;
    ofOneType.Add(1, Tip::Obvezni, {.P = Largest});
    ofOneType.Add(2, Tip::Obvezni, {.P = 1});
    EXPECT_THROW(TeachingLoadRows(ofOneType, FlaggingStyle), OverflowError);

    TeachingLoadSums ofBothTypes;
    ofBothTypes.Add(1, Tip::Obvezni, {.P = Largest});
    ofBothTypes.Add(1, Tip::Izborni, {.P = 1});
    EXPECT_THROW(TeachingLoadRows(ofBothTypes, FlaggingStyle), OverflowError);
}

} // namespace

#include "ui/main/SemesterStatistics.h"

#include "data/Errors.h"
#include "support/Catalogue.h"
#include "support/Lists.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <utility>

namespace
{

/// One study with two directions, a second study, and no courses yet.
Catalogue Empty()
{
    Catalogue catalogue;
    catalogue.Zavodi = {"1;Zavod;Z"};
    catalogue.Nastavnici = {"1;Anić Ana;;1"};
    catalogue.Studiji = {"1;Prvi;PRV;Preddiplomski", "2;Drugi;DRU;Preddiplomski"};
    catalogue.Smjerovi = {"1;A;A;1;Preddiplomski", "2;B;B;1;Preddiplomski", "3;C;C;2;Preddiplomski"};
    return catalogue;
}

Catalogue With(Catalogue::Lines kolegiji, Catalogue::Lines kolegijSmjerovi)
{
    Catalogue catalogue = Empty();
    catalogue.Kolegiji = std::move(kolegiji);
    catalogue.KolegijSmjerovi = std::move(kolegijSmjerovi);
    return catalogue;
}

/// The numbers of a row, from P to the number of courses, as one text. The row is found by its first two
/// cells.
std::string Sums(const std::vector<ListRow>& rows, const std::string& first, const std::string& second)
{
    for (const ListRow& row : rows)
        if (row[0].Text == first && row[1].Text == second)
            return row[2].Text + " " + row[3].Text + " " + row[4].Text + " " + row[5].Text + " " +
                   row[6].Text;
    return "no row " + first + " " + second;
}

CourseFilter OfStudij(std::int32_t id)
{
    CourseFilter filter;
    filter.StudijID = id;
    return filter;
}

CourseFilter OfSmjer(std::int32_t id)
{
    CourseFilter filter;
    filter.SmjerID = id;
    return filter;
}

CourseFilter OfSemestar(std::int32_t semestar)
{
    CourseFilter filter;
    filter.Semestar = semestar;
    return filter;
}

std::string Total(const CourseFilter& filter, const char* razina = "Preddiplomski")
{
    return Sums(StatistikaRows(filter, razina), "TOTAL", "Sve");
}

// Weights

TEST(SemesterStatistics, ACourseCountsOncePerDirectionOrOnceForTheChosenOne)
{
    With({"7;K;2;1;3;5;obvezni;1;1"}, {"7;1", "7;2"}).Use();
    EXPECT_EQ(Total({}), "4 2 6 10 2");
    EXPECT_EQ(Total(OfSmjer(1)), "2 1 3 5 1");
    EXPECT_EQ(Total(OfSmjer(2)), "2 1 3 5 1");
    EXPECT_EQ(Total(OfSmjer(3)), "0 0 0 0 0");
}

TEST(SemesterStatistics, ADirectionLinkedTwiceCountsTwiceOnlyWithoutAFilter)
{
    With({"7;K;2;1;3;5;obvezni;1;1"}, {"7;1", "7;1"}).Use();
    EXPECT_EQ(Total({}), "4 2 6 10 2");
    EXPECT_EQ(Total(OfSmjer(1)), "2 1 3 5 1");
}

TEST(SemesterStatistics, ACourseWithoutADirectionDoesNotCount)
{
    With({"7;K;2;1;3;5;obvezni;1;1", "8;Too large to count;99999999999;0;0;0;obvezni;1;1"}, {}).Use();
    EXPECT_EQ(Total({}), "0 0 0 0 0");
}

TEST(SemesterStatistics, LinksAreCountedByNumber)
{
    With({}, {"7;1", "07; 2", "7.0;9", "8;1"}).Use();
    EXPECT_EQ(CountKolegijSmjerLinks(7, 0), 3) << "to unknown directions too";
    EXPECT_EQ(CountKolegijSmjerLinks(7, 2), 1);
    EXPECT_EQ(CountKolegijSmjerLinks(7, 9), 1);
    EXPECT_EQ(CountKolegijSmjerLinks(7, 3), 0);
    EXPECT_EQ(CountKolegijSmjerLinks(9, 0), 0);
}

// Which courses, which row

TEST(SemesterStatistics, StudySemesterAndSearchFilterTheCourses)
{
    Catalogue catalogue =
        With({"1;Prvi;1;0;0;1;obvezni;1;1", "2;Drugi;10;0;0;1;obvezni;2;1", "3;Treći;100;0;0;1;izborni;1;2"},
             {"1;1", "2;1", "3;3"});
    catalogue.KolegijNastavnici = {"2;1;Nositelj;1"};
    catalogue.Use();
    EXPECT_EQ(Total({}), "111 0 0 3 3");
    EXPECT_EQ(Total(OfStudij(1)), "11 0 0 2 2");
    EXPECT_EQ(Total(OfStudij(2)), "100 0 0 1 1");
    EXPECT_EQ(Total(OfSemestar(2)), "10 0 0 1 1");
    EXPECT_EQ(Total({1, 0, 1, ""}), "1 0 0 1 1");
    EXPECT_EQ(Total({.Search = " ana "}), "10 0 0 1 1");
    EXPECT_EQ(Total({.Search = "TREĆI"}), "100 0 0 1 1");
    EXPECT_EQ(Total({.Search = "  "}), "111 0 0 3 3");
}

TEST(SemesterStatistics, CoursesAfterTheLevelsLastSemesterAreLeftOut)
{
    With({"1;K;1;0;0;1;obvezni;4;1", "2;K;2;0;0;1;obvezni;5;1", "3;K;4;0;0;1;obvezni;6;1",
          "4;K;8;0;0;1;obvezni;7;1", "5;K;16;0;0;1;obvezni;0;1", "6;K;32;0;0;1;obvezni;-1;1"},
         {"1;1", "2;1", "3;1", "4;1", "5;1", "6;1"})
        .Use();
    EXPECT_EQ(Total({}, "Diplomski"), "1 0 0 1 1");
    EXPECT_EQ(Total({}, "Preddiplomski"), "7 0 0 3 3");
    EXPECT_EQ(Total({}, ""), "7 0 0 3 3") << "any other level has six semesters";
    EXPECT_EQ(Total({}, "diplomski"), "7 0 0 3 3");
}

TEST(SemesterStatistics, NothingOfACourseThatIsLeftOutIsRead)
{
    With({"1;K;99999999999;0;0;1;obvezni;5;1"}, {"1;1"}).Use();
    EXPECT_EQ(Total({}, "Diplomski"), "0 0 0 0 0");
    EXPECT_THROW(StatistikaRows({}, "Preddiplomski"), OverflowError);
}

TEST(SemesterStatistics, EveryTypeButTheCompulsoryOneIsElective)
{
    With({"1;K;1;0;0;1;obvezni;1;1", "2;K;2;0;0;1; Obvezni ;1;1", "3;K;4;0;0;1;izborni;1;1",
          "4;K;8;0;0;1;fakultativni;1;1", "5;K;16;0;0;1;;1;1"},
         {"1;1", "2;1", "3;1", "4;1", "5;1"})
        .Use();
    const std::vector<ListRow> rows = StatistikaRows({}, "Preddiplomski");
    EXPECT_EQ(Sums(rows, "1", "Obvezni"), "3 0 0 2 2");
    EXPECT_EQ(Sums(rows, "1", "Izborni"), "28 0 0 3 3");
    EXPECT_EQ(Sums(rows, "UKUPNO", "Obvezni"), "3 0 0 2 2");
    EXPECT_EQ(Sums(rows, "UKUPNO", "Izborni"), "28 0 0 3 3");
}

TEST(SemesterStatistics, ShowsAllSemestersOfTheLevelOrTheChosenOne)
{
    Empty().Use();
    EXPECT_EQ(StatistikaRows({}, "Preddiplomski").size(), 15U);
    EXPECT_EQ(StatistikaRows({}, "Diplomski").size(), 11U);
    const std::vector<ListRow> rows = StatistikaRows(OfSemestar(3), "Diplomski");
    ASSERT_EQ(rows.size(), 5U);
    EXPECT_EQ(rows[0][0].Text, "3");
    EXPECT_EQ(rows[0][1].Text, "Obvezni");
    EXPECT_EQ(rows[1][0].Text, "3");
    EXPECT_EQ(rows[1][1].Text, "Izborni");
}

// Red

TEST(SemesterStatistics, MoreThan30EctsOfASemestersTypeAreRedInTheirCellAlone)
{
    With({"1;K;50;50;50;30;obvezni;1;1", "2;K;0;0;0;31;obvezni;2;1", "3;K;0;0;0;16;izborni;3;1"},
         {"1;1", "2;1", "3;1", "3;2"})
        .Use();
    for (const ListRow& row : StatistikaRows({}, "Preddiplomski"))
        for (std::size_t column = 0; column < row.size(); ++column)
        {
            const bool overfull = (row[0].Text == "2" && row[1].Text == "Obvezni") ||
                                  (row[0].Text == "3" && row[1].Text == "Izborni");
            EXPECT_EQ(row[column].Colour, overfull && column == 5 ? TextColours::Red : TextColours::Black)
                << row[0].Text << " " << row[1].Text << " column " << column;
        }
}

// Numbers

TEST(SemesterStatistics, HoursAreReadAsWholeNumbersOrZero)
{
    EXPECT_EQ(ParseWholeOrZero(""), 0);
    EXPECT_EQ(ParseWholeOrZero("   "), 0);
    EXPECT_EQ(ParseWholeOrZero("abc"), 0);
    EXPECT_EQ(ParseWholeOrZero("3h"), 0);
    EXPECT_EQ(ParseWholeOrZero(" 3 "), 3);
    EXPECT_EQ(ParseWholeOrZero("1.5"), 2);
    EXPECT_EQ(ParseWholeOrZero("2,5"), 2);
    EXPECT_EQ(ParseWholeOrZero("0.5"), 0);
    EXPECT_EQ(ParseWholeOrZero("-4"), -4);
    EXPECT_EQ(ParseWholeOrZero("2147483647"), std::numeric_limits<std::int32_t>::max());
    EXPECT_THROW(ParseWholeOrZero("2147483648"), OverflowError);
}

TEST(SemesterStatistics, FieldsThatAreNoNumbersCountAsZero)
{
    With({"1;K;;x;2;;obvezni;1;1"}, {"1;1"}).Use();
    EXPECT_EQ(Total({}), "0 0 2 0 1");
}

TEST(SemesterStatistics, ASumBeyond32BitsIsAnError)
{
    With({"1;K;2147483647;0;0;0;obvezni;1;1", "2;K;1;0;0;0;obvezni;1;1"}, {"1;1", "2;1"}).Use();
    EXPECT_THROW(StatistikaRows({}, "Preddiplomski"), OverflowError);
    EXPECT_EQ(Total(OfSemestar(2)), "0 0 0 0 0");
}

TEST(SemesterStatistics, AWeightedNumberBeyond32BitsIsAnError)
{
    With({"1;K;1073741824;0;0;0;obvezni;1;1"}, {"1;1", "1;2"}).Use();
    EXPECT_EQ(Total(OfSmjer(1)), "1073741824 0 0 0 1");
    EXPECT_THROW(StatistikaRows({}, "Preddiplomski"), OverflowError);
}

TEST(SemesterStatistics, ANumberBeyond32BitsIsAnErrorOnlyWhereItCounts)
{
    With({"1;K;0;0;0;99999999999;obvezni;1;1"}, {"1;1"}).Use();
    EXPECT_THROW(StatistikaRows({}, "Preddiplomski"), OverflowError);
    EXPECT_EQ(Total(OfStudij(2)), "0 0 0 0 0");
}

TEST(SemesterStatistics, EveryCoursesIDAndSemesterMustBeNumbers)
{
    With({"1;K;0;0;0;1;obvezni;prvi;2"}, {"1;1"}).Use();
    EXPECT_THROW(StatistikaRows(OfStudij(1), "Preddiplomski"), TypeMismatch);
    With({"x;K;0;0;0;1;obvezni;1;2"}, {"1;1"}).Use();
    EXPECT_THROW(StatistikaRows(OfStudij(1), "Preddiplomski"), TypeMismatch);
    With({"1;K;0;0;0;1;obvezni"}, {"1;1"}).Use();
    EXPECT_THROW(StatistikaRows(OfStudij(1), "Preddiplomski"), SubscriptOutOfRange);
}

} // namespace

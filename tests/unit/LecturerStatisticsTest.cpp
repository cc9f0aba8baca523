#include "ui/lecturer_stats/LecturerStatistics.h"

#include "data/Errors.h"
#include "data/modData.h"
#include "support/Catalogue.h"
#include "support/TeachingLoadChecks.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

using Texts = std::vector<std::string>;

constexpr std::int32_t Ana = 1;
constexpr std::int32_t Ciro = 3;

const LecturerFilter All = {"Svi", "Svi"};

Texts Courses(std::int32_t nastavnikID, const LecturerFilter& filter = All)
{
    return LinesOfRows(LecturerCourseRows(nastavnikID, filter));
}

Texts TeachingLoadTable(std::int32_t nastavnikID, const LecturerFilter& filter = All)
{
    return LinesOfRows(LecturerTeachingLoadRows(nastavnikID, filter));
}

Texts Counted(std::int32_t nastavnikID, const LecturerFilter& filter = All)
{
    return LinesThatCount(TeachingLoadTable(nastavnikID, filter));
}

// The course list

TEST(LecturerStatistics, ListsTheCoursesInTheOrderOfTheLinks)
{
    Catalogue catalogue = SmallCatalogue();
    std::ranges::reverse(catalogue.KolegijNastavnici);
    catalogue.Use();
    EXPECT_EQ(Courses(Ana), (Texts{"Kolegij bez smjera;1;0;0;2;izborni;3;LOR;Anić Ana",
                                   "Uvod u lov;2;1;0;5;obvezni;1;LOR;Anić Ana; Đurić Ćiro"}));
}

TEST(LecturerStatistics, ShowsTheFieldsOfACourseAsStored)
{
    CoursesOfAna({"01; Ime  ; 02;+1;1,5;007; Obvezni ; 3;1"}).Use();
    EXPECT_EQ(Courses(Ana), Texts{" Ime  ; 02;+1;1,5;007; Obvezni ; 3;LOR;Anić Ana"});
}

TEST(LecturerStatistics, DrawsElectivesBlueInEveryCellAndTheOthersBlack)
{
    CoursesOfAna({"1;A;1;1;1;1;izborni;1;1", "2;B;1;1;1;1; IzBoRnI ;1;1", "3;C;1;1;1;1;obvezni;1;1",
                  "4;D;1;1;1;1;fakultativni;1;1", "5;E;1;1;1;1;;1;1"})
        .Use();
    const std::vector<ListRow> rows = LecturerCourseRows(Ana, All);
    ASSERT_EQ(rows.size(), 5U);
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        EXPECT_EQ(rows[i].size(), 9U);
        for (const ListCell& cell : rows[i])
        {
            EXPECT_EQ(cell.Colour, i < 2 ? TextColours::Blue : TextColours::Black) << i;
            EXPECT_FALSE(cell.Bold) << i;
        }
    }
}

TEST(LecturerStatistics, ALecturerWithoutLinksHasNoCoursesAndATableOfZeros)
{
    SmallCatalogue().Use();
    EXPECT_EQ(Courses(99), Texts{});
    EXPECT_EQ(
        TeachingLoadTable(99),
        (Texts{"1;Obvezni;0;0;0;0;0", "1;Izborni;0;0;0;0;0", "2;Obvezni;0;0;0;0;0", "2;Izborni;0;0;0;0;0",
               "3;Obvezni;0;0;0;0;0", "3;Izborni;0;0;0;0;0", "4;Obvezni;0;0;0;0;0", "4;Izborni;0;0;0;0;0",
               "5;Obvezni;0;0;0;0;0", "5;Izborni;0;0;0;0;0", "6;Obvezni;0;0;0;0;0", "6;Izborni;0;0;0;0;0",
               "UKUPNO;Obvezni;0;0;0;0;0", "UKUPNO;Izborni;0;0;0;0;0", "TOTAL;Sve;0;0;0;0;0"}));
}

TEST(LecturerStatistics, ALinkToAMissingCourseYieldsNothing)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.KolegijNastavnici.insert(catalogue.KolegijNastavnici.begin(), "77;1;Nositelj;1");
    catalogue.Use();
    EXPECT_EQ(Courses(Ana).size(), 2U);
    EXPECT_EQ(TeachingLoadTable(Ana).back(), "TOTAL;Sve;3;1;0;7;2");
}

TEST(LecturerStatistics, EveryLinkCountsInAnyRoleAndPlace)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.KolegijNastavnici = {"1;1;Nositelj;1", "2;1;;9", "1;1;Asistent;-3"};
    catalogue.Use();
    EXPECT_EQ(FirstCells(Courses(Ana)), (Texts{"Uvod u lov", "Žičani alati", "Uvod u lov"}));
    EXPECT_EQ(Counted(Ana), (Texts{"1;Obvezni;4;2;0;10;2", "2;Izborni;1;1;1;4;1", "UKUPNO;Obvezni;4;2;0;10;2",
                                   "UKUPNO;Izborni;1;1;1;4;1", "TOTAL;Sve;5;3;1;14;3"}));
}

TEST(LecturerStatistics, EveryCourseOfOneIDCounts)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji = {"1;A;1;0;0;1;obvezni;1;1", "2;B;9;9;9;9;obvezni;1;1",
                          " 1,0 ;C;2;0;0;2;izborni;1;1"};
    catalogue.KolegijNastavnici = {"1;1;Nositelj;1"};
    catalogue.Use();
    EXPECT_EQ(FirstCells(Courses(Ana)), (Texts{"A", "C"}));
    EXPECT_EQ(TeachingLoadTable(Ana).back(), "TOTAL;Sve;3;0;0;3;2");
}

TEST(LecturerStatistics, ReadsTheTablesEachTime)
{
    SmallCatalogue().Use();
    EXPECT_EQ(Courses(Ciro).size(), 2U);
    modData::Kolegiji.RemoveMatches(Kolegij::ID, 4);
    EXPECT_EQ(Courses(Ciro), Texts{"Uvod u lov;2;1;0;5;obvezni;1;LOR;Anić Ana; Đurić Ćiro"});
    EXPECT_EQ(TeachingLoadTable(Ciro).back(), "TOTAL;Sve;2;1;0;5;1");
}

// Filters

class LecturerFilters : public testing::Test
{
protected:
    LecturerFilters()
    {
        CoursesOfAna({"1;LorP;1;0;0;1;obvezni;1;1", "2;BevP;2;0;0;2;obvezni;1;2",
                      "3;LorD;4;0;0;4;obvezni;1;3", "4;Bez studija;8;0;0;8;obvezni;1;99"})
            .Use();
    }

    static void Expect(const LecturerFilter& filter, const Texts& courses, const std::string& total)
    {
        EXPECT_EQ(FirstCells(Courses(Ana, filter)), courses) << filter.Razina << ", " << filter.Program;
        EXPECT_EQ(TeachingLoadTable(Ana, filter).back(), "TOTAL;Sve;" + total)
            << filter.Razina << ", " << filter.Program;
    }
};

TEST_F(LecturerFilters, NarrowByLevelAndProgramme)
{
    Expect({"Svi", "Svi"}, {"LorP", "BevP", "LorD", "Bez studija"}, "15;0;0;15;4");
    Expect({"Preddiplomski", "Svi"}, {"LorP", "BevP"}, "3;0;0;3;2");
    Expect({"Diplomski", "Svi"}, {"LorD"}, "4;0;0;4;1");
    Expect({"Svi", "LOR"}, {"LorP", "LorD"}, "5;0;0;5;2");
    Expect({"Svi", "BEV"}, {"BevP"}, "2;0;0;2;1");
    Expect({"Preddiplomski", "LOR"}, {"LorP"}, "1;0;0;1;1");
    Expect({"Diplomski", "LOR"}, {"LorD"}, "4;0;0;4;1");
    Expect({"Diplomski", "BEV"}, {}, "0;0;0;0;0");
}

TEST_F(LecturerFilters, AreComparedExactly)
{
    modData::Studiji.Replace(0, {"1", "Lovstvo", "lor", "preddiplomski"});
    modData::Studiji.Replace(1, {"2", "Bevanda", " BEV", "Preddiplomski "});
    Expect({"Svi", "LOR"}, {"LorD"}, "4;0;0;4;1");
    Expect({"Svi", "BEV"}, {}, "0;0;0;0;0");
    Expect({"Preddiplomski", "Svi"}, {}, "0;0;0;0;0");
}

TEST_F(LecturerFilters, TheFirstStudyOfOneIDDecides)
{
    modData::Studiji.Append({"3", "Drugi", "BEV", "Preddiplomski"});
    Expect({"Svi", "BEV"}, {"BevP"}, "2;0;0;2;1");
    Expect({"Diplomski", "Svi"}, {"LorD"}, "4;0;0;4;1");
}

// The table

TEST(LecturerStatistics, ListsACourseOutsideTheSemestersButDoesNotCountIt)
{
    CoursesOfAna({"1;A;1;1;1;1;obvezni;0;1", "2;B;1;1;1;1;obvezni;7;1", "3;C;1;1;1;1;izborni;-1;1",
                  "4;D;2;2;2;2;izborni;6;1", "5;E;1;1;1;1;obvezni;2147483647;1",
                  "6;F;1;1;1;1;obvezni;-2147483648;1"})
        .Use();
    EXPECT_EQ(FirstCells(Courses(Ana)), (Texts{"A", "B", "C", "D", "E", "F"}));
    EXPECT_EQ(Counted(Ana),
              (Texts{"6;Izborni;2;2;2;2;1", "UKUPNO;Izborni;2;2;2;2;1", "TOTAL;Sve;2;2;2;2;1"}));
}

TEST(LecturerStatistics, EveryTypeButCompulsoryCountsAsElective)
{
    CoursesOfAna({"1;A;1;0;0;1;obvezni ;1;1", "2;B;2;0;0;2; OBVEZNI;1;1", "3;C;4;0;0;4;Obavezni;1;1",
                  "4;D;8;0;0;8;;1;1", "5;E;16;0;0;16;izborni;1;1"})
        .Use();
    EXPECT_EQ(Counted(Ana), (Texts{"1;Obvezni;3;0;0;3;2", "1;Izborni;28;0;0;28;3", "UKUPNO;Obvezni;3;0;0;3;2",
                                   "UKUPNO;Izborni;28;0;0;28;3", "TOTAL;Sve;31;0;0;31;5"}));
}

TEST(LecturerStatistics, MoreThan30EctsAreRedInOneSemesterAndTypeAlone)
{
    CoursesOfAna({"1;A;50;50;50;30;obvezni;1;1", "2;B;0;0;0;20;izborni;2;1", "3;C;0;0;0;11;izborni;2;1",
                  "4;D;0;0;0;31;obvezni;6;1"})
        .Use();
    const std::vector<ListRow> rows = LecturerTeachingLoadRows(Ana, All);
    ASSERT_EQ(rows.size(), 15U);
    for (std::size_t row = 0; row < rows.size(); ++row)
        for (std::size_t column = 0; column < rows[row].size(); ++column)
        {
            const bool overfull = column == 5 && (row == 3 || row == 10);
            EXPECT_EQ(rows[row][column].Colour, overfull ? TextColours::Red : TextColours::Black)
                << row << ", " << column;
            EXPECT_EQ(rows[row][column].Bold, row >= 12) << row << ", " << column;
        }
    EXPECT_EQ(rows[3][5].Text, "31");
    EXPECT_EQ(rows[14][5].Text, "92");
}

TEST(LecturerStatistics, ASumThatDoesNotFitIsAnError)
{
    CoursesOfAna({"1;A;2147483647;0;0;1;obvezni;1;1", "2;B;1;0;0;1;obvezni;1;1"}).Use();
    EXPECT_THROW(TeachingLoadTable(Ana), OverflowError) << "in a semester";
    CoursesOfAna({"1;A;1;0;0;2147483647;obvezni;1;1", "2;B;1;0;0;1;obvezni;2;1"}).Use();
    EXPECT_THROW(TeachingLoadTable(Ana), OverflowError) << "in a type's total";
    CoursesOfAna({"1;A;1;0;2147483647;1;obvezni;1;1", "2;B;1;0;1;1;izborni;1;1"}).Use();
    EXPECT_THROW(TeachingLoadTable(Ana), OverflowError) << "in the last total";
    CoursesOfAna({"1;A;2147483647;0;0;1;obvezni;1;1", "2;B;1;0;0;1;obvezni;7;1"}).Use();
    EXPECT_EQ(TeachingLoadTable(Ana).back(), "TOTAL;Sve;2147483647;0;0;1;1")
        << "what is left out does not add";
}

// Numbers that cannot be read

TEST(LecturerStatistics, AnHourOrCreditOfACountedCourseThatIsNoNumberIsAnError)
{
    for (const char* course : {"1;A;x;0;0;1;obvezni;1;1", "1;A;0;;0;1;obvezni;1;1",
                               "1;A;0;0;1h;1;obvezni;1;1", "1;A;0;0;0;pet;izborni;1;1"})
    {
        CoursesOfAna({course}).Use();
        EXPECT_EQ(Courses(Ana).size(), 1U) << "it is listed as stored: " << course;
        EXPECT_THROW(TeachingLoadTable(Ana), TypeMismatch) << course;
    }
    CoursesOfAna({"1;A;99999999999;0;0;1;obvezni;1;1"}).Use();
    EXPECT_THROW(TeachingLoadTable(Ana), OverflowError);
}

TEST(LecturerStatistics, WhatIsNotCountedIsNotRead)
{
    CoursesOfAna({"1;A;x;x;x;x;obvezni;7;1", "2;B;1;0;0;1;obvezni;1;1"}).Use();
    EXPECT_EQ(Courses(Ana).size(), 2U);
    EXPECT_EQ(TeachingLoadTable(Ana).back(), "TOTAL;Sve;1;0;0;1;1");
    CoursesOfAna({"1;A;x;x;x;x;obvezni;x;3", "2;B;1;0;0;1;obvezni;1;1"}).Use();
    EXPECT_EQ(TeachingLoadTable(Ana, {"Preddiplomski", "Svi"}).back(), "TOTAL;Sve;1;0;0;1;1");
}

TEST(LecturerStatistics, ASemesterThatIsNoNumberIsAnErrorInTheTable)
{
    for (const char* course : {"1;A;1;0;0;1;obvezni;prvi;1", "1;A;1;0;0;1;obvezni;;1"})
    {
        CoursesOfAna({course}).Use();
        EXPECT_EQ(Courses(Ana).size(), 1U) << course;
        EXPECT_THROW(TeachingLoadTable(Ana), TypeMismatch) << course;
    }
}

TEST(LecturerStatistics, AnIDThatIsNoNumberIsAnErrorInListAndTable)
{
    Catalogue faulty[5];
    for (Catalogue& catalogue : faulty)
        catalogue = SmallCatalogue();
    faulty[0].KolegijNastavnici.push_back("1;x;Nositelj;1");
    faulty[1].KolegijNastavnici.push_back("x;1;Nositelj;1");
    faulty[2].Kolegiji.push_back("x;A;1;0;0;1;obvezni;1;1");
    faulty[3].Kolegiji[0] = "1;A;1;0;0;1;obvezni;1;LOR";
    faulty[4].Studiji.insert(faulty[4].Studiji.begin(), "x;A;LOR;Preddiplomski");
    for (const Catalogue& catalogue : faulty)
    {
        catalogue.Use();
        EXPECT_THROW(Courses(Ana), TypeMismatch) << "case " << &catalogue - faulty;
        EXPECT_THROW(TeachingLoadTable(Ana), TypeMismatch) << "case " << &catalogue - faulty;
    }
}

TEST(LecturerStatistics, APlaceThatIsNoNumberIsAnErrorInTheListAlone)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.KolegijNastavnici[0] = "1;1;Nositelj;prvi";
    catalogue.Use();
    EXPECT_THROW(Courses(Ana), TypeMismatch);
    EXPECT_EQ(TeachingLoadTable(Ana).back(), "TOTAL;Sve;3;1;0;7;2");
}

// Rows that are too short

TEST(LecturerStatistics, ARowThatIsTooShortIsAnError)
{
    Catalogue faulty[3];
    for (Catalogue& catalogue : faulty)
        catalogue = SmallCatalogue();
    faulty[0].KolegijNastavnici.push_back("1");
    faulty[1].Kolegiji[0] = "1;A;1;0;0;1;obvezni;1";
    faulty[2].Kolegiji[0] = "1;A;1";
    for (const Catalogue& catalogue : faulty)
    {
        catalogue.Use();
        EXPECT_THROW(Courses(Ana), SubscriptOutOfRange) << "case " << &catalogue - faulty;
        EXPECT_THROW(TeachingLoadTable(Ana), SubscriptOutOfRange) << "case " << &catalogue - faulty;
    }
}

TEST(LecturerStatistics, AStudyThatIsTooShortIsAnErrorWithAnyFilters)
{
    Catalogue catalogue = SmallCatalogue();
    for (const char* studij : {"1;Lovstvo;LOR", "1;Lovstvo"})
    {
        catalogue.Studiji[0] = studij;
        catalogue.Use();
        for (const char* razina : {"Svi", "Preddiplomski", "Diplomski"})
            for (const char* program : {"Svi", "LOR", "BEV"})
            {
                const LecturerFilter filter = {razina, program};
                EXPECT_THROW(Courses(Ana, filter), SubscriptOutOfRange)
                    << studij << ", " << razina << ", " << program;
                EXPECT_THROW(TeachingLoadTable(Ana, filter), SubscriptOutOfRange)
                    << studij << ", " << razina << ", " << program;
            }
    }
}

TEST(LecturerStatistics, ALecturersRowNeedsOnlyItsName)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Nastavnici = {"1;Anić Ana", "2;Šarić Žarko", "3;Đurić Ćiro"};
    catalogue.Use();
    EXPECT_EQ(Courses(Ana).size(), 2U);
    EXPECT_EQ(TeachingLoadTable(Ana).back(), "TOTAL;Sve;3;1;0;7;2");
}

} // namespace

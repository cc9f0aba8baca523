#include "ui/department_stats/DepartmentStatistics.h"

#include "data/Errors.h"
#include "data/modData.h"
#include "support/Catalogue.h"
#include "support/TeachingLoadChecks.h"

#include <gtest/gtest.h>

#include <limits>

namespace
{

using Texts = std::vector<std::string>;

constexpr std::int32_t Povijest = 1;
constexpr std::int32_t Kemija = 2;

const DepartmentFilter All = {"Svi", "Svi"};

Texts Courses(std::int32_t zavodID, const DepartmentFilter& filter = All)
{
    return LinesOfRows(DepartmentCourseRows(zavodID, filter));
}

Texts TeachingLoadTable(std::int32_t zavodID, const DepartmentFilter& filter = All)
{
    return LinesOfRows(DepartmentTeachingLoadRows(zavodID, filter));
}

Texts Counted(std::int32_t zavodID, const DepartmentFilter& filter = All)
{
    return LinesThatCount(TeachingLoadTable(zavodID, filter));
}

// The course list

TEST(DepartmentStatistics, ListsTheCoursesByLecturerThenByLink)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Nastavnici = {"3;Đurić Ćiro;doc. dr. sc.;1", "2;Šarić Žarko;;2", "1;Anić Ana;;1"};
    catalogue.Use();
    EXPECT_EQ(Courses(Povijest), (Texts{"Uvod u lov;2;1;0;5;obvezni;1;LOR;Anić Ana; Đurić Ćiro",
                                        "Napredni lov;3;0;1;10;obvezni;1;LOR;Đurić Ćiro",
                                        "Uvod u lov;2;1;0;5;obvezni;1;LOR;Anić Ana; Đurić Ćiro",
                                        "Kolegij bez smjera;1;0;0;2;izborni;3;LOR;Anić Ana"}));
    EXPECT_EQ(FirstCells(Courses(Kemija)), (Texts{"Žičani alati", "Bevska kultura"}));
}

TEST(DepartmentStatistics, ShowsTheFieldsOfACourseAsStored)
{
    CoursesOfAna({"01; Ime  ; 02;x;1,5;; Obvezni ;prvi;99"}).Use();
    EXPECT_EQ(Courses(Povijest), Texts{" Ime  ; 02;x;1,5;; Obvezni ;prvi;;Anić Ana"});
}

TEST(DepartmentStatistics, DrawsElectivesBlueInEveryCellAndTheOthersBlack)
{
    CoursesOfAna({"1;A;1;1;1;1; IzBoRnI ;1;1", "2;B;1;1;1;1;obvezni;1;1", "3;C;1;1;1;1;fakultativni;1;1"})
        .Use();
    const std::vector<ListRow> rows = DepartmentCourseRows(Povijest, All);
    ASSERT_EQ(rows.size(), 3U);
    for (std::size_t i = 0; i < rows.size(); ++i)
    {
        EXPECT_EQ(rows[i].size(), 9U);
        for (const ListCell& cell : rows[i])
            EXPECT_EQ(cell.Colour, i == 0 ? TextColours::Blue : TextColours::Black) << i;
    }
}

TEST(DepartmentStatistics, ADepartmentWithoutLecturersHasNoCoursesAndATableOfZeros)
{
    SmallCatalogue().Use();
    EXPECT_EQ(Courses(99), Texts{});
    EXPECT_EQ(
        TeachingLoadTable(99),
        (Texts{"1;Obvezni;0;0;0;0;0", "1;Izborni;0;0;0;0;0", "2;Obvezni;0;0;0;0;0", "2;Izborni;0;0;0;0;0",
               "3;Obvezni;0;0;0;0;0", "3;Izborni;0;0;0;0;0", "4;Obvezni;0;0;0;0;0", "4;Izborni;0;0;0;0;0",
               "5;Obvezni;0;0;0;0;0", "5;Izborni;0;0;0;0;0", "6;Obvezni;0;0;0;0;0", "6;Izborni;0;0;0;0;0",
               "Ukupno;Obvezni;0;0;0;0;0", "Ukupno;Izborni;0;0;0;0;0", "Ukupno;Total;0;0;0;0;0"}));
}

TEST(DepartmentStatistics, ACourseOfTwoOfItsLecturersCountsTwice)
{
    SmallCatalogue().Use();
    EXPECT_EQ(FirstCells(Courses(Povijest)),
              (Texts{"Uvod u lov", "Kolegij bez smjera", "Uvod u lov", "Napredni lov"}));
    EXPECT_EQ(Counted(Povijest),
              (Texts{"1;Obvezni;7;2;1;20;3", "3;Izborni;1;0;0;2;1", "Ukupno;Obvezni;7;2;1;20;3",
                     "Ukupno;Izborni;1;0;0;2;1", "Ukupno;Total;8;2;1;22;4"}));
}

TEST(DepartmentStatistics, ACourseOfSeveralDepartmentsCountsInEach)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.KolegijNastavnici = {"1;1;Nositelj;1", "1;2;Asistent;2"};
    catalogue.Use();
    for (const std::int32_t zavodID : {Povijest, Kemija})
    {
        EXPECT_EQ(FirstCells(Courses(zavodID)), Texts{"Uvod u lov"});
        EXPECT_EQ(TeachingLoadTable(zavodID).back(), "Ukupno;Total;2;1;0;5;1");
    }
}

TEST(DepartmentStatistics, EveryLinkLecturerAndCourseOfOneIDCounts)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Nastavnici = {"2;Šarić Žarko;;2", " 2,0;Drugi;;2", "2;Treći;;1"};
    catalogue.Kolegiji = {"1;A;1;0;0;1;obvezni;1;1", "1;B;2;0;0;2;obvezni;1;1"};
    catalogue.KolegijNastavnici = {"1;2;Nositelj;1", "77;2;Nositelj;1", "1;2;Asistent;1"};
    catalogue.Use();
    EXPECT_EQ(FirstCells(Courses(Kemija)), (Texts{"A", "B", "A", "B", "A", "B", "A", "B"}));
    EXPECT_EQ(TeachingLoadTable(Kemija).back(), "Ukupno;Total;12;0;0;12;8");
    EXPECT_EQ(TeachingLoadTable(Povijest).back(), "Ukupno;Total;6;0;0;6;4");
}

TEST(DepartmentStatistics, ReadsTheTablesEachTime)
{
    SmallCatalogue().Use();
    EXPECT_EQ(Courses(Kemija).size(), 2U);
    modData::Kolegiji.RemoveMatches(Kolegij::ID, 2);
    EXPECT_EQ(FirstCells(Courses(Kemija)), Texts{"Bevska kultura"});
    EXPECT_EQ(TeachingLoadTable(Kemija).back(), "Ukupno;Total;2;0;2;6;1");
}

// The semester filter

TEST(DepartmentStatistics, WinterSemestersAreOddAndSummerSemestersEven)
{
    for (const std::int32_t semestar : {1, 3, 5, 7, 2147483647})
    {
        EXPECT_TRUE(PassesSemestar(semestar, "Zimski")) << semestar;
        EXPECT_FALSE(PassesSemestar(semestar, "Ljetni")) << semestar;
    }
    for (const std::int32_t semestar : {2, 4, 6, 8, 0, -2, std::numeric_limits<std::int32_t>::min()})
    {
        EXPECT_FALSE(PassesSemestar(semestar, "Zimski")) << semestar;
        EXPECT_TRUE(PassesSemestar(semestar, "Ljetni")) << semestar;
    }
}

TEST(DepartmentStatistics, AnOddNegativeSemesterIsOfNeitherHalfOfTheYear)
{
    for (const std::int32_t semestar : {-1, -3, -2147483647})
    {
        EXPECT_FALSE(PassesSemestar(semestar, "Zimski")) << "the remainder follows the dividend's sign";
        EXPECT_FALSE(PassesSemestar(semestar, "Ljetni"));
        EXPECT_TRUE(PassesSemestar(semestar, "Svi"));
    }
}

TEST(DepartmentStatistics, ASemestersNumberPassesThatSemesterAlone)
{
    for (int wanted = 1; wanted <= 6; ++wanted)
        for (std::int32_t semestar = -7; semestar <= 7; ++semestar)
            EXPECT_EQ(PassesSemestar(semestar, std::to_string(wanted)), semestar == wanted)
                << semestar << " by " << wanted;
}

class DepartmentFilters : public testing::Test
{
protected:
    DepartmentFilters()
    {
        CoursesOfAna({"1;P3;1;0;0;1;obvezni;3;1", "2;P4;2;0;0;2;obvezni;4;2", "3;D3;4;0;0;4;izborni;3;3",
                      "4;P7;8;0;0;8;obvezni;7;1", "5;P0;16;0;0;16;obvezni;0;1",
                      "6;P-1;32;0;0;32;obvezni;-1;1", "7;Bez studija;64;0;0;64;obvezni;1;99"})
            .Use();
    }

    static void Expect(const DepartmentFilter& filter, const Texts& courses, const std::string& total)
    {
        EXPECT_EQ(FirstCells(Courses(Povijest, filter)), courses) << filter.Razina << ", " << filter.Semestar;
        EXPECT_EQ(TeachingLoadTable(Povijest, filter).back(), "Ukupno;Total;" + total)
            << filter.Razina << ", " << filter.Semestar;
    }
};

TEST_F(DepartmentFilters, NarrowBySemester)
{
    Expect({"Svi", "Svi"}, {"P3", "P4", "D3", "P7", "P0", "P-1", "Bez studija"}, "71;0;0;71;4");
    Expect({"Svi", "Zimski"}, {"P3", "D3", "P7", "Bez studija"}, "69;0;0;69;3");
    Expect({"Svi", "Ljetni"}, {"P4", "P0"}, "2;0;0;2;1");
    Expect({"Svi", "1"}, {"Bez studija"}, "64;0;0;64;1");
    Expect({"Svi", "3"}, {"P3", "D3"}, "5;0;0;5;2");
    Expect({"Svi", "4"}, {"P4"}, "2;0;0;2;1");
    Expect({"Svi", "6"}, {}, "0;0;0;0;0");
}

TEST_F(DepartmentFilters, NarrowByLevel)
{
    Expect({"Preddiplomski", "Svi"}, {"P3", "P4", "P7", "P0", "P-1"}, "3;0;0;3;2");
    Expect({"Diplomski", "Svi"}, {"D3"}, "4;0;0;4;1");
    Expect({"Preddiplomski", "Zimski"}, {"P3", "P7"}, "1;0;0;1;1");
    Expect({"Preddiplomski", "3"}, {"P3"}, "1;0;0;1;1");
    Expect({"Diplomski", "Ljetni"}, {}, "0;0;0;0;0");
}

TEST_F(DepartmentFilters, TheLevelIsComparedExactlyAndTheFirstStudyOfOneIDDecides)
{
    modData::Studiji.Replace(0, {"1", "Lovstvo", "LOR", "preddiplomski"});
    modData::Studiji.Replace(1, {"2", "Bevanda", "BEV", "Preddiplomski "});
    modData::Studiji.Append({"3", "Lovstvo", "LOR", "Preddiplomski"});
    Expect({"Preddiplomski", "Svi"}, {}, "0;0;0;0;0");
    Expect({"Diplomski", "Svi"}, {"D3"}, "4;0;0;4;1");
}

TEST_F(DepartmentFilters, LeaveTheRowsOfTheOtherSemestersAtZero)
{
    EXPECT_EQ(
        TeachingLoadTable(Povijest, {"Preddiplomski", "Ljetni"}),
        (Texts{"1;Obvezni;0;0;0;0;0", "1;Izborni;0;0;0;0;0", "2;Obvezni;0;0;0;0;0", "2;Izborni;0;0;0;0;0",
               "3;Obvezni;0;0;0;0;0", "3;Izborni;0;0;0;0;0", "4;Obvezni;2;0;0;2;1", "4;Izborni;0;0;0;0;0",
               "5;Obvezni;0;0;0;0;0", "5;Izborni;0;0;0;0;0", "6;Obvezni;0;0;0;0;0", "6;Izborni;0;0;0;0;0",
               "Ukupno;Obvezni;2;0;0;2;1", "Ukupno;Izborni;0;0;0;0;0", "Ukupno;Total;2;0;0;2;1"}));
}

// The table

TEST(DepartmentStatistics, ATypeThatIsNeitherWordIsListedButNotCounted)
{
    CoursesOfAna({"1;A;1;0;0;1;obvezni ;1;1", "2;B;2;0;0;2; IZBORNI;1;1", "3;C;4;0;0;4;Obavezni;1;1",
                  "4;D;8;0;0;8;;1;1", "5;E;x;2147483647;2147483647;2147483647;izb.;1;1"})
        .Use();
    EXPECT_EQ(FirstCells(Courses(Povijest)), (Texts{"A", "B", "C", "D", "E"}));
    EXPECT_EQ(Counted(Povijest),
              (Texts{"1;Obvezni;1;0;0;1;1", "1;Izborni;2;0;0;2;1", "Ukupno;Obvezni;1;0;0;1;1",
                     "Ukupno;Izborni;2;0;0;2;1", "Ukupno;Total;3;0;0;3;2"}));
}

TEST(DepartmentStatistics, NothingIsRedAndOnlyTheTotalsAreBold)
{
    CoursesOfAna({"1;A;99;99;99;99;obvezni;1;1", "2;B;99;99;99;99;izborni;6;1"}).Use();
    const std::vector<ListRow> rows = DepartmentTeachingLoadRows(Povijest, All);
    ASSERT_EQ(rows.size(), 15U);
    for (std::size_t row = 0; row < rows.size(); ++row)
        for (const ListCell& cell : rows[row])
        {
            EXPECT_EQ(cell.Colour, TextColours::Black) << row;
            EXPECT_EQ(cell.Bold, row >= 12) << row;
        }
}

TEST(DepartmentStatistics, ASumThatDoesNotFitIsAnError)
{
    CoursesOfAna({"1;A;2147483647;0;0;1;obvezni;1;1", "2;B;1;0;0;1;obvezni;1;1"}).Use();
    EXPECT_THROW(TeachingLoadTable(Povijest), OverflowError) << "in a semester";
    EXPECT_EQ(Courses(Povijest).size(), 2U);
    CoursesOfAna({"1;A;1;0;0;2147483647;izborni;1;1", "2;B;1;0;0;1;izborni;2;1"}).Use();
    EXPECT_THROW(TeachingLoadTable(Povijest), OverflowError) << "in a type's total";
    CoursesOfAna({"1;A;1;0;2147483647;1;obvezni;1;1", "2;B;1;0;1;1;izborni;2;1"}).Use();
    EXPECT_THROW(TeachingLoadTable(Povijest), OverflowError) << "in the last total";
    EXPECT_EQ(TeachingLoadTable(Povijest, {"Svi", "Zimski"}).back(), "Ukupno;Total;1;0;2147483647;1;1")
        << "the filter acts before the counting";
}

// Numbers that cannot be read

TEST(DepartmentStatistics, HoursAndCreditsThatAreNoNumbersCountAsZero)
{
    CoursesOfAna({"1;A;x;;1h;pet;obvezni;1;1", "2;B;1;99999999999;2;3;obvezni;1;1"}).Use();
    EXPECT_EQ(Counted(Povijest),
              (Texts{"1;Obvezni;1;0;2;3;2", "Ukupno;Obvezni;1;0;2;3;2", "Ukupno;Total;1;0;2;3;2"}));
}

TEST(DepartmentStatistics, ASemesterThatIsNoNumberIsSemesterZero)
{
    CoursesOfAna({"1;A;1;0;0;1;obvezni;prvi;1", "2;B;1;0;0;1;obvezni;;1"}).Use();
    for (const char* semestar : {"Svi", "Ljetni"})
    {
        EXPECT_EQ(FirstCells(Courses(Povijest, {"Svi", semestar})), (Texts{"A", "B"})) << semestar;
        EXPECT_EQ(Counted(Povijest, {"Svi", semestar}), Texts{}) << semestar;
    }
    EXPECT_EQ(Courses(Povijest, {"Svi", "Zimski"}), Texts{});
    EXPECT_EQ(Courses(Povijest, {"Svi", "1"}), Texts{});
}

TEST(DepartmentStatistics, TheTableReadsAnIDThatIsNoNumberAsZero)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Nastavnici = {"x;Bez ID;;zavod", "5;Peti;;2", "y;Bez ID;;2"};
    catalogue.Kolegiji = {"x;A;1;0;0;1;obvezni;1;LOR", "7;B;2;0;0;2;obvezni;1;1"};
    catalogue.KolegijNastavnici = {"nula;nitko;;", "7;5;;"};
    catalogue.Studiji.push_back("?;Nulti;NUL;Diplomski");
    catalogue.Use();
    EXPECT_EQ(TeachingLoadTable(0).back(), "Ukupno;Total;1;0;0;1;1");
    EXPECT_EQ(TeachingLoadTable(Kemija).back(), "Ukupno;Total;3;0;0;3;2");
    EXPECT_EQ(TeachingLoadTable(Kemija, {"Diplomski", "Svi"}).back(), "Ukupno;Total;1;0;0;1;1");
    EXPECT_EQ(TeachingLoadTable(Kemija, {"Preddiplomski", "Svi"}).back(), "Ukupno;Total;2;0;0;2;1");
}

TEST(DepartmentStatistics, TheNamesOfStudiesAndHoldersAreLookedUpStrictly)
{
    Catalogue faulty[5];
    for (Catalogue& catalogue : faulty)
        catalogue = SmallCatalogue();
    faulty[0].KolegijNastavnici.push_back("x;99;Nositelj;1");
    faulty[1].KolegijNastavnici.push_back("2;x;Nositelj;1");
    faulty[2].KolegijNastavnici.push_back("2;99;Nositelj;x");
    faulty[3].Nastavnici.insert(faulty[3].Nastavnici.begin(), "x;Bez ID;;9");
    faulty[4].Studiji.insert(faulty[4].Studiji.begin(), "x;Bez ID;NUL;Diplomski");
    for (const Catalogue& catalogue : faulty)
    {
        catalogue.Use();
        EXPECT_THROW(Courses(Kemija), TypeMismatch) << "case " << &catalogue - faulty;
        EXPECT_EQ(Courses(99), Texts{}) << "nothing to look up; case " << &catalogue - faulty;
        EXPECT_EQ(TeachingLoadTable(Kemija, {"Preddiplomski", "Svi"}).back(), "Ukupno;Total;3;1;3;10;2")
            << "case " << &catalogue - faulty;
    }
}

TEST(DepartmentStatistics, ACoursesStudyThatIsNoNumberIsAStudyThatIsMissing)
{
    CoursesOfAna({"1;A;1;0;0;1;obvezni;1;LOR"}).Use();
    EXPECT_EQ(Courses(Povijest), Texts{"A;1;0;0;1;obvezni;1;;Anić Ana"});
    EXPECT_EQ(Courses(Povijest, {"Preddiplomski", "Svi"}), Texts{});
}

// Rows that are too short

TEST(DepartmentStatistics, ARowThatIsTooShortIsAnErrorAllTheSame)
{
    Catalogue faulty[5];
    for (Catalogue& catalogue : faulty)
        catalogue = SmallCatalogue();
    faulty[0].Nastavnici.push_back("9;Bez zavoda;");
    faulty[1].KolegijNastavnici.push_back("1");
    faulty[2].Kolegiji[1] = "2;A;1;0;0;1;obvezni";
    faulty[3].Kolegiji[1] = "2;A;1;0;0;1;obvezni;1";
    faulty[4].Studiji[0] = "1;Lovstvo;LOR";
    const DepartmentFilter filter = {"Preddiplomski", "Svi"};
    for (const Catalogue& catalogue : faulty)
    {
        catalogue.Use();
        EXPECT_THROW(Courses(Kemija, filter), SubscriptOutOfRange) << "case " << &catalogue - faulty;
        EXPECT_THROW(TeachingLoadTable(Kemija, filter), SubscriptOutOfRange)
            << "case " << &catalogue - faulty;
    }
}

TEST(DepartmentStatistics, AFieldThatIsNotNeededMayBeMissing)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Studiji[0] = "1;Lovstvo;LOR";
    catalogue.Kolegiji[0] = "1;A;1;0;0;1;obvezni;1";
    catalogue.Use();
    EXPECT_EQ(Courses(Kemija).size(), 2U) << "without a level filter no level is read";
    EXPECT_EQ(Courses(Povijest, {"Svi", "Ljetni"}), Texts{}) << "the semester comes before the study";
    EXPECT_EQ(Counted(Povijest, {"Svi", "Ljetni"}), Texts{});
}

} // namespace

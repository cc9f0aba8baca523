#include "ui/main/CourseList.h"
#include "data/Errors.h"
#include "data/modData.h"
#include "support/Catalogue.h"
#include "support/Lists.h"
#include "ui/main/CourseDeletion.h"
#include "ui/main/FilterChoices.h"

#include <gtest/gtest.h>

namespace
{

using Texts = std::vector<std::string>;

Texts IDs(const CourseFilter& filter)
{
    Texts ids;
    for (const ListRow& row : CourseRows(filter))
        ids.push_back(row.front().Text);
    return ids;
}

Texts Found(const std::string& search)
{
    return IDs({.Search = search});
}

TEST(CourseList, RowsShowTheFieldsAsStored)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji = {"07; Naziv ;2,0;x;;05; Tip ;01;1"};
    catalogue.KolegijSmjerovi = {"7;1"};
    catalogue.KolegijNastavnici = {};
    catalogue.Use();
    Texts texts;
    const std::vector<ListRow> rows = CourseRows({});
    for (const ListCell& cell : rows.at(0))
        texts.push_back(cell.Text);
    EXPECT_EQ(texts, (Texts{"07", " Naziv ", "2,0", "x", "", "05", " Tip ", "01", "LOR", "OPC", ""}));
}

TEST(CourseList, TheFiltersCompareNumbers)
{
    SmallCatalogue().Use();
    EXPECT_EQ(IDs({}), (Texts{"1", "2", "3", "4", "5"}));
    EXPECT_EQ(IDs({.StudijID = 1}), (Texts{"1", "2", "5"}));
    EXPECT_EQ(IDs({.StudijID = 1, .Semestar = 2}), (Texts{"2"}));
    EXPECT_EQ(IDs({.SmjerID = 2}), (Texts{"1", "2"}));
    EXPECT_EQ(IDs({.StudijID = 99}), Texts{});
}

TEST(CourseList, TheSearchLooksAtTitleCreditsTypeAndLecturers)
{
    SmallCatalogue().Use();
    EXPECT_EQ(Found("izborni"), (Texts{"2", "5"}));
    EXPECT_EQ(Found("5"), (Texts{"1"}));
    EXPECT_EQ(Found("10"), (Texts{"4"}));
    EXPECT_EQ(Found("  žarko "), (Texts{"2", "3"}));
    EXPECT_EQ(Found("lov 5 obvezni anić ana, đurić"), (Texts{"1"})) << "the parts, a blank between";
    EXPECT_EQ(Found("LOR"), Texts{}) << "the study is not searched";
    EXPECT_EQ(Found("OPC"), Texts{}) << "nor the directions";
    EXPECT_EQ(Found("   "), (Texts{"1", "2", "3", "4", "5"}));
    EXPECT_EQ(Found(""), (Texts{"1", "2", "3", "4", "5"}));
}

TEST(CourseList, TheSearchCoversBothSidesInEitherCase)
{
    SmallCatalogue().Use();
    EXPECT_EQ(Found("ŽIČ"), Texts{"2"});
    EXPECT_EQ(Found("žič"), Texts{"2"});
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji = {"1;ŽIČANI;1;1;1;1;obvezni;1;1"};
    catalogue.Use();
    EXPECT_EQ(Found("žič"), Texts{"1"});
}

TEST(CourseList, AStudyThatIsUnknownLeavesItsCellEmpty)
{
    Catalogue catalogue;
    catalogue.Kolegiji = {"1;A;1;1;1;1;obvezni;1;99"};
    catalogue.Use();
    EXPECT_EQ(CourseRows({}).at(0).at(8).Text, "");
}

TEST(CourseList, DirectionsAreListedInLinkOrderAndTwiceWhenLinkedTwice)
{
    Catalogue catalogue;
    catalogue.Smjerovi = {"1;X;A;1;R", "2;X;;1;R", "3;X;C;1;R"};
    catalogue.KolegijSmjerovi = {"1;3", "1;99", "1;1", "1;3", "2;2", "2;1"};
    catalogue.Use();
    EXPECT_EQ(GetSmjeroviForKolegijString(1), "C, A, C");
    EXPECT_EQ(GetSmjeroviForKolegijString(2), "A") << "nothing is before it yet";
}

TEST(CourseList, LecturersOfAllRolesAreListedByPlace)
{
    Catalogue catalogue;
    catalogue.Nastavnici = {"1;A;;1", "2;B;;1"};
    catalogue.KolegijNastavnici = {"1;2;Gost;2", "1;1;Nositelj;1", "1;99;Nositelj;3"};
    catalogue.Use();
    EXPECT_EQ(GetNastavniciForKolegijString(1), "A, B");
    EXPECT_EQ(GetNastavniciForKolegijString(2), "");
}

TEST(CourseList, HoldersOneToThreeAreJoinedByPlus)
{
    Catalogue catalogue;
    catalogue.Nastavnici = {"1;A;;1", "2;B;;1", "3; ;;1"};
    const auto nositelji = [&](Catalogue::Lines links)
    {
        catalogue.KolegijNastavnici = std::move(links);
        catalogue.Use();
        return GetNositelji123String(1);
    };
    EXPECT_EQ(nositelji({"1;2;Nositelj;3", "1;1; nositelj ;1"}), "A + B");
    EXPECT_EQ(nositelji({"1;99;Nositelj;1", "1;2;Nositelj;2"}), "B") << "an unknown holder is skipped";
    EXPECT_EQ(nositelji({"1;1;Nositelj;1", "1;2;Nositelj;1"}), "B") << "the later one wins";
    EXPECT_EQ(nositelji({"1;1;Gost;1", "1;2;Nositelj;4", "1;3;Nositelj;2"}), "");
    EXPECT_EQ(nositelji({"1;1;Gost;x", "2;1"}), "") << "a place is read of holders alone";
}

TEST(CourseList, ADirectionIsFoundAsANumber)
{
    Catalogue catalogue;
    catalogue.KolegijSmjerovi = {"1; 7", "1;7.0", "2;8", "1;x"};
    catalogue.Use();
    EXPECT_TRUE(KolegijHasSmjer(1, 7)) << "the bad link is after the match";
    EXPECT_THROW(KolegijHasSmjer(1, 8), TypeMismatch);
    EXPECT_TRUE(KolegijHasSmjer(2, 8));
    EXPECT_FALSE(KolegijHasSmjer(2, 7));
}

TEST(CourseList, ABadNumberEndsTheListOnlyWhereItIsNeeded)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji.push_back("6;Loš semestar;1;1;1;1;obvezni;x;1");
    catalogue.Use();
    EXPECT_NO_THROW(CourseRows({.StudijID = 1}));
    EXPECT_NO_THROW(CourseRows({.StudijID = 2, .Semestar = 1}));
    EXPECT_THROW(CourseRows({.StudijID = 1, .Semestar = 1}), TypeMismatch);
}

TEST(CourseList, ANumberFiltersInEveryWayOfWritingIt)
{
    Catalogue catalogue;
    catalogue.Kolegiji = {"1;A;;;;;;02; 3 ", "02;B;;;;;;2.0;+3", "3;C;;;;;;3;3"};
    catalogue.KolegijSmjerovi = {" 2; 7,0"};
    catalogue.Use();
    EXPECT_EQ(IDs({.StudijID = 3, .Semestar = 2}), (Texts{"1", "02"}));
    EXPECT_EQ(IDs({.SmjerID = 7}), Texts{"02"});
}

TEST(CourseList, TheSearchFindsATextInEachOfItsFourFieldsAndInNoOther)
{
    Catalogue catalogue;
    catalogue.Studiji = {"5;Q;Q5;Preddiplomski"};
    catalogue.Smjerovi = {"5;Q;Q5;5;Preddiplomski"};
    catalogue.Nastavnici = {"1;Ivo Q5;dr. Q6;1"};
    catalogue.Kolegiji = {
        "1;naziv q5;1;1;1;1;obvezni;1;5", "2;A;1;1;1;Q5;obvezni;1;5", "3;A;1;1;1;1;Q5;1;5",
        "4;A;1;1;1;1;obvezni;1;5",        "55;A;5;5;5;1;obvezni;5;5", "6;A;Q5;Q5;Q5;1;obvezni;1;5"};
    catalogue.KolegijNastavnici = {"4;1;Gost;1"};
    catalogue.KolegijSmjerovi = {"55;5"};
    catalogue.Use();
    EXPECT_EQ(Found("q5"), (Texts{"1", "2", "3", "4"}));
    EXPECT_EQ(Found("5"), (Texts{"1", "2", "3", "4"}));
    EXPECT_EQ(Found("q6"), Texts{}) << "a lecturer's title is not searched";
}

TEST(CourseList, TheSearchHasNoWordBoundariesAndNoWildcards)
{
    SmallCatalogue().Use();
    EXPECT_EQ(Found("apredn"), Texts{"4"});
    for (const char* search : {"*", "?", "u*d", "%", "uvod  u", "u_od"})
        EXPECT_EQ(Found(search), Texts{}) << search;
}

TEST(CourseList, LecturersAreSearchedInTheOrderOfTheirPlaces)
{
    Catalogue catalogue;
    catalogue.Nastavnici = {"1;Ana;;1", "2;Iva;;1"};
    catalogue.Kolegiji = {"1;A;1;1;1;1;obvezni;1;1"};
    catalogue.KolegijNastavnici = {"1;2;N;2", "1;1;N;1"};
    catalogue.Use();
    EXPECT_EQ(Found("ana, iva"), Texts{"1"});
    EXPECT_EQ(Found("iva, ana"), Texts{});
}

TEST(CourseList, ACourseWithoutDirectionsIsHiddenByADirectionAndHasAnEmptyCell)
{
    SmallCatalogue().Use();
    EXPECT_EQ(IDs({.StudijID = 1, .SmjerID = 1}), Texts{"1"});
    EXPECT_EQ(CourseRows({}).at(4).at(1).Text, "Kolegij bez smjera");
    EXPECT_EQ(CourseRows({}).at(4).at(9).Text, "");
}

TEST(CourseList, AnElectiveIsBlueInEveryColumnAndAnyOtherCourseBlack)
{
    Catalogue catalogue;
    catalogue.Kolegiji = {"1;A;;;;;Obvezni ;1;1", "2;B;;;;; izborni;1;1", "3;C;;;;;fakultativni;1;1"};
    catalogue.Use();
    const std::vector<ListRow> rows = CourseRows({});
    for (std::size_t row = 0; row < rows.size(); ++row)
    {
        ASSERT_EQ(rows[row].size(), 11U);
        for (const ListCell& cell : rows[row])
            EXPECT_EQ(cell.Colour, row == 1 ? TextColours::Blue : TextColours::Black) << row;
    }
}

TEST(CourseList, ACourseThatIsFilteredOutNeedsNoFurtherField)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji.push_back("x;Loš ID;1;1;1;1;obvezni;1;2");
    catalogue.Use();
    EXPECT_NO_THROW(CourseRows({.StudijID = 1}));
    EXPECT_NO_THROW(CourseRows({.StudijID = 2, .Semestar = 3}));
    EXPECT_THROW(CourseRows({.StudijID = 2}), TypeMismatch);
}

TEST(CourseList, ACourseWithTooFewFieldsIsAnError)
{
    Catalogue catalogue;
    catalogue.Kolegiji = {"1;A;1;1;1;1;obvezni;1"};
    catalogue.Use();
    EXPECT_THROW(CourseRows({}), SubscriptOutOfRange);
    EXPECT_THROW(CourseRows({.StudijID = 1}), SubscriptOutOfRange);
    EXPECT_NO_THROW(CourseRows({.Semestar = 2})) << "the semester rules it out before";
}

/// The error of the list without filters.
std::string ErrorOfAllRows(const Catalogue& catalogue)
{
    catalogue.Use();
    try
    {
        CourseRows({});
    }
    catch (const RuntimeError& error)
    {
        return std::to_string(error.Number()) + " " + error.what();
    }
    return {};
}

TEST(CourseList, OfSeveralFaultsInACourseThatOfTheStudyIsReported)
{
    Catalogue catalogue;
    catalogue.Studiji = {"1;Lovstvo;LOR;Preddiplomski"};
    catalogue.Kolegiji = {"99999999999;A;1;1;1;1;obvezni;1;abc"};
    EXPECT_EQ(ErrorOfAllRows(catalogue).substr(0, 3), "13 ");
    catalogue.Kolegiji = {"abc;A;1"};
    EXPECT_EQ(ErrorOfAllRows(catalogue).substr(0, 2), "9 ");
    catalogue.Studiji = {"x;Lovstvo;LOR;Preddiplomski"};
    catalogue.Kolegiji = {"99999999999;A;1;1;1;1;obvezni;1;1"};
    EXPECT_NE(ErrorOfAllRows(catalogue).find("db_studij.csv"), std::string::npos);
}

TEST(CourseDeletion, TakesTheCourseAndItsLinksAndNothingElse)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji.push_back("01;Dvojnik;1;1;1;1;obvezni;1;1");
    catalogue.Use();
    DeleteKolegij(1);
    EXPECT_EQ(IDs({}), (Texts{"2", "3", "4", "5"}));
    EXPECT_EQ(LinesOf(modData::KolegijSmjerovi), (Texts{"2;2", "3;3", "4;4"}));
    EXPECT_EQ(modData::KolegijNastavnici.RowCount(), 4U);
    EXPECT_EQ(modData::Nastavnici.RowCount(), 3U);
    DeleteKolegij(99);
    EXPECT_EQ(modData::Kolegiji.RowCount(), 4U);
}

TEST(CourseDeletion, ComparesNumbers)
{
    Catalogue catalogue;
    catalogue.Kolegiji = {" 1 ;A", "10;B", "1.0;C"};
    catalogue.KolegijSmjerovi = {"01;1", "10;1"};
    catalogue.KolegijNastavnici = {"10;1", "+1;1"};
    catalogue.Use();
    DeleteKolegij(1);
    EXPECT_EQ(LinesOf(modData::Kolegiji), Texts{"10;B"});
    EXPECT_EQ(LinesOf(modData::KolegijSmjerovi), Texts{"10;1"});
    EXPECT_EQ(LinesOf(modData::KolegijNastavnici), Texts{"10;1"});
}

Texts TextsOf(const std::vector<Choice>& choices)
{
    Texts texts;
    for (const Choice& choice : choices)
        texts.push_back(choice.Text);
    return texts;
}

TEST(FilterChoices, OfferWhatTheLevelAndTheStudyHave)
{
    SmallCatalogue().Use();
    EXPECT_EQ(TextsOf(SmjerFilterChoices(1)), (Texts{"Svi", "OPC", "POS"}));
    EXPECT_EQ(TextsOf(SmjerFilterChoices(std::nullopt)), Texts{"Svi"});
    EXPECT_EQ(SmjerFilterChoices(1).at(2).Data, 2);
    EXPECT_EQ(TextsOf(SemestarFilterChoices("Preddiplomski")), (Texts{"Svi", "1", "2", "3", "4", "5", "6"}));
    EXPECT_EQ(TextsOf(SemestarFilterChoices("Diplomski")), (Texts{"Svi", "1", "2", "3", "4"}));
    EXPECT_EQ(TextsOf(SemestarFilterChoices("diplomski")), Texts{"Svi"});
}

} // namespace

#include "ui/main/CourseList.h"
#include "data/Errors.h"
#include "data/modData.h"
#include "support/Catalogue.h"
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
    EXPECT_EQ(GetSmjeroviForKolegijString(2), "A") << "nothing stands before it yet";
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
    EXPECT_TRUE(KolegijHasSmjer(1, 7)) << "the bad link stands behind the match";
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

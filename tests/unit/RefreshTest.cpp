// What is kept from one refresh to the next, and what is not.

#include "data/Errors.h"
#include "data/modData.h"
#include "support/Catalogue.h"
#include "support/Lists.h"
#include "ui/main/CourseDeletion.h"
#include "ui/main/CourseList.h"

#include <gtest/gtest.h>

#include <iterator>

namespace
{

std::size_t CountFound(const std::string& search)
{
    return CourseRows({.Search = search}).size();
}

/// The texts of a model's first row, joined by "|".
std::string FirstRow(const ListModel& model)
{
    std::string texts;
    for (std::size_t column = 0; column < std::size(CourseListColumns); ++column)
        texts.append(column == 0 ? "" : "|").append(model.Text(0, column));
    return texts;
}

constexpr const char* BlankRow = "4||||||||||"; // except for the ID

CourseListModel Shown(const CourseFilter& filter)
{
    Search search(filter.Search);
    return CourseListModel(CoursesThatPass(filter, search));
}

TEST(Refresh, FindsWhatTheTablesHoldNow)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Nastavnici = {"5;Prvi;;1"};
    catalogue.Kolegiji = {"1;Lov;0;0;0;5;obvezni;1;1"};
    catalogue.KolegijNastavnici = {"1;5;Nositelj;1"};
    catalogue.Use();
    EXPECT_EQ(CountFound("prvi"), 1U);

    modData::Nastavnici.Replace(0, {"5", "Drugi", "", "1"});
    EXPECT_EQ(CountFound("prvi"), 0U) << "a lecturer's name";
    EXPECT_EQ(CountFound("drugi"), 1U);

    modData::KolegijNastavnici.RemoveMatches(KolegijNastavnik::KolegijID, 1);
    EXPECT_EQ(CountFound("drugi"), 0U) << "a link";

    modData::Kolegiji.Append({"2", "Ribolov", "0", "0", "0", "5", "izborni", "1", "1"});
    EXPECT_EQ(CountFound("lov"), 2U) << "a new course";
    modData::Kolegiji.Replace(0, {"1", "Vode", "0", "0", "0", "5", "obvezni", "1", "1"});
    EXPECT_EQ(CountFound("lov"), 1U) << "a course's title";
    DeleteKolegij(2);
    EXPECT_EQ(CountFound("lov"), 0U) << "a deleted course";

    catalogue.Use();
    EXPECT_EQ(CountFound("prvi"), 1U) << "all loaded again";
}

TEST(Refresh, AnErrorComesEachTimeUntilItsCauseIsGone)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji = {"1;Lov;0;0;0;5;obvezni;1;1"};
    catalogue.KolegijNastavnici = {"1;x;Nositelj;1"};
    catalogue.Use();
    EXPECT_THROW(CountFound("lov"), TypeMismatch);
    EXPECT_THROW(CountFound("lov"), TypeMismatch);

    modData::KolegijNastavnici.RemoveMatches(KolegijNastavnik::KolegijID, 1);
    EXPECT_EQ(CountFound("lov"), 1U);
}

TEST(Refresh, ASearchDecidesEachCourseOnce)
{
    SmallCatalogue().Use();
    Search search("lov");
    EXPECT_TRUE(search.Matches(0));
    EXPECT_FALSE(search.Matches(1));
    modData::Kolegiji.Replace(0, {"1", "Vode", "0", "0", "0", "5", "obvezni", "1", "1"});
    modData::Kolegiji.Replace(1, {"2", "Lov", "0", "0", "0", "5", "obvezni", "1", "1"});
    EXPECT_TRUE(search.Matches(0));
    EXPECT_FALSE(search.Matches(1));
    EXPECT_FALSE(Search("lov").Matches(0));
}

TEST(CourseListModel, IsBlankOnceACourseIsGoneOrNew)
{
    for (const bool isDeleted : {true, false})
    {
        SmallCatalogue().Use();
        const CourseListModel model = Shown({.StudijID = 3});
        EXPECT_EQ(FirstRow(model), "4|Napredni lov|3|0|1|10|obvezni|1|LOR|DIP|Đurić Ćiro");
        if (isDeleted)
            DeleteKolegij(1);
        else
            modData::Kolegiji.Append({"6", "Novi", "0", "0", "0", "5", "izborni", "1", "1"});
        EXPECT_EQ(model.RowCount(), 1U);
        EXPECT_EQ(FirstRow(model), BlankRow);
        EXPECT_EQ(model.Style(0, 0), CellStyle());
    }
}

TEST(CourseListModel, FindsACourseAgainByItsIDAndItsNumberAmongEqualIDs)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji = {"x;A;1;1;1;1;obvezni;1;1", "7;B;1;1;1;1;obvezni;1;1", " 7;C;1;1;1;1;obvezni;1;2",
                          "7;D;1;1;1;1;obvezni;1;1"};
    catalogue.Use();
    const CourseListModel all({1, 2, 3});
    const CourseListModel two({1, 3});
    EXPECT_EQ(two.RowOf(all.MarkOf(0)), 0U);
    EXPECT_EQ(two.RowOf(all.MarkOf(1)), std::nullopt);
    EXPECT_EQ(two.RowOf(all.MarkOf(2)), 1U);
    modData::Kolegiji.Append({"9", "E", "1", "1", "1", "1", "obvezni", "1", "1"});
    EXPECT_EQ(two.RowOf(all.MarkOf(2)), 1U) << "a new course comes after all others";
}

TEST(CourseListModel, NeverReadsBeyondATableAndNeverThrows)
{
    SmallCatalogue().Use();
    const CourseListModel model = Shown({.StudijID = 3});
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji = {"1;Lov"};
    catalogue.Use();
    EXPECT_EQ(FirstRow(model), BlankRow) << "a table with fewer rows";
    EXPECT_EQ(model.Style(0, 0), CellStyle());

    catalogue.Kolegiji = {"1", "2", "3", "4", "5"};
    catalogue.Use();
    EXPECT_EQ(FirstRow(model), "4|||||||||DIP|Đurić Ćiro") << "a row with fewer fields";
    EXPECT_EQ(model.Style(0, 0), CellStyle());

    catalogue = SmallCatalogue();
    catalogue.KolegijNastavnici = {"4;x;Nositelj;1"};
    catalogue.Use();
    EXPECT_EQ(FirstRow(model), "4|Napredni lov|3|0|1|10|obvezni|1|LOR|DIP|") << "a link that cannot be read";
}

TEST(KeptRows, KeepWhatTheyShowWhenACourseIsDeleted)
{
    SmallCatalogue().Use();
    const KeptRows sums(StatistikaRows({}, modData::Preddiplomski));
    EXPECT_EQ(sums.Text(0, 2), "9");
    DeleteKolegij(1);
    EXPECT_EQ(sums.Text(0, 2), "9");
    EXPECT_EQ(StatistikaRows({}, modData::Preddiplomski).front()[2].Text, "5") << "the next refresh";
}

} // namespace

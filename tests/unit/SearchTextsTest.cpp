// The texts that the search keeps follow every change of the tables.

#include "ui/main/SearchTexts.h"
#include "data/Errors.h"
#include "data/modData.h"
#include "support/Catalogue.h"
#include "ui/main/CourseDeletion.h"
#include "ui/main/CourseList.h"

#include <gtest/gtest.h>

namespace
{

std::size_t CountFound(const std::string& search)
{
    return CourseRows({.Search = search}).size();
}

TEST(SearchTexts, HoldTheSearchedPartsInUpperCase)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Nastavnici = {"5;Žarko Đurić;;1", "6;Ana Anić;;1"};
    catalogue.Kolegiji = {"1;Lov;9;9;9;5;obvezni;1;1"};
    catalogue.KolegijNastavnici = {"1;5;Nositelj;2", "1;6;Nositelj;1"};
    catalogue.Use();
    SearchTexts texts;
    EXPECT_EQ(texts.Of(modData::Kolegiji[0]), " LOV 5 OBVEZNI ANA ANIĆ, ŽARKO ĐURIĆ");
    EXPECT_EQ(texts.Of(modData::Kolegiji[0]), " LOV 5 OBVEZNI ANA ANIĆ, ŽARKO ĐURIĆ") << "kept";
}

TEST(SearchTexts, AChangedTableChangesThem)
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
    EXPECT_EQ(CountFound("prvi"), 1U) << "all loaded anew";
}

TEST(SearchTexts, AnErrorComesEachTimeUntilItsCauseIsGone)
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

} // namespace

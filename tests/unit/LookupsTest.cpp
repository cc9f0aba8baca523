#include "data/Lookups.h"
#include "data/Errors.h"
#include "data/modData.h"
#include "support/Catalogue.h"

#include <gtest/gtest.h>

using namespace modData;

namespace
{

/// Lecturers 1 to 4 named "A" to "D", and the links of a course 1.
void UseLinks(Catalogue::Lines links)
{
    Catalogue catalogue;
    catalogue.Nastavnici = {"1;A;;1", "2;B;;1", "3;C;;1", "4;D;;1"};
    catalogue.KolegijNastavnici = std::move(links);
    catalogue.Use();
}

std::string Nositelji123()
{
    std::string names[] = {"old", "old", "old"};
    GetNositelji123(1, names[0], names[1], names[2]);
    return names[0] + "|" + names[1] + "|" + names[2];
}

std::string NastavniciForKolegij()
{
    std::string names;
    for (const PlacedNastavnik& placed : GetNastavniciForKolegij(1))
        names.append(placed.Nastavnik->Field(Nastavnik::PrezimeIme))
            .append(std::to_string(placed.Redoslijed));
    return names;
}

TEST(Lookups, GiveTheFirstMatchOrNothing)
{
    Catalogue catalogue;
    catalogue.Studiji = {"1;X;K1;Preddiplomski", "07;X;K7;Diplomski", "7;X;K77;Diplomski"};
    catalogue.Smjerovi = {"3;X;SM;1;Preddiplomski"};
    catalogue.Nastavnici = {"4;Anić Ana;;1"};
    catalogue.Use();
    EXPECT_EQ(GetStudijKratica(7), "K7");
    EXPECT_EQ(GetStudijRazina(1), "Preddiplomski");
    EXPECT_EQ(GetSmjerKratica(3), "SM");
    EXPECT_EQ(GetNastavnikIme(4), "Anić Ana");
    EXPECT_EQ(GetStudijKratica(2), "");
    EXPECT_EQ(GetNastavnikIme(5), "");
}

TEST(Lookups, ABadRowIsAnErrorOnlyBeforeTheMatch)
{
    Catalogue catalogue;
    catalogue.Studiji = {"1;X;K1;R", "x;X;K2;R", "3;X;K3;R"};
    catalogue.Use();
    EXPECT_EQ(GetStudijKratica(1), "K1");
    EXPECT_THROW(GetStudijKratica(3), TypeMismatch);
}

TEST(Lookups, DirectionsAreJoinedWithoutBlankOnes)
{
    Catalogue catalogue;
    catalogue.Smjerovi = {"1;X; A ;1;R", "2;X;;1;R", "3;X;B;1;R", "4;X;  ;1;R"};
    catalogue.KolegijSmjerovi = {"1;1", "1;2", "2;1", "1;99", "1;4", "1;3"};
    catalogue.Use();
    EXPECT_EQ(GetSmjeroviKraticeString(1), "A, B");
    EXPECT_EQ(GetSmjeroviKraticeString(5), "");
}

TEST(Lookups, AShortNameIsEmptyOrPaddedAndLeavesNoSeparatorOfItsOwn)
{
    Catalogue catalogue;
    catalogue.Smjerovi = {"1;X;A;1;R", "2;X; ;1;R", "3;X; C ;1;R"};
    catalogue.KolegijSmjerovi = {"1;1", "1;2", "1;3", "2;2", "2;3", "3;2"};
    catalogue.Use();
    EXPECT_EQ(GetSmjeroviKraticeString(1), "A, C") << "and not \"A, , C\"";
    EXPECT_EQ(GetSmjeroviKraticeString(2), "C");
    EXPECT_EQ(GetSmjeroviKraticeString(3), "");
    EXPECT_EQ(GetSmjerKratica(3), " C ") << "the lookup itself trims nothing";
}

TEST(Lookups, HoldersAreSortedByPlace)
{
    UseLinks({"1;3;Nositelj;3", "1;1;Nositelj;1", "1;2;Nositelj;2", "2;4;Nositelj;1"});
    EXPECT_EQ(GetNositeljiString(1), "A; B; C");
    EXPECT_EQ(Nositelji123(), "A|B|C");
    EXPECT_EQ(NastavniciForKolegij(), "A1B2C3");
}

TEST(Lookups, OfFourLinksTheThreeHoldersTakeTheFirstThree)
{
    UseLinks({"1;4;Nositelj;4", "1;3;Nositelj;3", "1;2;Gost;2", "1;1;Nositelj;1"});
    EXPECT_EQ(Nositelji123(), "B|C|D");
    EXPECT_EQ(GetNositeljiString(1), "A; B; C; D");
    EXPECT_EQ(NastavniciForKolegij(), "A1B2C3D4");
}

TEST(Lookups, FewerHoldersLeaveTheirPlacesEmpty)
{
    UseLinks({"1;2;Nositelj;3"});
    EXPECT_EQ(Nositelji123(), "B||");
    UseLinks({});
    EXPECT_EQ(Nositelji123(), "||");
    EXPECT_EQ(GetNositeljiString(1), "");
    EXPECT_EQ(NastavniciForKolegij(), "");
}

TEST(Lookups, TheExchangesDecideTheOrderOfEqualPlaces)
{
    // 2A 2B 1C: C and A are exchanged, so B is before A.
    UseLinks({"1;1;Nositelj;2", "1;2;Nositelj;2", "1;3;Nositelj;1"});
    EXPECT_EQ(GetNositeljiString(1), "C; B; A");
    EXPECT_EQ(NastavniciForKolegij(), "C1B2A2");
    EXPECT_EQ(Nositelji123(), "C|B|A");
}

TEST(Lookups, OfPlaces211TheTwoFirstKeepTheirOrder)
{
    UseLinks({"1;1;Nositelj;2", "1;2;Nositelj;1", "1;3;Nositelj;1"});
    EXPECT_EQ(GetNositeljiString(1), "B; C; A");
    EXPECT_EQ(NastavniciForKolegij(), "B1C1A2");
    EXPECT_EQ(Nositelji123(), "B|C|A");
}

TEST(Lookups, AKnownLecturerWithoutANameIsListedAllTheSame)
{
    Catalogue catalogue;
    catalogue.Nastavnici = {"1;A;;1", "2;;;1", "3;  ;;1"};
    catalogue.KolegijNastavnici = {"1;1;N;1", "1;2;N;2", "1;3;N;3", "2;2;N;1", "2;1;N;2"};
    catalogue.Use();
    EXPECT_EQ(GetNositeljiString(1), "A; ;   ") << "names are not trimmed";
    EXPECT_EQ(Nositelji123(), "A||  ");
    EXPECT_EQ(NastavniciForKolegij(), "A12  3");
    EXPECT_EQ(GetNositeljiString(2), "A");
}

TEST(Lookups, AnUnknownLecturerLeavesASeparatorAfterAKnownOne)
{
    UseLinks({"1;99;Nositelj;1", "1;1;Nositelj;2"});
    EXPECT_EQ(GetNositeljiString(1), "A");
    EXPECT_EQ(NastavniciForKolegij(), "A2");
    UseLinks({"1;1;Nositelj;1", "1;99;Nositelj;2"});
    EXPECT_EQ(GetNositeljiString(1), "A; ");
    EXPECT_EQ(Nositelji123(), "A||");
}

TEST(Lookups, AFieldIsReadOnlyIfTheOnesBeforeItMatch)
{
    UseLinks({"2", "2;x", "1;1;Nositelj;1"});
    EXPECT_EQ(GetNositeljiString(1), "A") << "the links of another course need no second field";
    UseLinks({"1;1;Nositelj;1", "1;2;Nositelj;x"});
    EXPECT_THROW(GetNositeljiString(1), TypeMismatch);
    UseLinks({"1;1;Nositelj;1", "1;2"});
    EXPECT_THROW(GetNastavniciForKolegij(1), SubscriptOutOfRange);
    UseLinks({"1;99;Nositelj;x"});
    EXPECT_NO_THROW(GetNastavniciForKolegij(1)) << "no place is asked of an unknown lecturer";
    UseLinks({"1;1;N;1", "1;1;N;1", "1;1;N;1", "1;x;N;x"});
    EXPECT_NO_THROW(Nositelji123()) << "a fourth link is not looked at";
}

TEST(Lookups, TheExchangesDecideTheOrderOfMoreEqualPlaces)
{
    UseLinks({"1;1;N;2", "1;2;N;2", "1;3;N;2", "1;4;N;1"});
    EXPECT_EQ(NastavniciForKolegij(), "D1B2C2A2");
    EXPECT_EQ(GetNositeljiString(1), "D; B; C; A");
    UseLinks({"1;1;N;3", "1;2;N;2", "1;3;N;3", "1;4;N;1"});
    EXPECT_EQ(NastavniciForKolegij(), "D1B2C3A3");
    EXPECT_EQ(GetNositeljiString(1), "D; B; C; A");
    UseLinks({"1;1;N;1", "1;2;N;1", "1;3;N;1"});
    EXPECT_EQ(Nositelji123(), "A|B|C") << "equal places alone are not exchanged";
}

TEST(Lookups, MatchingFailsOnABadCourseAfterTheLastLinkToo)
{
    UseLinks({"1;1;N;1", "1;2;N;2", "1;3;N;3", "x;1;N;1"});
    EXPECT_THROW(GetNositeljiString(1), TypeMismatch);
    EXPECT_THROW(GetNastavniciForKolegij(1), TypeMismatch);
    EXPECT_THROW(Nositelji123(), TypeMismatch);
    EXPECT_THROW(GetNositeljiString(7), TypeMismatch) << "also where nothing is found";
}

TEST(Lookups, ALecturerComesWithTheWholeRowAndOfEqualIDsTheFirst)
{
    Catalogue catalogue;
    catalogue.Nastavnici = {"07;Anić Ana; dr. sc. ;2;x", "7;Drugi;;1"};
    catalogue.KolegijNastavnici = {"1;7;;2,0"};
    catalogue.Use();
    const auto found = GetNastavniciForKolegij(1);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].Nastavnik->FieldCount(), 5U);
    EXPECT_EQ(found[0].Nastavnik->Field(Nastavnik::Titula), " dr. sc. ");
    EXPECT_EQ(found[0].Redoslijed, 2);
}

TEST(Lookups, ARowWithoutTheFieldIsAnErrorWhereItMatches)
{
    Catalogue catalogue;
    catalogue.Studiji = {"1;X", "2;X;K2;Diplomski"};
    catalogue.Use();
    EXPECT_EQ(GetStudijKratica(2), "K2");
    EXPECT_THROW(GetStudijKratica(1), SubscriptOutOfRange);
    EXPECT_THROW(GetStudijRazina(1), SubscriptOutOfRange);
}

TEST(Lookups, ABadDirectionIsAnErrorForItsOwnCourseAlone)
{
    Catalogue catalogue;
    catalogue.Smjerovi = {"1;X;A;1;R"};
    catalogue.KolegijSmjerovi = {"1;1", "2;x", "3"};
    catalogue.Use();
    EXPECT_EQ(GetSmjeroviKraticeString(1), "A");
    EXPECT_THROW(GetSmjeroviKraticeString(2), TypeMismatch);
    EXPECT_THROW(GetSmjeroviKraticeString(3), SubscriptOutOfRange);
}

} // namespace

#include "ui/course_editor/CourseEntry.h"

#include "data/Errors.h"
#include "data/modData.h"
#include "support/Catalogue.h"

#include <gtest/gtest.h>

#include <utility>

namespace
{

using Lines = std::vector<std::string>;

/// An entry that passes every check, for the small catalogue.
CourseEntry Valid()
{
    return {.Naziv = "Novi",
            .P = "2",
            .S = "1",
            .V = "0",
            .ECTS = "5",
            .Tip = "obvezni",
            .Semestar = "3",
            .StudijID = 1,
            .SmjerIDs = {1},
            .NastavnikIDs = {2}};
}

void ExpectFault(const CourseEntry& entry, EntryField field, const std::string& message)
{
    const std::optional<ValidationError> fault = CheckEntry(entry);
    ASSERT_TRUE(fault.has_value()) << "instead of: " << message;
    EXPECT_EQ(fault->Message, message);
    EXPECT_EQ(fault->Field, field);
}

void ExpectPasses(const CourseEntry& entry)
{
    const std::optional<ValidationError> fault = CheckEntry(entry);
    EXPECT_FALSE(fault.has_value()) << fault->Message;
}

struct NumberField
{
    std::string CourseEntry::*Text;
    EntryField Field;
    std::string Name;
};

const NumberField NumberFields[] = {{&CourseEntry::P, EntryField::P, "P"},
                                    {&CourseEntry::S, EntryField::S, "S"},
                                    {&CourseEntry::V, EntryField::V, "V"},
                                    {&CourseEntry::ECTS, EntryField::ECTS, "ECTS"}};

// Checks

TEST(CourseEntryCheck, AWholeEntryPasses)
{
    ExpectPasses(Valid());
}

TEST(CourseEntryCheck, TheTitleMustNotBeBlank)
{
    for (const char* blank : {"", "   "})
    {
        CourseEntry entry = Valid();
        entry.Naziv = blank;
        ExpectFault(entry, EntryField::Naziv, "Unesite naziv kolegija.");
    }
}

TEST(CourseEntryCheck, HoursAndCreditsMustBeNumbers)
{
    for (const NumberField& field : NumberFields)
        for (const char* text : {"", "  ", "x", "2x", "1 2", "1.2.3", "-", ".", "1e3", "&H10", "99999999999",
                                 "2147483648", "-99999999999", "2147483647.5"})
        {
            SCOPED_TRACE(field.Name + " = " + text);
            CourseEntry entry = Valid();
            entry.*field.Text = text;
            ExpectFault(entry, field.Field, field.Name + " mora biti broj.");
        }
}

TEST(CourseEntryCheck, HoursAndCreditsMustNotBeNegative)
{
    for (const NumberField& field : NumberFields)
        for (const char* text : {"-1", " -2 ", "-0.6", "-1,5", "-2147483648"})
        {
            SCOPED_TRACE(field.Name + " = " + text);
            CourseEntry entry = Valid();
            entry.*field.Text = text;
            ExpectFault(entry, field.Field, field.Name + " mora biti nenegativan broj.");
        }
}

TEST(CourseEntryCheck, ZeroFractionsAndBlanksAroundANumberPass)
{
    for (const NumberField& field : NumberFields)
        for (const char* text : {"0", " 7 ", "1.5", "1,5", "-0.5", "-0", "+3", "007", "2147483647"})
        {
            SCOPED_TRACE(field.Name + " = " + text);
            CourseEntry entry = Valid();
            entry.*field.Text = text;
            ExpectPasses(entry);
        }
}

TEST(CourseEntryCheck, ASemesterMustBeSelected)
{
    CourseEntry entry = Valid();
    entry.Semestar = "";
    ExpectFault(entry, EntryField::Semestar, "Odaberite semestar.");
}

TEST(CourseEntryCheck, TheTypeMustBeOneOfTheTwoWords)
{
    for (const char* tip : {"", "  ", "fakultativni", "obvezni/izborni", "obvezn"})
    {
        CourseEntry entry = Valid();
        entry.Tip = tip;
        ExpectFault(entry, EntryField::Tip, "Odaberite tip kolegija (obvezni/izborni).");
    }
    for (const char* tip : {"izborni", "Obvezni", " IZBORNI ", "obvezni "})
    {
        CourseEntry entry = Valid();
        entry.Tip = tip;
        ExpectPasses(entry);
    }
}

TEST(CourseEntryCheck, ADirectionMustBeSelected)
{
    CourseEntry entry = Valid();
    entry.SmjerIDs = {};
    ExpectFault(entry, EntryField::Smjerovi, "Odaberite barem jedan smjer.");
}

TEST(CourseEntryCheck, AHolderMustBeSelectedInAnyPlace)
{
    CourseEntry entry = Valid();
    entry.NastavnikIDs = {};
    ExpectFault(entry, EntryField::Nastavnik1, "Odaberite barem jednog nastavnika.");
    entry.NastavnikIDs = {std::nullopt, 1, std::nullopt};
    ExpectPasses(entry);
    entry.NastavnikIDs = {std::nullopt, std::nullopt, 1};
    ExpectPasses(entry);
}

TEST(CourseEntryCheck, ALecturerHoldsACourseOnlyOnce)
{
    const std::string message = "Ne možete odabrati istog nastavnika više puta. Promijenite odabir.";
    const std::pair<std::array<std::optional<std::int32_t>, NositeljPlaces>, EntryField> refused[] = {
        {{2, 2, std::nullopt}, EntryField::Nastavnik2},
        {{2, std::nullopt, 2}, EntryField::Nastavnik3},
        {{std::nullopt, 2, 2}, EntryField::Nastavnik3},
        {{1, 2, 2}, EntryField::Nastavnik3},
        {{2, 2, 2}, EntryField::Nastavnik2},
    };
    CourseEntry entry = Valid();
    for (const auto& [nastavnikIDs, field] : refused)
    {
        entry.NastavnikIDs = nastavnikIDs;
        ExpectFault(entry, field, message);
    }
    entry.NastavnikIDs = {1, 2, 3};
    ExpectPasses(entry);
    entry.NastavnikIDs = {1, std::nullopt, 3};
    ExpectPasses(entry);
}

TEST(CourseEntryCheck, ALecturerWithTheID0CountsAsChosenButIsNotCompared)
{
    CourseEntry entry = Valid();
    entry.NastavnikIDs = {0, 0, std::nullopt};
    ExpectPasses(entry);
    entry.NastavnikIDs = {0, 0, 0};
    ExpectPasses(entry);
    entry.NastavnikIDs = {std::nullopt, 0, std::nullopt};
    ExpectPasses(entry);
}

// Everything is wrong at first; putting one error right leads to the next check.
TEST(CourseEntryCheck, ChecksInAFixedOrder)
{
    CourseEntry entry;
    ExpectFault(entry, EntryField::Naziv, "Unesite naziv kolegija.");
    entry.Naziv = "Novi";
    for (const NumberField& field : NumberFields)
    {
        ExpectFault(entry, field.Field, field.Name + " mora biti broj.");
        entry.*field.Text = "-1";
        ExpectFault(entry, field.Field, field.Name + " mora biti nenegativan broj.");
        entry.*field.Text = "0";
    }
    ExpectFault(entry, EntryField::Semestar, "Odaberite semestar.");
    entry.Semestar = "1";
    ExpectFault(entry, EntryField::Tip, "Odaberite tip kolegija (obvezni/izborni).");
    entry.Tip = "izborni";
    ExpectFault(entry, EntryField::Smjerovi, "Odaberite barem jedan smjer.");
    entry.SmjerIDs = {1};
    ExpectFault(entry, EntryField::Nastavnik1, "Odaberite barem jednog nastavnika.");
    entry.NastavnikIDs = {1, 1};
    ExpectFault(entry, EntryField::Nastavnik2,
                "Ne možete odabrati istog nastavnika više puta. Promijenite odabir.");
    entry.NastavnikIDs = {1};
    ExpectPasses(entry);
}

// Saving a new course

TEST(CourseEntrySave, ANewCourseAndItsLinksGoToTheEnd)
{
    SmallCatalogue().Use();
    CourseEntry entry = Valid();
    entry.Naziv = "  Novi kolegij ";
    entry.SmjerIDs = {2, 1};
    entry.NastavnikIDs = {3, 1, 2};
    AddKolegij(entry);
    ASSERT_EQ(modData::Kolegiji.RowCount(), 6U);
    EXPECT_EQ(LinesOf(modData::Kolegiji).back(), "6;Novi kolegij;2;1;0;5;obvezni;3;1");
    EXPECT_EQ(LinesOf(modData::KolegijSmjerovi), (Lines{"1;1", "1;2", "2;2", "3;3", "4;4", "6;2", "6;1"}));
    Lines nastavnici = LinesOf(modData::KolegijNastavnici);
    ASSERT_EQ(nastavnici.size(), 9U);
    nastavnici.erase(nastavnici.begin(), nastavnici.begin() + 6);
    EXPECT_EQ(nastavnici, (Lines{"6;3;Nositelj;1", "6;1;Nositelj;2", "6;2;Nositelj;3"}));
}

TEST(CourseEntrySave, EmptyPlacesGetNoLink)
{
    SmallCatalogue().Use();
    CourseEntry entry = Valid();
    entry.NastavnikIDs = {1, std::nullopt, 3};
    AddKolegij(entry);
    const Lines nastavnici = LinesOf(modData::KolegijNastavnici);
    ASSERT_EQ(nastavnici.size(), 8U);
    EXPECT_EQ(nastavnici[6], "6;1;Nositelj;1");
    EXPECT_EQ(nastavnici[7], "6;3;Nositelj;3");
}

TEST(CourseEntrySave, TheNewIDIsTheLargestPlusOne)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji = {"17;K;1;1;1;1;obvezni;1;1", "3;K;1;1;1;1;obvezni;1;1"};
    catalogue.Use();
    AddKolegij(Valid());
    EXPECT_EQ(LinesOf(modData::Kolegiji).back(), "18;Novi;2;1;0;5;obvezni;3;1");
    EXPECT_EQ(LinesOf(modData::KolegijSmjerovi).back(), "18;1");

    catalogue.Kolegiji = {};
    catalogue.Use();
    AddKolegij(Valid());
    EXPECT_EQ(LinesOf(modData::Kolegiji), Lines{"1;Novi;2;1;0;5;obvezni;3;1"});
}

TEST(CourseEntrySave, NumbersAreStoredWholeRoundedWithHalvesToEven)
{
    SmallCatalogue().Use();
    CourseEntry entry = Valid();
    entry.P = "1.5";
    entry.S = "0,5";
    entry.V = " +2.5 ";
    entry.ECTS = "0";
    AddKolegij(entry);
    EXPECT_EQ(LinesOf(modData::Kolegiji).back(), "6;Novi;2;0;2;0;obvezni;3;1");
    entry.P = "-0.5";
    entry.S = "007";
    entry.V = "2147483647";
    entry.ECTS = "3.5";
    AddKolegij(entry);
    EXPECT_EQ(LinesOf(modData::Kolegiji).back(), "7;Novi;0;7;2147483647;4;obvezni;3;1");
}

TEST(CourseEntrySave, TypeAndSemesterAreStoredUnchanged)
{
    SmallCatalogue().Use();
    CourseEntry entry = Valid();
    entry.Tip = " Obvezni ";
    entry.Semestar = "4";
    entry.Naziv = "Točka; zarez";
    AddKolegij(entry);
    EXPECT_EQ(LinesOf(modData::Kolegiji).back(), "6;Točka; zarez;2;1;0;5; Obvezni ;4;1");
    EXPECT_EQ(modData::Kolegiji[5].FieldCount(), 9U);
}

TEST(CourseEntrySave, AnIDInTheTableThatIsNoNumberIsAnErrorAndAddsNothing)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji.push_back("x;K;1;1;1;1;obvezni;1;1");
    catalogue.Use();
    EXPECT_THROW(AddKolegij(Valid()), TypeMismatch);
    EXPECT_EQ(modData::Kolegiji.RowCount(), 6U);
    EXPECT_EQ(modData::KolegijSmjerovi.RowCount(), 5U);
    EXPECT_EQ(modData::KolegijNastavnici.RowCount(), 6U);
}

// Saving a changed course

TEST(CourseEntrySave, AChangedCourseKeepsItsPlaceAndItsLinksAreReplaced)
{
    SmallCatalogue().Use();
    CourseEntry entry = Valid();
    entry.SmjerIDs = {2};
    entry.NastavnikIDs = {std::nullopt, 2, 1};
    ReplaceKolegij(1, entry);
    Lines kolegiji = LinesOf(modData::Kolegiji);
    ASSERT_EQ(kolegiji.size(), 5U);
    EXPECT_EQ(kolegiji[0], "1;Novi;2;1;0;5;obvezni;3;1");
    EXPECT_EQ(kolegiji[1], "2;Žičani alati;1;1;1;4;izborni;2;1");
    EXPECT_EQ(LinesOf(modData::KolegijSmjerovi), (Lines{"2;2", "3;3", "4;4", "1;2"}));
    EXPECT_EQ(LinesOf(modData::KolegijNastavnici),
              (Lines{"2;2;Nositelj;1", "3;2;Nositelj;1", "4;3;Nositelj;1", "5;1;Nositelj;1", "1;2;Nositelj;2",
                     "1;1;Nositelj;3"}));

    ReplaceKolegij(5, entry);
    EXPECT_EQ(LinesOf(modData::Kolegiji).back(), "5;Novi;2;1;0;5;obvezni;3;1") << "the last stays the last";
    ReplaceKolegij(3, entry);
    kolegiji = LinesOf(modData::Kolegiji);
    EXPECT_EQ(kolegiji[2], "3;Novi;2;1;0;5;obvezni;3;1");
    EXPECT_EQ(kolegiji[3], "4;Napredni lov;3;0;1;10;obvezni;1;3");
}

TEST(CourseEntrySave, OfADuplicatedIDTheFirstRowIsReplaced)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji = {"1;A;1;1;1;1;obvezni;1;1", "02;Prvi;1;1;1;1;obvezni;1;1",
                          "2;Drugi;1;1;1;1;obvezni;1;1"};
    catalogue.KolegijSmjerovi = {"2;1", "02;2", "1;1"};
    catalogue.KolegijNastavnici = {"02;1;Nositelj;1", "1;1;Nositelj;1", "2;2;Asistent;7"};
    catalogue.Use();
    ReplaceKolegij(2, Valid());
    EXPECT_EQ(LinesOf(modData::Kolegiji), (Lines{"1;A;1;1;1;1;obvezni;1;1", "2;Novi;2;1;0;5;obvezni;3;1",
                                                 "2;Drugi;1;1;1;1;obvezni;1;1"}));
    EXPECT_EQ(LinesOf(modData::KolegijSmjerovi), (Lines{"1;1", "2;1"})) << "the links of both are gone";
    EXPECT_EQ(LinesOf(modData::KolegijNastavnici), (Lines{"1;1;Nositelj;1", "2;2;Nositelj;1"}));
}

TEST(CourseEntrySave, ACourseThatIsGoneIsAppended)
{
    SmallCatalogue().Use();
    ReplaceKolegij(77, Valid());
    ASSERT_EQ(modData::Kolegiji.RowCount(), 6U);
    EXPECT_EQ(LinesOf(modData::Kolegiji).back(), "77;Novi;2;1;0;5;obvezni;3;1");
    EXPECT_EQ(LinesOf(modData::KolegijSmjerovi).back(), "77;1");
    EXPECT_EQ(LinesOf(modData::KolegijNastavnici).back(), "77;2;Nositelj;1");
}

// Showing a course

TEST(CourseEntryOf, ShowsTheFieldsAsStored)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji = {"1; Uvod ;2.5;;x;5; Obvezni ;01;1"};
    catalogue.Use();
    const std::optional<CourseEntry> entry = EntryOf(1);
    ASSERT_TRUE(entry.has_value());
    EXPECT_EQ(entry->Naziv, " Uvod ");
    EXPECT_EQ(entry->P, "2.5");
    EXPECT_EQ(entry->S, "");
    EXPECT_EQ(entry->V, "x");
    EXPECT_EQ(entry->ECTS, "5");
    EXPECT_EQ(entry->Tip, " Obvezni ");
    EXPECT_EQ(entry->Semestar, "01");
    EXPECT_EQ(entry->SmjerIDs, (std::vector<std::int32_t>{1, 2}));
    EXPECT_EQ(entry->NastavnikIDs,
              (std::array<std::optional<std::int32_t>, NositeljPlaces>{1, 3, std::nullopt}));
}

TEST(CourseEntryOf, TheLaterLinkToAPlaceWinsAndOtherPlacesHaveNoList)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.KolegijNastavnici = {"1;1;Nositelj;2", "1;2;Asistent;1",  "1;3;Nositelj;2", "1;1;Nositelj;4",
                                   "1;2;Nositelj;0", "1;2;Nositelj;-1", "2;2;Nositelj;3"};
    catalogue.Use();
    EXPECT_EQ(EntryOf(1)->NastavnikIDs,
              (std::array<std::optional<std::int32_t>, NositeljPlaces>{2, 3, std::nullopt}));
}

TEST(CourseEntryOf, ALinkToALecturerWithoutAnEntryChangesNothing)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Nastavnici = {"1;Anić Ana;;1", "2;  ;;2"};
    for (const char* later : {"1;99;Nositelj;1", "1;2;Nositelj;1"})
    {
        catalogue.KolegijNastavnici = {"1;1;Nositelj;1", later};
        catalogue.Use();
        EXPECT_EQ(EntryOf(1)->NastavnikIDs[0], 1) << later;
    }
}

TEST(CourseEntryOf, OfADuplicatedIDTheFirstRowIsShown)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji = {"02;Prvi;1;1;1;1;obvezni;1;1", "2;Drugi;1;1;1;1;obvezni;1;1"};
    catalogue.Use();
    EXPECT_EQ(EntryOf(2)->Naziv, "Prvi");
}

TEST(CourseEntryOf, ACourseThatIsGoneHasNoEntry)
{
    SmallCatalogue().Use();
    EXPECT_FALSE(EntryOf(77).has_value());
}

} // namespace

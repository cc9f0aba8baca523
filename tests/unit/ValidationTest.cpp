#include "data/Errors.h"
#include "support/Catalogue.h"
#include "validation/modCSVValidator.h"

#include <gtest/gtest.h>

using namespace modCSVValidator;

namespace
{

using Texts = std::vector<std::string>;

Texts MessagesOf(const Catalogue& catalogue)
{
    catalogue.Use();
    Texts texts;
    for (const Message& message : AllMessages())
        texts.push_back(message.Text);
    EXPECT_EQ(ValidateAll(), texts.empty());
    return texts;
}

Texts With(void (*change)(Catalogue&))
{
    Catalogue catalogue = SmallCatalogue();
    change(catalogue);
    return MessagesOf(catalogue);
}

TEST(Validation, EmptyTablesAndACleanCataloguePass)
{
    EXPECT_EQ(MessagesOf({}), Texts{});
    EXPECT_EQ(MessagesOf(SmallCatalogue()), Texts{});
}

TEST(Validation, EveryFurtherRowWithALecturersIDIsADuplicate)
{
    EXPECT_EQ(With(
                  [](Catalogue& c) {
                      c.Nastavnici.insert(c.Nastavnici.end(), {"03;B;;1", " 3 ;C;;1"});
                  }),
              (Texts{"Nastavnici: dupli ID_nastavnik = 3", "Nastavnici: dupli ID_nastavnik = 3"}));
}

TEST(Validation, ALecturerNeedsANameAndADepartment)
{
    EXPECT_EQ(With([](Catalogue& c) { c.Nastavnici.push_back("07;   ;;99 "); }),
              (Texts{"Nastavnici: prazno ime za ID 7", "Nastavnici: ID_zavod ne postoji › 99 "}));
}

TEST(Validation, ACourseNeedsItsOwnIDASemesterAndAStudy)
{
    EXPECT_EQ(With(
                  [](Catalogue& c) {
                      c.Kolegiji.insert(c.Kolegiji.end(), {"5;A;;;;;;0;1", "6;B;;;;;;7;9", "7;C;;;;;;6;1"});
                  }),
              (Texts{"Kolegiji: dupli ID_kolegij = 5", "Kolegiji: neispravan semestar (0) za ID 5",
                     "Kolegiji: neispravan semestar (7) za ID 6", "Kolegiji: ID_studij ne postoji › 9"}));
}

TEST(Validation, ALecturersLinkNeedsACourseALecturerAndAPlace)
{
    EXPECT_EQ(With(
                  [](Catalogue& c)
                  {
                      c.KolegijNastavnici.insert(c.KolegijNastavnici.end(),
                                                 {"99;98;;1", "1;2;;4", "1;2;;0", "1;2;whatever;3"});
                  }),
              (Texts{"KolegijNastavnik: ID_kolegij ne postoji › 99",
                     "KolegijNastavnik: ID_nastavnik ne postoji › 98",
                     "KolegijNastavnik: neispravan redoslijed (4) za kolegij 1",
                     "KolegijNastavnik: neispravan redoslijed (0) za kolegij 1"}));
}

TEST(Validation, ADirectionsLinkNeedsACourseAndADirection)
{
    EXPECT_EQ(With([](Catalogue& c) { c.KolegijSmjerovi.push_back("99;98"); }),
              (Texts{"KolegijSmjer: ID_kolegij ne postoji › 99", "KolegijSmjer: ID_smjer ne postoji › 98"}));
}

TEST(Validation, ADirectionNeedsAStudyAndAStudyALevel)
{
    EXPECT_EQ(With(
                  [](Catalogue& c)
                  {
                      c.Smjerovi.push_back("9;X;X;99;whatever");
                      c.Studiji.insert(c.Studiji.end(), {"8;X;X;diplomski", "8;X;X;Diplomski "});
                  }),
              (Texts{"Smjerovi: ID_studij ne postoji › 99", "Studiji: neispravna razina › diplomski",
                     "Studiji: neispravna razina › Diplomski "}));
}

TEST(Validation, ALevelIsExactlyOneOfTheTwoWords)
{
    EXPECT_EQ(
        With(
            [](Catalogue& c)
            {
                c.Studiji.insert(c.Studiji.end(), {"8;X;X;Preddiplomski ", "8;X;X; Preddiplomski",
                                                   "8;X;X;preddiplomski", "8;X;X;", "8;X;X;Preddiplomski"});
            }),
        (Texts{"Studiji: neispravna razina › Preddiplomski ", "Studiji: neispravna razina ›  Preddiplomski",
               "Studiji: neispravna razina › preddiplomski", "Studiji: neispravna razina › "}));
}

TEST(Validation, WhatIsNotCheckedPasses)
{
    EXPECT_EQ(With(
                  [](Catalogue& c)
                  {
                      c.Zavodi.insert(c.Zavodi.end(), {"1;twice;", "2"});
                      c.Studiji.push_back("1;again;X;Diplomski");
                      c.Smjerovi.push_back("1;again;X;2;");
                      c.Kolegiji.push_back("6;Bez ičega;x;-1;;abc;whatever;1;1");
                      c.KolegijSmjerovi.insert(c.KolegijSmjerovi.end(), {"1;3", "1;3"});
                  }),
              Texts{});
}

TEST(Validation, ATableIsSearchedOnlyToTheMatch)
{
    EXPECT_EQ(With([](Catalogue& c) { c.Zavodi.push_back("x;bad;"); }), Texts{});
    Catalogue catalogue = SmallCatalogue();
    catalogue.Zavodi.insert(catalogue.Zavodi.begin(), "x;bad;");
    catalogue.Use();
    EXPECT_THROW(ValidateAll(), TypeMismatch);
}

TEST(Validation, WhatIsNoNumberOrMissingIsAnErrorNotAMessage)
{
    const auto validateWith = [](auto change)
    {
        Catalogue catalogue = SmallCatalogue();
        change(catalogue);
        catalogue.Use();
        return ValidateAll();
    };
    EXPECT_THROW(validateWith([](Catalogue& c) { c.Nastavnici.push_back("x;A;;1"); }), TypeMismatch);
    EXPECT_THROW(validateWith([](Catalogue& c) { c.Nastavnici.push_back("9;A;;"); }), TypeMismatch);
    EXPECT_THROW(validateWith([](Catalogue& c) { c.Kolegiji.push_back("9;A;;;;;;treći;1"); }), TypeMismatch);
    EXPECT_THROW(validateWith([](Catalogue& c) { c.Kolegiji.push_back("9;A;;;;;;99999999999;1"); }),
                 OverflowError);
    EXPECT_THROW(validateWith([](Catalogue& c) { c.Kolegiji.push_back("9;A"); }), SubscriptOutOfRange);
    EXPECT_THROW(validateWith([](Catalogue& c) { c.KolegijNastavnici.push_back("1;1;;"); }), TypeMismatch);
    EXPECT_THROW(validateWith([](Catalogue& c) { c.KolegijSmjerovi.push_back("1"); }), SubscriptOutOfRange);
    EXPECT_THROW(validateWith([](Catalogue& c) { c.Smjerovi.push_back("9;X;X;x;"); }), TypeMismatch);
    EXPECT_THROW(validateWith([](Catalogue& c) { c.Studiji.push_back("9;X;X"); }), SubscriptOutOfRange);
}

TEST(Validation, TheMessagesComeInAFixedOrder)
{
    const Texts messages = With(
        [](Catalogue& c)
        {
            c.Studiji.push_back("9;X;X;x");
            c.Smjerovi.push_back("9;X;X;99;");
            c.KolegijSmjerovi.push_back("99;1");
            c.KolegijNastavnici.push_back("98;1;;1");
            c.Kolegiji.push_back("9;A;;;;;;1;97");
            c.Nastavnici.push_back("9;A;;96");
        });
    EXPECT_EQ(messages, (Texts{"Nastavnici: ID_zavod ne postoji › 96", "Kolegiji: ID_studij ne postoji › 97",
                               "KolegijNastavnik: ID_kolegij ne postoji › 98",
                               "KolegijSmjer: ID_kolegij ne postoji › 99",
                               "Smjerovi: ID_studij ne postoji › 99", "Studiji: neispravna razina › x"}));
}

TEST(Validation, OneRowCanFailEveryTestOfItsCheckInTheirOrder)
{
    EXPECT_EQ(With([](Catalogue& c) { c.Nastavnici.push_back("1;;;99"); }),
              (Texts{"Nastavnici: dupli ID_nastavnik = 1", "Nastavnici: prazno ime za ID 1",
                     "Nastavnici: ID_zavod ne postoji › 99"}));
    EXPECT_EQ(With([](Catalogue& c) { c.Kolegiji.push_back("1;A;;;;;;9;99"); }),
              (Texts{"Kolegiji: dupli ID_kolegij = 1", "Kolegiji: neispravan semestar (9) za ID 1",
                     "Kolegiji: ID_studij ne postoji › 99"}));
    EXPECT_EQ(With([](Catalogue& c) { c.KolegijNastavnici.push_back("99;98;;9"); }),
              (Texts{"KolegijNastavnik: ID_kolegij ne postoji › 99",
                     "KolegijNastavnik: ID_nastavnik ne postoji › 98",
                     "KolegijNastavnik: neispravan redoslijed (9) za kolegij 99"}));
}

TEST(Validation, AMessageQuotesTheFieldAsStoredAndTheIDAsANumber)
{
    EXPECT_EQ(With([](Catalogue& c) { c.Kolegiji.push_back(" 08,0;A;;;;;; 07 ;1"); }),
              Texts{"Kolegiji: neispravan semestar ( 07 ) za ID 8"});
    EXPECT_EQ(With([](Catalogue& c) { c.KolegijNastavnici.push_back(" 01;1;; 4,0"); }),
              Texts{"KolegijNastavnik: neispravan redoslijed ( 4,0) za kolegij  01"});
    EXPECT_EQ(With([](Catalogue& c) { c.KolegijSmjerovi.push_back("1;+99"); }),
              Texts{"KolegijSmjer: ID_smjer ne postoji › +99"});
}

TEST(Validation, TheFirstAndTheLastSemesterAndPlacePass)
{
    EXPECT_EQ(With(
                  [](Catalogue& c)
                  {
                      c.Kolegiji.insert(c.Kolegiji.end(), {"6;A;;;;;;1;1", "7;B;;;;;;6;1", "8;C;;;;;;6,5;1"});
                      c.KolegijNastavnici.insert(c.KolegijNastavnici.end(), {"6;1;;1", "6;1;;3"});
                  }),
              Texts{})
        << "6,5 is rounded to 6";
}

TEST(Validation, ANegativeSemesterOrPlaceIsOutOfRange)
{
    EXPECT_EQ(With([](Catalogue& c) { c.Kolegiji.push_back("6;A;;;;;;-1;1"); }),
              Texts{"Kolegiji: neispravan semestar (-1) za ID 6"});
    EXPECT_EQ(With([](Catalogue& c) { c.KolegijNastavnici.push_back("1;1;;-1"); }),
              Texts{"KolegijNastavnik: neispravan redoslijed (-1) za kolegij 1"});
}

TEST(Validation, AMessageNamesItsField)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Nastavnici.push_back("1;;;99");
    catalogue.Studiji.push_back("9;X;X;x");
    catalogue.KolegijNastavnici.push_back("98;97;;9");
    catalogue.Use();
    std::vector<FieldPlace> places;
    for (const Message& message : AllMessages())
        places.push_back(message.Place);
    EXPECT_EQ(places, (std::vector<FieldPlace>{{"db_nastavnici.csv", 5, "ID"},
                                               {"db_nastavnici.csv", 5, "PrezimeIme"},
                                               {"db_nastavnici.csv", 5, "ZavodID"},
                                               {"db_kolegij_nastavnik.csv", 8, "KolegijID"},
                                               {"db_kolegij_nastavnik.csv", 8, "NastavnikID"},
                                               {"db_kolegij_nastavnik.csv", 8, "Redoslijed"},
                                               {"db_studij.csv", 5, "Razina"}}));
}

TEST(Validation, ReferencesAreComparedAsNumbers)
{
    EXPECT_EQ(With(
                  [](Catalogue& c)
                  {
                      c.Nastavnici.push_back("4;A;; 01 ");
                      c.Kolegiji.push_back("6;A;;;;;;1;1,0");
                      c.KolegijNastavnici.push_back("06;+4;;2.0");
                      c.KolegijSmjerovi.push_back(" 6;04");
                  }),
              Texts{});
}

} // namespace

#include "check/Check.h"
#include "check/Report.h"
#include "data/Windows1250.h"
#include "support/Catalogue.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

using namespace std::string_literals;

namespace
{

using Lines = std::vector<std::string>;

/// The findings as lines, each after the first letter of its group: G, O or N.
Lines LinesOf(const Check::Findings& findings)
{
    constexpr std::string_view groups = "GON";
    Lines lines;
    for (const Check::Finding& finding : findings)
        lines.push_back(groups[static_cast<std::size_t>(finding.In)] + " "s +
                        Check::LineOf(finding.Place, finding.Text));
    return lines;
}

/// The small catalogue without the course that has no direction, which causes a note.
Catalogue CleanCatalogue()
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji.pop_back();
    catalogue.KolegijNastavnici.pop_back();
    return catalogue;
}

Lines FindingsIn(const TestFolder& folder)
{
    return LinesOf(Check::FindingsOf(Check::ReadContents(folder.PathOf("Varlostudiji"))));
}

Lines With(void (*change)(Catalogue&))
{
    const TestFolder folder;
    Catalogue catalogue = CleanCatalogue();
    change(catalogue);
    catalogue.WriteTo(folder.Data());
    return FindingsIn(folder);
}

/// The findings in a clean catalogue in which one file's bytes are changed.
Lines WithFile(std::string_view name, const std::function<std::string(std::string)>& change)
{
    const TestFolder folder;
    CleanCatalogue().WriteTo(folder.Data());
    const std::filesystem::path file = folder.Data() / name;
    WriteBytes(file, change(ReadBytes(file)));
    return FindingsIn(folder);
}

std::string WithoutCR(std::string bytes)
{
    std::erase(bytes, '\r');
    return bytes;
}

std::string Replaced(std::string bytes, std::string_view part, std::string_view by)
{
    return bytes.replace(bytes.find(part), part.size(), by);
}

TEST(Check, ACleanCatalogueHasNoFindings)
{
    EXPECT_EQ(With([](Catalogue&) {}), Lines{});
}

// --- Errors ---

TEST(Check, ValidationMessagesAreReportedWithTheirPlace)
{
    EXPECT_EQ(With(
                  [](Catalogue& c)
                  {
                      c.Kolegiji.push_back("4;Opet;1;1;1;1;obvezni;9;3");
                      c.Nastavnici.push_back("9; ;;8");
                  }),
              (Lines{"G db_nastavnici.csv, redak 5, PrezimeIme: Nastavnici: prazno ime za ID 9",
                     "G db_nastavnici.csv, redak 5, ZavodID: Nastavnici: ID_zavod ne postoji › 8",
                     "G db_kolegij.csv, redak 6, ID: Kolegiji: dupli ID_kolegij = 4",
                     "G db_kolegij.csv, redak 6, Semestar: Kolegiji: neispravan semestar (9) za ID 4"}));
}

TEST(Check, TheValidationGoesOnAfterAnErrorThatEndsIt)
{
    EXPECT_EQ(With(
                  [](Catalogue& c)
                  {
                      c.Nastavnici.insert(c.Nastavnici.begin(), "x;Prvi;;y");
                      c.KolegijSmjerovi.insert(c.KolegijSmjerovi.end(), {"1", "1;77", "99999999999;1"});
                  }),
              (Lines{"G db_nastavnici.csv, redak 2, ID: Greška 13: Vrijednost \"x\" nije broj",
                     "O db_nastavnici.csv, redak 2, ZavodID: Vrijednost \"y\" nije broj",
                     "G db_kolegij_smjer.csv, redak 7, SmjerID: Greška 9: Redak ima premalo polja",
                     "G db_kolegij_smjer.csv, redak 8, SmjerID: KolegijSmjer: ID_smjer ne postoji › 77",
                     "G db_kolegij_smjer.csv, redak 9, KolegijID: Greška 6: Broj \"99999999999\" je izvan "
                     "dopuštenog raspona od -2147483648 do 2147483647"}));
}

TEST(Check, AnErrorOfManyRowsIsReportedOnce)
{
    EXPECT_EQ(With([](Catalogue& c) { c.Zavodi.insert(c.Zavodi.begin(), "x;Prvi;P"); }),
              Lines{"G db_zavod.csv, redak 2, ID: Greška 13: Vrijednost \"x\" nije broj"});
}

TEST(Check, AFileThatIsMissingOrEmptyEndsTheLoad)
{
    const TestFolder folder;
    CleanCatalogue().WriteTo(folder.Data());
    std::filesystem::remove(folder.Data() / "db_zavod.csv");
    WriteBytes(folder.Data() / "db_smjer.csv", "\xEF\xBB\xBF");
    const std::string text =
        ": Greška 62: Datoteka s podacima nedostaje ili je prazna (nema retka zaglavlja): ";
    EXPECT_EQ(FindingsIn(folder), (Lines{"G db_zavod.csv" + text + folder.DataPath("db_zavod.csv"),
                                         "G db_smjer.csv" + text + folder.DataPath("db_smjer.csv")}));
    EXPECT_FALSE(std::filesystem::exists(folder.Data() / "db_zavod.csv"));
    EXPECT_EQ(ReadBytes(folder.Data() / "db_smjer.csv"), "\xEF\xBB\xBF");
}

// --- Lines ---

TEST(Check, LinesAreCountedAsAnEditorDoes)
{
    for (const std::string_view end : {"\r\n", "\r"})
        EXPECT_EQ(WithFile("db_studij.csv",
                           [&](const std::string& bytes) {
                               return bytes + std::string(end) + "  " + std::string(end) + "8;X;X;x" +
                                      std::string(end);
                           }),
                  Lines{"G db_studij.csv, redak 7, Razina: Studiji: neispravna razina › x"});
}

TEST(Check, ARowAfterALoneLFIsOnTheLineThatAnEditorShows)
{
    const Lines findings = WithFile("db_studij.csv", [](const std::string& bytes)
                                    { return bytes + "8;X;X;Diplomski\n9;Y;Y;y\r\n10;Z;Z;z\r\n"; });
    ASSERT_EQ(findings.size(), 4U);
    EXPECT_EQ(findings[0], "G db_studij.csv, redak 5, Razina: Studiji: neispravna razina › Diplomski\\x0a9");
    EXPECT_TRUE(findings[1].starts_with("O db_studij.csv, redak 5: kraj retka je samo LF")) << findings[1];
    EXPECT_TRUE(findings[2].starts_with("O db_studij.csv, redak 5: redak ima previše polja")) << findings[2];
    EXPECT_EQ(findings[3], "G db_studij.csv, redak 7, Razina: Studiji: neispravna razina › z");
}

TEST(Check, AFieldAfterALoneLFInItsRowIsOnTheLineThatAnEditorShows)
{
    const Lines findings = WithFile("db_kolegij.csv", [](const std::string& bytes)
                                    { return bytes + "9;Prvi\nredak;1;1;1;1;obvezni;9;1\r\n"; });
    for (const char* finding :
         {"N db_kolegij.csv, redak 6: kolegij nema nositelja: \"Prvi\\x0aredak\"",
          "G db_kolegij.csv, redak 7, Semestar: Kolegiji: neispravan semestar (9) za ID 9"})
        EXPECT_EQ(std::ranges::count(findings, finding), 1) << finding;
}

// --- Dangers in a file ---

TEST(Check, LoneLFsAreDangerous)
{
    const Lines findings = WithFile("db_zavod.csv", WithoutCR);
    EXPECT_EQ(
        std::ranges::count(findings,
                           "O db_zavod.csv, redak 1: kraj retka je samo LF umjesto CR LF, pa program redak i "
                           "sljedeći čita kao jedan (takvih: 3)"),
        1);
}

TEST(Check, Utf8WithoutAMarkIsDangerous)
{
    EXPECT_EQ(
        WithFile("db_nastavnici.csv", FromWindows1250),
        Lines{
            "O db_nastavnici.csv, redak 2: datoteka je u zapisu UTF-8 bez oznake: umjesto svakog našeg slova "
            "program čita dva pogrešna znaka"});
}

TEST(Check, Utf8WithAMarkIsConvertedByTheProgramItself)
{
    EXPECT_EQ(WithFile("db_nastavnici.csv",
                       [](const std::string& bytes) { return "\xEF\xBB\xBF" + FromWindows1250(bytes); }),
              Lines{});
}

TEST(Check, ALineInUtf8AmongOthersIsDangerous)
{
    EXPECT_EQ(
        WithFile("db_zavod.csv",
                 [](const std::string& bytes) { return bytes + "3;Žuti;Ž\r\n4;\x8Euti;\x8E"; }),
        Lines{
            "O db_zavod.csv, redak 4: redak je u zapisu UTF-8, a drugi redci u zapisu windows-1250: program "
            "u njemu čita pogrešna slova"});
}

TEST(Check, AMarkBeforeWindows1250IsDangerous)
{
    const Lines findings =
        WithFile("db_nastavnici.csv", [](const std::string& bytes) { return "\xEF\xBB\xBF" + bytes; });
    EXPECT_EQ(findings, Lines{"O db_nastavnici.csv, redak 1: na početku je oznaka UTF-8, a slova su u zapisu "
                              "windows-1250: program bi ih zamijenio upitnicima"});
}

TEST(Check, AMarkBeforeNothingButAsciiIsHarmless)
{
    EXPECT_EQ(WithFile("db_smjer.csv", [](const std::string& bytes)
                       { return "\xEF\xBB\xBF" + Replaced(bytes, "Op\xE6i", "Opci"); }),
              Lines{});
}

TEST(Check, Utf16IsDangerous)
{
    const auto toUtf16 = [](const std::string& bytes)
    {
        std::string wide = "\xFF\xFE";
        for (const char c : bytes)
            wide.append(1, c).append(1, '\0');
        return wide;
    };
    const std::string expected =
        "O db_smjer.csv: datoteka je u zapisu UTF-16, iz kojeg program ne može čitati podatke";
    EXPECT_EQ(std::ranges::count(WithFile("db_smjer.csv", toUtf16), expected), 1);
    EXPECT_EQ(std::ranges::count(WithFile("db_smjer.csv",
                                          [&](const std::string& bytes) { return toUtf16(bytes).substr(2); }),
                                 expected),
              1);
}

TEST(Check, ANulIsDangerous)
{
    EXPECT_EQ(WithFile("db_zavod.csv", [](const std::string& bytes) { return bytes + "3;A\0B;C\r\n"s; }),
              Lines{"O db_zavod.csv, redak 4, Naziv: polje sadrži znak NUL: \"A\\x00B\""});
}

TEST(Check, LettersThatWindows1250LacksAreDangerous)
{
    EXPECT_EQ(
        WithFile("db_zavod.csv", [](const std::string& bytes)
                 { return "\xEF\xBB\xBF" + FromWindows1250(bytes) + "3;αβα č;γ\r\n"; }),
        (Lines{"O db_zavod.csv, redak 4, Naziv: u zapisu windows-1250 nema ovih znakova, program bi ih "
               "zamijenio upitnicima: αβ",
               "O db_zavod.csv, redak 4, Kratica: u zapisu windows-1250 nema ovih znakova, program bi ih "
               "zamijenio upitnicima: γ"}));
}

TEST(Check, AHeaderThatDiffersIsDangerous)
{
    const std::string header = "ID;Naziv;Kratica";
    const auto with = [&](std::string_view other)
    {
        return WithFile("db_zavod.csv",
                        [&](const std::string& bytes) { return Replaced(bytes, header, other); });
    };
    const std::string place = "O db_zavod.csv, redak 1: ";
    EXPECT_EQ(with("ID;Naziv;Kratica;Razina"),
              Lines{place + "zaglavlje je od datoteke db_studij.csv: \"ID;Naziv;Kratica;Razina\" umjesto "
                            "\"ID;Naziv;Kratica\""});
    EXPECT_EQ(with("ID,Naziv,Kratica"),
              Lines{place + "zaglavlje je \"ID,Naziv,Kratica\" umjesto \"ID;Naziv;Kratica\""});
    EXPECT_EQ(with("7;Zavod za\xE8in;Z"),
              Lines{place + "nedostaje zaglavlje \"ID;Naziv;Kratica\"; program ovaj redak "
                            "preskače: \"7;Zavod začin;Z\""});
    EXPECT_EQ(with(""), Lines{place + "zaglavlje je \"\" umjesto \"ID;Naziv;Kratica\""});
}

// --- Dangers in a row ---

TEST(Check, ARowWithTooManyFieldsIsDangerous)
{
    EXPECT_EQ(
        With([](Catalogue& c) { c.Zavodi.push_back("3;Zavod za sir; vino;ZSV"); }),
        Lines{"O db_zavod.csv, redak 4: redak ima previše polja: 4 umjesto 3; možda je u nazivu točka-zarez: "
              "\"Zavod za sir\""});
}

TEST(Check, ARowWithTooFewFieldsIsDangerousWhereAWindowNeedsThem)
{
    EXPECT_EQ(With(
                  [](Catalogue& c)
                  {
                      c.Zavodi.insert(c.Zavodi.end(), {"3", "4;Bez kratice"});
                      c.Smjerovi.push_back("9;X;X;1");
                  }),
              (Lines{"O db_zavod.csv, redak 4, Naziv: redak ima premalo polja: 1 umjesto 3",
                     "N db_zavod.csv, redak 5, Kratica: redak ima premalo polja: 2 umjesto 3",
                     "N db_smjer.csv, redak 6, Razina: redak ima premalo polja: 4 umjesto 5"}));
}

// The validation ends at the first field that it cannot read, and says nothing of the missing one.
TEST(Check, ARowWithTooFewFieldsIsDangerousBesideAnotherFaultToo)
{
    EXPECT_EQ(
        With(
            [](Catalogue& c)
            {
                c.Nastavnici.push_back("x;Novi;");
                c.Kolegiji.push_back("9;Novi;1;0;0;5;obvezni;x");
                c.KolegijSmjerovi.push_back("x");
                c.KolegijNastavnici.push_back("x;1;Nositelj");
            }),
        (Lines{"G db_nastavnici.csv, redak 5, ID: Greška 13: Vrijednost \"x\" nije broj",
               "O db_nastavnici.csv, redak 5, ZavodID: redak ima premalo polja: 3 umjesto 4",
               "G db_kolegij.csv, redak 6, Semestar: Greška 13: Vrijednost \"x\" nije broj",
               "O db_kolegij.csv, redak 6, StudijID: redak ima premalo polja: 8 umjesto 9",
               "G db_kolegij_smjer.csv, redak 7, KolegijID: Greška 13: Vrijednost \"x\" nije broj",
               "O db_kolegij_smjer.csv, redak 7, SmjerID: redak ima premalo polja: 1 umjesto 2",
               "G db_kolegij_nastavnik.csv, redak 7, KolegijID: Greška 13: Vrijednost \"x\" nije broj",
               "O db_kolegij_nastavnik.csv, redak 7, Redoslijed: redak ima premalo polja: 3 umjesto 4"}));
}

TEST(Check, AnEmptyFirstFieldIsDangerous)
{
    EXPECT_EQ(With([](Catalogue& c) { c.Zavodi.push_back(";Bez broja;B"); }),
              (Lines{"O db_zavod.csv, redak 4, ID: prvo je polje prazno: spremanje izostavlja "
                     "točku-zarez iza njega, pa se ostala polja pomaknu ulijevo",
                     "O db_zavod.csv, redak 4, ID: Vrijednost \"\" nije broj"}));
}

TEST(Check, WhatIsNoNumberIsDangerousWhereAWindowNeedsOne)
{
    EXPECT_EQ(
        With(
            [](Catalogue& c)
            {
                c.Zavodi.push_back("x;A;A");
                c.Studiji.push_back("y;B;B;Diplomski");
                c.Smjerovi.push_back("z;C;C;1;");
                c.Kolegiji.front() = "1;Uvod u lov;dva;;9999999999; 5,0 ;obvezni;1;1";
            }),
        (Lines{"O db_zavod.csv, redak 4, ID: Vrijednost \"x\" nije broj",
               "O db_studij.csv, redak 5, ID: Vrijednost \"y\" nije broj",
               "O db_smjer.csv, redak 6, ID: Vrijednost \"z\" nije broj",
               "O db_kolegij.csv, redak 2, P: Vrijednost \"dva\" nije broj",
               "O db_kolegij.csv, redak 2, S: Vrijednost \"\" nije broj",
               "O db_kolegij.csv, redak 2, V: Broj \"9999999999\" je izvan dopuštenog raspona od -2147483648 "
               "do 2147483647"}));
}

TEST(Check, TheLargestIDLeavesNoneForANewCourse)
{
    EXPECT_EQ(With(
                  [](Catalogue& c)
                  {
                      c.Kolegiji.push_back("2147483647;Zadnji;1;1;1;1;obvezni;1;1");
                      c.KolegijSmjerovi.push_back("2147483647;1");
                      c.KolegijNastavnici.push_back("2147483647;1;;1");
                  }),
              Lines{"O db_kolegij.csv, redak 6, ID: za novi kolegij više nema broja, pa bi dodavanje "
                    "završilo greškom"});
}

// --- Notes ---

TEST(Check, FieldsInQuotesAreNoted)
{
    EXPECT_EQ(
        With(
            [](Catalogue& c) {
                c.Zavodi.insert(c.Zavodi.end(), {"3;\"Zavod \"\"Lov\"\"\";L", "4;\"Lov\" i \"ribolov\";LR"});
            }),
        Lines{"N db_zavod.csv, redak 4, Naziv: cijelo je polje u navodnicima, kako ga piše tablični "
              "kalkulator: "
              "\"Zavod \"\"Lov\"\"\""});
}

TEST(Check, AFieldInQuotesWithASeparatorOrABreakIsNoted)
{
    const std::string text =
        "N db_zavod.csv, redak 4: polje u navodnicima sadrži točku-zarez ili prijelom retka: ";
    const Lines separator = With([](Catalogue& c) { c.Zavodi.push_back("3;\"Lov; ribolov\";LR"); });
    EXPECT_EQ(std::ranges::count(separator, text + "3;\"Lov; ribolov\";LR"), 1);
    const Lines lineBreak = WithFile("db_zavod.csv", [](const std::string& bytes)
                                     { return bytes + "3;\"Lov\nribolov\";LR\r\n"; });
    EXPECT_EQ(std::ranges::count(lineBreak, text + "3;\"Lov\\x0aribolov\";LR"), 1);
}

TEST(Check, ARowOfSeparatorsIsNoted)
{
    EXPECT_EQ(With(
                  [](Catalogue& c)
                  {
                      c.Zavodi.push_back(";;");
                      c.KolegijSmjerovi.push_back(" ;");
                  }),
              (Lines{"N db_zavod.csv, redak 4: redak ima samo točke-zareze, bez podataka",
                     "G db_kolegij_smjer.csv, redak 7, KolegijID: Greška 13: Vrijednost \" \" nije broj",
                     "N db_kolegij_smjer.csv, redak 7: redak ima samo točke-zareze, bez podataka"}));
}

TEST(Check, RepeatedIDsAreNotedWhereTheValidationDoesNotLook)
{
    const std::string text = " ima i jedan od prethodnih redaka, a program uvijek uzima prvi";
    EXPECT_EQ(
        With(
            [](Catalogue& c)
            {
                c.Zavodi.insert(c.Zavodi.end(), {"02;A;A", "2;A;A"});
                c.Studiji.push_back("3;A;A;Diplomski");
                c.Smjerovi.push_back(" 4;A;A;3;");
            }),
        (Lines{"N db_zavod.csv, redak 4, ID: ID 2" + text, "N db_zavod.csv, redak 5, ID: ID 2" + text,
               "N db_studij.csv, redak 5, ID: ID 3" + text, "N db_smjer.csv, redak 6, ID: ID 4" + text}));
}

TEST(Check, HoursAndCreditsBelowZeroAndOtherTypesAreNoted)
{
    EXPECT_EQ(With(
                  [](Catalogue& c)
                  {
                      c.Kolegiji[0] = "1;Uvod u lov;-1;0; -2 ;-0,4;obvezni;1;1";
                      c.Kolegiji[1] = "2;Alati;1;1;1;-4; Izborni ;2;1";
                      c.Kolegiji[2] = "3;Bevska kultura;2;0;2;6;obavezni;1;2";
                  }),
              (Lines{"N db_kolegij.csv, redak 2, P: broj je manji od nule: \"-1\"",
                     "N db_kolegij.csv, redak 2, V: broj je manji od nule: \" -2 \"",
                     "N db_kolegij.csv, redak 3, ECTS: broj je manji od nule: \"-4\"",
                     "N db_kolegij.csv, redak 4, Tip: tip nije ni obvezni ni izborni: \"obavezni\""}));
}

TEST(Check, ACourseWithoutADirectionOrAHolderIsNoted)
{
    EXPECT_EQ(With([](Catalogue& c) { c.Kolegiji.push_back("7;Sam;1;1;1;1;obvezni;1;1"); }),
              (Lines{"N db_kolegij.csv, redak 6: kolegij nema smjera: \"Sam\"",
                     "N db_kolegij.csv, redak 6: kolegij nema nositelja: \"Sam\""}));
}

TEST(Check, ADirectionOfAnotherStudyIsNoted)
{
    EXPECT_EQ(
        With([](Catalogue& c) { c.KolegijSmjerovi.push_back("1;3"); }),
        Lines{"N db_kolegij_smjer.csv, redak 7, SmjerID: smjer \"BVS\" je s drugog studija nego kolegij "
              "\"Uvod u lov\""});
}

TEST(Check, ALecturerLinkedTwiceIsNoted)
{
    EXPECT_EQ(With(
                  [](Catalogue& c) {
                      c.KolegijNastavnici.insert(c.KolegijNastavnici.end(), {"01;3;;3", "2;3;;2"});
                  }),
              Lines{"N db_kolegij_nastavnik.csv, redak 7, NastavnikID: nastavnik 3 već je naveden uz kolegij "
                    "1, pa mu "
                    "se taj kolegij broji dvaput"});
}

// --- The report ---

TEST(CheckReport, EachGroupHasAHeadingAndItsLines)
{
    const Check::Findings findings = {{Check::Group::Note, {"db_zavod.csv", 2, "ID"}, "prva"},
                                      {Check::Group::Error, {"db_smjer.csv", 0, ""}, "druga"},
                                      {Check::Group::Note, {"db_smjer.csv", 3, ""}, "treća"}};
    EXPECT_EQ(Check::ReportOf(findings),
              "Greške: 1 (s njima se program ne može pokrenuti ili ne može spremiti promjene)\n"
              "  db_smjer.csv: druga\n"
              "Opasno: nema\n"
              "Napomene: 2 (možda je tako i zamišljeno)\n"
              "  db_zavod.csv, redak 2, ID: prva\n"
              "  db_smjer.csv, redak 3: treća\n");
}

TEST(CheckReport, AFaultInAWholeColumnShowsTwentyRows)
{
    Check::Findings findings;
    for (std::size_t line = 2; line <= 30; ++line)
        findings.push_back({Check::Group::Error, {"db_smjer.csv", line, "ID"}, "x"});
    findings.push_back({Check::Group::Error, {"db_smjer.csv", 30, "StudijID"}, "y"});
    const std::string report = Check::ReportOf(findings);
    EXPECT_TRUE(report.find("redak 21, ID: x\n") != std::string::npos) << report;
    EXPECT_TRUE(report.find("redak 22") == std::string::npos) << report;
    EXPECT_TRUE(report.find("  db_smjer.csv, redak 30, StudijID: y\n"
                            "  db_smjer.csv, ID: i još ovoliko: 9, zadnji put u retku 30\n") !=
                std::string::npos)
        << report;
}

} // namespace

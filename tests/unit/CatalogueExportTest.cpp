#include "ui/main/CatalogueExport.h"

#include "data/Errors.h"
#include "data/modData.h"
#include "support/Catalogue.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <utility>

namespace
{

const std::string Header =
    "ID_kolegij;Nositelj1;Nositelj2;Nositelj3;Kolegij;P;S;V;ECTS;Smjer;O_I;Program;Semestar;P_D\r\n";

std::string Exported()
{
    const TestFolder folder;
    ExportKolegijiToCSV(folder.PathOf("k.csv"));
    return ReadBytes(folder.Path() / "k.csv");
}

/// The only course's line, without the header and the line's end.
std::string OnlyLine()
{
    const std::string bytes = Exported();
    EXPECT_EQ(bytes.substr(0, Header.size()), Header);
    EXPECT_EQ(bytes.substr(bytes.size() - 2), "\r\n");
    return bytes.substr(Header.size(), bytes.size() - Header.size() - 2);
}

/// The small catalogue with one course of these lines and links.
void UseCourse(std::string_view kolegij, Catalogue::Lines kolegijSmjerovi, Catalogue::Lines kolegijNastavnici)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji = {kolegij};
    catalogue.KolegijSmjerovi = std::move(kolegijSmjerovi);
    catalogue.KolegijNastavnici = std::move(kolegijNastavnici);
    catalogue.Use();
}

TEST(CatalogueExport, WritesEveryCourseInTableOrderInWindows1250)
{
    SmallCatalogue().Use();
    EXPECT_EQ(Exported(), Header +
                              "1;Ani\xE6 Ana;\xD0uri\xE6 \xC6iro;;Uvod u lov;2;1;0;5;OPC, POS;obvezni;LOR;1;"
                              "Preddiplomski\r\n"
                              "2;\x8A"
                              "ari\xE6 \x8E"
                              "arko;;;\x8Ei\xE8"
                              "ani alati;1;1;1;4;POS;izborni;LOR;2;Preddiplomski\r\n"
                              "3;\x8A"
                              "ari\xE6 \x8E"
                              "arko;;;Bevska kultura;2;0;2;6;BVS;obvezni;BEV;1;Preddiplomski\r\n"
                              "4;\xD0uri\xE6 \xC6iro;;;Napredni lov;3;0;1;10;DIP;obvezni;LOR;1;Diplomski\r\n"
                              "5;Ani\xE6 Ana;;;Kolegij bez smjera;1;0;0;2;;izborni;LOR;3;Preddiplomski\r\n");
}

TEST(CatalogueExport, AnEmptyCatalogueGivesTheHeaderAlone)
{
    Catalogue().Use();
    EXPECT_EQ(Exported(), Header);
}

TEST(CatalogueExport, TakesTheFirstThreeLecturersOfAnyRoleByPlace)
{
    UseCourse("1;K;1;1;1;1;obvezni;1;1", {}, {"1;3;Nositelj;3", "1;1;Asistent;1"});
    EXPECT_EQ(OnlyLine(), "1;Ani\xE6 Ana;\xD0uri\xE6 \xC6iro;;K;1;1;1;1;;obvezni;LOR;1;Preddiplomski");

    UseCourse("1;K;1;1;1;1;obvezni;1;1", {},
              {"1;3;Nositelj;4", "1;1;Nositelj;3", "1;1;Nositelj;2", "1;2;Nositelj;1"});
    EXPECT_EQ(OnlyLine(),
              "1;Ani\xE6 Ana;Ani\xE6 Ana;\xD0uri\xE6 \xC6iro;K;1;1;1;1;;obvezni;LOR;1;Preddiplomski")
        << "the fourth link is left out although its place is the first";
}

TEST(CatalogueExport, ASemicolonInATitleShiftsWhatFollows)
{
    SmallCatalogue().Use();
    modData::Kolegiji.Replace(0, {"1", "Uvod; u lov", "2", "1", "0", "5", "obvezni", "1", "1"});
    const std::string bytes = Exported();
    const std::size_t begin = bytes.find("\r\n") + 2;
    const std::string line = bytes.substr(begin, bytes.find("\r\n", begin) - begin);
    EXPECT_EQ(std::ranges::count(line, ';'), 14) << line;
    EXPECT_NE(line.find(";Uvod; u lov;2;1;"), std::string::npos) << line;
}

TEST(CatalogueExport, QuotesNothing)
{
    UseCourse("1;Dostava \"zadnje milje\", 2. dio;1;1;1;1;obvezni;1;1", {"1;1", "1;2"}, {});
    EXPECT_EQ(OnlyLine(),
              "1;;;;Dostava \"zadnje milje\", 2. dio;1;1;1;1;OPC, POS;obvezni;LOR;1;Preddiplomski");
}

TEST(CatalogueExport, UnknownStudyLecturerAndDirectionLeaveEmptyCells)
{
    UseCourse("1;K;1;1;1;1;obvezni;1;99", {"1;77"}, {"1;88;Nositelj;1"});
    EXPECT_EQ(OnlyLine(), "1;;;;K;1;1;1;1;;obvezni;;1;");
}

TEST(CatalogueExport, WritesFieldsAsStored)
{
    UseCourse(" 01; K ;1.5;;x;-2; Obvezni;9; 1", {}, {});
    EXPECT_EQ(OnlyLine(), " 01;;;; K ;1.5;;x;-2;; Obvezni;LOR;9;Preddiplomski");
}

TEST(CatalogueExport, AnErrorLeavesTheOlderFileAsItWas)
{
    const TestFolder folder;
    WriteBytes(folder.Path() / "k.csv", "older");
    UseCourse("1;K;1;1;1;1;obvezni;1;LOR", {}, {});
    EXPECT_THROW(ExportKolegijiToCSV(folder.PathOf("k.csv")), TypeMismatch);
    UseCourse("1;K;1;1;1;1;obvezni;1", {}, {});
    EXPECT_THROW(ExportKolegijiToCSV(folder.PathOf("k.csv")), SubscriptOutOfRange);
    EXPECT_EQ(ReadBytes(folder.Path() / "k.csv"), "older");
    EXPECT_EQ(EntriesOf(folder.Path()), (std::vector<std::string>{"Varlostudiji", "k.csv"}));
}

// The demo catalogue, compared with a file from an independent script.

TEST(CatalogueExport, TheDemoCatalogueGivesTheExpectedFile)
{
    const TestFolder folder;
    CopyDemo(folder);
    modData::LoadAllTables();
    ExportKolegijiToCSV(folder.PathOf("k.csv"));
    EXPECT_EQ(ReadBytes(folder.Path() / "k.csv"), ExpectedFile("kolegiji_export.csv"));
}

} // namespace

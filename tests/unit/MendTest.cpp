#include "check/Mend.h"
#include "check/Report.h"
#include "data/Windows1250.h"
#include "data/modData.h"

#include <gtest/gtest.h>

using namespace std::string_literals;

namespace
{

using Lines = std::vector<std::string>;

Lines LinesOf(const std::vector<Check::Change>& changes)
{
    Lines lines;
    for (const Check::Change& change : changes)
        lines.push_back(Check::LineOf(change.Place, change.Text));
    return lines;
}

Check::Mended Mended(const std::string& bytes)
{
    return Check::Mend(bytes, modData::Zavodi.Layout());
}

void ExpectUntouched(const std::string& bytes, const Lines& left = {})
{
    const Check::Mended mended = Mended(bytes);
    EXPECT_EQ(mended.Bytes, bytes);
    EXPECT_EQ(LinesOf(mended.Changes), Lines{});
    EXPECT_EQ(LinesOf(mended.Left), left);
}

void ExpectMended(const std::string& bytes, const std::string& to, const Lines& changes)
{
    const Check::Mended mended = Mended(bytes);
    EXPECT_EQ(mended.Bytes, to);
    EXPECT_EQ(LinesOf(mended.Changes), changes);
    EXPECT_EQ(LinesOf(mended.Left), Lines{});
    EXPECT_EQ(LinesOf(Mended(to).Changes), Lines{}) << "mended again";
}

const std::string Header = "ID;Naziv;Kratica";
const std::string Start = Header + "\r\n";
const std::string Mark = "\xEF\xBB\xBF";

TEST(Mend, AGoodFileStaysAsItIs)
{
    ExpectUntouched("");
    ExpectUntouched(Header);
    ExpectUntouched(Start + "1;\x8Eir;Z\r\r\n  \r\n2;A;\"A\" b\r\n3;\"A\";B;C");
}

TEST(Mend, LoneLFsBecomeCRLF)
{
    ExpectMended(Header + "\n1;A;B\n\n2;C;D", Start + "1;A;B\r\n\r\n2;C;D",
                 {"db_zavod.csv, redak 1: krajevi redaka LF zamijenjeni su s CR LF (takvih: 3)"});
    ExpectMended(Start + "1;A;B\n2;C;D\r\n", Start + "1;A;B\r\n2;C;D\r\n",
                 {"db_zavod.csv, redak 2: krajevi redaka LF zamijenjeni su s CR LF (takvih: 1)"});
}

TEST(Mend, ALoneLFInAFieldIsLeft)
{
    ExpectUntouched(
        Start + "1;A\nB;C\r\n",
        {"db_zavod.csv, redak 2: LF usred retka nije zamijenjen, jer nije jasno gdje redak završava"});
}

TEST(Mend, Utf8BecomesWindows1250)
{
    ExpectMended(Start + "1;Žir;Ž\r\n", Start + "1;\x8Eir;\x8E\r\n",
                 {"db_zavod.csv: zapis UTF-8 bez oznake pretvoren je u windows-1250"});
}

TEST(Mend, AFileThatWouldLoseALetterIsLeft)
{
    const Lines left = {"db_zavod.csv: datoteka nije mijenjana, jer windows-1250 nema ovih znakova: α"};
    ExpectUntouched(Header + "\n1;Žir α;Ž\n", left);
    ExpectUntouched(Mark + Header + "\n1;Žir α;Ž\n", left);
}

TEST(Mend, AMarkedFileStaysUtf8)
{
    ExpectUntouched(Mark + Start + "1;Žir;Ž\r\n");
    ExpectMended(
        Mark + Header + "\n1;\"\"\"Žir\"\"\";Ž\n", Mark + Start + "1;\"Žir\";Ž\r\n",
        {"db_zavod.csv, redak 2, Naziv: uklonjeni su navodnici: \"\"\"\"Žir\"\"\"\" je sada \"\"Žir\"\"",
         "db_zavod.csv, redak 1: krajevi redaka LF zamijenjeni su s CR LF (takvih: 2)"});
}

TEST(Mend, AMarkBeforeWindows1250IsRemoved)
{
    ExpectMended(Mark + Start + "1;\x8Eir;\x8E\r\n", Start + "1;\x8Eir;\x8E\r\n",
                 {"db_zavod.csv: uklonjena je oznaka UTF-8 ispred slova u zapisu windows-1250"});
}

TEST(Mend, LettersOfTwoKindsAreLeft)
{
    ExpectUntouched(
        Start + "1;Žir;Ž\r\n2;\x8Eir;\x8E\r\n",
        {"db_zavod.csv: datoteka nije mijenjana, jer su slova jednog dijela redaka u zapisu UTF-8, a "
         "drugih u windows-1250"});
}

TEST(Mend, Utf16IsLeft)
{
    ExpectUntouched("\xFF\xFEI\0D\0"s, {"db_zavod.csv: datoteka u zapisu UTF-16 nije mijenjana"});
}

TEST(Mend, ASpreadsheetsQuotesAreRemoved)
{
    ExpectMended(
        Start + "1;\"Lov \"\"i\"\" ribolov\";L\r\n", Start + "1;Lov \"i\" ribolov;L\r\n",
        {"db_zavod.csv, redak 2, Naziv: uklonjeni su navodnici: \"\"Lov \"\"i\"\" ribolov\"\" je sada "
         "\"Lov \"i\" ribolov\""});
}

TEST(Mend, QuotesAroundAWholeFieldAreRemovedIfTheHeaderHasThem)
{
    ExpectMended(
        "\"ID\";\"Naziv\";\"Kratica\"\r\n1;\"Lov\";\"\"\r\n", Start + "1;Lov;\r\n",
        {"db_zavod.csv, redak 1, ID: uklonjeni su navodnici: \"\"ID\"\" je sada \"ID\"",
         "db_zavod.csv, redak 1, Naziv: uklonjeni su navodnici: \"\"Naziv\"\" je sada \"Naziv\"",
         "db_zavod.csv, redak 1, Kratica: uklonjeni su navodnici: \"\"Kratica\"\" je sada \"Kratica\"",
         "db_zavod.csv, redak 2, Naziv: uklonjeni su navodnici: \"\"Lov\"\" je sada \"Lov\"",
         "db_zavod.csv, redak 2, Kratica: uklonjeni su navodnici: \"\"\"\" je sada \"\""});
    ExpectUntouched(Start + "1;\"Lov\";L\r\n");
}

TEST(Mend, QuotesAroundASeparatorOrABreakAreLeft)
{
    ExpectUntouched(Start + "1;\"Lov; \"\"ribolov\"\"\";L\r\n",
                    {"db_zavod.csv, redak 2: navodnici oko točke-zareza ili prijeloma retka nisu uklonjeni: "
                     "\"1;\"Lov; \"\"ribolov\"\"\";L\""});
    const Check::Mended mended = Mended(Header + "\n1;\"Lov\nribolov\";L\n2;A;B\n");
    EXPECT_EQ(mended.Bytes, Start + "1;\"Lov\nribolov\";L\r\n2;A;B\r\n");
    EXPECT_EQ(LinesOf(mended.Left),
              Lines{"db_zavod.csv, redak 2: navodnici oko točke-zareza ili prijeloma retka nisu "
                    "uklonjeni: \"1;\"Lov\\x0aribolov\";L\""});
}

TEST(Mend, RowsOfSeparatorsAreRemoved)
{
    ExpectMended(Start + ";;\r\n1;A;B\r\n; ;\r\n;", Start + "1;A;B\r\n",
                 {"db_zavod.csv, redak 2: uklonjen je redak samih točaka-zareza",
                  "db_zavod.csv, redak 4: uklonjen je redak samih točaka-zareza",
                  "db_zavod.csv, redak 5: uklonjen je redak samih točaka-zareza"});
    ExpectUntouched(";;\r\n1;A;B\r\n");
}

TEST(Mend, WhatCouldBeMendedFurtherIsLeft)
{
    const Lines left = {"db_zavod.csv: datoteka nije mijenjana, jer se može popraviti na više načina"};
    ExpectUntouched(Start + "1;\"\"\"a\"\"\"\"b\"\"\";C\r\n", left);
    ExpectUntouched(Start + "1;Â¤;C\r\n", left);
    ExpectUntouched(Mark + Mark + Start + "1;\x8Eir;C\r\n", left);
}

} // namespace

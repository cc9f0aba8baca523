#include "ui/main/StatistikaExport.h"

#include "data/Errors.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace
{

// Quoting

TEST(StatistikaExport, QuotesFieldsWithCommasQuotesAndLineBreaks)
{
    EXPECT_EQ(CsvQuote("a,b"), "\"a,b\"");
    EXPECT_EQ(CsvQuote("a\"b"), "\"a\"\"b\"");
    EXPECT_EQ(CsvQuote("\""), "\"\"\"\"");
    EXPECT_EQ(CsvQuote("\"a\",\"b\""), "\"\"\"a\"\",\"\"b\"\"\"");
    EXPECT_EQ(CsvQuote("a\rb"), "\"a\rb\"");
    EXPECT_EQ(CsvQuote("a\nb"), "\"a\nb\"");
}

TEST(StatistikaExport, LeavesEveryOtherFieldAsItIs)
{
    for (const char* text : {"", "Svi", "a;b", " a ", "a'b", "1\t2", "Žičani šećer", "="})
        EXPECT_EQ(CsvQuote(text), text);
}

// The proposed name

TEST(StatistikaExport, ReplacesEachCharacterThatNoFileNameMayHold)
{
    EXPECT_EQ(SanitizeFileNamePart("a\\b/c:d*e?f\"g<h>i|j"), "a_b_c_d_e_f_g_h_i_j");
    EXPECT_EQ(SanitizeFileNamePart("//"), "__");
}

TEST(StatistikaExport, TrimsANamePartAndKeepsTheRest)
{
    EXPECT_EQ(SanitizeFileNamePart("  Š č.;,_-  đ ž "), "Š č.;,_-  đ ž");
    EXPECT_EQ(SanitizeFileNamePart("   "), "");
    EXPECT_EQ(SanitizeFileNamePart(""), "");
}

TEST(StatistikaExport, NamesTheFileAfterTheFilters)
{
    EXPECT_EQ(StatistikaFileName({"Preddiplomski", "LOR", "Svi", "Svi"}),
              "statistika_Preddiplomski_LOR_Svi_Svi.csv");
    EXPECT_EQ(StatistikaFileName({"Diplomski", " L/R ", "Š:1", "2"}), "statistika_Diplomski_L_R_Š_1_2.csv");
    EXPECT_EQ(StatistikaFileName({"Diplomski", "", "Svi", "Svi"}), "statistika_Diplomski__Svi_Svi.csv");
}

// The file

TEST(StatistikaExport, WritesTheFiltersTheHeaderAndTheRowsInWindows1250)
{
    const TestFolder folder;
    WriteStatistika(
        folder.PathOf("s.csv"), {"Preddiplomski", "Š,Ž", "a;b", "Svi"},
        {{"1", "Obvezni", "2", "0", "1", "30", "4"}, {"TOTAL", "Sve", "a,b", "c;d", "\"", "", "č"}});
    EXPECT_EQ(ReadBytes(folder.Path() / "s.csv"), "sep=;\r\n"
                                                  "Razina;Preddiplomski\r\n"
                                                  "Program;\"\x8A,\x8E\"\r\n"
                                                  "Smjer;a;b\r\n"
                                                  "Semestar;Svi\r\n"
                                                  "\r\n"
                                                  "Semestar;Tip;P;S;V;ECTS;Kolegija\r\n"
                                                  "1;Obvezni;2;0;1;30;4\r\n"
                                                  "TOTAL;Sve;\"a,b\";c;d;\"\"\"\";;\xE8\r\n");
}

TEST(StatistikaExport, ReplacesAnOlderFileWhole)
{
    const TestFolder folder;
    WriteBytes(folder.Path() / "s.csv", std::string(10000, 'x'));
    WriteStatistika(folder.PathOf("s.csv"), {}, {});
    EXPECT_EQ(ReadBytes(folder.Path() / "s.csv"),
              "sep=;\r\nRazina;\r\nProgram;\r\nSmjer;\r\nSemestar;\r\n\r\n"
              "Semestar;Tip;P;S;V;ECTS;Kolegija\r\n");
    EXPECT_EQ(EntriesOf(folder.Path()), (std::vector<std::string>{"Varlostudiji", "s.csv"}))
        << "no temporary file stays";
}

TEST(StatistikaExport, ReportsAPathThatCannotBeWritten)
{
    const TestFolder folder;
    EXPECT_THROW(WriteStatistika(folder.PathOf("Varlostudiji"), {}, {}), FileError) << "a folder";
    EXPECT_THROW(WriteStatistika(folder.PathOf("missing/s.csv"), {}, {}), FileError);
    EXPECT_EQ(EntriesOf(folder.Path()), std::vector<std::string>{"Varlostudiji"});
}

} // namespace

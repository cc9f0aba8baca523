#include "ects/EctsReport.h"

#include "data/Errors.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace
{

/// A form with every kind of text in it, the figures computed.
WorkloadFields FullForm()
{
    WorkloadFields fields;
    fields.NazivKolegija = "Lovstvo; osnove \"A\"";
    fields.Nositelj = "Anić Ana, Đurić Ćiro";
    fields.Komentar = "Prvi redak\r\nDrugi; žut";
    fields.KontaktniSati = {"30", "15", "45"};
    fields.SamostalniSati = {"15,0", " 7.5 ", "22,5"};
    fields.LitStranice = {"45", "250", "", "abc"};
    fields.LitProcjena = {"", "10", "", "1,25"};
    fields.OpsegStranice = "10";
    fields.PismeniProcjena = "12,5";
    fields.PismeniByEstimate = true;
    fields.OstaleMetode = {"10", "5,5", "", "2", "", "0,04", "", "3", "1"};
    fields.SatiPoEcts = "28";
    WorkloadModel(fields, ",").Recalculate();
    return fields;
}

TEST(EctsReport, QuotesAFieldThatTheFormatWouldBreakOn)
{
    EXPECT_EQ(CsvField("Lov"), "Lov");
    EXPECT_EQ(CsvField(""), "");
    EXPECT_EQ(CsvField("A;B"), "\"A;B\"");
    EXPECT_EQ(CsvField("a\"b"), "\"a\"\"b\"");
    EXPECT_EQ(CsvField("\""), "\"\"\"\"");
    EXPECT_EQ(CsvField("a\rb"), "\"a\rb\"");
    EXPECT_EQ(CsvField("a\nb"), "\"a\nb\"");
    EXPECT_EQ(CsvField(" 12,5 "), " 12,5 ") << "blanks and commas stand as they are";
}

TEST(EctsReport, JoinsFieldsWithoutASeparatorAtTheEnds)
{
    EXPECT_EQ(CsvRow({}), "");
    EXPECT_EQ(CsvRow({"a"}), "a");
    EXPECT_EQ(CsvRow({"a", "", "b;c"}), "a;;\"b;c\"");
    EXPECT_EQ(CsvRow({"", ""}), ";");
}

TEST(EctsReport, HasFiftyLines)
{
    EXPECT_EQ(EctsReportLines({}).size(), 50U);
    const std::vector<std::string> lines = EctsReportLines(FullForm());
    EXPECT_EQ(lines.size(), 50U);
    EXPECT_EQ(lines[16].substr(0, 17), "Jednostavni tekst");
    EXPECT_EQ(lines[20], "Ukupno;;28,2;");
    EXPECT_EQ(lines[14], "Metoda;Normativ");
    EXPECT_EQ(lines[23], "Metoda;Vlastita procjena");
}

TEST(EctsReport, NamesTheMethodOfLiterature)
{
    WorkloadFields fields;
    fields.LitByEstimate = true;
    EXPECT_EQ(EctsReportLines(fields)[14], "Metoda;Vlastita procjena");
    EXPECT_EQ(EctsReportLines(fields)[23], "Metoda;Normativ");
}

TEST(EctsReport, OfAnEmptyFormIsTheExpectedFile)
{
    const TestFolder folder;
    WorkloadFields fields;
    WorkloadModel(fields, ",").Recalculate();
    WriteEctsReport(folder.PathOf("report.csv"), fields);
    EXPECT_EQ(ReadBytes(folder.Path() / "report.csv"), ExpectedFile("ects_empty.csv"));
}

TEST(EctsReport, OfAFullFormIsTheExpectedFile)
{
    const TestFolder folder;
    WriteBytes(folder.Path() / "report.csv", "an older report");
    WriteEctsReport(folder.PathOf("report.csv"), FullForm());
    EXPECT_EQ(ReadBytes(folder.Path() / "report.csv"), ExpectedFile("ects_full.csv"));
    EXPECT_EQ(EntriesOf(folder.Path()).size(), 2U) << "the report and the data folder, nothing besides";
}

TEST(EctsReport, TakesEveryTextAsItIsShown)
{
    WorkloadFields fields;
    fields.KontaktniUkupno = "1,23456 as shown";
    fields.UkupnoOpter[WeeklyPoints] = "not a number";
    const std::vector<std::string> lines = EctsReportLines(fields);
    EXPECT_EQ(lines[11], "Ukupno;1,23456 as shown;");
    EXPECT_EQ(lines[49], "Tjedni bodovi;not a number");
}

TEST(EctsReport, LeavesAnOlderReportWholeWhenItCannotBeWritten)
{
    const TestFolder folder;
    const std::filesystem::path file = folder.Path() / "report.csv";
    WriteBytes(file, "an older report");
    std::filesystem::permissions(file, std::filesystem::perms::owner_read);
    EXPECT_THROW(WriteEctsReport(folder.PathOf("report.csv"), {}), FileError);
    EXPECT_EQ(ReadBytes(file), "an older report");
    std::filesystem::permissions(file, std::filesystem::perms::owner_all);
    EXPECT_THROW(WriteEctsReport(folder.PathOf("missing/report.csv"), {}), FileError);
}

TEST(EctsReport, IsNamedAfterTheCourse)
{
    EXPECT_EQ(EctsReportFileName("Uvod u lov"), "Uvod u lov.csv");
    EXPECT_EQ(EctsReportFileName("  Žičani alati "), "Žičani alati.csv");
    EXPECT_EQ(EctsReportFileName("A/B: \"C\""), "A/B: \"C\".csv");
    EXPECT_EQ(EctsReportFileName("  "), ".csv");
}

} // namespace

// The tables and their files, compared byte for byte.

#include "data/Errors.h"
#include "data/Files.h"
#include "data/System.h"
#include "data/modData.h"
#include "support/Catalogue.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace
{

using Lines = std::vector<std::string>;

class Tables : public testing::Test
{
protected:
    /// Loads a file of two columns with this content.
    modData::Table Load(std::string_view content)
    {
        WriteBytes(ToPath(Path), content);
        return modData::LoadTable(Path, modData::KolegijSmjerovi.Layout());
    }

    std::string Saved(const modData::Table& table)
    {
        modData::SaveTable(Path, "KolegijID;SmjerID", table);
        return ReadBytes(ToPath(Path));
    }

    /// The content of a file with these lines after its header, after a load and a save.
    std::string RoundTrip(const std::string& lines)
    {
        return Saved(Load("header\r\n" + lines)).substr(std::string("KolegijID;SmjerID\r\n").size());
    }

    TestFolder Folder;
    std::string Path = Folder.PathOf("table.csv");
};

TEST_F(Tables, AHeaderAloneIsAnEmptyTableAndIsSavedAsTheHeaderAlone)
{
    const modData::Table table = Load("whatever;it;says");
    EXPECT_EQ(table.RowCount(), 0U);
    EXPECT_EQ(Saved(table), "KolegijID;SmjerID\r\n");
}

TEST_F(Tables, BlankLinesAreSkippedAndNotWrittenBack)
{
    EXPECT_EQ(RoundTrip("1;2\r\n\r\n   \r\n3;4\r\n"), "1;2\r\n3;4\r\n");
}

TEST_F(Tables, BlanksAroundAFieldStay)
{
    EXPECT_EQ(RoundTrip(" 1 ;  a b  \r\n"), " 1 ;  a b  \r\n");
}

TEST_F(Tables, LeadingEmptyFieldsLeaveNoSeparator)
{
    EXPECT_EQ(RoundTrip(";2\r\n"), "2\r\n");
    EXPECT_EQ(RoundTrip(";;2;;3;\r\n"), "2;;3;\r\n");
    EXPECT_EQ(RoundTrip(";;\r\n"), "\r\n");
}

TEST_F(Tables, CrLfOrCrEndsALineAndALoneLfDoesNot)
{
    EXPECT_EQ(LinesOf(Load("h\r1;2\r3;4\r\n5;6")), (Lines{"1;2", "3;4", "5;6"}));
    EXPECT_EQ(LinesOf(Load("h\r\n1;a\nb\r\n")), (Lines{"1;a\nb"}));
    EXPECT_EQ(LinesOf(Load("h\n1;2\n3;4\n")), Lines{}) << "all of it is the header";
    EXPECT_EQ(LinesOf(Load("h\r\r\n1;2\r")), (Lines{"1;2"}));
    EXPECT_EQ(RoundTrip("1;a\nb\r\n"), "1;a\nb\r\n");
}

TEST_F(Tables, FieldsAreNeitherUnquotedNorCounted)
{
    const modData::Table table = Load("h\r\n\"1;2\"\r\n7\r\n1;2;3;4;5\r\n");
    EXPECT_EQ(table[0].Field(0), "\"1");
    EXPECT_EQ(table[1].FieldCount(), 1U);
    EXPECT_EQ(table[2].FieldCount(), 5U);
}

TEST_F(Tables, EveryByteSurvivesLoadAndSave)
{
    std::string field;
    for (int byte = 0; byte < 256; ++byte)
        if (byte != '\r' && byte != ';')
            field += static_cast<char>(byte);
    EXPECT_EQ(RoundTrip("1;" + field + "\r\n"), "1;" + field + "\r\n");
}

TEST_F(Tables, ACharacterThatWindows1250LacksIsSavedAsAQuestionMark)
{
    modData::Table table(modData::KolegijSmjerovi.Layout());
    table.Append({"1", "Ж"});
    EXPECT_EQ(Saved(table), "KolegijID;SmjerID\r\n1;?\r\n");
}

TEST_F(Tables, AnEmptyFileEndsBeforeItsHeader)
{
    EXPECT_THROW(Load(""), InputPastEnd);
    EXPECT_NO_THROW(Load("\r\n"));
}

TEST_F(Tables, AFileOfLineEndsAloneIsAnEmptyTable)
{
    for (const char* content : {"\r", "\n", "\r\r\r", "\r\n\r\n", "header\r", "header\n", "h\r\n  \r"})
        EXPECT_EQ(Load(content).RowCount(), 0U) << testing::PrintToString(content);
}

TEST_F(Tables, AFileOfOneBlankIsAHeaderAlone)
{
    EXPECT_EQ(Load(" ").RowCount(), 0U);
    EXPECT_EQ(Load("  \r\n ").RowCount(), 0U);
}

TEST_F(Tables, ALineOfOtherWhiteSpaceIsARow)
{
    EXPECT_EQ(LinesOf(Load("h\r\n\t\r\n\xA0\r\n \n \r\n")), (Lines{"\t", "\u00A0", " \n "}));
}

TEST_F(Tables, ARowMayHaveManyFields)
{
    std::string line = "1";
    for (int field = 2; field <= 50; ++field)
        line += ";" + std::to_string(field);
    const modData::Table table = Load("h\r\n" + line);
    EXPECT_EQ(table[0].FieldCount(), 50U);
    EXPECT_EQ(table[0].Field(1), "2");
    EXPECT_EQ(Saved(table), "KolegijID;SmjerID\r\n" + line + "\r\n");
    EXPECT_EQ(RoundTrip("1" + std::string(100'000, ';') + "\r\n"), "1" + std::string(100'000, ';') + "\r\n");
}

TEST_F(Tables, ASemicolonTypedIntoAFieldSplitsItOnTheNextLoad)
{
    modData::Table table(modData::KolegijSmjerovi.Layout());
    table.Append({"1", "a;b"});
    EXPECT_EQ(Load(Saved(table))[0].FieldCount(), 3U);
}

TEST_F(Tables, AFailedSaveLeavesTheFormerFile)
{
    const modData::Table table = Load("h\r\n1;2\r\n");
    std::filesystem::create_directory(TemporaryNameFor(ToPath(Path)));
    WriteBytes(TemporaryNameFor(ToPath(Path)) / "in the way", "");
    EXPECT_THROW(modData::SaveTable(Path, "KolegijID;SmjerID", table), FileError);
    EXPECT_EQ(ReadBytes(ToPath(Path)), "h\r\n1;2\r\n");
    EXPECT_TRUE(std::filesystem::exists(TemporaryNameFor(ToPath(Path)) / "in the way"));
}

TEST_F(Tables, AHugeLineIsOneRow)
{
    const std::string field(2'000'000, 'x');
    EXPECT_EQ(RoundTrip("1;" + field + "\r\n"), "1;" + field + "\r\n");
}

TEST_F(Tables, AFieldThatIsMissingIsOutOfRangeAndNamesItsPlace)
{
    const modData::Table table = Load("h\r\n\r\n1;2\r\n3\r\n");
    try
    {
        table[1].Field(KolegijSmjer::SmjerID);
        FAIL();
    }
    catch (const SubscriptOutOfRange& error)
    {
        EXPECT_EQ(error.Number(), 9);
        EXPECT_STREQ(error.what(),
                     "Redak ima premalo polja (datoteka db_kolegij_smjer.csv, redak 4, stupac \"SmjerID\").");
    }
}

TEST_F(Tables, EveryLineEndOfTheFileCountsForTheLineNumber)
{
    const modData::Table table = Load("h\r\r\n   \r\r\n1\n;x\r9;x");
    const auto place = [&](std::size_t row) -> std::string
    {
        try
        {
            table[row].Number(1);
        }
        catch (const TypeMismatch& error)
        {
            return error.what();
        }
        return "";
    };
    EXPECT_NE(place(0).find("redak 5,"), std::string::npos) << place(0);
    EXPECT_NE(place(1).find("redak 6,"), std::string::npos) << place(1);
}

TEST_F(Tables, ABadNumberNamesItsPlace)
{
    const modData::Table table = Load("h\r\nx;99999999999\r\n");
    const auto description = [&](std::size_t column) -> std::string
    {
        try
        {
            table[0].Number(column);
        }
        catch (const RuntimeError& error)
        {
            return error.what();
        }
        return "";
    };
    EXPECT_EQ(description(0),
              "Vrijednost \"x\" nije broj (datoteka db_kolegij_smjer.csv, redak 2, stupac \"KolegijID\").");
    EXPECT_EQ(description(1), "Broj \"99999999999\" je izvan dopuštenog raspona od -2147483648 do 2147483647 "
                              "(datoteka db_kolegij_smjer.csv, redak 2, stupac \"SmjerID\").");
}

TEST_F(Tables, ARowEnteredInTheProgramSaysSo)
{
    modData::Table table(modData::KolegijSmjerovi.Layout());
    table.Append({"a", "1"});
    try
    {
        table[0].Number(0);
        FAIL();
    }
    catch (const TypeMismatch& error)
    {
        EXPECT_NE(std::string(error.what()).find("redak unesen u programu"), std::string::npos);
    }
}

// Searching

TEST_F(Tables, TheFirstMatchWinsAndEndsTheSearch)
{
    const modData::Table table = Load("h\r\n07;1\r\n7;2\r\nbad;3\r\n8;4\r\n");
    EXPECT_EQ(table.FindFirst(0, 7)->Field(1), "1");
    EXPECT_THROW(table.FindFirst(0, 8), TypeMismatch) << "the bad row is before it";
    EXPECT_THROW(table.FindFirst(0, 99), TypeMismatch);
}

TEST_F(Tables, MatchingReadsTheWholeTable)
{
    const modData::Table table = Load("h\r\n7;1\r\n7.0;2\r\n\r\n7;3\r\nbad;4\r\n");
    std::string gathered;
    const auto gather = [&]
    {
        for (const modData::Row& row : table.Matching(0, 7))
            gathered += row.Field(1);
    };
    EXPECT_THROW(gather(), TypeMismatch);
    EXPECT_EQ(gathered, "123") << "the rows before the bad one were visited";
}

TEST_F(Tables, ASearchSeesEveryChange)
{
    modData::Table table = Load("h\r\n1;a\r\n2;b\r\n");
    EXPECT_EQ(table.FindFirst(0, 3), nullptr);
    table.Append({"3", "c"});
    EXPECT_EQ(table.FindFirst(0, 3)->Field(1), "c");
    table.Replace(0, {"9", "z"});
    EXPECT_EQ(table.FindFirst(0, 1), nullptr);
    EXPECT_EQ(table.FindPosition(0, 9), 0U);
    table.RemoveMatches(0, 2);
    EXPECT_EQ(LinesOf(table), (Lines{"9;z", "3;c"}));
    EXPECT_EQ(table.FindFirst(0, 2), nullptr);
}

TEST_F(Tables, ASafeSearchReadsWhatIsNoNumberAsZero)
{
    const modData::Table table = Load("h\r\nx;1\r\n0;2\r\n5;3\r\n");
    std::string gathered;
    for (const modData::Row& row : table.Matching(0, 0, Conversion::Safe))
        gathered += row.Field(1);
    EXPECT_EQ(gathered, "12");
    EXPECT_EQ(table.FindFirst(0, 5, Conversion::Safe)->Field(1), "3");
}

TEST_F(Tables, RemovingStopsAtABadRowWithNothingRemoved)
{
    modData::Table table = Load("h\r\n1;a\r\nbad;b\r\n1;c\r\n");
    EXPECT_THROW(table.RemoveMatches(0, 1), TypeMismatch);
    EXPECT_EQ(table.RowCount(), 3U);
}

// The whole catalogue

TEST_F(Tables, RemovingGoesFromTheLastRowToTheFirst)
{
    modData::Table table = Load("\r\n5;1\r\nabc;2\r\n99999999999;3\r\n5;4\r\n");
    EXPECT_THROW(table.RemoveMatches(KolegijSmjer::KolegijID, 5), OverflowError);
    EXPECT_EQ(table.RowCount(), 4U);
    table = Load("\r\n5;1\r\n6;2\r\n5;3\r\n7;4\r\n");
    table.RemoveMatches(KolegijSmjer::KolegijID, 5);
    EXPECT_EQ(LinesOf(table), (Lines{"6;2", "7;4"}));
}

TEST_F(Tables, TheDemoCatalogueIsSavedByteForByte)
{
    const std::filesystem::path demo = DemoFolder();
    CopyDemo(Folder);
    modData::LoadAllTables();
    modData::SaveAllTables();
    for (const std::string& name : EntriesOf(demo))
        EXPECT_EQ(ReadBytes(Folder.Data() / name), ReadBytes(demo / name)) << name;
    EXPECT_EQ(EntriesOf(Folder.Data()), EntriesOf(demo));
}

TEST_F(Tables, TheHeadersAreTheColumnNames)
{
    Lines headers;
    for (const modData::Table* table : modData::AllTables())
        headers.push_back(std::string(table->Layout().FileName) + " " + table->Layout().Header());
    EXPECT_EQ(headers,
              (Lines{"db_zavod.csv ID;Naziv;Kratica", "db_nastavnici.csv ID;PrezimeIme;Titula;ZavodID",
                     "db_studij.csv ID;Naziv;Kratica;Razina", "db_smjer.csv ID;Naziv;Kratica;StudijID;Razina",
                     "db_kolegij.csv ID;Naziv;P;S;V;ECTS;Tip;Semestar;StudijID",
                     "db_kolegij_smjer.csv KolegijID;SmjerID",
                     "db_kolegij_nastavnik.csv KolegijID;NastavnikID;Uloga;Redoslijed"}));
}

TEST_F(Tables, LoadingStopsAtTheFirstBadFile)
{
    SmallCatalogue().WriteTo(Folder.Data());
    WriteBytes(Folder.Data() / "db_studij.csv", "");
    EXPECT_THROW(modData::LoadAllTables(), InputPastEnd);
}

TEST_F(Tables, TheNextIDIsTheLargestPlusOne)
{
    const auto nextAfter = [](Catalogue::Lines kolegiji)
    {
        Catalogue catalogue;
        catalogue.Kolegiji = std::move(kolegiji);
        catalogue.Use();
        return modData::NextKolegijID();
    };
    EXPECT_EQ(nextAfter({}), 1);
    EXPECT_EQ(nextAfter({"3;a", "17;b", "5;c"}), 18);
    EXPECT_EQ(nextAfter({"-5;a"}), 1);
    EXPECT_THROW(nextAfter({"2147483647;a"}), OverflowError);
    EXPECT_THROW(nextAfter({"1;a", "x;b"}), TypeMismatch);
}

// The data folder

TEST_F(Tables, TheDataFolderIsInLocalAppData)
{
    std::filesystem::remove_all(Folder.Data());
    EXPECT_EQ(ToPath(modData::GetDataFolder()), Folder.Data());
    EXPECT_TRUE(std::filesystem::is_directory(Folder.Data()));
    EXPECT_NE(modData::GetDataFolder().find("Varlostudiji"), std::string::npos);
    EXPECT_EQ(modData::GetDataFolder().back(), 'i') << "no separator at its end";
}

TEST_F(Tables, WithoutLocalAppDataTheFolderIsInTheUserProfileAndIsCreated)
{
    SetEnvironment("LOCALAPPDATA", "");
    const std::string formerProfile = System::EnvironmentVariable("USERPROFILE");
    SetEnvironment("USERPROFILE", Folder.PathOf("profile"));
    const std::string folder = modData::GetDataFolder();
    SetEnvironment("USERPROFILE", formerProfile);
    const std::filesystem::path expected =
        Folder.Path() / "profile" / "Local Settings" / "Application Data" / "Varlostudiji";
    EXPECT_TRUE(std::filesystem::is_directory(expected));
    EXPECT_EQ(ToPath(folder), expected);
}

} // namespace

#include "ui/lecturer_stats/LecturerStatistics.h"

#include "data/Errors.h"
#include "data/Files.h"
#include "data/modData.h"
#include "support/Catalogue.h"
#include "support/TeachingLoadChecks.h"

#include <gtest/gtest.h>

namespace
{

using Texts = std::vector<std::string>;

const std::string Header = "Nastavnik;Semestar;Tip;P;S;V;ECTS;Broj kolegija\r\n";
const LecturerFilter All = {"Svi", "Svi"};

std::string Exported(const LecturerFilter& filter = All)
{
    const TestFolder folder;
    ExportAllLecturers(folder.PathOf("n.csv"), filter);
    return ReadBytes(folder.Path() / "n.csv");
}

/// The lines of the file that count a course, without the types' totals.
Texts Counted(const LecturerFilter& filter = All)
{
    Texts lines = FileLines(Exported(filter));
    lines.erase(lines.begin());
    std::erase_if(
        lines, [](const std::string& line)
        { return line.empty() || line.ends_with(";0") || line.find(";UKUPNO;") != std::string::npos; });
    return lines;
}

// The file

TEST(LecturerExport, WritesABlockForEachLecturerInWindows1250)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Nastavnici = {"2;Šuh Žut;mr. sc.;2", "1;Ćuk;prof. dr. sc.;1"};
    catalogue.Use();
    EXPECT_EQ(Exported(), Header + "\x8Auh \x8Eut;1;Obvezni;2;0;2;6;1\r\n"
                                   "\x8Auh \x8Eut;1;Izborni;0;0;0;0;0\r\n"
                                   "\x8Auh \x8Eut;2;Obvezni;0;0;0;0;0\r\n"
                                   "\x8Auh \x8Eut;2;Izborni;1;1;1;4;1\r\n"
                                   "\x8Auh \x8Eut;3;Obvezni;0;0;0;0;0\r\n"
                                   "\x8Auh \x8Eut;3;Izborni;0;0;0;0;0\r\n"
                                   "\x8Auh \x8Eut;4;Obvezni;0;0;0;0;0\r\n"
                                   "\x8Auh \x8Eut;4;Izborni;0;0;0;0;0\r\n"
                                   "\x8Auh \x8Eut;5;Obvezni;0;0;0;0;0\r\n"
                                   "\x8Auh \x8Eut;5;Izborni;0;0;0;0;0\r\n"
                                   "\x8Auh \x8Eut;6;Obvezni;0;0;0;0;0\r\n"
                                   "\x8Auh \x8Eut;6;Izborni;0;0;0;0;0\r\n"
                                   "\x8Auh \x8Eut;UKUPNO;Obvezni;2;0;2;6;1\r\n"
                                   "\x8Auh \x8Eut;UKUPNO;Izborni;1;1;1;4;1\r\n"
                                   "\x8Auh \x8Eut;TOTAL;Sve;3;1;3;10;2\r\n"
                                   "\r\n"
                                   "\xC6uk;1;Obvezni;2;1;0;5;1\r\n"
                                   "\xC6uk;1;Izborni;0;0;0;0;0\r\n"
                                   "\xC6uk;2;Obvezni;0;0;0;0;0\r\n"
                                   "\xC6uk;2;Izborni;0;0;0;0;0\r\n"
                                   "\xC6uk;3;Obvezni;0;0;0;0;0\r\n"
                                   "\xC6uk;3;Izborni;1;0;0;2;1\r\n"
                                   "\xC6uk;4;Obvezni;0;0;0;0;0\r\n"
                                   "\xC6uk;4;Izborni;0;0;0;0;0\r\n"
                                   "\xC6uk;5;Obvezni;0;0;0;0;0\r\n"
                                   "\xC6uk;5;Izborni;0;0;0;0;0\r\n"
                                   "\xC6uk;6;Obvezni;0;0;0;0;0\r\n"
                                   "\xC6uk;6;Izborni;0;0;0;0;0\r\n"
                                   "\xC6uk;UKUPNO;Obvezni;2;1;0;5;1\r\n"
                                   "\xC6uk;UKUPNO;Izborni;1;0;0;2;1\r\n"
                                   "\xC6uk;TOTAL;Sve;3;1;0;7;2\r\n"
                                   "\r\n");
}

TEST(LecturerExport, TheDemoCatalogueGivesTheExpectedFile)
{
    const TestFolder folder;
    CopyDemo(folder);
    modData::LoadAllTables();
    EXPECT_EQ(Exported(), ExpectedFile("statistika_svi_nastavnici.csv"));
}

TEST(LecturerExport, WithoutLecturersTheFileIsTheHeaderAlone)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Nastavnici = {};
    catalogue.Use();
    EXPECT_EQ(Exported(), Header);
}

TEST(LecturerExport, ALecturerWithoutCoursesHas16LinesOfZeros)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Nastavnici = {"9;N;;1"};
    catalogue.Use();
    const Texts lines = FileLines(Exported());
    ASSERT_EQ(lines.size(), 17U);
    for (std::size_t i = 1; i < 16; ++i)
        EXPECT_TRUE(lines[i].starts_with("N;") && lines[i].ends_with(";0;0;0;0;0")) << lines[i];
    EXPECT_EQ(lines[16], "");
}

TEST(LecturerExport, NamesAreWrittenAsStored)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Use();
    modData::Nastavnici.Replace(0, {"1", "Anić; \"Ana\" ", "", "1"});
    modData::Nastavnici.Replace(1, {"2", "", "", "2"});
    const Texts lines = FileLines(Exported());
    ASSERT_EQ(lines.size(), 1U + 3 * 16);
    EXPECT_EQ(lines[1], "Ani\xE6; \"Ana\" ;1;Obvezni;2;1;0;5;1");
    EXPECT_EQ(lines[17], ";1;Obvezni;2;0;2;6;1");
}

TEST(LecturerExport, TwoLecturersOfOneIDHaveABlockEach)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Nastavnici = {"1;A;;1", "01;B;;1"};
    catalogue.Use();
    EXPECT_EQ(Counted(), (Texts{"A;1;Obvezni;2;1;0;5;1", "A;3;Izborni;1;0;0;2;1", "A;TOTAL;Sve;3;1;0;7;2",
                                "B;1;Obvezni;2;1;0;5;1", "B;3;Izborni;1;0;0;2;1", "B;TOTAL;Sve;3;1;0;7;2"}));
}

// What counts

class OneLecturersExport : public testing::Test
{
protected:
    /// Lecturer "N" with these courses, one link for each of the course IDs 1 to 4.
    static void Use(Catalogue::Lines kolegiji)
    {
        Catalogue catalogue = SmallCatalogue();
        catalogue.Nastavnici = {"1;N;;1"};
        catalogue.Kolegiji = std::move(kolegiji);
        catalogue.KolegijNastavnici = {"1;1;Nositelj;1", "2;1;;", "3;1;Asistent;1", "4;1;;7"};
        catalogue.Use();
    }
};

TEST_F(OneLecturersExport, TheFiltersApply)
{
    Use({"1;LorP;1;0;0;1;obvezni;1;1", "2;BevP;2;0;0;2;obvezni;1;2", "3;LorD;4;0;0;4;obvezni;1;3",
         "4;Bez studija;8;0;0;8;obvezni;1;99"});
    EXPECT_EQ(Counted().back(), "N;TOTAL;Sve;15;0;0;15;4");
    EXPECT_EQ(Counted({"Diplomski", "Svi"}), (Texts{"N;1;Obvezni;4;0;0;4;1", "N;TOTAL;Sve;4;0;0;4;1"}));
    EXPECT_EQ(Counted({"Preddiplomski", "Svi"}).back(), "N;TOTAL;Sve;3;0;0;3;2");
    EXPECT_EQ(Counted({"Svi", "LOR"}).back(), "N;TOTAL;Sve;5;0;0;5;2");
    EXPECT_EQ(Counted({"Preddiplomski", "LOR"}).back(), "N;TOTAL;Sve;1;0;0;1;1");
    EXPECT_EQ(Counted({"Diplomski", "BEV"}), Texts{});
}

TEST_F(OneLecturersExport, SemestersAndTypesCountAsOnTheScreen)
{
    Use({"1;A;1;0;0;31;Obavezni;1;1", "2;B;2;0;0;2;OBVEZNI ;1;1", "3;C;4;0;0;4;obvezni;7;1",
         "4;D;8;0;0;8;obvezni;0;1"});
    EXPECT_EQ(Counted(),
              (Texts{"N;1;Obvezni;2;0;0;2;1", "N;1;Izborni;1;0;0;31;1", "N;TOTAL;Sve;3;0;0;33;2"}));
}

TEST_F(OneLecturersExport, ACourseOfTwoLinksCountsTwice)
{
    Use({"1;A;1;2;3;4;obvezni;1;1", "1;B;10;20;30;40;obvezni;1;1"});
    modData::KolegijNastavnici.Append({"1", "1", "", ""});
    EXPECT_EQ(Counted().back(), "N;TOTAL;Sve;22;44;66;88;4");
}

TEST_F(OneLecturersExport, HoursAndCreditsThatAreNoNumbersCountAsZero)
{
    Use({"1;A;x;;1h;pet;obvezni;1;1", "2;B;1;99999999999;2;3;obvezni;1;1"});
    EXPECT_EQ(Counted(), (Texts{"N;1;Obvezni;1;0;2;3;2", "N;TOTAL;Sve;1;0;2;3;2"}));
    EXPECT_THROW(LecturerTeachingLoadRows(1, All), TypeMismatch) << "unlike the table on the screen";
}

TEST_F(OneLecturersExport, AFaultyCourseWithoutALecturerIsNoError)
{
    Use({"1;A;1;0;0;1;obvezni;1;1", "5;Ničiji;1;0;0;1;obvezni;prvi;1", "2;B;1;0;0;1;obvezni;1;1"});
    EXPECT_EQ(Counted(), (Texts{"N;1;Obvezni;2;0;0;2;2", "N;TOTAL;Sve;2;0;0;2;2"}));
}

// Errors: nothing is written, and an older file stays

class FailingLecturerExport : public OneLecturersExport
{
protected:
    FailingLecturerExport() { WriteBytes(Folder.Path() / "older.csv", "older"); }

    template<typename Error>
    void ExpectError(const std::string& name = "older.csv")
    {
        EXPECT_THROW(ExportAllLecturers(Folder.PathOf(name), All), Error);
        EXPECT_EQ(ReadBytes(Folder.Path() / "older.csv"), "older");
        EXPECT_EQ(EntriesOf(Folder.Path()), (Texts{"Varlostudiji", "older.csv"}));
    }

    TestFolder Folder;
};

TEST_F(FailingLecturerExport, ASemesterThatIsNoNumber)
{
    Use({"1;A;1;0;0;1;obvezni;prvi;1"});
    ExpectError<TypeMismatch>();
    Use({"1;A;1;0;0;1;obvezni;;1"});
    ExpectError<TypeMismatch>();
}

TEST_F(FailingLecturerExport, AnIDThatIsNoNumber)
{
    Use({"1;A;1;0;0;1;obvezni;1;LOR"});
    ExpectError<TypeMismatch>();
    Use({"1;A;1;0;0;1;obvezni;1;1", "x;B;1;0;0;1;obvezni;1;1"});
    ExpectError<TypeMismatch>();
    Use({"1;A;1;0;0;1;obvezni;1;1"});
    modData::Nastavnici.Append({"x", "Bez ID", "", "1"});
    ExpectError<TypeMismatch>();
    Use({"1;A;1;0;0;1;obvezni;1;1"});
    modData::KolegijNastavnici.Append({"1", "x", "", ""});
    ExpectError<TypeMismatch>();
}

TEST_F(FailingLecturerExport, ARowThatIsTooShort)
{
    Use({"1;A;1;0;0;1;obvezni;1"});
    ExpectError<SubscriptOutOfRange>();
    Use({"1;A;1;0;0;1;obvezni;1;1"});
    modData::Nastavnici.Append(Texts{"2"});
    ExpectError<SubscriptOutOfRange>();
    Use({"1;A;1;0;0;1;obvezni;1;1"});
    modData::KolegijNastavnici.Append(Texts{"1"});
    ExpectError<SubscriptOutOfRange>();
}

TEST_F(FailingLecturerExport, OfTwoFaultyCoursesTheOneLinkedFirstIsReported)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Nastavnici = {"1;N;;1", "2;M;;1"};
    catalogue.Kolegiji = {"1;A;1;0;0;1;obvezni;prvi;1", "2;B;1;0;0;1;obvezni;drugi;1"};
    catalogue.KolegijNastavnici = {"1;2;;", "2;1;;"};
    catalogue.Use();
    try
    {
        ExportAllLecturers(Folder.PathOf("older.csv"), All);
        FAIL() << "no error";
    }
    catch (const TypeMismatch& error)
    {
        EXPECT_NE(std::string(error.what()).find("drugi"), std::string::npos) << error.what();
    }
}

TEST_F(FailingLecturerExport, OfTwoFaultsTheMissingNameIsReportedOnEverySystem)
{
    Use({"1;A;1;0;0;1;obvezni;1;1"});
    modData::Nastavnici.Replace(0, Texts{"x"});
    ExpectError<SubscriptOutOfRange>();
}

TEST_F(FailingLecturerExport, ASumThatDoesNotFit)
{
    Use({"1;A;2147483647;0;0;1;obvezni;1;1", "2;B;1;0;0;1;izborni;6;1"});
    ExpectError<OverflowError>();
}

TEST_F(FailingLecturerExport, AFileThatMayNotBeWritten)
{
    SmallCatalogue().Use();
    const ReadOnly marked(Folder.Path() / "older.csv");
    ExpectError<FileError>();
}

TEST_F(FailingLecturerExport, AFolderInTheFilesPlaceOrNoFolderAtAll)
{
    SmallCatalogue().Use();
    ExpectError<FileError>("Varlostudiji");
    ExpectError<FileError>("missing/n.csv");
}

TEST_F(FailingLecturerExport, ATemporaryFileThatCannotBeMade)
{
    SmallCatalogue().Use();
    std::filesystem::create_directory(TemporaryNameFor(Folder.Path() / "older.csv"));
    WriteBytes(TemporaryNameFor(Folder.Path() / "older.csv") / "x", "");
    EXPECT_THROW(ExportAllLecturers(Folder.PathOf("older.csv"), All), FileError);
    EXPECT_EQ(ReadBytes(Folder.Path() / "older.csv"), "older");
}

TEST_F(FailingLecturerExport, NoErrorReplacesTheOlderFileWhole)
{
    WriteBytes(Folder.Path() / "older.csv", std::string(100000, 'x'));
    Use({});
    ExportAllLecturers(Folder.PathOf("older.csv"), All);
    EXPECT_EQ(FileLines(ReadBytes(Folder.Path() / "older.csv")).size(), 17U);
    EXPECT_EQ(EntriesOf(Folder.Path()), (Texts{"Varlostudiji", "older.csv"}));
}

} // namespace

#include "ui/department_stats/DepartmentStatistics.h"

#include "data/Errors.h"
#include "data/modData.h"
#include "support/Catalogue.h"
#include "support/TeachingLoadChecks.h"

#include <gtest/gtest.h>

namespace
{

using Texts = std::vector<std::string>;

const std::string Header = "Zavod;Semestar;Tip;P;S;V;ECTS;Broj kolegija\r\n";
const DepartmentFilter All = {"Svi", "Svi"};

std::string Exported(const DepartmentFilter& filter = All)
{
    const TestFolder folder;
    ExportAllDepartments(folder.PathOf("z.csv"), filter);
    return ReadBytes(folder.Path() / "z.csv");
}

/// The lines of the file that count a course, without the types' totals.
Texts Counted(const DepartmentFilter& filter = All)
{
    Texts lines = FileLines(Exported(filter));
    lines.erase(lines.begin());
    std::erase_if(lines,
                  [](const std::string& line)
                  {
                      return line.empty() || line.ends_with(";0") ||
                             line.find(";Ukupno;Obvezni;") != std::string::npos ||
                             line.find(";Ukupno;Izborni;") != std::string::npos;
                  });
    return lines;
}

// The file

TEST(DepartmentExport, WritesABlockForEachDepartmentInWindows1250)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Zavodi = {"2;Žut š;Z2", "1;Prvi;Z1"};
    catalogue.Use();
    EXPECT_EQ(Exported(), Header + "\x8Eut \x9A;1;Obvezni;2;0;2;6;1\r\n"
                                   "\x8Eut \x9A;1;Izborni;0;0;0;0;0\r\n"
                                   "\x8Eut \x9A;2;Obvezni;0;0;0;0;0\r\n"
                                   "\x8Eut \x9A;2;Izborni;1;1;1;4;1\r\n"
                                   "\x8Eut \x9A;3;Obvezni;0;0;0;0;0\r\n"
                                   "\x8Eut \x9A;3;Izborni;0;0;0;0;0\r\n"
                                   "\x8Eut \x9A;4;Obvezni;0;0;0;0;0\r\n"
                                   "\x8Eut \x9A;4;Izborni;0;0;0;0;0\r\n"
                                   "\x8Eut \x9A;5;Obvezni;0;0;0;0;0\r\n"
                                   "\x8Eut \x9A;5;Izborni;0;0;0;0;0\r\n"
                                   "\x8Eut \x9A;6;Obvezni;0;0;0;0;0\r\n"
                                   "\x8Eut \x9A;6;Izborni;0;0;0;0;0\r\n"
                                   "\x8Eut \x9A;Ukupno;Obvezni;2;0;2;6;1\r\n"
                                   "\x8Eut \x9A;Ukupno;Izborni;1;1;1;4;1\r\n"
                                   "\x8Eut \x9A;Ukupno;Total;3;1;3;10;2\r\n"
                                   "\r\n"
                                   "Prvi;1;Obvezni;7;2;1;20;3\r\n"
                                   "Prvi;1;Izborni;0;0;0;0;0\r\n"
                                   "Prvi;2;Obvezni;0;0;0;0;0\r\n"
                                   "Prvi;2;Izborni;0;0;0;0;0\r\n"
                                   "Prvi;3;Obvezni;0;0;0;0;0\r\n"
                                   "Prvi;3;Izborni;1;0;0;2;1\r\n"
                                   "Prvi;4;Obvezni;0;0;0;0;0\r\n"
                                   "Prvi;4;Izborni;0;0;0;0;0\r\n"
                                   "Prvi;5;Obvezni;0;0;0;0;0\r\n"
                                   "Prvi;5;Izborni;0;0;0;0;0\r\n"
                                   "Prvi;6;Obvezni;0;0;0;0;0\r\n"
                                   "Prvi;6;Izborni;0;0;0;0;0\r\n"
                                   "Prvi;Ukupno;Obvezni;7;2;1;20;3\r\n"
                                   "Prvi;Ukupno;Izborni;1;0;0;2;1\r\n"
                                   "Prvi;Ukupno;Total;8;2;1;22;4\r\n"
                                   "\r\n");
}

TEST(DepartmentExport, TheDemoCatalogueGivesTheExpectedFile)
{
    const TestFolder folder;
    CopyDemo(folder);
    modData::LoadAllTables();
    EXPECT_EQ(Exported(), ExpectedFile("statistika_svi_zavodi.csv"));
}

TEST(DepartmentExport, WithoutDepartmentsTheFileIsTheHeaderAlone)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Zavodi = {};
    catalogue.Use();
    EXPECT_EQ(Exported(), Header);
}

TEST(DepartmentExport, ADepartmentWithoutLecturersHas16LinesOfZeros)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Zavodi = {"9;Z;"};
    catalogue.Use();
    const Texts lines = FileLines(Exported());
    ASSERT_EQ(lines.size(), 17U);
    for (std::size_t i = 1; i < 16; ++i)
        EXPECT_TRUE(lines[i].starts_with("Z;") && lines[i].ends_with(";0;0;0;0;0")) << lines[i];
    EXPECT_EQ(lines[16], "");
}

TEST(DepartmentExport, NamesAreWrittenAsStored)
{
    SmallCatalogue().Use();
    modData::Zavodi.Replace(0, {"1", "Zavod; \"A\" ", "POV"});
    modData::Zavodi.Replace(1, {"2", "", "KEM"});
    const Texts lines = FileLines(Exported());
    ASSERT_EQ(lines.size(), 1U + 2 * 16);
    EXPECT_EQ(lines[1], "Zavod; \"A\" ;1;Obvezni;7;2;1;20;3");
    EXPECT_EQ(lines[17], ";1;Obvezni;2;0;2;6;1");
}

// What counts

TEST(DepartmentExport, OfTheSummerSemestersEveryOddOneIsZero)
{
    SmallCatalogue().Use();
    const Texts lines = FileLines(Exported({"Svi", "Ljetni"}));
    ASSERT_EQ(lines.size(), 1U + 2 * 16);
    for (std::size_t block = 0; block < 2; ++block)
        for (const std::size_t semestar : {1U, 3U, 5U})
            for (std::size_t tip = 0; tip < 2; ++tip)
            {
                const std::string& line = lines[1 + 16 * block + 2 * (semestar - 1) + tip];
                EXPECT_NE(line.find(";" + std::to_string(semestar) + ";"), std::string::npos) << line;
                EXPECT_TRUE(line.ends_with(";0;0;0;0;0")) << line;
            }
    EXPECT_EQ(Counted({"Svi", "Ljetni"}),
              (Texts{"Zavod za kemiju;2;Izborni;1;1;1;4;1", "Zavod za kemiju;Ukupno;Total;1;1;1;4;1"}));
}

TEST(DepartmentExport, TheFiltersApply)
{
    SmallCatalogue().Use();
    EXPECT_EQ(Counted({"Diplomski", "Svi"}),
              (Texts{"Zavod za povijest;1;Obvezni;3;0;1;10;1", "Zavod za povijest;Ukupno;Total;3;0;1;10;1"}));
    EXPECT_EQ(Counted({"Svi", "3"}),
              (Texts{"Zavod za povijest;3;Izborni;1;0;0;2;1", "Zavod za povijest;Ukupno;Total;1;0;0;2;1"}));
    EXPECT_EQ(Counted({"Preddiplomski", "Zimski"}),
              (Texts{"Zavod za povijest;1;Obvezni;4;2;0;10;2", "Zavod za povijest;3;Izborni;1;0;0;2;1",
                     "Zavod za povijest;Ukupno;Total;5;2;0;12;3", "Zavod za kemiju;1;Obvezni;2;0;2;6;1",
                     "Zavod za kemiju;Ukupno;Total;2;0;2;6;1"}));
    EXPECT_EQ(Counted({"Diplomski", "Ljetni"}), Texts{});
}

/// One department, "Z", with one lecturer and these courses, one link for each of the course IDs 1 to 3.
void UseCourses(Catalogue::Lines kolegiji)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Zavodi = {"1;Z;"};
    catalogue.Nastavnici = {"1;N;;1"};
    catalogue.Kolegiji = std::move(kolegiji);
    catalogue.KolegijNastavnici = {"1;1;Nositelj;1", "2;1;;", "3;1;Asistent;1"};
    catalogue.Use();
}

TEST(DepartmentExport, ATypeThatIsNeitherWordIsNotCounted)
{
    UseCourses({"1;A;1;0;0;31;Obavezni;1;1", "2;B;2;0;0;2;OBVEZNI ;1;1", "3;C;4;0;0;4; izborni;1;1"});
    EXPECT_EQ(Counted(),
              (Texts{"Z;1;Obvezni;2;0;0;2;1", "Z;1;Izborni;4;0;0;4;1", "Z;Ukupno;Total;6;0;0;6;2"}));
}

TEST(DepartmentExport, NumbersThatCannotBeReadCountAsZero)
{
    UseCourses(
        {"1;A;x;;1h;pet;obvezni;1;LOR", "2;B;1;99999999999;2;3;obvezni;1;1", "3;C;4;4;4;4;obvezni;prvi;1"});
    EXPECT_EQ(Counted(), (Texts{"Z;1;Obvezni;1;0;2;3;2", "Z;Ukupno;Total;1;0;2;3;2"}));
}

TEST(DepartmentExport, AnIDThatIsNoNumberIsZeroAndNoError)
{
    UseCourses({"1;A;1;0;0;1;obvezni;1;1"});
    modData::Zavodi.Append({"x", "Nulti", ""});
    modData::Nastavnici.Append({"5", "M", "", "y"});
    modData::KolegijNastavnici.Append({"1", "5", "", "z"});
    modData::KolegijNastavnici.Append({"q", "5", "", ""});
    EXPECT_EQ(Counted(), (Texts{"Z;1;Obvezni;1;0;0;1;1", "Z;Ukupno;Total;1;0;0;1;1",
                                "Nulti;1;Obvezni;1;0;0;1;1", "Nulti;Ukupno;Total;1;0;0;1;1"}));
}

// Errors: nothing is written, and an older file stays

class FailingDepartmentExport : public testing::Test
{
protected:
    FailingDepartmentExport() { WriteBytes(Folder.Path() / "older.csv", "older"); }

    template<typename Error>
    void ExpectError(const std::string& name = "older.csv", const DepartmentFilter& filter = All)
    {
        EXPECT_THROW(ExportAllDepartments(Folder.PathOf(name), filter), Error);
        EXPECT_EQ(ReadBytes(Folder.Path() / "older.csv"), "older");
        EXPECT_EQ(EntriesOf(Folder.Path()), (Texts{"Varlostudiji", "older.csv"}));
    }

    TestFolder Folder;
};

TEST_F(FailingDepartmentExport, ARowThatIsTooShort)
{
    UseCourses({"1;A;1;0;0;1;obvezni;1"});
    ExpectError<SubscriptOutOfRange>();
    UseCourses({"1;A;1;0;0;1;obvezni;1;1"});
    modData::Zavodi.Append(Texts{"2"});
    ExpectError<SubscriptOutOfRange>();
    UseCourses({"1;A;1;0;0;1;obvezni;1;1"});
    modData::Nastavnici.Append({"2", "Bez zavoda", ""});
    ExpectError<SubscriptOutOfRange>();
    UseCourses({"1;A;1;0;0;1;obvezni;1;1"});
    modData::KolegijNastavnici.Append(Texts{"1"});
    ExpectError<SubscriptOutOfRange>();
    UseCourses({"1;A;1;0;0;1;obvezni;1;1"});
    modData::Studiji.Replace(0, {"1", "Lovstvo", "LOR"});
    ExpectError<SubscriptOutOfRange>("older.csv", {"Diplomski", "Svi"});
}

TEST_F(FailingDepartmentExport, OfTwoFaultsTheMissingNameIsReportedOnEverySystem)
{
    UseCourses({"1;A;1;0;0;1;obvezni;1;1"});
    modData::Zavodi.Replace(0, Texts{"1"});
    modData::KolegijNastavnici.Append(Texts{"1"});
    try
    {
        ExportAllDepartments(Folder.PathOf("older.csv"), All);
        FAIL() << "no error";
    }
    catch (const SubscriptOutOfRange& error)
    {
        EXPECT_NE(std::string(error.what()).find("\"Naziv\""), std::string::npos) << error.what();
    }
}

TEST_F(FailingDepartmentExport, ASumThatDoesNotFit)
{
    UseCourses({"1;A;2147483647;0;0;1;obvezni;1;1", "2;B;1;0;0;1;izborni;6;1"});
    ExpectError<OverflowError>();
}

TEST_F(FailingDepartmentExport, AFileThatMayNotBeWritten)
{
    SmallCatalogue().Use();
    const ReadOnly marked(Folder.Path() / "older.csv");
    ExpectError<FileError>();
}

TEST_F(FailingDepartmentExport, AFolderInTheFilesPlaceOrNoFolderAtAll)
{
    SmallCatalogue().Use();
    ExpectError<FileError>("Varlostudiji");
    ExpectError<FileError>("missing/z.csv");
}

TEST_F(FailingDepartmentExport, NoErrorReplacesTheOlderFileWhole)
{
    WriteBytes(Folder.Path() / "older.csv", std::string(100000, 'x'));
    UseCourses({});
    ExportAllDepartments(Folder.PathOf("older.csv"), All);
    EXPECT_EQ(FileLines(ReadBytes(Folder.Path() / "older.csv")).size(), 17U);
    EXPECT_EQ(EntriesOf(Folder.Path()), (Texts{"Varlostudiji", "older.csv"}));
}

} // namespace

// The exports of teaching load in the whole program: an error in writing ends it, with the message of the
// last resort.

#include "support/Catalogue.h"
#include "support/ScriptedProgram.h"
#include "support/TeachingLoadChecks.h"
#include "support/Windows.h"

namespace
{

/// The button that opens the window of teaching load.
class TeachingLoadExportInProgram : public testing::TestWithParam<const char*>
{
protected:
    TeachingLoadExportInProgram()
    {
        SmallCatalogue().WriteTo(Folder.Data());
        // A save drops a blank line: this shows whether the program has saved.
        WriteBytes(Folder.Data() / "db_zavod.csv", Unsaved);
    }
    ~TeachingLoadExportInProgram() override { SetEnvironment("VARLO_EXPORT_TEACHING_LOAD", ""); }

    static Outcome Run()
    {
        SetEnvironment("VARLO_EXPORT_TEACHING_LOAD", GetParam());
        return RunScriptedProgram();
    }

    bool HasSaved() const { return ReadBytes(Folder.Data() / "db_zavod.csv") != Unsaved; }

    static constexpr std::string_view Unsaved = "ID;Naziv;Kratica\r\n1;Zavod;Z\r\n\r\n2;Drugi;D\r\n";
    TestFolder Folder;
};

TEST_P(TeachingLoadExportInProgram, AfterWritingItSaysSoAndGoesOn)
{
    const Outcome outcome = Run();
    EXPECT_EQ(outcome.ExitCode, 0);
    EXPECT_EQ(outcome.Output.find("Izvoz završen|other|Statistika za sve "), 0U) << outcome.Output;
    EXPECT_NE(outcome.Output.find(Folder.PathOf("load.csv")), std::string::npos) << outcome.Output;
    EXPECT_EQ(outcome.Output.find("critical"), std::string::npos) << outcome.Output;
    EXPECT_GE(FileLines(ReadBytes(Folder.Path() / "load.csv")).size(), 33U);
    EXPECT_TRUE(HasSaved());
}

TEST_P(TeachingLoadExportInProgram, AFileThatMayNotBeWrittenEndsTheProgramAndStays)
{
    WriteBytes(Folder.Path() / "load.csv", "older");
    const ReadOnly marked(Folder.Path() / "load.csv");
    const Outcome outcome = Run();
    EXPECT_EQ(outcome.Output,
              "Varlostudiji|critical|Greška 70: Pristup nije dopušten; datoteka je možda zaštićena od "
              "pisanja ili otvorena u drugom programu: " +
                  Folder.PathOf("load.csv"));
    EXPECT_EQ(outcome.ExitCode, 1);
    EXPECT_EQ(ReadBytes(Folder.Path() / "load.csv"), "older");
    EXPECT_EQ(EntriesOf(Folder.Path()), (std::vector<std::string>{"Varlostudiji", "load.csv"}));
    EXPECT_FALSE(HasSaved());
}

TEST_P(TeachingLoadExportInProgram, AFolderInTheFilesPlaceEndsTheProgram)
{
    std::filesystem::create_directory(Folder.Path() / "load.csv");
    const Outcome outcome = Run();
    EXPECT_EQ(outcome.Output,
              "Varlostudiji|critical|Greška 75: Umjesto datoteke ondje je mapa istoga imena: " +
                  Folder.PathOf("load.csv"));
    EXPECT_EQ(outcome.ExitCode, 1);
    EXPECT_FALSE(HasSaved());
}

INSTANTIATE_TEST_SUITE_P(Windows, TeachingLoadExportInProgram,
                         testing::Values("cmdStatNositelji", "cmdStatZavodi"));

} // namespace

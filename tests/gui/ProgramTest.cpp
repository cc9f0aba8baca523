// The whole program, started as the user starts it: what it reports, how it ends, and what it leaves on disk.

#include "support/Catalogue.h"
#include "support/TestFolder.h"
#include "support/Windows.h"

#include <wx/filename.h>
#include <wx/stdpaths.h>
#include <wx/utils.h>

#include <map>

namespace
{

struct Outcome
{
    long ExitCode;
    std::string Output; ///< The message boxes, a line each: title, severity, text.
};

class Program : public testing::Test
{
protected:
    Program() { SmallCatalogue().WriteTo(Folder.Data()); }
    ~Program() override { SetEnvironment("VARLO_LEAVE_BY", ""); }

    Outcome Run(const char* leaveBy = "exit")
    {
        SetEnvironment("VARLO_LEAVE_BY", leaveBy);
        wxFileName program(wxStandardPaths::Get().GetExecutablePath());
        program.SetName("scripted_program");
        wxArrayString output;
        wxArrayString errors;
        const long exitCode = wxExecute("\"" + program.GetFullPath() + "\"", output, errors, wxEXEC_SYNC);
        return {exitCode, wxJoin(output, '\n', '\0').utf8_string()};
    }

    void Replace(const char* file, std::string_view content) { WriteBytes(Folder.Data() / file, content); }

    std::map<std::string, std::string> Files()
    {
        std::map<std::string, std::string> files;
        for (const std::string& name : EntriesOf(Folder.Data()))
            files[name] = ReadBytes(Folder.Data() / name);
        return files;
    }

    /// Runs the program on data that it cannot start with.
    void ExpectFailure(const std::string& report)
    {
        const auto before = Files();
        const Outcome outcome = Run();
        EXPECT_EQ(outcome.Output, "Varlostudiji|critical|" + report);
        EXPECT_EQ(outcome.ExitCode, 1);
        EXPECT_EQ(Files(), before);
    }

    TestFolder Folder;
};

TEST_F(Program, LeavesByTheExitButtonWithCode0AndTheSameFiles)
{
    const auto before = Files();
    const Outcome outcome = Run();
    EXPECT_EQ(outcome.Output, "");
    EXPECT_EQ(outcome.ExitCode, 0);
    EXPECT_EQ(Files(), before);
}

TEST_F(Program, LeavesByTheCloseBoxWithCode0)
{
    Replace("db_zavod.csv", "whatever\r\n1;Zavod;Z\r\n   \r\n2;Drugi;D\r\n");
    const Outcome outcome = Run("close");
    EXPECT_EQ(outcome.Output, "");
    EXPECT_EQ(outcome.ExitCode, 0);
    EXPECT_EQ(Files()["db_zavod.csv"], "ID;Naziv;Kratica\r\n1;Zavod;Z\r\n2;Drugi;D\r\n");
}

TEST_F(Program, ReportsAnIDThatIsNoNumber)
{
    Replace("db_nastavnici.csv", "ID;PrezimeIme;Titula;ZavodID\r\n1;Ana;;1\r\n\r\nx7;Iva;;1\r\n");
    ExpectFailure(
        "Greška 13: Vrijednost \"x7\" nije broj (datoteka db_nastavnici.csv, redak 4, stupac \"ID\").");
}

TEST_F(Program, ReportsARowThatIsTooShort)
{
    Replace("db_kolegij_smjer.csv", "KolegijID;SmjerID\r\n1;1\r\n2\r\n");
    ExpectFailure(
        "Greška 9: Redak ima premalo polja (datoteka db_kolegij_smjer.csv, redak 3, stupac \"SmjerID\").");
}

TEST_F(Program, ReportsAnEmptyFile)
{
    Replace("db_smjer.csv", "");
    ExpectFailure("Greška 62: Datoteka je prazna, nedostaje joj redak zaglavlja: " +
                  Folder.DataPath("db_smjer.csv"));
}

TEST_F(Program, ReportsAMissingFileAndLeavesItEmpty)
{
    std::filesystem::remove(Folder.Data() / "db_studij.csv");
    auto before = Files();
    const Outcome outcome = Run();
    EXPECT_EQ(outcome.Output,
              "Varlostudiji|critical|Greška 62: Datoteka je prazna, nedostaje joj redak zaglavlja: " +
                  Folder.DataPath("db_studij.csv"));
    EXPECT_EQ(outcome.ExitCode, 1);
    before["db_studij.csv"] = "";
    EXPECT_EQ(Files(), before);
}

TEST_F(Program, ReportsAFileThatMayNotBeWrittenAndKeepsIt)
{
    using std::filesystem::perms;
    const std::filesystem::path file = Folder.Data() / "db_kolegij.csv";
    constexpr perms write = perms::owner_write | perms::group_write | perms::others_write;
    std::filesystem::permissions(file, write, std::filesystem::perm_options::remove);
    ExpectFailure(
        "Greška 70: Pristup nije dopušten; možda je zaštićeno od pisanja ili otvoreno u drugom programu: " +
        Folder.DataPath("db_kolegij.csv"));
    std::filesystem::permissions(file, write, std::filesystem::perm_options::add);
}

TEST_F(Program, WorksForAUserWhoseNameHasCroatianLetters)
{
    const TestFolder home;
    const std::filesystem::path local = home.Path() / u8"Željka Šćepanović";
    std::filesystem::create_directories(local / "Varlostudiji");
    SmallCatalogue().WriteTo(local / "Varlostudiji");
    WriteBytes(local / "Varlostudiji" / "db_zavod.csv",
               "\xEF\xBB\xBFID;Naziv;Kratica\r\n1;Zavod Đ;\r\n2;Z;Z\r\n");
    const std::u8string folder = local.u8string();
    SetEnvironment("LOCALAPPDATA", {folder.begin(), folder.end()});
    const Outcome outcome = Run();
    EXPECT_EQ(outcome.Output, "");
    EXPECT_EQ(outcome.ExitCode, 0);
    EXPECT_EQ(ReadBytes(local / "Varlostudiji" / "db_zavod.csv"),
              "ID;Naziv;Kratica\r\n1;Zavod \xD0;\r\n2;Z;Z\r\n");
}

} // namespace

// The whole program, started as a user starts it: its messages, its exit code, and its files.

#include "data/Errors.h"
#include "data/Files.h"
#include "data/modData.h"
#include "support/Catalogue.h"
#include "support/ScriptedProgram.h"
#include "support/TestFolder.h"
#include "support/WatchedFiles.h"
#include "support/Windows.h"

#include <map>

namespace
{

class Program : public testing::Test
{
protected:
    Program() { SmallCatalogue().WriteTo(Folder.Data()); }
    ~Program() override { SetEnvironment("VARLO_LEAVE_BY", ""); }

    Outcome Run(const char* leaveBy = "exit")
    {
        SetEnvironment("VARLO_LEAVE_BY", leaveBy);
        return RunScriptedProgram();
    }

    void Replace(const char* file, std::string_view content) { WriteBytes(Folder.Data() / file, content); }

    std::map<std::string, std::string> Files()
    {
        std::map<std::string, std::string> files;
        for (const std::string& name : EntriesOf(Folder.Data()))
            if (std::filesystem::is_regular_file(Folder.Data() / name))
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
    ExpectFailure("Greška 62: Datoteka s podacima nedostaje ili je prazna (nema retka zaglavlja): " +
                  Folder.DataPath("db_smjer.csv"));
}

TEST_F(Program, ReportsAMissingFileAndLeavesItEmpty)
{
    std::filesystem::remove(Folder.Data() / "db_studij.csv");
    auto before = Files();
    const Outcome outcome = Run();
    EXPECT_EQ(outcome.Output, "Varlostudiji|critical|Greška 62: Datoteka s podacima nedostaje ili je prazna "
                              "(nema retka zaglavlja): " +
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
    ExpectFailure("Greška 70: Pristup nije dopušten; datoteka je možda zaštićena od pisanja ili otvorena u "
                  "drugom programu: " +
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

TEST_F(Program, ShowsAFileInUtf16WithItsNulCharactersVisible)
{
    Replace("db_kolegij_smjer.csv", {"\xFF\xFEh\0\r\0\n\0"
                                     "1\0;\0"
                                     "1\0",
                                     14});
    ExpectFailure("Greška 13: Vrijednost \"\\x00\\x0a\\x001\\x00\" nije broj (datoteka db_kolegij_smjer.csv, "
                  "redak 2, stupac \"KolegijID\").");
}

TEST_F(Program, FinishesAnInterruptedSave)
{
    SmallCatalogue().Use();
    modData::Zavodi.Append({"3", "Treći", "T"});
    {
        const WatchedFiles watched;
        System::Files.RemoveFile = [](const std::filesystem::path& path)
        {
            return path.filename() == "gotovo" ? std::make_error_code(std::errc::permission_denied)
                                               : System::OwnFiles.RemoveFile(path);
        };
        EXPECT_THROW(modData::SaveAllTables(), SaveNotFinished);
    }
    Replace("db_zavod.csv", "as it was before");
    const Outcome outcome = Run();
    EXPECT_EQ(outcome.Output, "");
    EXPECT_EQ(outcome.ExitCode, 0);
    EXPECT_TRUE(Files()["db_zavod.csv"].ends_with("3;Tre\xE6i;T\r\n"));
    EXPECT_FALSE(std::filesystem::exists(Folder.Data() / "spremanje"));
}

TEST_F(Program, SaysWhereItHasPutChangesThatItCouldNotSave)
{
    const TestFolder elsewhere;
    RenumberedCatalogue().WriteTo(elsewhere.Data());
    std::filesystem::rename(elsewhere.Data(), Folder.Path() / "new");
    SetEnvironment("LOCALAPPDATA", Folder.PathOf(""));
    SetEnvironment("VARLO_EDIT", "new");
    SetEnvironment("VARLO_EXPORT_TEACHING_LOAD", "cmdStatNositelji");
    SetEnvironment("VARLO_EXPORT_TO", Folder.PathOf("missing"));
    const Outcome outcome = Run();
    for (const char* name : {"VARLO_EDIT", "VARLO_EXPORT_TEACHING_LOAD", "VARLO_EXPORT_TO"})
        SetEnvironment(name, "");
    EXPECT_EQ(outcome.ExitCode, 1);
    const std::vector<std::string> kept = EntriesOf(Folder.Data() / "kopije");
    ASSERT_EQ(kept.size(), 1U);
    EXPECT_TRUE(kept.front().ends_with("-prekid"));
    EXPECT_NE(outcome.Output.find("Promjene koje nisu spremljene zapisane su u mapu:"), std::string::npos);
    EXPECT_TRUE(outcome.Output.ends_with(PathIn(Folder.DataPath("kopije"), kept.front()))) << outcome.Output;
    EXPECT_NE(ReadBytes(Folder.Data() / "kopije" / kept.front() / "db_kolegij.csv").find("11;Uvod u lov"),
              std::string::npos);
    EXPECT_NE(Files()["db_kolegij.csv"].find("\n1;Uvod u lov"), std::string::npos) << "untouched";
}

} // namespace

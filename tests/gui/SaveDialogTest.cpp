// The system's own Save dialog, driven by keys, in the commands that use it.

#include "data/Files.h"
#include "ects/frmECTSCalc.h"
#include "support/Catalogue.h"
#include "support/SaveDialogKeys.h"
#include "support/TestFolder.h"
#include "support/Windows.h"
#include "ui/department_stats/frmStatZavodi.h"
#include "ui/lecturer_stats/frmStatNositelji.h"
#include "ui/main/frmMain.h"

#include <wx/msgdlg.h>
#include <wx/textctrl.h>

#include <filesystem>

namespace
{

using Texts = std::vector<std::string>;

constexpr const char* Refusal = "Ovdje se ne može spremiti. Odaberite drugu mapu ili drugo ime.\r\n";
constexpr const char* Question = "Datoteka već postoji. Želite li je zamijeniti?\r\n";

class RealSaveDialog : public testing::Test
{
protected:
    void SetUp() override
    {
        SmallCatalogue().WriteTo(Folder.Data());
        Main = new frmMain;
        Main->Form_Load();
        Settle();
    }

    void TearDown() override
    {
        EXPECT_EQ(TakeUncaughtError(), "");
        CloseAllWindows();
    }

    template<typename Window>
    Window* Open(const char* button)
    {
        Press(Main, button);
        return FindOpen<Window>();
    }

    /// Exports by a button; types the texts into the dialog one after another. Returns the message boxes.
    Texts Export(wxWindow* window, const char* button, Texts typed, int answer = wxID_YES)
    {
        SaveDialogKeys keys(std::move(typed));
        const MessageAnswers answers(answer);
        Press(window, button);
        Proposed = keys.Proposed();
        Texts said;
        for (const MessageShown& message : answers.Shown())
            said.push_back(message.Text);
        return said;
    }

    std::string File(const char* name) { return Folder.PathOf(name); }

    Texts FilesWritten()
    {
        Texts names = EntriesOf(Folder.Path());
        std::erase(names, "Varlostudiji");
        return names;
    }

    TestFolder Folder;
    frmMain* Main = nullptr;
    Texts Proposed;
};

TEST_F(RealSaveDialog, ProposesANameAndWritesWhereTheUserTypes)
{
    EXPECT_EQ(Export(Main, "cmdExportVarlo", {File("k.csv")}), Texts{"Export završen:\r\n" + File("k.csv")});
    EXPECT_EQ(Proposed, Texts{"kolegiji_export.csv"});
    EXPECT_EQ(FilesWritten(), Texts{"k.csv"});
}

TEST_F(RealSaveDialog, CancelledByEscapeItWritesAndSaysNothing)
{
    EXPECT_EQ(Export(Main, "cmdExport", {}), Texts{});
    EXPECT_EQ(Proposed, Texts{"statistika_Preddiplomski_LOR_Svi_Svi.csv"});
    EXPECT_EQ(FilesWritten(), Texts{});
}

TEST_F(RealSaveDialog, AsksBeforeItReplacesTheFileWithTheDefaultExtension)
{
    WriteBytes(Folder.Path() / "k.csv", "older");
    EXPECT_EQ(Export(Main, "cmdExportVarlo", {File("k")}, wxID_NO), Texts{Question + File("k.csv")});
    EXPECT_EQ(Proposed.size(), 2U) << "No asks again";
    EXPECT_EQ(ReadBytes(Folder.Path() / "k.csv"), "older");

    EXPECT_EQ(Export(Main, "cmdExportVarlo", {File("k")}),
              (Texts{Question + File("k.csv"), "Export završen:\r\n" + File("k.csv")}));
    EXPECT_NE(ReadBytes(Folder.Path() / "k.csv"), "older");
    EXPECT_EQ(FilesWritten(), Texts{"k.csv"});
}

#ifndef _WIN32 // Wine's dialog ends the program for a path longer than the limit

TEST_F(RealSaveDialog, RefusesANameThatIsTooLongAndAsksAgain)
{
    const std::string longName(253, 'a');
    const Texts said = Export(Main, "cmdExportVarlo", {longName, File("k.csv")});
    ASSERT_EQ(said.size(), 2U);
    EXPECT_EQ(said[0].find(Refusal), 0U) << said[0];
    EXPECT_EQ(said[1], "Export završen:\r\n" + File("k.csv"));
    ASSERT_EQ(Proposed.size(), 2U);
    EXPECT_EQ(Proposed[1].find(longName), 0U) << "what was typed is there to be corrected";
}

#endif

TEST_F(RealSaveDialog, RefusesANameThatItsEndingMakesTooLongAndAsksAgain)
{
    const std::string longName = std::string(248, 'a') + ".txt";
#ifdef _WIN32
    const std::string longPath = "C:\\" + longName; // the whole path also has a limit
#else
    const std::string longPath = "/tmp/" + longName;
#endif
    auto* window = Open<frmStatNositelji>("cmdStatNositelji");
    const Texts said = Export(window, "cmdExportAllStat", {longPath, File("n.csv")});
    ASSERT_EQ(said.size(), 2U);
    EXPECT_EQ(said[0], Refusal + ("Ime datoteke je predugačko: " + longPath + ".csv"));
    EXPECT_EQ(said[1], "Statistika za sve nastavnike je eksportirana u:\r\n" + File("n.csv"));
    ASSERT_EQ(Proposed.size(), 2U);
    EXPECT_TRUE(Proposed[1].starts_with(longName)) << Proposed[1];
    EXPECT_EQ(FilesWritten(), Texts{"n.csv"});
}

TEST_F(RealSaveDialog, RefusesAFolderThatIsMissingAndAsksAgain)
{
    const std::string missing =
        File("nema") + std::string(1, std::filesystem::path::preferred_separator) + "z.csv";
    auto* window = Open<frmStatZavodi>("cmdStatZavodi");
    Texts said = Export(window, "cmdExportAllStat", {missing, File("z.csv")});
#ifdef _WIN32 // GTK's dialog shows its own message
    ASSERT_EQ(said.size(), 2U);
    EXPECT_EQ(said[0], Refusal + ("Datoteka ili mapa nije pronađena: " + missing));
    said.erase(said.begin());
#endif
    EXPECT_EQ(said, Texts{"Statistika za sve zavode je eksportirana u:\r\n" + File("z.csv")});
    EXPECT_EQ(Proposed, (Texts{"statistika_svi_zavodi.csv", missing}));
    EXPECT_EQ(FilesWritten(), Texts{"z.csv"});
}

TEST_F(RealSaveDialog, RefusesAFolderThatMayNotBeWrittenAndAsksAgain)
{
    // Even root cannot make a file in the kernel's folder.
#ifdef _WIN32
    const std::string forbidden = "Z:\\proc\\n.csv";
#else
    const std::string forbidden = "/proc/n.csv";
#endif
    auto* window = Open<frmStatNositelji>("cmdStatNositelji");
    const Texts said = Export(window, "cmdExportAllStat", {forbidden, File("n.csv")});
    ASSERT_EQ(said.size(), 2U);
    EXPECT_EQ(said[0].find(Refusal), 0U) << said[0];
    EXPECT_EQ(said[1], "Statistika za sve nastavnike je eksportirana u:\r\n" + File("n.csv"));
    EXPECT_EQ(Proposed, (Texts{"statistika_svi_nastavnici.csv", "n.csv"}));
}

TEST_F(RealSaveDialog, AsksAboutTheNameThatWillBeWritten)
{
    WriteBytes(Folder.Path() / "x.txt", "not concerned");
    WriteBytes(Folder.Path() / "x.txt.csv", "older");
    const std::pair<wxWindow*, const char*> windows[] = {
        {Open<frmStatNositelji>("cmdStatNositelji"), "Statistika za sve nastavnike je eksportirana u:\r\n"},
        {Open<frmStatZavodi>("cmdStatZavodi"), "Statistika za sve zavode je eksportirana u:\r\n"}};
    for (const auto& [window, success] : windows)
    {
        EXPECT_EQ(Export(window, "cmdExportAllStat", {File("x.txt")}, wxID_NO),
                  Texts{Question + File("x.txt.csv")});
        ASSERT_EQ(Proposed.size(), 2U);
        EXPECT_TRUE(Proposed.back().starts_with("x.txt"))
            << "some dialogs add the default extension themselves";
        EXPECT_EQ(ReadBytes(Folder.Path() / "x.txt.csv"), "older");

        EXPECT_EQ(Export(window, "cmdExportAllStat", {File("x.txt")}),
                  (Texts{Question + File("x.txt.csv"), success + File("x.txt.csv")}));
        EXPECT_NE(ReadBytes(Folder.Path() / "x.txt.csv"), "older");
        EXPECT_EQ(ReadBytes(Folder.Path() / "x.txt"), "not concerned");
        WriteBytes(Folder.Path() / "x.txt.csv", "older");
    }
}

TEST_F(RealSaveDialog, OpensInTheFolderOfTheLastSave)
{
    const auto in = [this](const char* folder, const char* name)
    { return File(folder) + std::string(1, std::filesystem::path::preferred_separator) + name; };
    std::filesystem::create_directory(Folder.Path() / "a");
    std::filesystem::create_directory(Folder.Path() / "b");
    EXPECT_EQ(Export(Main, "cmdExportVarlo", {in("a", "k.csv")}),
              Texts{"Export završen:\r\n" + in("a", "k.csv")});
    EXPECT_EQ(Export(Main, "cmdExport", {"s.csv"}),
              Texts{"Statistika exportirana u:\r\n" + in("a", "s.csv")});

    auto* lecturers = Open<frmStatNositelji>("cmdStatNositelji");
    Export(lecturers, "cmdExportAllStat", {in("b", "n.csv")});
    auto* calculator = Open<frmECTSCalc>("cmdECTSCalc");
    EXPECT_EQ(Export(calculator, "cmdExport", {}), Texts{}) << "cancelled, which is no save";
    EXPECT_EQ(Export(calculator, "cmdExport", {"r.csv"}), Texts{"CSV izvještaj je uspješno spremljen."});
    EXPECT_EQ(EntriesOf(Folder.Path() / "b"), (Texts{"n.csv", "r.csv"}));
}

TEST_F(RealSaveDialog, DoesNotOpenInALastFolderThatIsGone)
{
    std::filesystem::create_directory(Folder.Path() / "a");
    Export(Main, "cmdExportVarlo",
           {File("a") + std::string(1, std::filesystem::path::preferred_separator) + "k.csv"});
    std::filesystem::remove_all(Folder.Path() / "a");
    EXPECT_EQ(Export(Main, "cmdExportVarlo", {File("k.csv")}), Texts{"Export završen:\r\n" + File("k.csv")});
    EXPECT_EQ(FilesWritten(), Texts{"k.csv"});
}

// The calculator's report; its dialog asks and checks nothing

class RealReportDialog : public RealSaveDialog
{
protected:
    void SetUp() override
    {
        RealSaveDialog::SetUp();
        Calculator = Open<frmECTSCalc>("cmdECTSCalc");
    }

    void Name(const char* course)
    {
        Find<wxTextCtrl>(Calculator, "txtNazivKolegija")->ChangeValue(wxString::FromUTF8(course));
    }

    Texts Report(Texts typed) { return Export(Calculator, "cmdExport", std::move(typed)); }

    frmECTSCalc* Calculator = nullptr;
};

TEST_F(RealReportDialog, ProposesTheWholeNameOfTheCourse)
{
    const std::pair<const char*, const char*> names[] = {{"", ".csv"},
                                                         {"Analiza I/II", "Analiza I_II.csv"},
                                                         {"Praksa / projekt", "Praksa _ projekt.csv"},
                                                         {"Čuvanje: \"lov\"?", "Čuvanje_ _lov__.csv"},
                                                         {"Uvod v2.0", "Uvod v2.0.csv"}};
    for (const auto& [course, proposed] : names)
    {
        Name(course);
        EXPECT_EQ(Report({}), Texts{});
        EXPECT_EQ(Proposed, Texts{proposed});
    }
}

TEST_F(RealReportDialog, WritesTheFileThatANamelessCourseProposes)
{
    EXPECT_EQ(Report({File(".csv")}), Texts{"CSV izvještaj je uspješno spremljen."});
    EXPECT_EQ(FilesWritten(), Texts{".csv"});
}

TEST_F(RealReportDialog, ReplacesAFileWithoutAQuestion)
{
    WriteBytes(Folder.Path() / "r.csv", "older");
    EXPECT_EQ(Report({File("r.csv")}), Texts{"CSV izvještaj je uspješno spremljen."});
    EXPECT_NE(ReadBytes(Folder.Path() / "r.csv"), "older");
}

TEST_F(RealReportDialog, AFileThatCannotBeWrittenIsTheCommandsError)
{
#ifdef _WIN32
    const std::string forbidden = "Z:\\proc\\n.csv";
#else
    const std::string forbidden = "/proc/n.csv";
#endif
    const Texts said = Report({forbidden});
    ASSERT_EQ(said.size(), 1U);
    EXPECT_EQ(said[0].find("Greška kod izvoza: "), 0U) << said[0];
    EXPECT_EQ(Proposed.size(), 1U) << "the dialog does not ask again";
}

} // namespace

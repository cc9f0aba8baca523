// What the user is told when a call on a file fails while the windows save and export.

#include "ects/frmECTSCalc.h"
#include "support/Catalogue.h"
#include "support/FailingCalls.h"
#include "support/TestFolder.h"
#include "support/Windows.h"
#include "ui/department_stats/frmStatZavodi.h"
#include "ui/lecturer_stats/frmStatNositelji.h"
#include "ui/main/frmMain.h"

#include <wx/msgdlg.h>

namespace
{

/// A failing call, by its place among those that write one file, and what it ends in.
struct WriteFault
{
    std::size_t Place;
    const char* Number;
    const char* Text;
};

constexpr const char* NotAllowed =
    "Pristup nije dopušten; možda je zaštićeno od pisanja ili otvoreno u drugom programu: ";
constexpr const char* Full = "Na disku nema dovoljno mjesta: ";
constexpr const char* Failed = "Greška pri čitanju ili pisanju: ";

constexpr WriteFault ExportFaults[] = {
    {1, "70", NotAllowed}, {2, "61", Full}, {3, "57", Failed}, {4, "57", Failed}, {5, "70", NotAllowed},
};

// Between its closing and its replacement, a table file's former content is copied.
constexpr std::size_t CallsPerTable = 12;
constexpr WriteFault SaveFaults[] = {
    {1, "70", NotAllowed}, {2, "61", Full}, {3, "57", Failed}, {4, "57", Failed}, {12, "70", NotAllowed},
};
constexpr std::size_t FirstCopyCall = 5;
constexpr std::size_t LastCopyCall = 11;

class WriteFailureWindow : public testing::Test
{
protected:
    /// Opens the main window on files that each differ from what is saved.
    void Open()
    {
        SmallCatalogue().WriteTo(Folder.Data());
        for (const std::string& name : EntriesOf(Folder.Data()))
            WriteBytes(Folder.Data() / name, ReadBytes(Folder.Data() / name) + "\r\n");
        Main = new frmMain;
        Main->Form_Load();
        Settle();
    }

    void TearDown() override { CloseAllWindows(); }

    bool IsOld(const char* name) { return ReadBytes(Folder.Data() / name).ends_with("\r\n\r\n"); }

    /// Leaves by `leave` with each fault in the writing of a table file, not the first: the error goes
    /// uncaught, the window says nothing of its own.
    void ExpectSaveFailures(const char* file, std::size_t tablesBefore, void (*leave)(frmMain*))
    {
        for (const WriteFault& fault : SaveFaults)
        {
            SCOPED_TRACE(testing::Message() << file << ", call " << fault.Place);
            std::filesystem::remove_all(Folder.Data());
            std::filesystem::create_directory(Folder.Data());
            Open();
            const MessageAnswers answers;
            {
                const FailingCalls failing(tablesBefore * CallsPerTable + fault.Place);
                leave(Main);
            }
            EXPECT_EQ(TakeUncaughtError(),
                      std::string(fault.Number) + ": " + fault.Text + Folder.DataPath(file));
            EXPECT_TRUE(answers.Shown().empty());
            EXPECT_TRUE(IsOld(file));
            EXPECT_FALSE(IsOld("db_zavod.csv")) << "what is saved before it stays saved";
            EXPECT_TRUE(TemporaryFilesIn(Folder.Data()).empty());
            CloseAllWindows();
        }
    }

    /// Exports by a button with each fault, and hands what the user is told to `check`.
    template<typename Check>
    void FailExports(wxWindow* window, const char* button, Check check)
    {
        const std::filesystem::path older = Folder.Path() / "older.csv";
        WriteBytes(older, "older");
        const SaveAnswers save(Folder.PathOf("older.csv"));
        for (const WriteFault& fault : ExportFaults)
        {
            SCOPED_TRACE(testing::Message() << button << ", call " << fault.Place);
            MessageAnswers answers;
            {
                const FailingCalls failing(fault.Place);
                Press(window, button);
            }
            check(fault, answers);
            EXPECT_EQ(ReadBytes(older), "older");
            EXPECT_EQ(EntriesOf(Folder.Path()), (std::vector<std::string>{"Varlostudiji", "older.csv"}));
            EXPECT_TRUE(FindOpen<frmMain>() != nullptr);
        }
    }

    /// An export that tells of its errors itself, and goes on.
    void ExpectTold(wxWindow* window, const char* button, const std::string& prefix, const char* title,
                    long icon)
    {
        FailExports(window, button,
                    [&](const WriteFault& fault, MessageAnswers& answers)
                    {
                        EXPECT_EQ(TakeUncaughtError(), "");
                        const MessageShown message = answers.TakeOnly();
                        EXPECT_EQ(message.Text, prefix + fault.Text + Folder.PathOf("older.csv"));
                        EXPECT_EQ(message.Title, title);
                        EXPECT_TRUE(message.Has(icon | wxOK));
                    });
    }

    /// An export whose error ends the program.
    void ExpectUncaught(wxWindow* window)
    {
        FailExports(window, "cmdExportAllStat",
                    [&](const WriteFault& fault, MessageAnswers& answers)
                    {
                        EXPECT_EQ(TakeUncaughtError(),
                                  std::string(fault.Number) + ": " + fault.Text + Folder.PathOf("older.csv"));
                        EXPECT_TRUE(answers.Shown().empty());
                    });
    }

    TestFolder Folder;
    frmMain* Main = nullptr;
};

void LeaveByButton(frmMain* window)
{
    Press(window, "cmdExit");
}

void LeaveByCloseBox(frmMain* window)
{
    window->Close();
    Settle();
}

TEST_F(WriteFailureWindow, ASaveOfTheExitButton)
{
    ExpectSaveFailures("db_kolegij.csv", 4, LeaveByButton);
}

TEST_F(WriteFailureWindow, ASaveOfTheCloseBox)
{
    ExpectSaveFailures("db_kolegij_nastavnik.csv", 6, LeaveByCloseBox);
}

TEST_F(WriteFailureWindow, ACopyOfTheFormerContentThatCannotBeMadeIsNotSpokenOf)
{
    for (const std::size_t call : {FirstCopyCall, LastCopyCall})
    {
        Open();
        const MessageAnswers answers;
        {
            const FailingCalls failing(call);
            Press(Main, "cmdExit");
        }
        EXPECT_EQ(TakeUncaughtError(), "") << call;
        EXPECT_TRUE(answers.Shown().empty()) << call;
        EXPECT_TRUE(wxTopLevelWindows.empty()) << call;
        EXPECT_FALSE(IsOld("db_zavod.csv")) << call;
        std::filesystem::remove_all(Folder.Data());
        std::filesystem::create_directory(Folder.Data());
    }
}

TEST_F(WriteFailureWindow, TheSecondSaveOfTheExitButton)
{
    Open();
    const MessageAnswers answers;
    {
        const FailingCalls failing(7 * CallsPerTable + 1);
        Press(Main, "cmdExit");
    }
    EXPECT_EQ(TakeUncaughtError(), std::string("70: ") + NotAllowed + Folder.DataPath("db_zavod.csv"));
    EXPECT_FALSE(IsOld("db_zavod.csv") || IsOld("db_kolegij_nastavnik.csv")) << "the first has saved all";
    EXPECT_TRUE(answers.Shown().empty());
}

TEST_F(WriteFailureWindow, ADataFolderThatIsGoneIsMadeAnewAndEverythingSaved)
{
    Open();
    std::filesystem::remove_all(Folder.Data());
    const MessageAnswers answers;
    Press(Main, "cmdExit");
    EXPECT_EQ(TakeUncaughtError(), "");
    EXPECT_TRUE(answers.Shown().empty());
    EXPECT_TRUE(wxTopLevelWindows.empty());
    EXPECT_EQ(EntriesOf(Folder.Data()).size(), 7U);
    EXPECT_NE(ReadBytes(Folder.Data() / "db_kolegij.csv").find("Uvod u lov"), std::string::npos);
}

TEST_F(WriteFailureWindow, TheExportsOfTheMainWindow)
{
    Open();
    ExpectTold(Main, "cmdExport", "Greška pri izvozu: ", "Varlostudiji", wxICON_ERROR);
    ExpectTold(Main, "cmdExportVarlo", "Greška pri exportu: ", "Varlostudiji", wxICON_ERROR);
}

TEST_F(WriteFailureWindow, TheReportOfTheCalculator)
{
    Open();
    Press(Main, "cmdECTSCalc");
    ExpectTold(FindOpen<frmECTSCalc>(), "cmdExport", "Greška kod izvoza: ", "Export", wxICON_EXCLAMATION);
}

TEST_F(WriteFailureWindow, TheExportOfAllLecturers)
{
    Open();
    Press(Main, "cmdStatNositelji");
    ExpectUncaught(FindOpen<frmStatNositelji>());
}

TEST_F(WriteFailureWindow, TheExportOfAllDepartments)
{
    Open();
    Press(Main, "cmdStatZavodi");
    ExpectUncaught(FindOpen<frmStatZavodi>());
}

} // namespace

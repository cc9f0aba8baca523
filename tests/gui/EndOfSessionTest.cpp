// The system asks the program to end: on Linux, or from a terminal, by a signal; on Windows by messages.

#include "data/modData.h"
#include "support/Catalogue.h"
#include "support/TestFolder.h"
#include "support/Windows.h"
#include "ui/app/LeaveSignals.h"
#include "ui/course_editor/frmKolegij.h"
#include "ui/main/frmMain.h"
#include "ui/startup/frmSplash.h"

#include <wx/stopwatch.h>
#include <wx/textctrl.h>

#include <csignal>

#ifdef _WIN32
#include <wx/msw/wrapwin.h>
#endif

namespace
{

class EndOfSession : public testing::Test
{
protected:
    EndOfSession() { SmallCatalogue().WriteTo(Folder.Data()); }

    void TearDown() override { CloseAllWindows(); }

    /// Opens the main window and makes a change.
    void Open()
    {
        Main = new frmMain;
        Main->Form_Load();
        Settle();
        modData::Zavodi.Append({"3", "Treći", "T"});
    }

    bool IsSaved() { return ReadBytes(Folder.Data() / "db_zavod.csv").ends_with("3;Tre\xE6i;T\r\n"); }

    static void WaitForNoWindow()
    {
        constexpr long limit = 10'000; // milliseconds
        for (const wxStopWatch watch; !wxTopLevelWindows.empty() && watch.Time() < limit;)
            Settle();
        EXPECT_TRUE(wxTopLevelWindows.empty());
    }

    TestFolder Folder;
    frmMain* Main = nullptr;
};

#ifdef _WIN32

TEST_F(EndOfSession, SavesByTheMessagesOfWindows)
{
    Open();
    EXPECT_TRUE(SendMessageW(Main->GetHWND(), WM_QUERYENDSESSION, 0, 0));
    WaitForNoWindow();
    EXPECT_TRUE(IsSaved());
}

#else

class LeaveSignals : public EndOfSession
{
protected:
    LeaveSignals() { [[maybe_unused]] static const bool isListening = (LeaveOnSignals(), true); }

    /// Opens a dialog by a button; sends the signal when it is open.
    void SignalWhileOpen(const char* button)
    {
        const std::size_t courses = modData::Kolegiji.RowCount();
        Main->CallAfter([] { std::raise(SIGTERM); });
        Press(Main, button);
        EXPECT_EQ(modData::Kolegiji.RowCount(), courses);
        WaitForNoWindow();
        EXPECT_TRUE(IsSaved());
    }
};

TEST_F(LeaveSignals, LeaveByTheCloseBox)
{
    for (const int signal : {SIGTERM, SIGHUP, SIGINT})
    {
        SmallCatalogue().WriteTo(Folder.Data());
        Open();
        std::raise(signal);
        WaitForNoWindow();
        EXPECT_TRUE(IsSaved()) << signal;
    }
}

TEST_F(LeaveSignals, ThatComeAgainChangeNothing)
{
    Open();
    for (int i = 0; i < 3; ++i)
        std::raise(SIGTERM);
    WaitForNoWindow();
    EXPECT_TRUE(IsSaved());
    EXPECT_EQ(EntriesOf(Folder.Data() / "kopije").size(), 1U);
}

TEST_F(LeaveSignals, DropWhatIsTypedInTheEditor)
{
    Open();
    Main->CallAfter([] { Find<wxTextCtrl>(FindOpen<frmKolegij>(), "txtNaziv")->SetValue("Nedovršen"); });
    SignalWhileOpen("cmdAdd");
}

TEST_F(LeaveSignals, CancelTheQuestionBeforeADeletion)
{
    Open();
    Find<ListView>(Main, "lvwKolegiji")->SelectRow(0);
    SignalWhileOpen("cmdDelete");
}

TEST_F(LeaveSignals, CancelASaveDialog)
{
    Open();
    SignalWhileOpen("cmdExportVarlo");
}

TEST_F(LeaveSignals, CloseTheOtherWindows)
{
    Open();
    for (const char* button : {"cmdStatNositelji", "cmdStatZavodi", "cmdECTSCalc"})
        Press(Main, button);
    SignalWhileOpen("cmdAbout");
}

TEST_F(LeaveSignals, EndTheProgramBeforeItsMainWindowIsThere)
{
    (new frmSplash)->Show();
    Settle();
    std::raise(SIGTERM);
    WaitForNoWindow();
    EXPECT_FALSE(IsSaved());
}

TEST_F(LeaveSignals, WithInvalidDataSayWhatTheCloseBoxSays)
{
    Open();
    modData::KolegijSmjerovi.Append({"99", "1"});
    MessageAnswers answers;
    std::raise(SIGTERM);
    WaitForNoWindow();
    EXPECT_EQ(answers.TakeOnly().Text, "CSV podaci nisu ispravni. Ispravite greške prije izvoza statistike.");
    EXPECT_FALSE(IsSaved());
}

#endif

} // namespace

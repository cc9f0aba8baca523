#include "support/Catalogue.h"
#include "support/TestFolder.h"
#include "support/Windows.h"
#include "ui/main/frmMain.h"
#include "ui/startup/frmAbout.h"
#include "ui/startup/frmSplash.h"

#include <wx/app.h>
#include <wx/datetime.h>
#include <wx/log.h>
#include <wx/stattext.h>
#include <wx/stopwatch.h>
#include <wx/timer.h>
#include <wx/uiaction.h>

#include <algorithm>

#ifndef _WIN32
#include "ui/controls/NativeFunction_gtk.h"
#endif

namespace
{

class Startup : public testing::Test
{
protected:
    Startup() { SmallCatalogue().WriteTo(Folder.Data()); }
    void TearDown() override { CloseAllWindows(); }

    /// Shows a splash that stays until the test closes it, even on a busy machine.
    static frmSplash* ShowSplash(frmSplash* splash = new frmSplash(600'000))
    {
        splash->Show();
        Settle();
        // A window manager gives a new window the keyboard; without one it follows the mouse.
        const wxRect place = splash->GetScreenRect();
        wxUIActionSimulator().MouseMove(place.GetPosition() + place.GetSize() / 2);
        splash->Raise();
        Settle();
        return splash;
    }

    /// What is open: the splash, and the number of main windows.
    static std::pair<bool, long> OpenWindows()
    {
        const auto isMain = [](wxWindow* window) { return dynamic_cast<frmMain*>(window) != nullptr; };
        return {FindOpen<frmSplash>() != nullptr, std::ranges::count_if(wxTopLevelWindows, isMain)};
    }

    TestFolder Folder;
};

using Open = std::pair<bool, long>;

/// A timer that fires once.
class Alarm : private wxTimer
{
public:
    Alarm(int milliseconds, std::function<void()> ring) : m_ring(std::move(ring)) { StartOnce(milliseconds); }

    bool HasRung() const { return !IsRunning(); }

private:
    void Notify() override { m_ring(); }

    std::function<void()> m_ring;
};

TEST_F(Startup, TheSplashLeadsIntoTheMainWindowAfterASecond)
{
    const wxStopWatch watch;
    long shownAfter = 0;
    const auto look = [&](wxShowEvent& event)
    {
        event.Skip();
        if (event.IsShown() && dynamic_cast<frmMain*>(event.GetEventObject()) != nullptr)
            shownAfter = watch.Time();
    };
    wxTheApp->Bind(wxEVT_SHOW, look);
    (new frmSplash)->Show();
    // A later timer fires later, so that a busy machine delays both.
    Open early;
    Open late;
    const Alarm before(500, [&] { early = OpenWindows(); });
    const Alarm after(2500, [&] { late = OpenWindows(); });
    while (!after.HasRung())
        Settle();
    wxTheApp->Unbind(wxEVT_SHOW, look);
    EXPECT_EQ(early, Open(true, 0));
    EXPECT_EQ(late, Open(false, 1));
    EXPECT_GE(shownAfter, 1000);
}

TEST_F(Startup, EscapeEndsTheSplashAtOnceAndOtherKeysDoNot)
{
    frmSplash* splash = ShowSplash();
    auto* picture = Find<wxWindow>(splash, "Picture1");
    PressKey(picture, WXK_SPACE);
    PressKey(picture, WXK_RETURN);
    EXPECT_EQ(OpenWindows(), Open(true, 0));
    PressKey(picture, WXK_ESCAPE);
    EXPECT_EQ(OpenWindows(), Open(false, 1));
}

TEST_F(Startup, AClickEndsTheSplash)
{
    frmSplash* splash = ShowSplash();
    Click(Find<wxWindow>(splash, "Picture1"));
    EXPECT_EQ(OpenWindows(), Open(false, 1));
}

TEST_F(Startup, TheMainWindowOpensOnceForSeveralEventsAtOnce)
{
    frmSplash* splash = ShowSplash(new frmSplash);
    splash->CloseSplash();
    splash->CloseSplash();
    wxMilliSleep(1100);
    Settle();
    EXPECT_EQ(OpenWindows(), Open(false, 1));
}

TEST_F(Startup, TheMainWindowOpensOnceWhenAClickAndEscapeAndTheSecondComeTogether)
{
    frmSplash* splash = ShowSplash(new frmSplash);
    auto* picture = Find<wxWindow>(splash, "Picture1");
    Focus(picture);
    wxMilliSleep(1100); // the timer is due, and no event has been handled
    wxUIActionSimulator simulator;
    simulator.MouseClick();
    simulator.Char(WXK_ESCAPE);
    Settle();
    EXPECT_EQ(OpenWindows(), Open(false, 1));
    EXPECT_EQ(TakeUncaughtError(), "");
}

TEST_F(Startup, TheSplashIsGoneWhenTheMainWindowCannotLoad)
{
    WriteBytes(Folder.Data() / "db_smjer.csv", "");
    frmSplash* splash = ShowSplash();
    EXPECT_TRUE(splash->IsShown());
    PressKey(Find<wxWindow>(splash, "Picture1"), WXK_ESCAPE);
    EXPECT_NE(TakeUncaughtError(), "");
    EXPECT_FALSE(splash->IsShown());
}

TEST_F(Startup, TheMainWindowIsShownBeforeTheSplashGoes)
{
    frmSplash* splash = ShowSplash();
    bool splashWasThere = false;
    const auto look = [&](wxShowEvent& event)
    {
        event.Skip();
        if (event.IsShown() && dynamic_cast<frmMain*>(event.GetEventObject()) != nullptr)
            splashWasThere = splash->IsShown();
    };
    wxTheApp->Bind(wxEVT_SHOW, look);
    splash->CloseSplash();
    wxTheApp->Unbind(wxEVT_SHOW, look);
    EXPECT_TRUE(splashWasThere);
    Settle();
    EXPECT_EQ(OpenWindows(), Open(false, 1));
}

/// Runs a script while the About box is open, then closes the box by its button.
class AboutBox : public Startup
{
protected:
    template<typename Script>
    void WhileOpen(Script script)
    {
        frmAbout about(nullptr);
        about.CallAfter(
            [&]
            {
                script(about);
                Press(&about, "cmdOk");
            });
        EXPECT_EQ(about.ShowModal(), wxID_OK);
    }

    static std::string Label(wxWindow& about, const char* name)
    {
        return Find<wxStaticText>(&about, name)->GetLabelText().utf8_string();
    }
};

TEST_F(AboutBox, SaysWhatTheProgramIs)
{
    WhileOpen(
        [this](frmAbout& about)
        {
            EXPECT_EQ(about.GetTitle(), "About Varlostudiji");
            EXPECT_EQ(Label(about, "lblTitle"), "Varlostudiji");
            EXPECT_EQ(Find<wxWindow>(&about, "lblTitle")->GetFont().GetPointSize(), 14);
            EXPECT_EQ(Find<wxWindow>(&about, "lblTitle")->GetFont().GetWeight(), wxFONTWEIGHT_BOLD);
            EXPECT_EQ(Label(about, "lblVersion"), "Verzija 1.0.20260309");
            EXPECT_EQ(Label(about, "lblAuthor"), "Autor: Varlostudiji tim");
            EXPECT_EQ(Label(about, "lblWeb"), "https://varlostudiji.example");
            EXPECT_EQ(Label(about, "lblEmail"), "podrska@varlostudiji.example");
            const std::string folder = Folder.DataPath("");
            EXPECT_EQ(Label(about, "lblPathData"), "Baza: " + folder.substr(0, folder.size() - 1));
        });
}

TEST_F(AboutBox, ShowsTheCurrentYear)
{
    const auto expectYear = [this](int year)
    {
        WhileOpen(
            [year](frmAbout& about)
            {
                EXPECT_EQ(Label(about, "lblDescription"),
                          "Aplikacija za upravljanje kolegijima, nositeljima i statistikama.\r\n"
                          "Razina: Preddiplomski i Diplomski studij.\r\n"
                          "© " +
                              std::to_string(year) + " Varlostudiji");
            });
    };
    expectYear(wxDateTime::Now().GetYear());
    for (const int year : {2031, 2032}) // the program was not built in either
    {
        SetYearSource([year] { return year; });
        expectYear(year);
    }
    SetYearSource({});
}

TEST_F(AboutBox, HandsItsLinksToTheSystem)
{
    std::vector<std::string> opened;
    SetLinkOpener([&](const std::string& address) { opened.push_back(address); });
    WhileOpen(
        [](frmAbout& about)
        {
            Click(Find<wxWindow>(&about, "lblWeb"));
            Click(Find<wxWindow>(&about, "lblEmail"));
        });
    SetLinkOpener({});
    EXPECT_EQ(opened, (std::vector<std::string>{"https://varlostudiji.example",
                                                "mailto:podrska@varlostudiji.example"}));
}

TEST_F(AboutBox, IsSilentWhenTheSystemCannotOpenALink)
{
    int asked = 0;
    SetLinkOpener(
        [&](const std::string&)
        {
            ++asked;
            wxLogError("no program for this address");
        });
    const MessageAnswers messages;
    WhileOpen(
        [](frmAbout& about)
        {
            Click(Find<wxWindow>(&about, "lblWeb"));
            Click(Find<wxWindow>(&about, "lblEmail"));
            wxLog::FlushActive(); // shows logged messages now
            Settle();
            EXPECT_TRUE(about.IsModal());
        });
    SetLinkOpener({});
    EXPECT_EQ(asked, 2);
    EXPECT_EQ(messages.Shown().size(), 0U);
}

#ifndef _WIN32
/// The pointer that a window sets: 0 for the usual one, else the display's number of its shape.
int PointerOf(wxWindow* window)
{
    void* surface = NativeFunction<void* (*)(void*)>("gtk_widget_get_window")(window->m_widget);
    void* cursor = NativeFunction<void* (*)(void*)>("gdk_window_get_cursor")(surface);
    return cursor == nullptr ? 0 : NativeFunction<int (*)(void*)>("gdk_cursor_get_cursor_type")(cursor);
}

// On Windows the plain arrow is shown in both cases.
TEST_F(AboutBox, ThePointerIsThePlainArrowOverTheLinksAndTheUsualOneBesideThem)
{
    static constexpr int plainArrow = 68;
    WhileOpen(
        [](frmAbout& about)
        {
            const auto pointAt = [&](wxPoint place)
            {
                wxUIActionSimulator().MouseMove(about.ClientToScreen(place));
                Settle();
            };
            const wxPoint besideLinks(3, 3);
            for (const char* link : {"lblWeb", "lblEmail"})
            {
                const wxRect place = Find<wxWindow>(&about, link)->GetRect();
                pointAt(besideLinks);
                EXPECT_EQ(PointerOf(&about), 0);
                pointAt(place.GetPosition() + place.GetSize() / 2);
                EXPECT_EQ(PointerOf(&about), plainArrow) << link;
            }
            pointAt(besideLinks + wxPoint(4, 4));
            EXPECT_EQ(PointerOf(&about), 0);
        });
}
#endif

} // namespace

// The program itself, but for two things: what its message boxes say goes to standard output and each is
// answered at once, and the splash is dismissed at once, and the main window is left as VARLO_LEAVE_BY says:
// by the "exit" button or by its "close" box. Where VARLO_ASK is set, it shows a question that the system's
// own box asks, prints its buttons and how numbers and texts come out, and ends. Where VARLO_EXPORT_LOAD
// names one of its buttons that open a window of teaching load, that window's export goes to load.csv in
// LOCALAPPDATA before that. Where VARLO_WAIT holds a text, a file of that name behind "loaded." in
// LOCALAPPDATA says that the main window is there, and the program waits for a file "leave" beside it.

#include "data/Files.h"
#include "data/System.h"
#include "support/MessageBoxOnScreen.h"
#include "support/TestFolder.h"
#include "support/Windows.h"
#include "ui/app/VarlostudijiApp.h"
#include "ui/controls/Messages.h"
#include "ui/main/frmMain.h"
#include "ui/startup/frmSplash.h"

#include <wx/button.h>
#include <wx/timer.h>
#include <wx/utils.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>

namespace
{

class PrintingAnswers : public MessageAnswers
{
protected:
    int Enter(wxDialog* dialog) override
    {
        const int answer = MessageAnswers::Enter(dialog);
        const MessageShown shown = TakeOnly();
        std::printf("%s|%s|%s\n", shown.Title.c_str(), shown.Has(wxICON_ERROR) ? "critical" : "other",
                    shown.Text.c_str());
        std::fflush(stdout);
        return answer;
    }
};

/// Waits for a message box, prints its buttons, half of three, and whether "a" is sorted before "B", and ends
/// the program.
class BoxPrinter : private wxTimer
{
public:
    BoxPrinter() { Start(50); }

private:
    void Notify() override
    {
        const std::optional<MessageBoxOnScreen> box = FindMessageBox();
        if (!box)
            return;
        for (const std::string& button : box->Buttons)
            std::printf("%s ", button.c_str());
        std::printf("%.1f %s\n", 1.5, std::strcoll("a", "B") < 0 ? "a B" : "B a");
        std::fflush(stdout);
        std::_Exit(EXIT_SUCCESS);
    }
};

class ScriptedApp : public VarlostudijiApp
{
public:
    bool OnInit() override
    {
        const bool asks = !System::EnvironmentVariable("VARLO_ASK").empty();
        if (!asks)
            Answers.emplace();
        if (!VarlostudijiApp::OnInit())
            return false;
        if (asks)
            CallAfter(&Ask);
        else
            CallAfter([this] { Leave(); });
        return true;
    }

private:
    static void PressButton(wxWindow* window, const char* name)
    {
        auto* button = Find<wxButton>(window, name);
        wxCommandEvent press(wxEVT_BUTTON, button->GetId());
        button->ProcessWindowEvent(press);
    }

    static void ExportLoad(frmMain* window, const std::string& openingButton)
    {
        const SaveAnswers save(System::EnvironmentVariable("LOCALAPPDATA") +
                               std::string(System::PathSeparator) + "load.csv");
        PressButton(window, openingButton.c_str());
        for (wxWindow* open : wxTopLevelWindows)
            if (wxWindow::FindWindowByName("cmdExportAllStat", open) != nullptr)
            {
                PressButton(open, "cmdExportAllStat");
                return;
            }
    }

    static void Ask()
    {
        const BoxPrinter printer;
        AskYesNo(FindOpen<frmSplash>(), "?", "Potvrda");
    }

    static void WaitUntilTold()
    {
        const std::string name = System::EnvironmentVariable("VARLO_WAIT");
        if (name.empty())
            return;
        const std::filesystem::path folder = ToPath(System::EnvironmentVariable("LOCALAPPDATA"));
        WriteBytes(folder / ToPath("loaded." + name), "");
        while (!std::filesystem::exists(folder / "leave"))
            wxMilliSleep(1);
    }

    void Leave()
    {
        FindOpen<frmSplash>()->CloseSplash();
        auto* window = FindOpen<frmMain>();
        WaitUntilTold();
        const std::string load = System::EnvironmentVariable("VARLO_EXPORT_LOAD");
        if (!load.empty())
            ExportLoad(window, load);
        if (System::EnvironmentVariable("VARLO_LEAVE_BY") == "close")
        {
            window->Close();
            return;
        }
        PressButton(window, "cmdExit");
    }

    std::optional<PrintingAnswers> Answers;
};

} // namespace

wxIMPLEMENT_APP_CONSOLE(ScriptedApp);

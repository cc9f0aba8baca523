// The program itself, with these differences: it prints its message boxes to standard output and answers each
// at once; it closes the splash at once; and it closes the main window as VARLO_LEAVE_BY says: by the "exit"
// button, by its "close" box, or "not" at all. More variables:
//
// VARLO_ASK: shows a question in the system's own box, prints its buttons, and how numbers are formatted and
// texts sorted, and ends. VARLO_EXPORT_TEACHING_LOAD=NAME: opens a window of teaching load by this button of
// the main window, and exports to load.csv in VARLO_EXPORT_TO, or else in LOCALAPPDATA. For the others see
// support/ProgramFaults.h.

#include "data/Files.h"
#include "data/System.h"
#include "support/MessageBoxOnScreen.h"
#include "support/ProgramFaults.h"
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
        if (HoldsAFile())
            return false;
        CountOperations();
        const bool asks = !System::EnvironmentVariable("VARLO_ASK").empty();
        if (!asks)
            m_answers.emplace();
        if (!VarlostudijiApp::OnInit())
            return false;
        if (asks)
            CallAfter(&Ask);
        else
            CallAfter([this] { Leave(); });
        return true;
    }

    int OnExit() override
    {
        WriteOperationCount();
        return VarlostudijiApp::OnExit();
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
        const std::string elsewhere = System::EnvironmentVariable("VARLO_EXPORT_TO");
        const SaveAnswers save(
            PathIn(elsewhere.empty() ? System::EnvironmentVariable("LOCALAPPDATA") : elsewhere, "load.csv"));
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

    void Leave()
    {
        FindOpen<frmSplash>()->CloseSplash();
        auto* window = FindOpen<frmMain>();
        EditTables();
        WaitForLeaveFile();
        const std::string load = System::EnvironmentVariable("VARLO_EXPORT_TEACHING_LOAD");
        if (!load.empty())
            ExportLoad(window, load);
        const std::string leaveBy = System::EnvironmentVariable("VARLO_LEAVE_BY");
        if (leaveBy == "close")
            window->Close();
        else if (leaveBy != "not")
            PressButton(window, "cmdExit");
    }

    std::optional<PrintingAnswers> m_answers;
};

} // namespace

wxIMPLEMENT_APP_CONSOLE(ScriptedApp);

// The program itself, except that what its message boxes say goes to standard output and each is answered at
// once, that the splash is dismissed at once, and that the main window is left as VARLO_LEAVE_BY says: by the
// "exit" button, by its "close" box, or "not" at all. More variables, each for one kind of test:
//
// VARLO_ASK: shows a question that the system's own box asks, prints its buttons and how numbers and texts
// come
//   out, and ends.
// VARLO_WAIT=TEXT: says that the main window is there by a file "loaded.TEXT" in LOCALAPPDATA, and waits for
// a
//   file "leave" beside it.
// VARLO_EDIT=FOLDER: makes the seven files in this folder of LOCALAPPDATA the program's tables.
// VARLO_EXPORT_LOAD=NAME: opens a window of teaching load by this button of the main window, and exports to
//   load.csv in VARLO_EXPORT_TO, or else in LOCALAPPDATA.
// VARLO_HOLD=NAME: on Windows, opens no window, but this file of the data folder, which others may only read
//   then; says so by a file "held" in LOCALAPPDATA, and waits for a file "release".
// VARLO_KILL_AFTER=N: ends the program, as by a kill, after its N-th operation that changes the disk; the
// number
//   of them goes to the file "operations" in LOCALAPPDATA.

#include "data/FileOperations.h"
#include "data/Files.h"
#include "data/System.h"
#include "data/modData.h"
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

#ifdef _WIN32
#include <windows.h>
#else
#include <csignal>
#endif

namespace
{

std::filesystem::path BaseFolder()
{
    return ToPath(System::EnvironmentVariable("LOCALAPPDATA"));
}

int Operations = 0;
int LastOperation = 0; // 0: no end

void CountOperation()
{
    if (++Operations != LastOperation)
        return;
#ifdef _WIN32
    TerminateProcess(GetCurrentProcess(), 137);
#else
    std::raise(SIGKILL);
#endif
}

/// An operation that ends the program when its turn has come.
template<auto Operation>
struct Counted;
template<typename... Arguments, std::error_code (*FileOperations::*Operation)(Arguments...)>
struct Counted<Operation>
{
    static std::error_code Run(Arguments... arguments)
    {
        const std::error_code result = (System::OwnFiles.*Operation)(arguments...);
        CountOperation();
        return result;
    }
};

void CountOperations()
{
    const std::string number = System::EnvironmentVariable("VARLO_KILL_AFTER");
    if (number.empty())
        return;
    LastOperation = std::stoi(number);
    using Table = FileOperations;
    System::Files.Open = Counted<&Table::Open>::Run;
    System::Files.Write = Counted<&Table::Write>::Run;
    System::Files.TakeAccess = Counted<&Table::TakeAccess>::Run;
    System::Files.Flush = Counted<&Table::Flush>::Run;
    System::Files.Rename = Counted<&Table::Rename>::Run;
    System::Files.RemoveFile = Counted<&Table::RemoveFile>::Run;
    System::Files.RemoveFolder = Counted<&Table::RemoveFolder>::Run;
    System::Files.MakeFolder = Counted<&Table::MakeFolder>::Run;
    System::Files.FlushFolder = Counted<&Table::FlushFolder>::Run;
}

void WaitFor(const std::filesystem::path& file)
{
    while (!std::filesystem::exists(file))
        wxMilliSleep(1);
}

/// Whether this program was only to hold a file, which it has done then.
bool HoldsAFile()
{
    const std::string name = System::EnvironmentVariable("VARLO_HOLD");
    if (name.empty())
        return false;
#ifdef _WIN32
    const std::filesystem::path path = ToPath(PathIn(modData::GetDataFolder(), name));
    const HANDLE file = CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
    WriteBytes(BaseFolder() / "held", "");
    WaitFor(BaseFolder() / "release");
    CloseHandle(file);
#endif
    return true;
}

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
            Answers.emplace();
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
        if (Operations > 0)
            WriteBytes(BaseFolder() / "operations", std::to_string(Operations));
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

    static void WaitUntilTold()
    {
        const std::string name = System::EnvironmentVariable("VARLO_WAIT");
        if (name.empty())
            return;
        WriteBytes(BaseFolder() / ToPath("loaded." + name), "");
        WaitFor(BaseFolder() / "leave");
    }

    static void Edit()
    {
        const std::string folder = System::EnvironmentVariable("VARLO_EDIT");
        if (folder.empty())
            return;
        for (Table* table : modData::AllTables())
            *table = modData::LoadTable(
                ToText(BaseFolder() / ToPath(folder) / ToPath(table->Layout().FileName)), table->Layout());
    }

    void Leave()
    {
        FindOpen<frmSplash>()->CloseSplash();
        auto* window = FindOpen<frmMain>();
        Edit();
        WaitUntilTold();
        const std::string load = System::EnvironmentVariable("VARLO_EXPORT_LOAD");
        if (!load.empty())
            ExportLoad(window, load);
        const std::string leaveBy = System::EnvironmentVariable("VARLO_LEAVE_BY");
        if (leaveBy == "close")
            window->Close();
        else if (leaveBy != "not")
            PressButton(window, "cmdExit");
    }

    std::optional<PrintingAnswers> Answers;
};

} // namespace

wxIMPLEMENT_APP_CONSOLE(ScriptedApp);

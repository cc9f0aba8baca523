#pragma once

#include "support/TeachingLoadChecks.h"
#include "support/Windows.h"
#include "ui/main/frmMain.h"

#include <wx/dialog.h>
#include <wx/msgdlg.h>
#include <wx/panel.h>
#include <wx/statbox.h>
#include <wx/uiaction.h>

#include <exception>
#include <functional>
#include <string>
#include <utility>
#include <vector>

// For tests of every window of the program.

using WindowScript = std::function<void(wxTopLevelWindow& window)>;

/// Runs a script inside the event loop of the first modal dialog, except message boxes, that opens while it
/// lives. If the script leaves the dialog open, it is cancelled.
class ModalSession : public wxModalDialogHook
{
public:
    explicit ModalSession(WindowScript script) : m_script(std::move(script)) { Register(); }
    ~ModalSession() override { Unregister(); }

    /// Throws what the script threw; throws if no dialog opened.
    void Check() const
    {
        if (m_failure)
            std::rethrow_exception(m_failure);
        if (!m_opened)
            throw std::runtime_error("no dialog opened");
    }

protected:
    int Enter(wxDialog* dialog) override
    {
        if (!m_opened && dynamic_cast<wxMessageDialog*>(dialog) == nullptr)
        {
            m_opened = true;
            dialog->CallAfter([this, dialog] { Run(*dialog); });
        }
        return wxID_NONE; // show the dialog itself
    }

private:
    void Run(wxDialog& dialog)
    {
        dialog.Raise(); // without a window manager, a new window does not become active
        Settle();
        try
        {
            m_script(dialog);
        }
        catch (...)
        {
            m_failure = std::current_exception();
        }
        if (dialog.IsModal())
            dialog.EndModal(wxID_CANCEL);
    }

    WindowScript m_script;
    bool m_opened = false;
    std::exception_ptr m_failure;
};

/// A window of the program, and the button of the main window that opens it; null for the main window.
struct ProgramWindow
{
    const char* Name;
    const char* Button;
    bool Modal;
};

inline void PrintTo(const ProgramWindow& window, std::ostream* stream)
{
    *stream << window.Name;
}

inline constexpr ProgramWindow MainForm = {"frmMain", nullptr, false};
inline constexpr ProgramWindow EditorForm = {"frmKolegij", "cmdEdit", true};
inline constexpr ProgramWindow LecturerForm = {"frmStatNositelji", "cmdStatNositelji", false};
inline constexpr ProgramWindow DepartmentForm = {"frmStatZavodi", "cmdStatZavodi", false};
inline constexpr ProgramWindow CalculatorForm = {"frmECTSCalc", "cmdECTSCalc", false};
inline constexpr ProgramWindow AboutForm = {"frmAbout", "cmdAbout", true};

inline constexpr ProgramWindow ProgramWindows[] = {MainForm,       EditorForm,     LecturerForm,
                                                   DepartmentForm, CalculatorForm, AboutForm};

/// The main window with the demo catalogue; opens every other window from it, as a user does.
class EveryWindowTest : public testing::Test
{
protected:
    void TearDown() override { CloseAllWindows(); }

    void OpenMain()
    {
        if (Main != nullptr)
            return;
        CopyDemo(Folder);
        Main = new frmMain;
        Main->Form_Load();
        Settle();
        // A window manager returns the keyboard after a dialog; without one it follows the mouse.
        const wxRect place = Main->GetScreenRect();
        wxUIActionSimulator().MouseMove(place.GetPosition() + place.GetSize() / 2);
        Settle();
    }

    /// Opens a window, runs a script in it and closes it. The editor opens with a course.
    void InWindow(const ProgramWindow& which, const WindowScript& script)
    {
        OpenMain();
        if (which.Button == nullptr)
        {
            script(*Main);
            return;
        }
        Find<ListView>(Main, "lvwKolegiji")->SelectRow(0);
        if (which.Modal)
        {
            const ModalSession session(script);
            Press(Main, which.Button);
            session.Check();
            return;
        }
        Press(Main, which.Button);
        auto* window = dynamic_cast<wxTopLevelWindow*>(wxWindow::FindWindowByName(which.Name));
        if (window == nullptr)
            throw std::runtime_error(std::string("no window ") + which.Name);
        script(*window);
        if (wxWindow::FindWindowByName(which.Name) == window)
            window->Close();
        Settle();
    }

    void InEveryWindow(const WindowScript& script)
    {
        for (const ProgramWindow& window : ProgramWindows)
        {
            SCOPED_TRACE(window.Name);
            InWindow(window, script);
        }
    }

    TestFolder Folder;
    frmMain* Main = nullptr;
};

/// The parent of a top-level window's controls.
inline wxWindow* ControlParent(wxTopLevelWindow& window)
{
    for (wxWindow* child : window.GetChildren())
        if (dynamic_cast<wxPanel*>(child) != nullptr && dynamic_cast<ListView*>(child) == nullptr)
            return child;
    return &window;
}

/// The controls of a window in their order, without frames; a list is one control.
inline std::vector<wxWindow*> ControlsOf(wxTopLevelWindow& window)
{
    std::vector<wxWindow*> controls;
    for (wxWindow* child : ControlParent(window)->GetChildren())
        if (!child->IsTopLevel() && dynamic_cast<wxStaticBox*>(child) == nullptr)
            controls.push_back(child);
    return controls;
}

/// The names of controls.
inline std::vector<std::string> NamesOf(const std::vector<wxWindow*>& controls)
{
    std::vector<std::string> names;
    names.reserve(controls.size());
    for (const wxWindow* control : controls)
        names.push_back(control->GetName().utf8_string());
    return names;
}

#pragma once

#include "ui/controls/ListView.h"
#include "ui/controls/SaveDialog.h"

#include <wx/choice.h>
#include <wx/listbox.h>
#include <wx/modalhook.h>
#include <wx/toplevel.h>

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// Driving real windows from a test: finding controls, typing, choosing, and answering message boxes.

/// Runs the event loop until it is idle.
void Settle();

/// A control of a window by its name in the code; throws if there is none.
template<typename Control>
Control* Find(wxWindow* window, const wxString& name)
{
    auto* control = dynamic_cast<Control*>(wxWindow::FindWindowByName(name, window));
    if (control == nullptr)
        throw std::runtime_error("no control " + name.utf8_string());
    return control;
}

/// An open top-level window by its class; null if there is none.
template<typename Window>
Window* FindOpen()
{
    for (wxWindow* window : wxTopLevelWindows)
        if (auto* found = dynamic_cast<Window*>(window); found != nullptr && !found->IsBeingDeleted())
            return found;
    return nullptr;
}

/// Runs the event loop until a condition is met; throws if it is not met in time.
void WaitUntil(const std::function<bool()>& condition);

// Choices are made by real keys and clicks: a synthetic event would also arrive in cases in which the system
// raises none.

/// Opens a drop-down list by the keyboard. The following keys go to the list.
void Open(wxChoice* box);

/// True if a drop-down list is open.
bool IsOpen(const wxChoice* box);

/// Chooses an entry of a drop-down list by the keyboard, since GTK does not tell where the entries are on the
/// screen.
void Choose(wxChoice* box, int position);
void Choose(wxChoice* box, const char* entry); ///< UTF-8

/// Clicks on an entry of a list box with the mouse, with Ctrl or Shift if given; scrolls to it if needed.
void Click(wxListBox* list, int position, wxKeyCode held = WXK_NONE);
void Click(wxListBox* list, const char* entry); ///< UTF-8

/// Does what a click on a button does, with its event; a disabled button does nothing.
void Press(wxWindow* window, const wxString& buttonName);

/// Gives a control the focus, unless it or one of its children has it.
void Focus(wxWindow* control);

/// Gives a control the focus and types a key into it.
void PressKey(wxWindow* control, int keyCode, int modifiers = 0);

/// Gives a control the focus and types a text of ASCII characters into it.
void Type(wxWindow* control, const char* text);

/// Clicks the middle of a control with the mouse.
void Click(wxWindow* control);

/// Clicks a point of the screen with the mouse.
void ClickAt(wxPoint onScreen);

/// The entries of a drop-down list or list box.
std::vector<std::string> EntriesOfBox(const wxItemContainer* box);

/// The texts of a column of a list, top to bottom.
std::vector<std::string> ColumnTexts(const ListView* list, int column);

/// Expects a window in the middle of the screen, to two pixels.
void ExpectCentredOnScreen(const wxWindow* window);

/// Closes every open window without questions and waits until all are gone.
void CloseAllWindows();

/// A message box that was shown.
struct MessageShown
{
    std::string Text;
    std::string Title;
    long Style; ///< The icon and the buttons, as wxMessageDialog has them.

    bool Has(long style) const { return (Style & style) == style; }
};

/// While it lives, message boxes are answered at once and recorded.
class MessageAnswers : public wxModalDialogHook
{
public:
    /// `answer` is the answer to every box: wxID_OK, wxID_YES, wxID_NO.
    explicit MessageAnswers(int answer = wxID_OK) : m_answer(answer) { Register(); }
    ~MessageAnswers() override { Unregister(); }

    const std::vector<MessageShown>& Shown() const { return m_messages; }

    /// The one message shown since the last call; the test fails if there was none or more than one.
    MessageShown TakeOnly();

protected:
    int Enter(wxDialog* dialog) override;

private:
    int m_answer;
    std::vector<MessageShown> m_messages;
};

/// While it lives, Save dialogs are answered with a path, or cancelled, and their options are recorded.
class SaveAnswers
{
public:
    explicit SaveAnswers(std::optional<std::string> path);
    ~SaveAnswers();
    SaveAnswers(const SaveAnswers&) = delete;
    SaveAnswers& operator=(const SaveAnswers&) = delete;

    const std::vector<SaveDialogOptions>& Shown() const { return m_options; }

private:
    std::vector<SaveDialogOptions> m_options;
};

/// The error in an event handler since the last call, as the user would see it; empty if there was none. In
/// the real program such an error ends the program; in a window test it is recorded here.
std::string TakeUncaughtError();
void NoteUncaughtError(std::string text);

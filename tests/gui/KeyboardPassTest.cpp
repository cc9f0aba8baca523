// One pass over every window with the keyboard: Tab, access keys, Enter, Escape, and the focus after a
// command.

#include "support/EveryWindow.h"
#include "support/KeyAnswer.h"
#include "support/SaveDialogKeys.h"
#include "support/ScreenPicture.h"
#include "ui/course_editor/frmKolegij.h"

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/radiobut.h>
#include <wx/stattext.h>
#include <wx/stopwatch.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <typeinfo>

namespace
{

using Texts = std::vector<std::string>;

class Keyboard : public EveryWindowTest
{
};

/// The control of a window that contains a given window; null if none does.
wxWindow* ControlWith(wxTopLevelWindow& window, wxWindow* inner)
{
    const wxWindow* parent = ControlParent(window);
    while (inner != nullptr && inner->GetParent() != parent)
        inner = inner->GetParent();
    return inner;
}

/// The controls at which Tab should stop, in their order; of a group of options, the chosen one.
std::vector<wxWindow*> TabStops(wxTopLevelWindow& window)
{
    std::vector<wxWindow*> stops;
    for (wxWindow* control : ControlsOf(window))
    {
        const auto* option = dynamic_cast<wxRadioButton*>(control);
        const bool takesKeys =
            dynamic_cast<ListView*>(control) != nullptr || control->AcceptsFocusFromKeyboard();
        if (takesKeys && control->IsEnabled() && control->IsShown() &&
            (option == nullptr || option->GetValue()))
            stops.push_back(control);
    }
    return stops;
}

/// The first tab stop of each kind.
std::vector<wxWindow*> KindsOfTabStops(wxTopLevelWindow& window)
{
    std::vector<wxWindow*> kinds;
    for (wxWindow* stop : TabStops(window))
        if (std::ranges::none_of(kinds, [&](wxWindow* kind) { return typeid(*kind) == typeid(*stop); }))
            kinds.push_back(stop);
    return kinds;
}

/// The controls of a window that get keys while Tab is pressed, first to last, each once, until the keys
/// leave the window.
class KeyLog
{
public:
    explicit KeyLog(wxTopLevelWindow& window) : m_window(window)
    {
        // What has the focus is not always what the toolkit knows to have it; what gets a key is.
        m_window.Bind(wxEVT_CHAR_HOOK, &KeyLog::Note, this);
    }
    ~KeyLog() { m_window.Unbind(wxEVT_CHAR_HOOK, &KeyLog::Note, this); }
    KeyLog(const KeyLog&) = delete;
    KeyLog& operator=(const KeyLog&) = delete;

    const std::vector<wxWindow*>& Controls() const { return m_controls; }

private:
    void Note(wxKeyEvent& event)
    {
        event.Skip();
        wxWindow* control = ControlWith(m_window, dynamic_cast<wxWindow*>(event.GetEventObject()));
        if (control != nullptr && (m_controls.empty() || m_controls.back() != control))
            m_controls.push_back(control);
    }

    wxTopLevelWindow& m_window;
    std::vector<wxWindow*> m_controls;
};

/// While it lives, records the buttons pressed in a window; their commands do not run.
class ButtonLog
{
public:
    explicit ButtonLog(wxTopLevelWindow& window)
    {
        for (wxWindow* control : ControlsOf(window))
            if (auto* button = dynamic_cast<wxButton*>(control))
            {
                m_buttons.push_back(button);
                button->Bind(wxEVT_BUTTON, &ButtonLog::Note, this);
            }
    }
    ~ButtonLog()
    {
        for (wxButton* button : m_buttons)
            button->Unbind(wxEVT_BUTTON, &ButtonLog::Note, this);
    }
    ButtonLog(const ButtonLog&) = delete;
    ButtonLog& operator=(const ButtonLog&) = delete;

    const std::vector<wxButton*>& All() const { return m_buttons; }

    /// The button pressed since the last call; empty if none was. Some systems show a button pressed for a
    /// quarter of a second before its event.
    std::string Take(long patience = 1000)
    {
        for (const wxStopWatch watch; m_names.empty() && watch.Time() < patience;)
            Settle();
        std::string names;
        for (const std::string& name : m_names)
            names.append(names.empty() ? "" : " ").append(name);
        m_names.clear();
        return names;
    }

private:
    void Note(wxCommandEvent& event)
    {
        m_names.push_back(dynamic_cast<wxWindow*>(event.GetEventObject())->GetName().utf8_string());
    }

    std::vector<wxButton*> m_buttons;
    Texts m_names;
};

/// The access key of a caption in upper case; 0 if it has none.
char AccessKey(const wxWindow* control)
{
    const wxString label = control->GetLabel();
    for (std::size_t i = 0; i + 1 < label.size(); ++i)
        if (label[i] == '&' && label[++i] != '&')
            return static_cast<char>(wxToupper(label[i]));
    return 0;
}

std::string FocusName(wxTopLevelWindow& window)
{
    const wxWindow* control = ControlWith(window, wxWindow::FindFocus());
    return control == nullptr ? "none" : control->GetName().utf8_string();
}

/// The picture of a button's left edge, halfway down; its caption is further in.
std::vector<unsigned char> EdgeOf(const wxButton* button)
{
    constexpr int width = 6;
    const wxRect place = button->GetScreenRect();
    const wxImage pixels = ScreenPicture({place.x, place.y + place.height / 2, width, 1});
    return {pixels.GetData(), pixels.GetData() + std::ptrdiff_t{3} * width};
}

/// Waits for the focus to come to a control of a window; returns the control that has it at the end.
std::string FocusAfterAWhile(wxTopLevelWindow& window, const char* control)
{
    for (const wxStopWatch watch; watch.Time() < 1000 && FocusName(window) != control;)
        Settle();
    return FocusName(window);
}

/// The control that gets the keys, which is not always the one that the toolkit reports as focused.
std::string NameOfKeyReceiver(wxTopLevelWindow& window)
{
    const KeyLog log(window);
    wxUIActionSimulator().Char(WXK_F9); // has no meaning anywhere
    Settle();
    return log.Controls().empty() ? "none" : log.Controls().front()->GetName().utf8_string();
}

// Tab

TEST_F(Keyboard, TabGoesThroughEveryControlInReadingOrderAndBack)
{
    InEveryWindow(
        [](wxTopLevelWindow& window)
        {
            std::vector<wxWindow*> stops = TabStops(window);
            for (std::size_t i = 1; i < stops.size(); ++i)
            {
                const wxRect former = stops[i - 1]->GetScreenRect();
                const wxRect next = stops[i]->GetScreenRect();
                EXPECT_TRUE(next.GetLeft() > former.GetRight() || next.GetTop() > former.GetBottom())
                    << stops[i]->GetName() << " is neither right of " << stops[i - 1]->GetName()
                    << " nor below it";
            }
            if (stops.size() < 2)
                return; // the About box has only its button
            stops.push_back(stops.front());
            for (const int modifiers : {wxMOD_NONE, wxMOD_SHIFT})
            {
                Focus(stops.front());
                const KeyLog log(window);
                for (std::size_t i = 0; i < 2 * stops.size() && log.Controls().size() < stops.size(); ++i)
                {
                    wxUIActionSimulator().Char(WXK_TAB, modifiers);
                    Settle();
                }
                EXPECT_EQ(NamesOf(log.Controls()), NamesOf(stops));
                std::ranges::reverse(stops);
            }
        });
}

TEST_F(Keyboard, TabIntoAListSelectsNothing)
{
    InEveryWindow(
        [](wxTopLevelWindow& window)
        {
            std::map<ListView*, int> selected;
            for (wxWindow* control : ControlsOf(window))
                if (auto* list = dynamic_cast<ListView*>(control))
                {
                    list->SelectRow(-1);
                    selected[list] = -1;
                }
            Focus(TabStops(window).front());
            for (std::size_t i = 0; i < TabStops(window).size(); ++i)
            {
                wxUIActionSimulator().Char(WXK_TAB);
                Settle();
            }
            for (const auto& [list, row] : selected)
                EXPECT_EQ(list->SelectedRow(), row) << list->GetName();
        });
}

// Characters

TEST_F(Keyboard, ACharacterTypedInAListDoesNothing)
{
    InEveryWindow(
        [](wxTopLevelWindow& window)
        {
            if (auto* lecturers =
                    dynamic_cast<wxListBox*>(wxWindow::FindWindowByName("lstNastavnici", &window)))
                Click(lecturers, 0); // the courses fill the lists
            const MessageAnswers none;
            for (wxWindow* control : ControlsOf(window))
            {
                auto* list = dynamic_cast<ListView*>(control);
                if (list == nullptr)
                    continue;
                ASSERT_GT(list->RowCount(), 3) << list->GetName();
                const ModalSession editor([](wxTopLevelWindow&) {});
                Focus(list);
                list->SelectRow(2);
                const std::string first = list->CellText(0, 0).utf8_string();
                for (const std::string& text :
                     {std::string(" "), first.substr(0, 1), std::string("1"), std::string("uz")})
                {
                    Type(list, text.c_str());
                    EXPECT_EQ(list->SelectedRow(), 2) << list->GetName() << ", '" << text << "'";
                    EXPECT_THROW(editor.Check(), std::runtime_error) << "no dialog opens";
                }
                PressKey(list, WXK_DOWN);
                EXPECT_EQ(list->SelectedRow(), 3) << "the next key is the list's, not a search box's";
            }
        });
}

// Access keys

TEST_F(Keyboard, NoTwoAccessKeysOfAWindowAreTheSame)
{
    InEveryWindow(
        [](wxTopLevelWindow& window)
        {
            std::map<char, wxWindow*> keys;
            for (wxWindow* control : ControlsOf(window))
                if (const char key = AccessKey(control); key != 0)
                {
                    EXPECT_TRUE(keys.emplace(key, control).second)
                        << control->GetName() << " and " << keys[key]->GetName() << " share " << key;
                }
            for (wxWindow* control : ControlsOf(window))
                EXPECT_TRUE(dynamic_cast<wxButton*>(control) == nullptr || AccessKey(control) != 0 ||
                            control->GetName() == "cmdOk")
                    << control->GetName();
        });
}

TEST_F(Keyboard, EveryAccessKeyPressesItsButton)
{
    InEveryWindow(
        [](wxTopLevelWindow& window)
        {
            ButtonLog pressed(window);
            Focus(TabStops(window).front());
            for (const wxButton* button : pressed.All())
            {
                const char key = AccessKey(button);
                if (key == 0)
                    continue;
                wxUIActionSimulator().Char(key, wxMOD_ALT);
                EXPECT_EQ(pressed.Take(), button->GetName().utf8_string()) << key;
            }
        });
}

TEST_F(Keyboard, AnAccessKeyWorksInEveryKindOfControl)
{
    InEveryWindow(
        [](wxTopLevelWindow& window)
        {
            ButtonLog pressed(window);
            const wxButton* last = pressed.All().back();
            const char key = AccessKey(last);
            for (wxWindow* stop : KindsOfTabStops(window))
            {
                if (key == 0)
                    continue;
                Focus(stop);
                wxUIActionSimulator().Char(key, wxMOD_ALT);
                EXPECT_EQ(pressed.Take(), last->GetName().utf8_string()) << "from " << stop->GetName();
            }
        });
}

// Keys of the main window

TEST_F(Keyboard, CtrlFGoesToTheSearchTextFromEveryKindOfControl)
{
    OpenMain();
    auto* search = Find<wxTextCtrl>(Main, "txtSearch");
    Type(search, "in");
    for (wxWindow* stop : KindsOfTabStops(*Main))
    {
        search->SelectNone();
        PressKey(stop, 'F', wxMOD_CONTROL);
        EXPECT_EQ(FocusName(*Main), "txtSearch") << "from " << stop->GetName();
        EXPECT_EQ(search->GetStringSelection(), "in") << "from " << stop->GetName();
    }
    wxUIActionSimulator().Text("pr");
    Settle();
    EXPECT_EQ(search->GetValue(), "pr") << "what is typed replaces the text";
}

TEST_F(Keyboard, CtrlNAddsACourseFromEveryKindOfControl)
{
    OpenMain();
    Find<ListView>(Main, "lvwKolegiji")->SelectRow(0);
    for (wxWindow* stop : KindsOfTabStops(*Main))
    {
        std::string mode;
        const ModalSession session([&](wxTopLevelWindow& window)
                                   { mode = dynamic_cast<frmKolegij&>(window).Mode; });
        PressKey(stop, 'N', wxMOD_CONTROL);
        EXPECT_NO_THROW(session.Check()) << "from " << stop->GetName();
        EXPECT_EQ(mode, "ADD") << "from " << stop->GetName();
        EXPECT_EQ(NameOfKeyReceiver(*Main), stop->GetName().utf8_string());
    }
    EXPECT_EQ(Find<wxTextCtrl>(Main, "txtSearch")->GetValue(), "");
}

TEST_F(Keyboard, TheMainWindowsKeysDoNothingInTheOtherWindows)
{
    for (const ProgramWindow& which : {LecturerForm, DepartmentForm, CalculatorForm})
        InWindow(which,
                 [&](wxTopLevelWindow& window)
                 {
                     for (wxWindow* stop : KindsOfTabStops(window))
                     {
                         const ModalSession editor([](wxTopLevelWindow&) {});
                         PressKey(stop, 'N', wxMOD_CONTROL);
                         EXPECT_THROW(editor.Check(), std::runtime_error) << stop->GetName();
                         PressKey(stop, 'F', wxMOD_CONTROL);
                         EXPECT_EQ(FocusName(window), stop->GetName().utf8_string());
                     }
                 });
}

TEST_F(Keyboard, DownAndEnterGoFromTheSearchTextToTheFirstCourse)
{
    OpenMain();
    auto* search = Find<wxTextCtrl>(Main, "txtSearch");
    auto* list = Find<ListView>(Main, "lvwKolegiji");
    for (const int key : {WXK_DOWN, WXK_RETURN})
    {
        list->SelectRow(-1);
        PressKey(search, key);
        EXPECT_EQ(FocusName(*Main), "lvwKolegiji") << key;
        EXPECT_EQ(list->SelectedRow(), 0) << key;
        wxUIActionSimulator().Char(WXK_DOWN);
        Settle();
        EXPECT_EQ(list->SelectedRow(), 1) << key;
    }

    Type(search, "nema ga");
    ASSERT_EQ(list->RowCount(), 0);
    for (const int key : {WXK_DOWN, WXK_RETURN})
    {
        PressKey(search, key);
        EXPECT_EQ(FocusName(*Main), "txtSearch") << key;
        EXPECT_EQ(search->GetValue(), "nema ga") << key;
    }
}

// Enter and Escape

TEST_F(Keyboard, EnterAndSpacePressTheButtonThatHasTheFocus)
{
    InEveryWindow(
        [](wxTopLevelWindow& window)
        {
            ButtonLog pressed(window);
            for (wxButton* button : pressed.All())
                for (const int key : {WXK_RETURN, WXK_SPACE})
                {
                    PressKey(button, key);
                    EXPECT_EQ(pressed.Take(), button->GetName().utf8_string()) << key;
                }
        });
}

TEST_F(Keyboard, InADialogEnterPressesItsDefaultAndEscapeItsCancelButton)
{
    struct DialogButtons
    {
        ProgramWindow Window;
        const char* Default;
        const char* Cancel;
    };
    for (const DialogButtons& dialog :
         {DialogButtons{EditorForm, "cmdSave", "cmdCancel"}, DialogButtons{AboutForm, "cmdOk", "cmdOk"}})
        InWindow(dialog.Window,
                 [&](wxTopLevelWindow& window)
                 {
                     ButtonLog pressed(window);
                     wxWindow* first = TabStops(window).front();
                     PressKey(first, WXK_RETURN);
                     EXPECT_EQ(pressed.Take(), dialog.Default);
                     PressKey(first, WXK_ESCAPE);
                     EXPECT_EQ(pressed.Take(), dialog.Cancel);
                 });
}

TEST_F(Keyboard, TheAboutBoxClosesByEnterAndByEscape)
{
    for (const int key : {WXK_RETURN, WXK_ESCAPE})
        InWindow(AboutForm,
                 [&](wxTopLevelWindow& window)
                 {
                     PressKey(Find<wxWindow>(&window, "cmdOk"), key);
                     for (const wxStopWatch watch; window.IsShown() && watch.Time() < 1000;)
                         Settle();
                     EXPECT_FALSE(window.IsShown()) << key;
                 });
}

TEST_F(Keyboard, InTheOtherWindowsEnterInAFieldDoesNothing)
{
    for (const ProgramWindow& which : {LecturerForm, DepartmentForm, CalculatorForm})
        InWindow(which,
                 [&](wxTopLevelWindow& window)
                 {
                     ButtonLog pressed(window);
                     for (wxWindow* stop : KindsOfTabStops(window))
                     {
                         if (dynamic_cast<wxButton*>(stop) != nullptr ||
                             dynamic_cast<wxChoice*>(stop) != nullptr)
                             continue; // Enter presses or opens it
                         PressKey(stop, WXK_RETURN);
                         EXPECT_EQ(pressed.Take(0), "") << stop->GetName();
                         EXPECT_TRUE(window.IsShown()) << stop->GetName();
                     }
                 });
}

TEST_F(Keyboard, EscapeClosesTheWindowsOfStatisticsFromEveryKindOfControl)
{
    for (const ProgramWindow& which : {LecturerForm, DepartmentForm})
        for (std::size_t kind = 0, kinds = 1; kind < kinds; ++kind)
            InWindow(which,
                     [&](wxTopLevelWindow& window)
                     {
                         const std::vector<wxWindow*> stops = KindsOfTabStops(window);
                         kinds = stops.size();
                         const wxString name = stops[kind]->GetName();
                         PressKey(stops[kind], WXK_ESCAPE);
                         EXPECT_EQ(wxWindow::FindWindowByName(which.Name), nullptr)
                             << which.Name << ", " << name;
                     });
}

TEST_F(Keyboard, EscapeInTheCalculatorLosesNothing)
{
    InWindow(CalculatorForm,
             [](wxTopLevelWindow& window)
             {
                 for (wxWindow* stop : KindsOfTabStops(window))
                 {
                     PressKey(stop, WXK_ESCAPE);
                     EXPECT_TRUE(window.IsShown()) << stop->GetName();
                 }
             });
}

TEST_F(Keyboard, AnOpenDropDownListTakesTheFirstEscape)
{
    for (const ProgramWindow& which : {LecturerForm, DepartmentForm})
        InWindow(which,
                 [&](wxTopLevelWindow& window)
                 {
                     auto* box = Find<wxChoice>(&window, "cboRazina");
                     Open(box);
                     wxUIActionSimulator().Char(WXK_ESCAPE);
                     Settle();
                     ASSERT_EQ(wxWindow::FindWindowByName(which.Name), &window);
                     EXPECT_FALSE(IsOpen(box));
                     wxUIActionSimulator().Char(WXK_ESCAPE);
                     Settle();
                     EXPECT_EQ(wxWindow::FindWindowByName(which.Name), nullptr) << which.Name;
                 });
}

TEST_F(Keyboard, TheEditorsDefaultButtonIsDrawnAsOne)
{
    InWindow(EditorForm,
             [](wxTopLevelWindow& window)
             {
                 Focus(Find<wxWindow>(&window, "txtNaziv"));
                 EXPECT_NE(EdgeOf(Find<wxButton>(&window, "cmdSave")),
                           EdgeOf(Find<wxButton>(&window, "cmdCancel")));
             });
    EXPECT_EQ(EdgeOf(Find<wxButton>(Main, "cmdAdd")), EdgeOf(Find<wxButton>(Main, "cmdDelete")));
}

// The first focus

TEST_F(Keyboard, TheStatisticsOpenWithTheFocusOnWhatIsChosenFirst)
{
    InWindow(LecturerForm,
             [](wxTopLevelWindow& window)
             {
                 auto* lecturers = Find<wxListBox>(&window, "lstNastavnici");
                 EXPECT_EQ(FocusName(window), "lstNastavnici");
                 EXPECT_EQ(lecturers->GetSelection(), wxNOT_FOUND);
                 EXPECT_EQ(Find<ListView>(&window, "lvwKolegiji")->RowCount(), 0);
                 wxUIActionSimulator().Char(WXK_DOWN);
                 Settle();
                 EXPECT_NE(lecturers->GetSelection(), wxNOT_FOUND) << "the keys go there";
                 EXPECT_GT(Find<ListView>(&window, "lvwStat")->RowCount(), 0);
             });
    InWindow(DepartmentForm,
             [](wxTopLevelWindow& window)
             {
                 auto* departments = Find<wxChoice>(&window, "cboZavodi");
                 EXPECT_EQ(departments->GetSelection(), 0);
                 EXPECT_EQ(Find<ListView>(&window, "lvwKolegiji")->SelectedRow(), -1);
                 EXPECT_EQ(NameOfKeyReceiver(window), "cboZavodi");
             });
}

// The focus after a command

TEST_F(Keyboard, AfterTheEditorTheFocusIsWhereItWasOpenedFrom)
{
    OpenMain();
    auto* list = Find<ListView>(Main, "lvwKolegiji");
    struct Way
    {
        const char* Control;
        int Key;
    };
    for (const Way& way :
         {Way{"cmdAdd", WXK_SPACE}, Way{"cmdEdit", WXK_SPACE}, Way{"lvwKolegiji", WXK_INSERT},
          Way{"lvwKolegiji", WXK_RETURN}, Way{"lvwKolegiji", WXK_F2}})
        for (const char* answer : {"cmdCancel", "cmdSave"})
        {
            const MessageAnswers warnings; // a new course has no title yet
            list->SelectRow(0);
            const ModalSession session([&](wxTopLevelWindow& editor) { Press(&editor, answer); });
            PressKey(Find<wxWindow>(Main, way.Control), way.Key);
            for (const wxStopWatch watch; watch.Time() < 500 && FocusName(*Main) != way.Control;)
                Settle();
            session.Check();
            EXPECT_EQ(FocusName(*Main), way.Control) << answer;
        }
}

TEST_F(Keyboard, AfterADeletionTheFocusIsInTheListOrOnTheButton)
{
    OpenMain();
    auto* list = Find<ListView>(Main, "lvwKolegiji");
    const MessageAnswers yes(wxID_YES);
    int rows = list->RowCount();

    Focus(list);
    list->SelectRow(1);
    PressKey(list, WXK_DELETE);
    EXPECT_EQ(list->RowCount(), --rows);
    EXPECT_EQ(FocusName(*Main), "lvwKolegiji");

    list->SelectRow(1);
    PressKey(Find<wxWindow>(Main, "cmdDelete"), WXK_SPACE);
    EXPECT_EQ(list->RowCount(), --rows);
    EXPECT_EQ(FocusName(*Main), "cmdDelete");
}

TEST_F(Keyboard, AfterAnExportTheFocusIsOnItsButton)
{
    const std::pair<ProgramWindow, const char*> exports[] = {{MainForm, "cmdExport"},
                                                             {MainForm, "cmdExportVarlo"},
                                                             {LecturerForm, "cmdExportAllStat"},
                                                             {DepartmentForm, "cmdExportAllStat"},
                                                             {CalculatorForm, "cmdExport"}};
    for (const auto& [which, button] : exports)
        InWindow(which,
                 [&, button = button](wxTopLevelWindow& window)
                 {
                     const SaveAnswers save(Folder.PathOf("export.csv"));
                     MessageAnswers answers;
                     PressKey(Find<wxWindow>(&window, button), WXK_SPACE);
                     for (const wxStopWatch watch; answers.Shown().empty() && watch.Time() < 1000;)
                         Settle();
                     EXPECT_EQ(answers.Shown().size(), 1U) << button;
                     EXPECT_EQ(FocusName(window), button);
                 });
}

TEST_F(Keyboard, AfterAMessageBoxTheKeysGoWhereTheyWentBefore)
{
    OpenMain();
    auto* list = Find<ListView>(Main, "lvwKolegiji");
    const int rows = list->RowCount();
    Focus(list);
    list->SelectRow(1);
    const wxPoint pointer = wxGetMousePosition();
    {
        const KeyAnswer enter(WXK_RETURN);
        PressKey(list, WXK_DELETE);
        ASSERT_TRUE(enter.Shown());
    }
    wxUIActionSimulator().MouseMove(pointer);
    EXPECT_EQ(list->RowCount(), rows) << "Enter answers no";
    EXPECT_EQ(FocusAfterAWhile(*Main, "lvwKolegiji"), "lvwKolegiji");
    wxUIActionSimulator().Char(WXK_DOWN);
    Settle();
    EXPECT_EQ(list->SelectedRow(), 2);
}

TEST_F(Keyboard, AfterTheSaveDialogTheFocusIsOnTheButtonThatOpenedIt)
{
    const std::pair<ProgramWindow, const char*> exports[] = {
        {MainForm, "cmdExportVarlo"}, {LecturerForm, "cmdExportAllStat"}, {CalculatorForm, "cmdExport"}};
    for (const auto& [which, button] : exports)
        InWindow(which,
                 [&, button = button](wxTopLevelWindow& window)
                 {
                     const SaveDialogKeys cancel({});
                     PressKey(Find<wxWindow>(&window, button), WXK_SPACE);
                     WaitUntil([&] { return !cancel.Proposed().empty(); });
                     EXPECT_EQ(FocusAfterAWhile(window, button), button);
                 });
}

TEST_F(Keyboard, AfterAModelessWindowTheFocusIsWhereItWasOpenedFrom)
{
    OpenMain();
    for (const ProgramWindow& which : {LecturerForm, DepartmentForm, CalculatorForm})
    {
        PressKey(Find<wxWindow>(Main, which.Button), WXK_SPACE);
        WaitUntil([&] { return wxWindow::FindWindowByName(which.Name) != nullptr; });
        Settle();
        auto* window = wxWindow::FindWindowByName(which.Name);
        PressKey(Find<wxWindow>(window, "cmdClose"), WXK_SPACE);
        WaitUntil([&] { return wxWindow::FindWindowByName(which.Name) == nullptr; });
        EXPECT_EQ(FocusAfterAWhile(*Main, which.Button), which.Button);
    }
}

} // namespace

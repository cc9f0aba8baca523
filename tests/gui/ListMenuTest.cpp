#include "support/Clipboard.h"
#include "support/CourseEditor.h"
#include "support/EveryWindow.h"
#include "support/ListWindow.h"

#include <wx/menu.h>
#include <wx/stopwatch.h>
#include <wx/textbuf.h>
#include <wx/timer.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

// The context menu of every list, opened and used with the mouse and the keys.

namespace
{

/// Presses a key in the context menu that opens while it lives.
class MenuKey : private wxTimer
{
public:
    MenuKey(wxWindow* window, int key) : m_window(window), m_key(key)
    {
        window->Bind(wxEVT_MENU_OPEN, &MenuKey::Opened, this);
    }
    ~MenuKey() override { m_window->Unbind(wxEVT_MENU_OPEN, &MenuKey::Opened, this); }

    /// The menu's entries; disabled ones are in brackets, a separator is empty.
    const Texts& Entries() const { return m_entries; }

private:
    void Opened(wxMenuEvent& event)
    {
        for (const wxMenuItem* item : event.GetMenu()->GetMenuItems())
        {
            const std::string text = item->GetItemLabelText().utf8_string();
            m_entries.push_back(item->IsEnabled() ? text : "[" + text + "]");
        }
        constexpr int drawn = 300; // milliseconds, for the menu to be on the screen and take keys
        StartOnce(drawn);
        event.Skip();
    }

    void Notify() override { wxUIActionSimulator().Char(m_key); }

    wxWindow* m_window;
    int m_key;
    Texts m_entries;
};

#ifdef _WIN32
constexpr int MenuKeyCode = WXK_WINDOWS_MENU;
#else
constexpr int MenuKeyCode = WXK_MENU;
#endif

/// The clipboard's text once it differs from the one put there before; that one if it never does.
std::string CopiedOver(const std::string& former)
{
    for (const wxStopWatch watch; TextOnClipboard() == former && watch.Time() < 2000;)
        Settle();
    return TextOnClipboard();
}

/// Lines with the system's line ends.
std::string Lines(const Texts& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += line + wxString(wxTextBuffer::GetEOL()).utf8_string();
    return text;
}

void RightClick(const ListView* list, int row)
{
    wxUIActionSimulator().MouseMove(MiddleOf(CellPlace(list, row, 0)));
    Settle();
    wxUIActionSimulator().MouseClick(wxMOUSE_BTN_RIGHT);
    Settle();
}

/// The texts of a list's columns, with tabs between.
std::string Line(const ListView* list, const std::function<wxString(int column)>& text)
{
    wxString line = text(0);
    for (int column = 1; column < list->ColumnCount(); ++column)
        line << "\t" << text(column);
    return line.utf8_string();
}

std::string RowLine(const ListView* list, int row)
{
    return Line(list, [=](int column) { return list->CellText(row, column); });
}

std::string CaptionLine(const ListView* list)
{
    return Line(list, [=](int column) { return list->ColumnCaption(column); });
}

class CourseListMenu : public CourseEditor
{
protected:
    void OpenThree()
    {
        Catalogue catalogue = SmallCatalogue();
        catalogue.Kolegiji = {"1;Uvod\tu struku;1;0;2;3;obvezni;1;1", "2;Žičani \"link\";1;1;1;4;izborni;2;1",
                              "3;C;2;2;2;5;obvezni;3;1"};
        catalogue.KolegijNastavnici.clear();
        catalogue.KolegijSmjerovi.clear();
        const MessageAnswers warned;
        Open(catalogue);
        ASSERT_EQ(Kolegiji()->RowCount(), 3);
    }
};

TEST_F(CourseListMenu, TheRightButtonSelectsTheRowAndOpensTheMenu)
{
    OpenThree();
    PutOnClipboard("before");
    MenuKey copyRow(Window, 'R');
    RightClick(Kolegiji(), 1);
    EXPECT_EQ(copyRow.Entries(), (Texts{"Dodaj", "Edit", "Delete", "", "Kopiraj redak", "Kopiraj sve"}));
    EXPECT_EQ(Kolegiji()->SelectedRow(), 1);
    EXPECT_TRUE(HasFocus(Kolegiji()));
    EXPECT_EQ(CopiedOver("before"),
              Lines({"ID\tKolegij\tP\tS\tV\tECTS\tTip\tSem\tStudij\tSmjerovi\tNastavnici",
                     "2\tŽičani \"link\"\t1\t1\t1\t4\tizborni\t2\tLOR\t\t"}));
}

TEST_F(CourseListMenu, TheMenuKeyOpensItWithoutASelection)
{
    OpenThree();
    PutOnClipboard("before");
    MenuKey copyAll(Window, 'S');
    ASSERT_EQ(Kolegiji()->SelectedRow(), -1);
    PressKey(Kolegiji(), MenuKeyCode);
    EXPECT_EQ(copyAll.Entries(),
              (Texts{"Dodaj", "[Edit]", "[Delete]", "", "[Kopiraj redak]", "Kopiraj sve"}));
    EXPECT_EQ(CopiedOver("before"),
              Lines({CaptionLine(Kolegiji()), "1\tUvod u struku\t1\t0\t2\t3\tobvezni\t1\tLOR\t\t",
                     RowLine(Kolegiji(), 1), RowLine(Kolegiji(), 2)}));
}

TEST_F(CourseListMenu, CopiesTheRowsInTheOrderInWhichTheyAreShown)
{
    OpenThree();
    ClickHeader(Kolegiji(), 1);
    ASSERT_EQ(ColumnTexts(Kolegiji(), 0), (Texts{"3", "1", "2"}));
    PutOnClipboard("before");
    const MenuKey copyAll(Window, 'S');
    PressKey(Kolegiji(), WXK_F10, wxMOD_SHIFT);
    const std::string copied = CopiedOver("before");
    EXPECT_LT(copied.find("\tC\t"), copied.find("Uvod u struku"));
    EXPECT_LT(copied.find("Uvod u struku"), copied.find("Žičani"));
}

TEST_F(CourseListMenu, AddsChangesAndDeletesAsTheButtonsDo)
{
    OpenThree();
    {
        const MenuKey add(Window, 'D');
        RunEditor([this] { RightClick(Kolegiji(), 1); },
                  [](frmKolegij* editor) { EXPECT_EQ(editor->Mode, "ADD"); });
    }
    {
        const MenuKey edit(Window, 'E');
        RunEditor([this] { RightClick(Kolegiji(), 1); },
                  [](frmKolegij* editor)
                  {
                      EXPECT_EQ(editor->Mode, "EDIT");
                      EXPECT_EQ(editor->EditKolegijID, 2);
                  });
    }
    {
        const MenuKey remove(Window, 'L');
        MessageAnswers no(wxID_NO);
        RightClick(Kolegiji(), 1);
        WaitUntil([&] { return !no.Shown().empty(); });
        EXPECT_EQ(no.TakeOnly().Text, "Želite li obrisati ovaj kolegij?");
        EXPECT_EQ(Kolegiji()->RowCount(), 3);
    }
}

TEST_F(CourseListMenu, EscapeLeavesEverythingAsItWas)
{
    OpenThree();
    PutOnClipboard("before");
    const MenuKey escape(Window, WXK_ESCAPE);
    RightClick(Kolegiji(), 2);
    Settle();
    EXPECT_EQ(TextOnClipboard(), "before");
    EXPECT_EQ(Kolegiji()->SelectedRow(), 2);
    EXPECT_EQ(Kolegiji()->RowCount(), 3);
}

class EveryListMenu : public EveryWindowTest
{
protected:
    /// Copies all rows of a list by its context menu.
    void ExpectCopiesAll(wxTopLevelWindow& window, const char* name)
    {
        auto* list = Find<ListView>(&window, name);
        ASSERT_GT(list->RowCount(), 0) << name;
        PutOnClipboard("before");
        MenuKey copyAll(&window, 'S');
        RightClick(list, 0);
        EXPECT_EQ(copyAll.Entries(), (Texts{"Kopiraj redak", "Kopiraj sve"})) << name;
        Texts lines = {CaptionLine(list)};
        for (int row = 0; row < list->RowCount(); ++row)
            lines.push_back(RowLine(list, row));
        EXPECT_EQ(CopiedOver("before"), Lines(lines)) << name;
    }
};

TEST_F(EveryListMenu, CopiesInTheMainWindowsSums)
{
    InWindow(MainForm, [this](wxTopLevelWindow& window) { ExpectCopiesAll(window, "lvwStatistika"); });
}

TEST_F(EveryListMenu, CopiesInTheLecturersWindow)
{
    InWindow(LecturerForm,
             [this](wxTopLevelWindow& window)
             {
                 window.Raise();
                 Settle();
                 Click(Find<wxListBox>(&window, "lstNastavnici"), 0);
                 ExpectCopiesAll(window, "lvwKolegiji");
                 ExpectCopiesAll(window, "lvwStat");
             });
}

TEST_F(EveryListMenu, CopiesInTheDepartmentsWindow)
{
    InWindow(DepartmentForm,
             [this](wxTopLevelWindow& window)
             {
                 window.Raise();
                 Settle();
                 ExpectCopiesAll(window, "lvwKolegiji");
                 ExpectCopiesAll(window, "lvwStatZavod");
             });
}

} // namespace

// The course editor by keys and mouse.

#include "data/modData.h"
#include "support/CourseEditor.h"

#include <wx/stopwatch.h>
#include <wx/uiaction.h>
#include <wx/utils.h>

namespace
{

/// Presses a key in a control and waits for the dialog to close; some systems first show its button pressed.
void PressClosingKey(frmKolegij* editor, const char* control, int key)
{
    PressKey(Find<wxWindow>(editor, control), key);
    const wxStopWatch watch;
    while (editor->IsShown() && watch.Time() < 1000)
        Settle();
}

TEST_F(CourseEditor, EnterSavesFromAnyFieldOrList)
{
    Open();
    std::size_t rows = modData::Kolegiji.RowCount();
    for (const char* control : {"txtNaziv", "txtECTS", "lstSemestar", "lstSmjerovi", "lstNastavnik(2)"})
    {
        const EditorEnd end = Add(
            [&](frmKolegij* editor)
            {
                FillValid(editor);
                PressClosingKey(editor, control, WXK_RETURN);
            });
        EXPECT_EQ(end, EditorEnd::Closed) << control;
        EXPECT_EQ(modData::Kolegiji.RowCount(), ++rows) << control;
    }
}

TEST_F(CourseEditor, EscapeCancelsFromAnyFieldOrList)
{
    Open();
    for (const char* control :
         {"txtNaziv", "cboRazina", "cboObvezniIzborni", "lstSemestar", "lstSmjerovi", "lstNastavnik(3)"})
    {
        const EditorEnd end = Add(
            [&](frmKolegij* editor)
            {
                FillValid(editor);
                PressClosingKey(editor, control, WXK_ESCAPE);
            });
        EXPECT_EQ(end, EditorEnd::Closed) << control;
    }
    EXPECT_EQ(modData::Kolegiji.RowCount(), 5U);
}

TEST_F(CourseEditor, EnterInAWrongFieldWarnsAndKeepsTheDialogOpen)
{
    Open();
    MessageAnswers answers;
    const EditorEnd end = Add(
        [&](frmKolegij* editor)
        {
            FillValid(editor);
            SetText(editor, "txtV", "x");
            PressKey(Find<wxWindow>(editor, "txtNaziv"), WXK_RETURN);
            const wxStopWatch watch;
            while (answers.Shown().empty() && watch.Time() < 1000)
                Settle();
            EXPECT_EQ(answers.TakeOnly().Text, "V mora biti broj.");
            EXPECT_EQ(FocusName(editor), "txtV");
        });
    EXPECT_EQ(end, EditorEnd::LeftOpen);
}

/// The controls in which a key is pressed, first to last.
class KeyLog
{
public:
    KeyLog(frmKolegij* editor, int key) : m_editor(editor)
    {
        // The control that gets a key is not always the one that the toolkit reports as focused.
        editor->Bind(wxEVT_CHAR_HOOK,
                     [this, key](wxKeyEvent& event)
                     {
                         if (event.GetKeyCode() == key)
                             Note(dynamic_cast<wxWindow*>(event.GetEventObject()));
                         event.Skip();
                     });
    }

    const Texts& Controls() const { return m_names; }

private:
    void Note(const wxWindow* window)
    {
        while (window != nullptr && window->GetParent() != m_editor)
            window = window->GetParent();
        if (window == nullptr)
            return; // on some systems, the arrow of a drop-down list
        const std::string name = window->GetName().utf8_string();
        if (m_names.empty() || m_names.back() != name)
            m_names.push_back(name);
    }

    frmKolegij* m_editor;
    Texts m_names;
};

TEST_F(CourseEditor, TabFollowsTheLayout)
{
    Open();
    Add(
        [](frmKolegij* editor)
        {
            const Texts layout = {"txtNaziv",
                                  "cboRazina",
                                  "cboProgram",
                                  "txtP",
                                  "txtS",
                                  "txtV",
                                  "txtECTS",
                                  "cboObvezniIzborni",
                                  "lstSemestar",
                                  "lstSmjerovi",
                                  "lstNastavnik(1)",
                                  "lstNastavnik(2)",
                                  "lstNastavnik(3)",
                                  "cmdSave",
                                  "cmdCancel",
                                  "txtNaziv"};
            const KeyLog log(editor, WXK_TAB);
            Focus(Find<wxWindow>(editor, "txtNaziv"));
            for (std::size_t i = 0; i < 2 * layout.size() && log.Controls().size() < layout.size(); ++i)
            {
                wxUIActionSimulator().Char(WXK_TAB);
                Settle();
            }
            EXPECT_EQ(log.Controls(), layout);

            for (std::size_t i = 1; i + 1 < layout.size(); ++i)
            {
                const wxRect former = Find<wxWindow>(editor, layout[i - 1])->GetScreenRect();
                const wxRect next = Find<wxWindow>(editor, layout[i])->GetScreenRect();
                EXPECT_TRUE(next.GetLeft() > former.GetRight() || next.GetTop() > former.GetBottom())
                    << layout[i] << " is neither right of " << layout[i - 1] << " nor below it";
            }
        });
}

TEST_F(CourseEditor, TabStopsOnceAtTheTypeBox)
{
    Open();
    Add(
        [](frmKolegij* editor)
        {
            SetText(editor, "cboObvezniIzborni", "izborni");
            PressKey(Find<wxWindow>(editor, "txtECTS"), WXK_TAB);
            EXPECT_EQ(FocusName(editor), "cboObvezniIzborni");
            wxUIActionSimulator simulator;
            simulator.Char(WXK_TAB);
            Settle();
            EXPECT_EQ(FocusName(editor), "lstSemestar");
            simulator.Char(WXK_DOWN);
            Settle();
            EXPECT_EQ(Selected(editor, "lstSemestar").size(), 1U);
            simulator.Char(WXK_TAB, wxMOD_SHIFT);
            Settle();
            EXPECT_EQ(FocusName(editor), "cboObvezniIzborni");
            EXPECT_EQ(Text(editor, "cboObvezniIzborni"), "izborni");
        });
}

TEST_F(CourseEditor, WalkingThroughTheListsSelectsNothing)
{
    Open();
    Add(
        [](frmKolegij* editor)
        {
            Focus(Find<wxWindow>(editor, "txtECTS"));
            for (int stops = 0; stops < 9; ++stops) // past the last list, also with two stops per list
            {
                wxUIActionSimulator().Char(WXK_TAB);
                Settle();
            }
            for (const char* name :
                 {"lstSemestar", "lstSmjerovi", "lstNastavnik(1)", "lstNastavnik(2)", "lstNastavnik(3)"})
                EXPECT_EQ(Selected(editor, name), Texts{}) << name;
        });
}

TEST_F(CourseEditor, TheTypeCanBeTyped)
{
    Open();
    const EditorEnd end = Add(
        [](frmKolegij* editor)
        {
            FillValid(editor);
            SetText(editor, "cboObvezniIzborni", "");
            Type(Find<wxWindow>(editor, "cboObvezniIzborni"), "OBVEZNI");
            Save(editor);
        });
    EXPECT_EQ(end, EditorEnd::Closed);
    EXPECT_EQ(LinesOf(modData::Kolegiji).back(), "6;Novi kolegij;2;1;0;6;OBVEZNI;3;1");
}

Catalogue WithManyDirections()
{
    Catalogue catalogue = SmallCatalogue();
    for (const char* line : {"11;A;A;1;Preddiplomski", "12;B;B;1;Preddiplomski", "13;C;C;1;Preddiplomski"})
        catalogue.Smjerovi.push_back(line);
    return catalogue;
}

TEST_F(CourseEditor, SeveralDirectionsAreSelectedWithTheMouse)
{
    Open(WithManyDirections());
    Add(
        [](frmKolegij* editor)
        {
            wxListBox* list = List(editor, "lstSmjerovi");
            Click(list, 0);
            EXPECT_EQ(Selected(editor, "lstSmjerovi"), Texts{"OPC"});
            Click(list, 2, WXK_CONTROL);
            EXPECT_EQ(Selected(editor, "lstSmjerovi"), (Texts{"OPC", "A"}));
            Click(list, 0, WXK_CONTROL);
            EXPECT_EQ(Selected(editor, "lstSmjerovi"), Texts{"A"});
            Click(list, 1);
            EXPECT_EQ(Selected(editor, "lstSmjerovi"), Texts{"POS"});
            Click(list, 3, WXK_SHIFT);
            EXPECT_EQ(Selected(editor, "lstSmjerovi"), (Texts{"POS", "A", "B"}));
        });
}

TEST_F(CourseEditor, SeveralDirectionsAreSelectedWithTheKeyboardAndSavedInListOrder)
{
    Open(WithManyDirections());
    const EditorEnd end = Add(
        [](frmKolegij* editor)
        {
            FillValid(editor);
            wxListBox* list = List(editor, "lstSmjerovi");
            list->DeselectAll();
            Click(list, 1);
            PressKey(list, WXK_DOWN, wxMOD_SHIFT);
            PressKey(list, WXK_DOWN, wxMOD_SHIFT);
            EXPECT_EQ(Selected(editor, "lstSmjerovi"), (Texts{"POS", "A", "B"}));
            Save(editor);
        });
    EXPECT_EQ(end, EditorEnd::Closed);
    EXPECT_EQ(LinesOf(modData::KolegijSmjerovi),
              (Texts{"1;1", "1;2", "2;2", "3;3", "4;4", "6;2", "6;11", "6;12"}));
}

TEST_F(CourseEditor, DeleteTakesAHolderOut)
{
    Open();
    const EditorEnd end = Edit("1",
                               [](frmKolegij* editor)
                               {
                                   PressKey(List(editor, "lstNastavnik(1)"), WXK_DELETE);
                                   EXPECT_EQ(Selected(editor, "lstNastavnik(1)"), Texts{});
                                   EXPECT_EQ(Selected(editor, "lstNastavnik(2)"), Texts{"Đurić Ćiro"});
                                   Save(editor);
                               });
    EXPECT_EQ(end, EditorEnd::Closed);
    const Texts nastavnici = LinesOf(modData::KolegijNastavnici);
    EXPECT_EQ(std::ranges::count(nastavnici, "1;3;Nositelj;2"), 1);
    EXPECT_EQ(nastavnici.size(), 5U);
}

TEST_F(CourseEditor, AClickPlacesAHolderAndASecondOneWithCtrlTakesThemOut)
{
    Open();
    Add(
        [](frmKolegij* editor)
        {
            wxListBox* list = List(editor, "lstNastavnik(3)");
            Click(list, 1);
            EXPECT_EQ(Selected(editor, "lstNastavnik(3)"), Texts{"Šarić Žarko"});
            wxMilliSleep(700); // not a double click
            Click(list, 1, WXK_CONTROL);
            EXPECT_EQ(Selected(editor, "lstNastavnik(3)"), Texts{});
        });
}

} // namespace

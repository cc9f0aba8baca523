// The course editor as the user has it: the real dialog, shown modally by the main window.

#include "data/modData.h"
#include "support/Catalogue.h"
#include "support/EditorSession.h"
#include "support/TestFolder.h"
#include "support/Windows.h"
#include "ui/main/frmMain.h"

#include <wx/button.h>
#include <wx/combobox.h>
#include <wx/listbox.h>
#include <wx/msgdlg.h>
#include <wx/stattext.h>
#include <wx/stopwatch.h>
#include <wx/textctrl.h>
#include <wx/uiaction.h>
#include <wx/utils.h>

#include <algorithm>
#include <utility>

namespace
{

using Texts = std::vector<std::string>;
using Script = EditorSession::Script;

// Reading and driving the editor's controls

std::string Text(frmKolegij* editor, const char* name)
{
    auto* entry = dynamic_cast<wxTextEntry*>(Find<wxWindow>(editor, name));
    return entry->GetValue().utf8_string();
}

void SetText(frmKolegij* editor, const char* name, const char* text)
{
    dynamic_cast<wxTextEntry*>(Find<wxWindow>(editor, name))->SetValue(wxString::FromUTF8(text));
}

wxChoice* Box(frmKolegij* editor, const char* name)
{
    return Find<wxChoice>(editor, name);
}

std::string Chosen(frmKolegij* editor, const char* name)
{
    return Box(editor, name)->GetStringSelection().utf8_string();
}

wxListBox* List(frmKolegij* editor, const char* name)
{
    return Find<wxListBox>(editor, name);
}

Texts Selected(frmKolegij* editor, const char* name)
{
    wxArrayInt positions;
    List(editor, name)->GetSelections(positions);
    Texts selected;
    for (const int position : positions)
        selected.push_back(List(editor, name)->GetString(static_cast<unsigned>(position)).utf8_string());
    return selected;
}

void Select(frmKolegij* editor, const char* name, const char* entry)
{
    if (!List(editor, name)->SetStringSelection(wxString::FromUTF8(entry)))
        throw std::runtime_error(std::string("no entry ") + entry);
}

const char* const NastavnikLists[] = {"lstNastavnik(1)", "lstNastavnik(2)", "lstNastavnik(3)"};

/// Fills everything that the checks ask for.
void FillValid(frmKolegij* editor)
{
    SetText(editor, "txtNaziv", "Novi kolegij");
    SetText(editor, "txtP", "2");
    SetText(editor, "txtS", "1");
    SetText(editor, "txtV", "0");
    SetText(editor, "txtECTS", "6");
    SetText(editor, "cboObvezniIzborni", "izborni");
    Select(editor, "lstSemestar", "3");
    Select(editor, "lstSmjerovi", "POS");
    Select(editor, "lstNastavnik(1)", "Šarić Žarko");
}

bool HasFocus(wxWindow* control)
{
    wxWindow* focused = wxWindow::FindFocus();
    return focused != nullptr && (focused == control || control->IsDescendant(focused));
}

/// The name of the editor's control that has the focus; a control may be made of several windows.
std::string FocusName(frmKolegij* editor)
{
    for (wxWindow* window = wxWindow::FindFocus(); window != nullptr; window = window->GetParent())
        if (window->GetParent() == editor)
            return window->GetName().utf8_string();
    return "none";
}

/// A point of the screen that lies on an entry of a list.
wxPoint PointOn(wxListBox* list, int entry)
{
    const wxSize size = list->GetClientSize();
    for (int y = 0; y < size.y; ++y)
        if (list->HitTest(size.x / 3, y) == entry && list->HitTest(size.x / 3, y + 4) == entry)
            return list->ClientToScreen(wxPoint(size.x / 3, y + 4));
    throw std::runtime_error("entry out of view");
}

/// Clicks an entry with the mouse, Ctrl or Shift held if given.
void Click(wxListBox* list, int entry, wxKeyCode held = WXK_NONE)
{
    wxUIActionSimulator simulator;
    simulator.MouseMove(PointOn(list, entry));
    Settle();
    if (held != WXK_NONE)
        simulator.KeyDown(held);
    simulator.MouseClick();
    Settle();
    if (held != WXK_NONE)
        simulator.KeyUp(held);
    Settle();
}

class CourseEditor : public testing::Test
{
protected:
    void Open(const Catalogue& catalogue = SmallCatalogue())
    {
        catalogue.WriteTo(Folder.Data());
        OpenFiles();
    }

    void OpenFiles()
    {
        Window = new frmMain;
        Window->Form_Load();
        Settle();
    }

    /// A catalogue that fails validation; the start-up's warning is answered.
    void OpenInvalid(const Catalogue& catalogue)
    {
        const MessageAnswers answers;
        Open(catalogue);
    }

    void TearDown() override
    {
        CloseAllWindows();
        EXPECT_EQ(TakeUncaughtError(), "");
    }

    ListView* Kolegiji() { return Find<ListView>(Window, "lvwKolegiji"); }

    void SelectCourse(const std::string& id)
    {
        const Texts ids = ColumnTexts(Kolegiji(), 0);
        const auto found = std::ranges::find(ids, id);
        ASSERT_NE(found, ids.end()) << "course " << id << " is not in the list";
        Kolegiji()->SelectRow(static_cast<int>(found - ids.begin()));
    }

    EditorEnd Add(const Script& script)
    {
        return RunEditor([this] { Press(Window, "cmdAdd"); }, script);
    }

    EditorEnd Edit(const std::string& id, const Script& script)
    {
        SelectCourse(id);
        return RunEditor([this] { Press(Window, "cmdEdit"); }, script);
    }

    std::string File(const char* name) { return ReadBytes(Folder.Data() / name); }

    TestFolder Folder;
    frmMain* Window = nullptr;
};

void Save(frmKolegij* editor)
{
    Press(editor, "cmdSave");
}

// Opening

TEST_F(CourseEditor, OpensEmptyForANewCourse)
{
    Open();
    Add(
        [](frmKolegij* editor)
        {
            EXPECT_EQ(editor->Mode, "ADD");
            EXPECT_EQ(editor->GetTitle(), "Kolegij");
            for (const char* name : {"txtNaziv", "txtP", "txtS", "txtV", "txtECTS", "cboObvezniIzborni"})
                EXPECT_EQ(Text(editor, name), "") << name;
            EXPECT_EQ(EntriesOfBox(Box(editor, "cboRazina")), (Texts{"Preddiplomski", "Diplomski"}));
            EXPECT_EQ(Chosen(editor, "cboRazina"), "Preddiplomski");
            EXPECT_EQ(EntriesOfBox(Box(editor, "cboProgram")), (Texts{"LOR", "BEV"}));
            EXPECT_EQ(Chosen(editor, "cboProgram"), "LOR");
            EXPECT_EQ(EntriesOfBox(Find<wxComboBox>(editor, "cboObvezniIzborni")),
                      (Texts{"obvezni", "izborni"}));
            EXPECT_EQ(EntriesOfBox(List(editor, "lstSemestar")), (Texts{"1", "2", "3", "4", "5", "6"}));
            EXPECT_EQ(EntriesOfBox(List(editor, "lstSmjerovi")), (Texts{"OPC", "POS"}));
            for (const char* name : NastavnikLists)
                EXPECT_EQ(EntriesOfBox(List(editor, name)), (Texts{"Anić Ana", "Šarić Žarko", "Đurić Ćiro"}))
                    << name;
            for (const char* name :
                 {"lstSemestar", "lstSmjerovi", "lstNastavnik(1)", "lstNastavnik(2)", "lstNastavnik(3)"})
                EXPECT_EQ(Selected(editor, name), Texts{}) << name;
            EXPECT_TRUE(HasFocus(Find<wxWindow>(editor, "txtNaziv")));
        });
}

TEST_F(CourseEditor, HasItsLabelsAndCommands)
{
    Open();
    Add(
        [](frmKolegij* editor)
        {
            Texts labels;
            for (wxWindow* child : editor->GetChildren())
                if (const auto* label = dynamic_cast<wxStaticText*>(child))
                    labels.push_back(label->GetLabel().utf8_string());
            EXPECT_EQ(labels, (Texts{"Kolegij:", "Razina", "Program", "Predavanja", "Seminari", "Vježbe",
                                     "ECTS", "Obvezni/Izborni", "Semestri", "Smjerovi", "1. nostielj",
                                     "2. nostielj", "3. nostielj"}));
            EXPECT_EQ(Find<wxButton>(editor, "cmdSave")->GetLabel(), "&Spremi");
            EXPECT_EQ(Find<wxButton>(editor, "cmdCancel")->GetLabel().utf8_string(), "&Otkaži");
        });
}

TEST_F(CourseEditor, StandsInTheMiddleOfTheScreen)
{
    Open();
    Add(
        [](frmKolegij* editor)
        {
            const wxRect place = editor->GetRect();
            const wxSize screen = wxGetDisplaySize();
            EXPECT_NEAR(place.x, (screen.x - place.width) / 2, 2);
            EXPECT_NEAR(place.y, (screen.y - place.height) / 2, 2);
            EXPECT_TRUE(wxRect(screen).Contains(place));
        });
}

TEST_F(CourseEditor, TakesOverTheLevelAndStudyOfTheFilter)
{
    Open();
    Choose(Find<wxChoice>(Window, "cboProgram"), "BEV");
    Add(
        [](frmKolegij* editor)
        {
            EXPECT_EQ(Chosen(editor, "cboRazina"), "Preddiplomski");
            EXPECT_EQ(Chosen(editor, "cboProgram"), "BEV");
            EXPECT_EQ(EntriesOfBox(List(editor, "lstSmjerovi")), Texts{"BVS"});
        });
    Choose(Find<wxChoice>(Window, "cboRazina"), "Diplomski");
    Add(
        [](frmKolegij* editor)
        {
            EXPECT_EQ(Chosen(editor, "cboRazina"), "Diplomski");
            EXPECT_EQ(Chosen(editor, "cboProgram"), "LOR");
            EXPECT_EQ(EntriesOfBox(List(editor, "lstSemestar")), (Texts{"1", "2", "3", "4"}));
            EXPECT_EQ(EntriesOfBox(List(editor, "lstSmjerovi")), Texts{"DIP"});
        });
}

TEST_F(CourseEditor, LeavesOutLecturersWithoutAName)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Nastavnici = {"9;Zadnji Zvonko;;1", "2;  ;;2", "1;Anić Ana;;1"};
    catalogue.KolegijNastavnici = {};
    OpenInvalid(catalogue);
    Add(
        [](frmKolegij* editor)
        {
            for (const char* name : NastavnikLists)
                EXPECT_EQ(EntriesOfBox(List(editor, name)), (Texts{"Zadnji Zvonko", "Anić Ana"})) << name;
        });
}

TEST_F(CourseEditor, ComparesTheLevelOfAStudyWithoutBlanksAround)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Studiji[1] = "2;Bevanda;BEV; Preddiplomski ";
    OpenInvalid(catalogue);
    EXPECT_EQ(EntriesOfBox(Find<wxChoice>(Window, "cboProgram")), Texts{"LOR"});
    Add(
        [](frmKolegij* editor) {
            EXPECT_EQ(EntriesOfBox(Box(editor, "cboProgram")), (Texts{"LOR", "BEV"}));
        });
}

TEST_F(CourseEditor, ShowsTheCourseToBeChanged)
{
    Open();
    Edit("1",
         [](frmKolegij* editor)
         {
             EXPECT_EQ(editor->Mode, "EDIT");
             EXPECT_EQ(editor->GetTitle(), "Kolegij");
             EXPECT_EQ(Text(editor, "txtNaziv"), "Uvod u lov");
             EXPECT_EQ(Text(editor, "txtP"), "2");
             EXPECT_EQ(Text(editor, "txtS"), "1");
             EXPECT_EQ(Text(editor, "txtV"), "0");
             EXPECT_EQ(Text(editor, "txtECTS"), "5");
             EXPECT_EQ(Text(editor, "cboObvezniIzborni"), "obvezni");
             EXPECT_EQ(Chosen(editor, "cboRazina"), "Preddiplomski");
             EXPECT_EQ(Chosen(editor, "cboProgram"), "LOR");
             EXPECT_EQ(Selected(editor, "lstSemestar"), Texts{"1"});
             EXPECT_EQ(Selected(editor, "lstSmjerovi"), (Texts{"OPC", "POS"}));
             EXPECT_EQ(Selected(editor, "lstNastavnik(1)"), Texts{"Anić Ana"});
             EXPECT_EQ(Selected(editor, "lstNastavnik(2)"), Texts{"Đurić Ćiro"});
             EXPECT_EQ(Selected(editor, "lstNastavnik(3)"), Texts{});
             EXPECT_TRUE(HasFocus(Find<wxWindow>(editor, "txtNaziv")));
         });
    Choose(Find<wxChoice>(Window, "cboRazina"), "Diplomski");
    Edit("4",
         [](frmKolegij* editor)
         {
             EXPECT_EQ(Chosen(editor, "cboRazina"), "Diplomski");
             EXPECT_EQ(EntriesOfBox(List(editor, "lstSemestar")), (Texts{"1", "2", "3", "4"}));
             EXPECT_EQ(Selected(editor, "lstSmjerovi"), Texts{"DIP"});
         });
}

TEST_F(CourseEditor, TakesTheLevelAndStudyOfTheCourseNotOfTheFilter)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Studiji = {"1;Lovstvo;LOR;Preddiplomski", "2;Bevanda;BEV;Preddiplomski",
                         "3;Lovstvo;LOR;Preddiplomski "};
    OpenInvalid(catalogue);
    Choose(Find<wxChoice>(Window, "cboRazina"), "Diplomski"); // no studies: the list shows every course
    Edit("3",
         [](frmKolegij* editor)
         {
             EXPECT_EQ(Chosen(editor, "cboRazina"), "Preddiplomski");
             EXPECT_EQ(Chosen(editor, "cboProgram"), "BEV");
             EXPECT_EQ(EntriesOfBox(List(editor, "lstSmjerovi")), Texts{"BVS"});
         });
}

TEST_F(CourseEditor, SelectsTheFirstSemesterForOneThatIsNotInTheList)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji[0] = "1;Uvod u lov;2;1;0;5;obvezni;9;1";
    catalogue.Kolegiji[1] = "2;Alati;1;1;1;4;izborni;02;1";
    catalogue.Kolegiji[3] = "4;Napredni lov;3;0;1;10;obvezni;5;3";
    OpenInvalid(catalogue);
    Edit("1", [](frmKolegij* editor) { EXPECT_EQ(Selected(editor, "lstSemestar"), Texts{"1"}); });
    Edit("2", [](frmKolegij* editor)
         { EXPECT_EQ(Selected(editor, "lstSemestar"), Texts{"2"}) << "compared as a number"; });
    Choose(Find<wxChoice>(Window, "cboRazina"), "Diplomski");
    Edit("4", [](frmKolegij* editor) { EXPECT_EQ(Selected(editor, "lstSemestar"), Texts{"1"}); });
}

TEST_F(CourseEditor, SelectsNothingForPlacesLecturersAndDirectionsThatAreNotInItsLists)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.KolegijSmjerovi = {"1;3", "1;77", "1;2"};
    catalogue.KolegijNastavnici = {"1;99;Nositelj;1", "1;1;Nositelj;4", "1;2;Nositelj;0", "1;3;Nositelj;3"};
    OpenInvalid(catalogue);
    Edit("1",
         [](frmKolegij* editor)
         {
             EXPECT_EQ(Selected(editor, "lstSmjerovi"), Texts{"POS"});
             EXPECT_EQ(Selected(editor, "lstNastavnik(1)"), Texts{});
             EXPECT_EQ(Selected(editor, "lstNastavnik(2)"), Texts{});
             EXPECT_EQ(Selected(editor, "lstNastavnik(3)"), Texts{"Đurić Ćiro"});
         });
}

TEST_F(CourseEditor, TheLaterLinkToAPlaceWins)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.KolegijNastavnici = {"1;1;Nositelj;1", "1;2;Nositelj;1"};
    Open(catalogue);
    Edit("1",
         [](frmKolegij* editor) { EXPECT_EQ(Selected(editor, "lstNastavnik(1)"), Texts{"Šarić Žarko"}); });
}

TEST_F(CourseEditor, KeepsATypeThatIsNotInItsListAndAStudyThatNoBoxShows)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji = {"1;Uvod;2;1;0;5;Izborni ;1;99"};
    catalogue.Studiji = {"1;Lovstvo;LOR;Preddiplomski"};
    catalogue.Smjerovi = {"1;Opći;OPC;1;Preddiplomski", "2;Drugi;DRU;99;Preddiplomski"};
    catalogue.KolegijSmjerovi = {"1;2"};
    catalogue.KolegijNastavnici = {"1;1;Nositelj;1"};
    OpenInvalid(catalogue);
    Choose(Find<wxChoice>(Window, "cboRazina"), "Diplomski"); // no studies: the list shows every course
    const EditorEnd end =
        Edit("1",
             [](frmKolegij* editor)
             {
                 EXPECT_EQ(Text(editor, "cboObvezniIzborni"), "Izborni ");
                 EXPECT_EQ(Chosen(editor, "cboRazina"), "Preddiplomski") << "no level";
                 EXPECT_EQ(EntriesOfBox(Box(editor, "cboProgram")), Texts{});
                 EXPECT_EQ(EntriesOfBox(List(editor, "lstSemestar")), (Texts{"1", "2", "3", "4", "5", "6"}));
                 EXPECT_EQ(Selected(editor, "lstSmjerovi"), Texts{"DRU"});
                 Save(editor);
             });
    EXPECT_EQ(end, EditorEnd::Closed);
    EXPECT_EQ(LinesOf(modData::Kolegiji), Texts{"1;Uvod;2;1;0;5;Izborni ;1;99"});
    EXPECT_EQ(LinesOf(modData::KolegijSmjerovi), Texts{"1;2"});
}

TEST_F(CourseEditor, ACourseThatIsGoneOpensAnEmptyFormAndIsAppended)
{
    Open();
    SelectCourse("2");
    modData::Kolegiji.RemoveMatches(Kolegij::ID, 2);
    const EditorEnd end = RunEditor([this] { Press(Window, "cmdEdit"); },
                                    [](frmKolegij* editor)
                                    {
                                        EXPECT_EQ(editor->Mode, "EDIT");
                                        EXPECT_EQ(Text(editor, "txtNaziv"), "");
                                        EXPECT_EQ(Text(editor, "cboObvezniIzborni"), "");
                                        EXPECT_EQ(Selected(editor, "lstSemestar"), Texts{});
                                        EXPECT_EQ(Selected(editor, "lstNastavnik(1)"), Texts{});
                                        Choose(Box(editor, "cboRazina"), "Preddiplomski");
                                        FillValid(editor);
                                        Save(editor);
                                    });
    EXPECT_EQ(end, EditorEnd::Closed);
    EXPECT_EQ(LinesOf(modData::Kolegiji).back(), "2;Novi kolegij;2;1;0;6;izborni;3;1");
    EXPECT_EQ(LinesOf(modData::KolegijSmjerovi), (Texts{"1;1", "1;2", "3;3", "4;4", "2;2"}));
}

// Ways in

TEST_F(CourseEditor, OpensForANewCourseByButtonAndKeys)
{
    Open();
    const Script isNew = [](frmKolegij* editor) { EXPECT_EQ(editor->Mode, "ADD"); };
    RunEditor([this] { Press(Window, "cmdAdd"); }, isNew);
    RunEditor([this] { PressKey(Kolegiji(), WXK_INSERT); }, isNew);
    RunEditor([this] { PressKey(Kolegiji(), 'N', wxMOD_CONTROL); }, isNew);
}

TEST_F(CourseEditor, OpensTheSelectedCourseByButtonKeysAndDoubleClick)
{
    Open();
    Focus(Kolegiji());
    const Script isSecond = [](frmKolegij* editor)
    {
        EXPECT_EQ(editor->Mode, "EDIT");
        EXPECT_EQ(editor->EditKolegijID, 2);
        EXPECT_EQ(Text(editor, "txtNaziv"), "Žičani alati");
    };
    const std::function<void()> ways[] = {
        [this] { Press(Window, "cmdEdit"); },
        [this] { PressKey(Kolegiji(), WXK_RETURN); },
        [this] { PressKey(Kolegiji(), WXK_F2); },
        [this] { Kolegiji()->ActivateRow(1); },
    };
    for (const std::function<void()>& way : ways)
    {
        SelectCourse("2");
        RunEditor(way, isSecond);
    }
}

TEST_F(CourseEditor, DoesNotOpenACourseWhenNoneIsSelected)
{
    Open();
    Focus(Kolegiji());
    const EditorSession session([](frmKolegij*) {});
    Kolegiji()->SelectRow(-1);
    Press(Window, "cmdEdit");
    for (const int key : {WXK_F2, WXK_RETURN})
    {
        Kolegiji()->SelectRow(-1);
        PressKey(Kolegiji(), key);
    }
    EXPECT_FALSE(session.Opened());
}

// Cascades

TEST_F(CourseEditor, ChoosingALevelRefillsProgramsSemestersAndDirectionsAndKeepsTheRest)
{
    Open();
    Add(
        [](frmKolegij* editor)
        {
            FillValid(editor);
            Choose(Box(editor, "cboRazina"), "Diplomski");
            EXPECT_EQ(EntriesOfBox(Box(editor, "cboProgram")), Texts{"LOR"});
            EXPECT_EQ(Chosen(editor, "cboProgram"), "LOR");
            EXPECT_EQ(EntriesOfBox(List(editor, "lstSemestar")), (Texts{"1", "2", "3", "4"}));
            EXPECT_EQ(Selected(editor, "lstSemestar"), Texts{});
            EXPECT_EQ(EntriesOfBox(List(editor, "lstSmjerovi")), Texts{"DIP"});
            EXPECT_EQ(Selected(editor, "lstSmjerovi"), Texts{});
            EXPECT_EQ(Text(editor, "cboObvezniIzborni"), "izborni");
            EXPECT_EQ(Text(editor, "txtNaziv"), "Novi kolegij");
            EXPECT_EQ(Selected(editor, "lstNastavnik(1)"), Texts{"Šarić Žarko"});

            Choose(Box(editor, "cboRazina"), "Preddiplomski");
            EXPECT_EQ(EntriesOfBox(Box(editor, "cboProgram")), (Texts{"LOR", "BEV"}));
            EXPECT_EQ(Chosen(editor, "cboProgram"), "LOR");
            EXPECT_EQ(EntriesOfBox(List(editor, "lstSemestar")), (Texts{"1", "2", "3", "4", "5", "6"}));
            EXPECT_EQ(EntriesOfBox(List(editor, "lstSmjerovi")), (Texts{"OPC", "POS"}));
        });
}

TEST_F(CourseEditor, ChoosingAProgramRefillsTheDirectionsAlone)
{
    Open();
    Add(
        [](frmKolegij* editor)
        {
            FillValid(editor);
            Choose(Box(editor, "cboProgram"), "BEV");
            EXPECT_EQ(EntriesOfBox(List(editor, "lstSmjerovi")), Texts{"BVS"});
            EXPECT_EQ(Selected(editor, "lstSmjerovi"), Texts{});
            EXPECT_EQ(Selected(editor, "lstSemestar"), Texts{"3"});
            Select(editor, "lstSmjerovi", "BVS");
            Save(editor);
        });
    EXPECT_EQ(LinesOf(modData::Kolegiji).back(), "6;Novi kolegij;2;1;0;6;izborni;3;2");
    EXPECT_EQ(LinesOf(modData::KolegijSmjerovi).back(), "6;3");
}

TEST_F(CourseEditor, ALevelWithoutStudiesHasNoDirectionToChoose)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Studiji.pop_back();
    catalogue.Kolegiji[3] = "4;Napredni lov;3;0;1;10;obvezni;1;1";
    catalogue.Smjerovi.pop_back();
    catalogue.KolegijSmjerovi.pop_back();
    Open(catalogue);
    MessageAnswers answers;
    const EditorEnd end = Add(
        [&](frmKolegij* editor)
        {
            FillValid(editor);
            Choose(Box(editor, "cboRazina"), "Diplomski");
            EXPECT_EQ(EntriesOfBox(Box(editor, "cboProgram")), Texts{});
            EXPECT_EQ(EntriesOfBox(List(editor, "lstSmjerovi")), Texts{});
            Select(editor, "lstSemestar", "1");
            Save(editor);
            EXPECT_EQ(answers.TakeOnly().Text, "Odaberite barem jedan smjer.");
        });
    EXPECT_EQ(end, EditorEnd::LeftOpen);
    EXPECT_EQ(modData::Kolegiji.RowCount(), 5U);
}

// Checks

TEST_F(CourseEditor, AsksForWhatIsWrongInOrderAndSaves)
{
    Open();
    MessageAnswers answers;
    const EditorEnd end = Add(
        [&](frmKolegij* editor)
        {
            const auto expectWarning = [&](const char* text, const char* control)
            {
                SCOPED_TRACE(text);
                Focus(Find<wxWindow>(editor, "cmdCancel"));
                Save(editor);
                const MessageShown warning = answers.TakeOnly();
                EXPECT_EQ(warning.Text, text);
                EXPECT_EQ(warning.Title, "Kolegij");
                EXPECT_TRUE(warning.Has(wxICON_EXCLAMATION | wxOK));
                EXPECT_FALSE(warning.Has(wxCANCEL));
                EXPECT_TRUE(editor->IsShown());
                EXPECT_EQ(FocusName(editor), control);
            };

            expectWarning("Unesite naziv kolegija.", "txtNaziv");
            SetText(editor, "txtNaziv", "   ");
            expectWarning("Unesite naziv kolegija.", "txtNaziv");
            SetText(editor, "txtNaziv", " Šumski lov ");

            const std::pair<const char*, std::string> numbers[] = {
                {"txtP", "P"}, {"txtS", "S"}, {"txtV", "V"}, {"txtECTS", "ECTS"}};
            for (const auto& [control, name] : numbers)
            {
                const std::string noNumber = name + " mora biti broj.";
                const std::string negative = name + " mora biti nenegativan broj.";
                for (const char* text : {"", " ", "dva", "99999999999"})
                {
                    SetText(editor, control, text);
                    expectWarning(noNumber.c_str(), control);
                    EXPECT_EQ(Text(editor, control), text) << "what was typed stays";
                }
                SetText(editor, control, "-1");
                expectWarning(negative.c_str(), control);
                SetText(editor, control, "0");
            }

            expectWarning("Odaberite semestar.", "lstSemestar");
            EXPECT_EQ(Selected(editor, "lstSemestar"), Texts{}) << "the focus selects nothing";
            Select(editor, "lstSemestar", "6");
            expectWarning("Odaberite tip kolegija (obvezni/izborni).", "cboObvezniIzborni");
            SetText(editor, "cboObvezniIzborni", "fakultativni");
            expectWarning("Odaberite tip kolegija (obvezni/izborni).", "cboObvezniIzborni");
            SetText(editor, "cboObvezniIzborni", " Obvezni");
            expectWarning("Odaberite barem jedan smjer.", "lstSmjerovi");
            Select(editor, "lstSmjerovi", "OPC");
            expectWarning("Odaberite barem jednog nastavnika.", "lstNastavnik(1)");
            EXPECT_EQ(Selected(editor, "lstNastavnik(1)"), Texts{}) << "the focus selects nothing";

            const char* const twice = "Ne možete odabrati istog nastavnika više puta. Promijenite odabir.";
            Select(editor, "lstNastavnik(2)", "Anić Ana");
            Select(editor, "lstNastavnik(3)", "Anić Ana");
            expectWarning(twice, "lstNastavnik(3)");
            Select(editor, "lstNastavnik(1)", "Anić Ana");
            Select(editor, "lstNastavnik(2)", "Đurić Ćiro");
            expectWarning(twice, "lstNastavnik(3)");
            Select(editor, "lstNastavnik(2)", "Anić Ana");
            Select(editor, "lstNastavnik(3)", "Đurić Ćiro");
            expectWarning(twice, "lstNastavnik(2)");
            Select(editor, "lstNastavnik(2)", "Šarić Žarko");

            EXPECT_EQ(Text(editor, "txtNaziv"), " Šumski lov ");
            Save(editor);
        });
    EXPECT_EQ(end, EditorEnd::Closed);
    EXPECT_TRUE(answers.Shown().empty());
    EXPECT_EQ(LinesOf(modData::Kolegiji).back(), "6;Šumski lov;0;0;0;0; Obvezni;6;1");
}

// Saving and leaving

TEST_F(CourseEditor, ASavedCourseIsInTheListAndInTheSums)
{
    Open();
    Add(
        [](frmKolegij* editor)
        {
            FillValid(editor);
            SetText(editor, "txtP", " 1.5 ");
            SetText(editor, "txtS", "0,5");
            Select(editor, "lstNastavnik(3)", "Anić Ana");
            Save(editor);
        });
    EXPECT_EQ(LinesOf(modData::Kolegiji).back(), "6;Novi kolegij;2;0;0;6;izborni;3;1");
    EXPECT_EQ(LinesOf(modData::KolegijSmjerovi).back(), "6;2");
    const Texts nastavnici = LinesOf(modData::KolegijNastavnici);
    ASSERT_EQ(nastavnici.size(), 8U);
    EXPECT_EQ(nastavnici[6], "6;2;Nositelj;1");
    EXPECT_EQ(nastavnici[7], "6;1;Nositelj;3");
    EXPECT_EQ(ColumnTexts(Kolegiji(), 0), (Texts{"1", "2", "5", "6"}));
    EXPECT_EQ(Kolegiji()->CellText(3, 10).utf8_string(), "Šarić Žarko, Anić Ana");
    auto* statistika = Find<ListView>(Window, "lvwStatistika");
    EXPECT_EQ(statistika->CellText(5, 5), "6");
    EXPECT_EQ(statistika->CellText(14, 6), "4");
}

TEST_F(CourseEditor, AChangedCourseKeepsItsPlaceAndID)
{
    Open();
    const EditorEnd end = Edit("2",
                               [](frmKolegij* editor)
                               {
                                   SetText(editor, "txtNaziv", "Drveni alati");
                                   Select(editor, "lstSmjerovi", "OPC"); // beside the one that is selected
                                   Save(editor);
                               });
    EXPECT_EQ(end, EditorEnd::Closed);
    EXPECT_EQ(LinesOf(modData::Kolegiji),
              (Texts{"1;Uvod u lov;2;1;0;5;obvezni;1;1", "2;Drveni alati;1;1;1;4;izborni;2;1",
                     "3;Bevska kultura;2;0;2;6;obvezni;1;2", "4;Napredni lov;3;0;1;10;obvezni;1;3",
                     "5;Kolegij bez smjera;1;0;0;2;izborni;3;1"}));
    EXPECT_EQ(LinesOf(modData::KolegijSmjerovi), (Texts{"1;1", "1;2", "3;3", "4;4", "2;1", "2;2"}));
    EXPECT_EQ(LinesOf(modData::KolegijNastavnici).back(), "2;2;Nositelj;1");
    EXPECT_EQ(ColumnTexts(Kolegiji(), 1), (Texts{"Uvod u lov", "Drveni alati", "Kolegij bez smjera"}));
}

TEST_F(CourseEditor, CancellingChangesNothing)
{
    Open();
    const Texts before = LinesOf(modData::Kolegiji);
    const Script fillAndCancel = [](frmKolegij* editor)
    {
        FillValid(editor);
        Press(editor, "cmdCancel");
    };
    EXPECT_EQ(Add(fillAndCancel), EditorEnd::Closed);
    EXPECT_EQ(Edit("1", fillAndCancel), EditorEnd::Closed);
    EXPECT_EQ(LinesOf(modData::Kolegiji), before);
    EXPECT_EQ(modData::KolegijSmjerovi.RowCount(), 5U);
    EXPECT_EQ(modData::KolegijNastavnici.RowCount(), 6U);
}

TEST_F(CourseEditor, TheCloseBoxCancels)
{
    Open();
    const EditorEnd end = Add(
        [](frmKolegij* editor)
        {
            FillValid(editor);
            editor->Close();
            Settle();
        });
    EXPECT_EQ(end, EditorEnd::Closed);
    EXPECT_EQ(modData::Kolegiji.RowCount(), 5U);
}

TEST_F(CourseEditor, AnIDThatIsNoNumberEndsTheSavingWithAnError)
{
    Open();
    modData::Kolegiji.Append({"x", "K", "1", "1", "1", "1", "obvezni", "1", "2"});
    Add(
        [](frmKolegij* editor)
        {
            FillValid(editor);
            Save(editor);
        });
    EXPECT_EQ(TakeUncaughtError().find("13: Vrijednost \"x\" nije broj"), 0U);
    EXPECT_EQ(modData::Kolegiji.RowCount(), 6U);
    EXPECT_EQ(modData::KolegijSmjerovi.RowCount(), 5U);
}

// Keys and mouse

/// Presses a key in a control and gives the dialog the time to close; some systems show its button pressed
/// for a moment first.
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
    KeyLog(frmKolegij* editor, int key) : Editor(editor)
    {
        // What has the focus is not always what the toolkit knows to have it; what gets a key is.
        editor->Bind(wxEVT_CHAR_HOOK,
                     [this, key](wxKeyEvent& event)
                     {
                         if (event.GetKeyCode() == key)
                             Note(dynamic_cast<wxWindow*>(event.GetEventObject()));
                         event.Skip();
                     });
    }

    const Texts& Controls() const { return Names; }

private:
    void Note(const wxWindow* window)
    {
        while (window != nullptr && window->GetParent() != Editor)
            window = window->GetParent();
        if (window == nullptr)
            return; // the arrow of a list that drops down, on some systems
        const std::string name = window->GetName().utf8_string();
        if (Names.empty() || Names.back() != name)
            Names.push_back(name);
    }

    frmKolegij* Editor;
    Texts Names;
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
                    << layout[i] << " stands neither right of " << layout[i - 1] << " nor below it";
            }
        });
}

TEST_F(CourseEditor, WalkingThroughTheListsSelectsNothing)
{
    Open();
    Add(
        [](frmKolegij* editor)
        {
            Focus(Find<wxWindow>(editor, "txtECTS"));
            for (int stops = 0; stops < 9; ++stops) // past the last list, wherever drop-down lists stop twice
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

// The clerk's day

TEST_F(CourseEditor, AddEditDeleteAndExitLeaveExactlyTheseFiles)
{
    Open();
    const std::string zavodi = File("db_zavod.csv");
    const std::string nastavnici = File("db_nastavnici.csv");
    const std::string studiji = File("db_studij.csv");
    const std::string smjerovi = File("db_smjer.csv");
    Add(
        [](frmKolegij* editor)
        {
            FillValid(editor);
            SetText(editor, "txtNaziv", "Čišćenje žlica");
            Select(editor, "lstNastavnik(3)", "Đurić Ćiro");
            Save(editor);
        });
    Edit("2",
         [](frmKolegij* editor)
         {
             SetText(editor, "txtECTS", "7");
             Select(editor, "lstSmjerovi", "OPC");
             Save(editor);
         });
    SelectCourse("1");
    {
        const MessageAnswers answers(wxID_YES);
        Press(Window, "cmdDelete");
    }
    Press(Window, "cmdExit");
    ASSERT_TRUE(wxTopLevelWindows.empty());

    EXPECT_EQ(File("db_kolegij.csv"), "ID;Naziv;P;S;V;ECTS;Tip;Semestar;StudijID\r\n"
                                      "2;\x8Ei\xE8"
                                      "ani alati;1;1;1;7;izborni;2;1\r\n"
                                      "3;Bevska kultura;2;0;2;6;obvezni;1;2\r\n"
                                      "4;Napredni lov;3;0;1;10;obvezni;1;3\r\n"
                                      "5;Kolegij bez smjera;1;0;0;2;izborni;3;1\r\n"
                                      "6;\xC8i\x9A\xE6"
                                      "enje \x9Elica;2;1;0;6;izborni;3;1\r\n");
    EXPECT_EQ(File("db_kolegij_smjer.csv"), "KolegijID;SmjerID\r\n3;3\r\n4;4\r\n6;2\r\n2;1\r\n2;2\r\n");
    EXPECT_EQ(File("db_kolegij_nastavnik.csv"), "KolegijID;NastavnikID;Uloga;Redoslijed\r\n"
                                                "3;2;Nositelj;1\r\n4;3;Nositelj;1\r\n5;1;Nositelj;1\r\n"
                                                "6;2;Nositelj;1\r\n6;3;Nositelj;3\r\n2;2;Nositelj;1\r\n");
    EXPECT_EQ(File("db_zavod.csv"), zavodi);
    EXPECT_EQ(File("db_nastavnici.csv"), nastavnici);
    EXPECT_EQ(File("db_studij.csv"), studiji);
    EXPECT_EQ(File("db_smjer.csv"), smjerovi);
    EXPECT_EQ(EntriesOf(Folder.Data()).size(), 7U + 3U) << "and what the three changed files held";

    OpenFiles();
    EXPECT_EQ(ColumnTexts(Kolegiji(), 1), (Texts{"Žičani alati", "Kolegij bez smjera", "Čišćenje žlica"}));
}

} // namespace

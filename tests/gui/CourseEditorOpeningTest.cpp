// How the course editor opens: for a new course, and for each kind of course that a catalogue may have.

#include "data/modData.h"
#include "support/CourseEditor.h"

#include <wx/button.h>
#include <wx/stattext.h>
#include <wx/utils.h>

namespace
{

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

TEST_F(CourseEditor, IsCentredOnTheScreen)
{
    Open();
    Add(
        [](frmKolegij* editor)
        {
            ExpectCentredOnScreen(editor);
            EXPECT_TRUE(wxRect(wxGetDisplaySize()).Contains(editor->GetRect()));
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

TEST_F(CourseEditor, ALinkToALecturerWithoutAnEntryLeavesThePlaceAsItWasShownAndSaved)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Nastavnici.push_back("4;  ;;1");
    catalogue.KolegijNastavnici = {"1;1;Nositelj;1", "1;99;Nositelj;1", "1;3;Nositelj;2", "1;4;Nositelj;2"};
    OpenInvalid(catalogue);
    const MessageAnswers noHolder;
    const EditorEnd end = Edit("1",
                               [](frmKolegij* editor)
                               {
                                   EXPECT_EQ(Selected(editor, "lstNastavnik(1)"), Texts{"Anić Ana"});
                                   EXPECT_EQ(Selected(editor, "lstNastavnik(2)"), Texts{"Đurić Ćiro"});
                                   Save(editor);
                               });
    EXPECT_EQ(end, EditorEnd::Closed);
    EXPECT_EQ(LinesOf(modData::KolegijNastavnici), (Texts{"1;1;Nositelj;1", "1;3;Nositelj;2"}));
}

TEST_F(CourseEditor, SelectsEveryDirectionOfTheStudyThatHasTheID)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Smjerovi.push_back("2;Drugi posebni;DPO;1;Preddiplomski");
    catalogue.KolegijSmjerovi = {"1;2"};
    OpenInvalid(catalogue);
    const EditorEnd end = Edit("1",
                               [](frmKolegij* editor)
                               {
                                   EXPECT_EQ(Selected(editor, "lstSmjerovi"), (Texts{"POS", "DPO"}));
                                   Save(editor);
                               });
    EXPECT_EQ(end, EditorEnd::Closed);
    EXPECT_EQ(LinesOf(modData::KolegijSmjerovi), (Texts{"1;2", "1;2"}));
}

TEST_F(CourseEditor, SelectsALevelByItsExactText)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Studiji[2] = "3;Lovstvo;LOR;diplomski";
    OpenInvalid(catalogue);
    Choose(Find<wxChoice>(Window, "cboRazina"), "Diplomski"); // no studies: the list shows every course
    Edit("4",
         [](frmKolegij* editor)
         {
             EXPECT_EQ(Chosen(editor, "cboRazina"), "Preddiplomski");
             EXPECT_EQ(EntriesOfBox(Box(editor, "cboProgram")), Texts{"LOR"}) << "of the study's own level";
             EXPECT_EQ(EntriesOfBox(List(editor, "lstSemestar")), (Texts{"1", "2", "3", "4", "5", "6"}));
             EXPECT_EQ(EntriesOfBox(List(editor, "lstSmjerovi")), Texts{"DIP"});
         });
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

// Ways to open it

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

} // namespace

// The course editor in use: the effects of choices, the checks, and the saved rows.

#include "support/CourseEditor.h"
#include "data/modData.h"

#include <wx/msgdlg.h>

#include <utility>

namespace
{

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
                                   Select(editor, "lstSmjerovi", "OPC"); // in addition to the selected one
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
    EXPECT_EQ(EntriesOf(Folder.Data()).size(), 7U + 1U) << "and the folder of the copies";

    OpenFiles();
    EXPECT_EQ(ColumnTexts(Kolegiji(), 1), (Texts{"Žičani alati", "Kolegij bez smjera", "Čišćenje žlica"}));
}

} // namespace

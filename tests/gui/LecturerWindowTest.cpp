#include "ui/lecturer_stats/frmStatNositelji.h"

#include "data/modData.h"
#include "support/Catalogue.h"
#include "support/FolderState.h"
#include "support/TeachingLoadWindows.h"
#include "ui/department_stats/frmStatZavodi.h"

#include <wx/uiaction.h>

#include <algorithm>

namespace
{

using Texts = std::vector<std::string>;

class LecturerWindow : public TeachingLoadWindowTest<LecturersLoad>
{
protected:
    wxListBox* Nastavnici() { return Find<wxListBox>(Stat, "lstNastavnici"); }
    ListView* Kolegiji() { return List("lvwKolegiji"); }
    ListView* Table() { return List("lvwStat"); }
    Texts Names() { return ColumnTexts(Kolegiji(), 0); }
    std::string Total() { return ShownRows(Table()).back(); }

    void ExpectEmpty()
    {
        EXPECT_EQ(Nastavnici()->GetSelection(), wxNOT_FOUND);
        EXPECT_EQ(Kolegiji()->RowCount(), 0);
        EXPECT_EQ(Table()->RowCount(), 0);
    }
};

// Opening

TEST_F(LecturerWindow, HasItsControlsWithTheirCaptions)
{
    Open();
    EXPECT_EQ(Stat->GetTitle(), "Nostielji");
    EXPECT_EQ(Find<wxStaticText>(Stat, "Label1")->GetLabel(), "Nostielji");
    EXPECT_EQ(Find<wxStaticText>(Stat, "Label2")->GetLabel(), "Razina");
    EXPECT_EQ(Find<wxStaticText>(Stat, "Label3")->GetLabel(), "Program");
    EXPECT_EQ(Find<wxButton>(Stat, "cmdExportAllStat")->GetLabel(), "E&xport");
    EXPECT_EQ(Find<wxButton>(Stat, "cmdClose")->GetLabel(), "&Zatvori");
    ExpectColumns(Kolegiji(), TaughtCourseColumnsExpected);
    ExpectColumns(Table(), {{"Semestar", 900},
                            {"Tip", 1200},
                            {"P", 700},
                            {"S", 700},
                            {"V", 700},
                            {"ECTS", 900},
                            {"Broj kolegija", 1200}});
}

TEST_F(LecturerWindow, OpensWithTheLecturersInTableOrderAndNothingShown)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Nastavnici = {"3;Đurić Ćiro;;1", "1;Anić Ana;prof.;1", "2; šarić  ;;2", "4;Anić Ana;;1"};
    Open(catalogue);
    EXPECT_EQ(EntriesOfBox(Nastavnici()), (Texts{"Đurić Ćiro", "Anić Ana", " šarić  ", "Anić Ana"}));
    EXPECT_EQ(EntriesOfBox(Box("cboRazina")), (Texts{"Svi", "Preddiplomski", "Diplomski"}));
    EXPECT_EQ(EntriesOfBox(Box("cboProgram")), (Texts{"Svi", "LOR", "BEV"}));
    EXPECT_EQ(Chosen("cboRazina"), "Svi");
    EXPECT_EQ(Chosen("cboProgram"), "Svi");
    ExpectEmpty();
}

TEST_F(LecturerWindow, WithoutLecturersItIsEmpty)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Nastavnici = {};
    catalogue.KolegijNastavnici = {};
    Open(catalogue);
    EXPECT_EQ(EntriesOfBox(Nastavnici()), Texts{});
    Choose(Box("cboRazina"), "Diplomski");
    ExpectEmpty();
    ExpectWritten(Folder.PathOf("n.csv"), Folder.PathOf("n.csv"));
    EXPECT_EQ(ReadBytes(Folder.Path() / "n.csv"), "Nastavnik;Semestar;Tip;P;S;V;ECTS;Broj kolegija\r\n");
}

// Choosing a lecturer

TEST_F(LecturerWindow, ShowsTheCoursesAndTheTableOfTheChosenLecturer)
{
    Open();
    Click(Nastavnici(), "Anić Ana");
    EXPECT_EQ(ShownRows(Kolegiji()), (Texts{"Uvod u lov;2;1;0;5;obvezni;1;LOR;Anić Ana; Đurić Ćiro",
                                            "Kolegij bez smjera;1;0;0;2;izborni;3;LOR;Anić Ana"}));
    EXPECT_EQ(
        ShownRows(Table()),
        (Texts{"1;Obvezni;2;1;0;5;1", "1;Izborni;0;0;0;0;0", "2;Obvezni;0;0;0;0;0", "2;Izborni;0;0;0;0;0",
               "3;Obvezni;0;0;0;0;0", "3;Izborni;1;0;0;2;1", "4;Obvezni;0;0;0;0;0", "4;Izborni;0;0;0;0;0",
               "5;Obvezni;0;0;0;0;0", "5;Izborni;0;0;0;0;0", "6;Obvezni;0;0;0;0;0", "6;Izborni;0;0;0;0;0",
               "UKUPNO;Obvezni;2;1;0;5;1", "UKUPNO;Izborni;1;0;0;2;1", "TOTAL;Sve;3;1;0;7;2"}));
    Click(Nastavnici(), "Đurić Ćiro");
    EXPECT_EQ(Names(), (Texts{"Uvod u lov", "Napredni lov"}));
    EXPECT_EQ(Total(), "TOTAL;Sve;5;1;1;15;2");
}

TEST_F(LecturerWindow, DistinguishesLecturersOfOneName)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Nastavnici[1] = "2;Anić Ana;;2";
    Open(catalogue);
    Click(Nastavnici(), 1);
    EXPECT_EQ(Names(), (Texts{"Žičani alati", "Bevska kultura"}));
    Click(Nastavnici(), 0);
    EXPECT_EQ(Names(), (Texts{"Uvod u lov", "Kolegij bez smjera"}));
}

TEST_F(LecturerWindow, ALecturerWithoutCoursesHasATableOfZeros)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Nastavnici.push_back("4;Novi;;1");
    Open(catalogue);
    Click(Nastavnici(), "Anić Ana");
    Click(Nastavnici(), "Novi");
    EXPECT_EQ(Kolegiji()->RowCount(), 0);
    EXPECT_EQ(Table()->RowCount(), 15);
    EXPECT_EQ(Total(), "TOTAL;Sve;0;0;0;0;0");
}

TEST_F(LecturerWindow, AShorterListHasNoSelectionBeyondItsEnd)
{
    Open();
    Click(Nastavnici(), "Anić Ana");
    Kolegiji()->SelectRow(1);
    Table()->SelectRow(14);
    Settle(); // GTK scrolls to a selected row only when idle
    Choose(Box("cboProgram"), "BEV");
    EXPECT_EQ(Kolegiji()->RowCount(), 0);
    EXPECT_EQ(Kolegiji()->SelectedRow(), -1);
    EXPECT_EQ(Table()->SelectedRow(), -1);
    Click(Nastavnici(), "Šarić Žarko");
    EXPECT_EQ(Names(), Texts{"Bevska kultura"});
    EXPECT_EQ(TakeUncaughtError(), "");
}

// Filters

TEST_F(LecturerWindow, TheFiltersNarrowTheCoursesAndTheTable)
{
    Open(CoursesOfAna(
        {"1;LorP;1;0;0;1;obvezni;1;1", "2;BevP;2;0;0;2;obvezni;1;2", "3;LorD;4;0;0;4;obvezni;1;3"}));
    Click(Nastavnici(), "Anić Ana");
    EXPECT_EQ(Names(), (Texts{"LorP", "BevP", "LorD"}));
    Choose(Box("cboRazina"), "Preddiplomski");
    EXPECT_EQ(Names(), (Texts{"LorP", "BevP"}));
    EXPECT_EQ(Total(), "TOTAL;Sve;3;0;0;3;2");
    Choose(Box("cboProgram"), "BEV");
    EXPECT_EQ(Names(), Texts{"BevP"});
    EXPECT_EQ(Total(), "TOTAL;Sve;2;0;0;2;1");
    Choose(Box("cboRazina"), "Diplomski");
    EXPECT_EQ(Names(), Texts{});
    EXPECT_EQ(Total(), "TOTAL;Sve;0;0;0;0;0");
    Choose(Box("cboProgram"), "LOR");
    EXPECT_EQ(Names(), Texts{"LorD"});
    Choose(Box("cboRazina"), "Svi");
    EXPECT_EQ(Names(), (Texts{"LorP", "LorD"}));
    EXPECT_EQ(EntriesOfBox(Box("cboProgram")), (Texts{"Svi", "LOR", "BEV"})) << "no filter refills another";
}

TEST_F(LecturerWindow, AFilterAppliesToTheLecturerChosenAfterIt)
{
    Open();
    Choose(Box("cboRazina"), "Diplomski");
    ExpectEmpty();
    Choose(Box("cboProgram"), "LOR");
    ExpectEmpty();
    Click(Nastavnici(), "Đurić Ćiro");
    EXPECT_EQ(Names(), Texts{"Napredni lov"});
}

// Colours

TEST_F(LecturerWindow, DrawsElectivesBlueMoreThan30EctsRedAndTheTotalsBold)
{
    Open(CoursesOfAna(
        {"1;A;1;0;0;30;obvezni;1;1", "2;B;1;0;0;31; Izborni ;2;1", "3;C;1;0;0;1;fakultativni;9;1"}));
    Click(Nastavnici(), "Anić Ana");
    const wxColour blue(0, 0, 255);
    for (int column = 0; column < Kolegiji()->ColumnCount(); ++column)
        for (int row = 0; row < 3; ++row)
        {
            EXPECT_EQ(Kolegiji()->CellColour(row, column), row == 1 ? blue : *wxBLACK) << row;
            EXPECT_FALSE(Kolegiji()->CellBold(row, column));
        }
    for (int row = 0; row < Table()->RowCount(); ++row)
        for (int column = 0; column < Table()->ColumnCount(); ++column)
        {
            const bool overfull = row == 3 && column == 5;
            EXPECT_EQ(Table()->CellColour(row, column), overfull ? wxColour(255, 0, 0) : *wxBLACK)
                << row << ", " << column;
            EXPECT_EQ(Table()->CellBold(row, column), row >= 12) << row << ", " << column;
        }
    EXPECT_EQ(Total(), "TOTAL;Sve;2;0;0;61;2");
}

// Sorting

TEST_F(LecturerWindow, AHeaderSortsAsTextAndBackwardsWhenClickedAgain)
{
    Open(CoursesOfAna(
        {"1;Čvor;10;0;0;1;obvezni;1;1", "2;Cink;9;0;0;1;obvezni;1;1", "3;Dud;8;0;0;1;obvezni;1;1"}));
    Click(Nastavnici(), "Anić Ana");
    Kolegiji()->ClickColumn(1);
    EXPECT_EQ(ColumnTexts(Kolegiji(), 1), (Texts{"10", "8", "9"}));
    Kolegiji()->ClickColumn(1);
    EXPECT_EQ(ColumnTexts(Kolegiji(), 1), (Texts{"9", "8", "10"}));
    Kolegiji()->ClickColumn(0);
    EXPECT_EQ(Names(), (Texts{"Cink", "Čvor", "Dud"}));
    EXPECT_EQ(Total(), "TOTAL;Sve;27;0;0;3;3") << "a click sorts its own list alone";
    Choose(Box("cboRazina"), "Preddiplomski");
    EXPECT_EQ(Names(), (Texts{"Cink", "Čvor", "Dud"})) << "the sort outlives a refresh";
}

TEST_F(LecturerWindow, SharesItsSortMemoryWithTheMainWindowAndWithinItself)
{
    Open();
    Click(Nastavnici(), "Anić Ana");
    Find<ListView>(Main, "lvwKolegiji")->ClickColumn(0);
    Kolegiji()->ClickColumn(0);
    EXPECT_EQ(Names(), (Texts{"Uvod u lov", "Kolegij bez smjera"})) << "the second click on a column number";
    Table()->ClickColumn(0);
    EXPECT_EQ(ColumnTexts(Table(), 0).front(), "1") << "the third";
    Table()->ClickColumn(5);
    EXPECT_EQ(ColumnTexts(Table(), 5).front(), "0");
    Find<ListView>(Main, "lvwStatistika")->ClickColumn(5);
    EXPECT_EQ(ColumnTexts(Find<ListView>(Main, "lvwStatistika"), 5).front(), "4")
        << "backwards at the first click on this list";
    EXPECT_EQ(ColumnTexts(Table(), 5).front(), "0");
}

// One shared window

TEST_F(LecturerWindow, OpenedAgainItIsTheSameWindowUnchanged)
{
    Open();
    Click(Nastavnici(), "Đurić Ćiro");
    Choose(Box("cboRazina"), "Diplomski");
    Kolegiji()->ClickColumn(2);
    Kolegiji()->SelectRow(0);
    const frmStatNositelji* first = Stat;
    PressOpen();
    EXPECT_EQ(Stat, first);
    EXPECT_EQ(wxTopLevelWindows.size(), 2U);
    EXPECT_EQ(Nastavnici()->GetSelection(), 2);
    EXPECT_EQ(Chosen("cboRazina"), "Diplomski");
    EXPECT_EQ(Names(), Texts{"Napredni lov"});
    EXPECT_EQ(Kolegiji()->SelectedRow(), 0);
    EXPECT_EQ(Total(), "TOTAL;Sve;3;0;1;10;1");
}

TEST_F(LecturerWindow, ClosedByItsButtonItOpensAsANewOne)
{
    Open();
    Click(Nastavnici(), "Đurić Ćiro");
    Choose(Box("cboProgram"), "LOR");
    Press(Stat, "cmdClose");
    EXPECT_EQ(FindOpen<frmStatNositelji>(), nullptr);
    EXPECT_EQ(FindOpen<frmMain>(), Main);
    modData::Nastavnici.Append({"4", "Novi", "", "1"});
    PressOpen();
    ExpectEmpty();
    EXPECT_EQ(Chosen("cboProgram"), "Svi");
    EXPECT_EQ(EntriesOfBox(Nastavnici()), (Texts{"Anić Ana", "Šarić Žarko", "Đurić Ćiro", "Novi"}));
}

TEST_F(LecturerWindow, ClosedByItsCloseBoxItOpensAsANewOneAndSavesNothing)
{
    Open();
    const std::vector<FileState> before = FolderState(Folder.Data());
    Click(Nastavnici(), "Anić Ana");
    Stat->Close();
    Settle();
    EXPECT_EQ(FindOpen<frmStatNositelji>(), nullptr);
    PressOpen();
    ExpectEmpty();
    EXPECT_EQ(FolderState(Folder.Data()), before);
}

TEST_F(LecturerWindow, TheExitButtonClosesBothWindowsOfLoad)
{
    Open();
    Click(Nastavnici(), "Anić Ana");
    Press(Main, "cmdStatZavodi");
    ASSERT_NE(FindOpen<frmStatZavodi>(), nullptr);
    EXPECT_EQ(wxTopLevelWindows.size(), 3U);
    Press(Main, "cmdExit");
    EXPECT_TRUE(wxTopLevelWindows.empty());
    EXPECT_EQ(TakeUncaughtError(), "");
}

TEST_F(LecturerWindow, TheFocusAndTheTabKeySelectNoLecturer)
{
    Open();
    Find<wxWindow>(Stat, "cmdClose")->SetFocus();
    Settle();
    PressKey(Find<wxWindow>(Stat, "cmdClose"), WXK_TAB);
    EXPECT_EQ(wxWindow::FindFocus(), Nastavnici());
    ExpectEmpty();
    Box("cboRazina")->SetFocus();
    Settle();
    Nastavnici()->SetFocus();
    Settle();
    ExpectEmpty();
    PressKey(Nastavnici(), WXK_DOWN);
    EXPECT_NE(Nastavnici()->GetSelection(), wxNOT_FOUND) << "that is left to the keys of the list";
    EXPECT_EQ(Table()->RowCount(), 15);
}

// After an edit in the main window

TEST_F(LecturerWindow, AClickOnTheSelectedLecturerShowsTheTablesAsTheyAreNow)
{
    Open();
    Click(Nastavnici(), "Anić Ana");
    modData::Kolegiji.Replace(0, {"1", "Novi naziv", "3", "1", "0", "5", "obvezni", "1", "1"});
    EXPECT_EQ(Names(), (Texts{"Uvod u lov", "Kolegij bez smjera"}));
    Click(Nastavnici(), "Anić Ana");
    EXPECT_EQ(Names(), (Texts{"Novi naziv", "Kolegij bez smjera"}));
    EXPECT_EQ(Total(), "TOTAL;Sve;4;1;0;7;2");
}

TEST_F(LecturerWindow, ChoosingTheChosenFilterShowsTheTablesAsTheyAreNow)
{
    Open();
    Click(Nastavnici(), "Anić Ana");
    int edit = 0;
    for (const char* box : {"cboRazina", "cboProgram"})
        for (const int entry : {0, 1})
        {
            Choose(Box(box), entry);
            const std::string name = "Naziv " + std::to_string(++edit);
            modData::Kolegiji.Replace(0, {"1", name, "2", "1", "0", "5", "obvezni", "1", "1"});
            Choose(Box(box), entry);
            EXPECT_EQ(Names().front(), name) << box << ", " << entry;
        }
}

TEST_F(LecturerWindow, ADropDownListClosedByEscapeChoosesNothing)
{
    Open();
    Click(Nastavnici(), "Anić Ana");
    modData::Kolegiji.Replace(0, {"1", "Novi naziv", "2", "1", "0", "5", "obvezni", "1", "1"});
    for (const char* box : {"cboRazina", "cboProgram"})
    {
        ::Open(Box(box));
        wxUIActionSimulator().Char(WXK_ESCAPE);
        WaitUntil([&] { return !IsOpen(Box(box)); });
        Settle();
        EXPECT_EQ(Chosen(box), "Svi");
        EXPECT_EQ(Names().front(), "Uvod u lov") << box;
    }
}

TEST_F(LecturerWindow, ShowsWhatItShowedUntilTheUserActs)
{
    Open();
    Click(Nastavnici(), "Anić Ana");
    const Texts courses = ShownRows(Kolegiji());
    const Texts table = ShownRows(Table());
    Kolegiji()->SelectRow(0);
    DeleteInMain(0);
    EXPECT_EQ(modData::Kolegiji.RowCount(), 4U);
    EXPECT_EQ(ShownRows(Kolegiji()), courses);
    EXPECT_EQ(ShownRows(Table()), table);
    EXPECT_EQ(Kolegiji()->SelectedRow(), 0);
    Kolegiji()->ClickColumn(0);
    Table()->ClickColumn(3);
    Stat->Refresh();
    Settle();
    EXPECT_EQ(Names(), (Texts{"Kolegij bez smjera", "Uvod u lov"})) << "sorting reads no table";
    PressOpen();
    EXPECT_EQ(Kolegiji()->RowCount(), 2) << "nor does coming to the front";
    Click(Nastavnici(), "Anić Ana");
    EXPECT_EQ(Names(), Texts{"Kolegij bez smjera"});
    EXPECT_EQ(TakeUncaughtError(), "");
}

TEST_F(LecturerWindow, OutlivesItsLecturersRow)
{
    Open();
    Click(Nastavnici(), "Đurić Ćiro");
    modData::KolegijNastavnici.RemoveMatches(KolegijNastavnik::NastavnikID, 3);
    modData::Nastavnici.RemoveMatches(Nastavnik::ID, 3);
    EXPECT_EQ(Names().size(), 2U);
    Choose(Box("cboProgram"), "LOR");
    EXPECT_EQ(Names(), Texts{});
    EXPECT_EQ(Total(), "TOTAL;Sve;0;0;0;0;0");
    EXPECT_EQ(TakeUncaughtError(), "");
}

// Errors

TEST_F(LecturerWindow, AnHourThatIsNoNumberGoesUncaught)
{
    Open();
    modData::Kolegiji.Append({"6", "Loš", "x", "0", "0", "1", "obvezni", "1", "1"});
    modData::KolegijNastavnici.Append({"6", "2", "Nositelj", "1"});
    const MessageAnswers answers;
    Click(Nastavnici(), "Anić Ana");
    EXPECT_EQ(TakeUncaughtError(), "") << "another lecturer's course";
    Click(Nastavnici(), "Šarić Žarko");
    EXPECT_EQ(TakeUncaughtError(), "13: Vrijednost \"x\" nije broj (datoteka db_kolegij.csv, redak unesen u "
                                   "programu, stupac \"P\").");
    EXPECT_TRUE(answers.Shown().empty());
    Choose(Box("cboProgram"), "LOR");
    EXPECT_NE(TakeUncaughtError(), "") << "by a filter as well";
    Choose(Box("cboProgram"), "BEV");
    EXPECT_EQ(TakeUncaughtError(), "") << "the filter leaves the course out";
    EXPECT_EQ(Names(), Texts{"Bevska kultura"});
}

TEST_F(LecturerWindow, ALecturersIDThatIsNoNumberGoesUncaught)
{
    OpenMain();
    modData::Nastavnici.Append({"x", "Bez ID", "", "1"});
    Press(Main, "cmdStatNositelji");
    EXPECT_NE(TakeUncaughtError().find("13: Vrijednost \"x\" nije broj"), std::string::npos);
}

// The export

TEST_F(LecturerWindow, TheExportFollowsTheFiltersNotTheSelectionOrTheOrder)
{
    Open();
    Click(Nastavnici(), "Anić Ana");
    Table()->ClickColumn(0);
    Choose(Box("cboRazina"), "Diplomski");
    const Texts shown = ShownRows(Table());
    ExpectWritten(Folder.PathOf("n.csv"), Folder.PathOf("n.csv"));
    const Texts lines = FileLines(ReadBytes(Folder.Path() / "n.csv"));
    ASSERT_EQ(lines.size(), 1U + 3 * 16);
    EXPECT_EQ(BlockOf(lines, 0).back(), "TOTAL;Sve;0;0;0;0;0");
    EXPECT_EQ(BlockOf(lines, 1).back(), "TOTAL;Sve;0;0;0;0;0");
    EXPECT_EQ(BlockOf(lines, 2).front(), "1;Obvezni;3;0;1;10;1");
    EXPECT_EQ(BlockOf(lines, 2).back(), "TOTAL;Sve;3;0;1;10;1");
    EXPECT_EQ(ShownRows(Table()), shown);
}

TEST_F(LecturerWindow, CountsAnHourThatIsNoNumberAsZeroInTheExport)
{
    Open();
    modData::Kolegiji.Append({"6", "Loš", "x", "0", "0", "1", "obvezni", "1", "1"});
    modData::KolegijNastavnici.Append({"6", "1", "Nositelj", "1"});
    ExpectWritten(Folder.PathOf("n.csv"), Folder.PathOf("n.csv"));
    EXPECT_EQ(BlockOf(FileLines(ReadBytes(Folder.Path() / "n.csv")), 0).back(), "TOTAL;Sve;3;1;0;8;3");
}

// The demo catalogue

TEST_F(LecturerWindow, EveryTableOfTheDemoCatalogueIsTheLecturersBlockInTheExport)
{
    OpenDemo();
    const int lecturers = static_cast<int>(Nastavnici()->GetCount());
    ASSERT_EQ(lecturers, 40);
    const MessageAnswers answers;
    std::vector<std::string> files;
    for (int razina = 0; razina < 3; ++razina)
        for (int program = 0; program < 3; ++program)
        {
            Choose(Box("cboRazina"), razina);
            Choose(Box("cboProgram"), program);
            PressExport(Folder.PathOf("n.csv"));
            files.push_back(ReadBytes(Folder.Path() / "n.csv"));
            const Texts lines = FileLines(files.back());
            ASSERT_EQ(lines.size(), 1U + 16 * 40);
            Click(Nastavnici(), 0);
            for (int position = 0; position < lecturers; ++position)
            {
                if (position > 0)
                    GoDown(Nastavnici());
                ASSERT_EQ(ShownRows(Table()), BlockOf(lines, position))
                    << Chosen("cboRazina") << ", " << Chosen("cboProgram") << ", " << position;
            }
        }
    EXPECT_EQ(TakeUncaughtError(), "");
    EXPECT_EQ(answers.Shown().size(), 9U);
    std::ranges::sort(files);
    EXPECT_EQ(std::ranges::adjacent_find(files), files.end()) << "no two filters give the same file";
}

} // namespace

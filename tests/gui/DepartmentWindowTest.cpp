#include "ui/department_stats/frmStatZavodi.h"

#include "data/modData.h"
#include "support/TeachingLoadWindows.h"
#include "ui/lecturer_stats/frmStatNositelji.h"

#include <wx/uiaction.h>

#include <algorithm>
#include <functional>

namespace
{

using Texts = std::vector<std::string>;

class DepartmentWindow : public TeachingLoadWindowTest<DepartmentsLoad>
{
protected:
    wxListBox* Semestri() { return Find<wxListBox>(Stat, "lstSemestri"); }
    ListView* Kolegiji() { return List("lvwKolegiji"); }
    ListView* Table() { return List("lvwStatZavod"); }
    Texts Names() { return ColumnTexts(Kolegiji(), 0); }
    std::string Total() { return ShownRows(Table()).back(); }

    void ExpectFreshlyOpened()
    {
        EXPECT_EQ(Chosen("cboRazina"), "Svi");
        EXPECT_EQ(Chosen("cboZavodi"), "Zavod za povijest");
        EXPECT_EQ(Semestri()->GetStringSelection(), "Svi");
        EXPECT_EQ(Names(), (Texts{"Uvod u lov", "Kolegij bez smjera", "Uvod u lov", "Napredni lov"}));
        EXPECT_EQ(Total(), "Ukupno;Total;8;2;1;22;4");
    }
};

// Opening

TEST_F(DepartmentWindow, HasItsControlsWithTheirCaptions)
{
    Open();
    EXPECT_EQ(Stat->GetTitle(), "Zavodi");
    EXPECT_EQ(Find<wxStaticText>(Stat, "Label1")->GetLabel(), "Razina");
    EXPECT_EQ(Find<wxStaticText>(Stat, "Label2")->GetLabel(), "Zavod");
    EXPECT_EQ(Find<wxStaticText>(Stat, "Label3")->GetLabel(), "Semestar");
    EXPECT_EQ(Find<wxButton>(Stat, "cmdExportAllStat")->GetLabel(), "E&xport");
    EXPECT_EQ(Find<wxButton>(Stat, "cmdClose")->GetLabel(), "&Zatvori");
    EXPECT_EQ(wxWindow::FindWindowByName("cboProgram", Stat), nullptr);
    ExpectColumns(Kolegiji(), TaughtCourseColumnsExpected);
    ExpectColumns(Table(), {{"Semestar", 1400},
                            {"Tip", 1400},
                            {"P", 900},
                            {"S", 900},
                            {"V", 900},
                            {"ECTS", 1000},
                            {"Kolegija", 1400}});
}

TEST_F(DepartmentWindow, OpensWithTheFirstDepartmentAndNothingFiltered)
{
    Open();
    ExpectFreshlyOpened();
    EXPECT_EQ(EntriesOfBox(Box("cboRazina")), (Texts{"Svi", "Preddiplomski", "Diplomski"}));
    EXPECT_EQ(EntriesOfBox(Box("cboZavodi")), (Texts{"Zavod za povijest", "Zavod za kemiju"}));
    EXPECT_EQ(EntriesOfBox(Semestri()), (Texts{"Svi", "Zimski", "Ljetni", "1", "2", "3", "4", "5", "6"}));
    EXPECT_EQ(ShownRows(Kolegiji()), (Texts{"Uvod u lov;2;1;0;5;obvezni;1;LOR;Anić Ana; Đurić Ćiro",
                                            "Kolegij bez smjera;1;0;0;2;izborni;3;LOR;Anić Ana",
                                            "Uvod u lov;2;1;0;5;obvezni;1;LOR;Anić Ana; Đurić Ćiro",
                                            "Napredni lov;3;0;1;10;obvezni;1;LOR;Đurić Ćiro"}));
    EXPECT_EQ(
        ShownRows(Table()),
        (Texts{"1;Obvezni;7;2;1;20;3", "1;Izborni;0;0;0;0;0", "2;Obvezni;0;0;0;0;0", "2;Izborni;0;0;0;0;0",
               "3;Obvezni;0;0;0;0;0", "3;Izborni;1;0;0;2;1", "4;Obvezni;0;0;0;0;0", "4;Izborni;0;0;0;0;0",
               "5;Obvezni;0;0;0;0;0", "5;Izborni;0;0;0;0;0", "6;Obvezni;0;0;0;0;0", "6;Izborni;0;0;0;0;0",
               "Ukupno;Obvezni;7;2;1;20;3", "Ukupno;Izborni;1;0;0;2;1", "Ukupno;Total;8;2;1;22;4"}));
}

TEST_F(DepartmentWindow, WithoutDepartmentsNothingIsSelectedAndNothingShown)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Zavodi = {};
    Open(catalogue);
    for (int semestar = 0; semestar < 9; ++semestar)
    {
        Click(Semestri(), semestar);
        Choose(Box("cboRazina"), semestar % 3);
        EXPECT_EQ(Box("cboZavodi")->GetSelection(), wxNOT_FOUND);
        EXPECT_EQ(Kolegiji()->RowCount(), 0);
        EXPECT_EQ(Table()->RowCount(), 0);
    }
    EXPECT_EQ(EntriesOfBox(Box("cboZavodi")), Texts{});
    ExpectWritten(Folder.PathOf("z.csv"), Folder.PathOf("z.csv"));
    EXPECT_EQ(ReadBytes(Folder.Path() / "z.csv"), "Zavod;Semestar;Tip;P;S;V;ECTS;Broj kolegija\r\n");
}

// Choosing

TEST_F(DepartmentWindow, ShowsTheChosenDepartment)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Zavodi.push_back("3;Bez nastavnika;BEZ");
    Open(catalogue);
    Choose(Box("cboZavodi"), "Zavod za kemiju");
    EXPECT_EQ(Names(), (Texts{"Žičani alati", "Bevska kultura"}));
    EXPECT_EQ(Total(), "Ukupno;Total;3;1;3;10;2");
    Choose(Box("cboZavodi"), "Bez nastavnika");
    EXPECT_EQ(Names(), Texts{});
    EXPECT_EQ(Table()->RowCount(), 15);
    EXPECT_EQ(Total(), "Ukupno;Total;0;0;0;0;0");
}

TEST_F(DepartmentWindow, DistinguishesDepartmentsOfOneName)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Zavodi[1] = "2;Zavod za povijest;KEM";
    Open(catalogue);
    Choose(Box("cboZavodi"), 1);
    EXPECT_EQ(Total(), "Ukupno;Total;3;1;3;10;2");
    Choose(Box("cboZavodi"), 0);
    EXPECT_EQ(Total(), "Ukupno;Total;8;2;1;22;4");
}

TEST_F(DepartmentWindow, TheSemesterFiltersTheCoursesAndTheTable)
{
    Open(CoursesOfAna({"1;K3;1;0;0;1;obvezni;3;1", "2;K4;2;0;0;2;obvezni;4;1", "3;K7;4;0;0;4;obvezni;7;1",
                       "4;K-1;8;0;0;8;obvezni;-1;1"}));
    EXPECT_EQ(Names(), (Texts{"K3", "K4", "K7", "K-1"}));
    EXPECT_EQ(Total(), "Ukupno;Total;3;0;0;3;2");
    Click(Semestri(), "Zimski");
    EXPECT_EQ(Names(), (Texts{"K3", "K7"}));
    EXPECT_EQ(Total(), "Ukupno;Total;1;0;0;1;1");
    EXPECT_EQ(ShownRows(Table())[6], "4;Obvezni;0;0;0;0;0");
    Click(Semestri(), "Ljetni");
    EXPECT_EQ(Names(), Texts{"K4"});
    EXPECT_EQ(Total(), "Ukupno;Total;2;0;0;2;1");
    Click(Semestri(), "3");
    EXPECT_EQ(Names(), Texts{"K3"});
    Click(Semestri(), "6");
    EXPECT_EQ(Names(), Texts{});
    EXPECT_EQ(Table()->RowCount(), 15);
}

TEST_F(DepartmentWindow, TheLevelFiltersTheCoursesAndTheTable)
{
    Open();
    Choose(Box("cboRazina"), "Diplomski");
    EXPECT_EQ(Names(), Texts{"Napredni lov"});
    EXPECT_EQ(Total(), "Ukupno;Total;3;0;1;10;1");
    Click(Semestri(), "Ljetni");
    EXPECT_EQ(Names(), Texts{});
    Choose(Box("cboRazina"), "Preddiplomski");
    Choose(Box("cboZavodi"), "Zavod za kemiju");
    EXPECT_EQ(Names(), Texts{"Žičani alati"}) << "the other filters stay";
    EXPECT_EQ(EntriesOfBox(Semestri()).size(), 9U);
}

// Colours

TEST_F(DepartmentWindow, DrawsElectivesBlueTheTotalsBoldAndNothingRed)
{
    Open(CoursesOfAna(
        {"1;A;1;0;0;99;obvezni;1;1", "2;B;1;0;0;99; Izborni ;1;1", "3;C;1;0;0;1;fakultativni;1;1"}));
    const wxColour blue(0, 0, 255);
    ASSERT_EQ(Kolegiji()->RowCount(), 3);
    for (int column = 0; column < Kolegiji()->ColumnCount(); ++column)
        for (int row = 0; row < 3; ++row)
            EXPECT_EQ(Kolegiji()->CellColour(row, column), row == 1 ? blue : *wxBLACK) << row;
    for (int row = 0; row < Table()->RowCount(); ++row)
        for (int column = 0; column < Table()->ColumnCount(); ++column)
        {
            EXPECT_EQ(Table()->CellColour(row, column), *wxBLACK) << row << ", " << column;
            EXPECT_EQ(Table()->CellBold(row, column), row >= 12) << row << ", " << column;
        }
    EXPECT_EQ(Total(), "Ukupno;Total;2;0;0;198;2") << "a type that is neither word is listed only";
}

// Sorting

TEST_F(DepartmentWindow, SharesItsSortMemoryWithTheLecturersWindow)
{
    Open();
    Press(Main, "cmdStatNositelji");
    auto* lecturers = FindOpen<frmStatNositelji>();
    Click(Find<wxListBox>(lecturers, "lstNastavnici"), 2);
    auto* lecturersCourses = Find<ListView>(lecturers, "lvwKolegiji");
    lecturersCourses->ClickColumn(0);
    EXPECT_EQ(ColumnTexts(lecturersCourses, 0), (Texts{"Napredni lov", "Uvod u lov"}));
    Kolegiji()->ClickColumn(0);
    EXPECT_EQ(Names(), (Texts{"Uvod u lov", "Uvod u lov", "Napredni lov", "Kolegij bez smjera"}))
        << "the second click on a column number";
    Table()->ClickColumn(0);
    EXPECT_EQ(ColumnTexts(Table(), 0).front(), "1") << "the third";
    lecturersCourses->ClickColumn(0);
    EXPECT_EQ(ColumnTexts(lecturersCourses, 0), (Texts{"Uvod u lov", "Napredni lov"})) << "the fourth";
    Table()->ClickColumn(6);
    EXPECT_EQ(ColumnTexts(Table(), 6).back(), "4") << "another column begins ascending";
    EXPECT_EQ(ShownRows(Table()).front(), "1;Izborni;0;0;0;0;0");
}

// One shared window

TEST_F(DepartmentWindow, OpenedAgainItIsTheSameWindowUnchanged)
{
    Open();
    Choose(Box("cboZavodi"), "Zavod za kemiju");
    Click(Semestri(), "Zimski");
    Kolegiji()->SelectRow(0);
    const frmStatZavodi* first = Stat;
    PressOpen();
    EXPECT_EQ(Stat, first);
    EXPECT_EQ(wxTopLevelWindows.size(), 2U);
    EXPECT_EQ(Chosen("cboZavodi"), "Zavod za kemiju");
    EXPECT_EQ(Semestri()->GetStringSelection(), "Zimski");
    EXPECT_EQ(Names(), Texts{"Bevska kultura"});
    EXPECT_EQ(Kolegiji()->SelectedRow(), 0);
}

TEST_F(DepartmentWindow, ClosedItOpensAsANewOne)
{
    Open();
    Choose(Box("cboZavodi"), "Zavod za kemiju");
    Click(Semestri(), "Zimski");
    Choose(Box("cboRazina"), "Diplomski");
    Press(Stat, "cmdClose");
    EXPECT_EQ(FindOpen<frmStatZavodi>(), nullptr);
    EXPECT_EQ(FindOpen<frmMain>(), Main);
    PressOpen();
    ExpectFreshlyOpened();
    Click(Semestri(), "6");
    Stat->Close();
    Settle();
    EXPECT_EQ(FindOpen<frmStatZavodi>(), nullptr);
    PressOpen();
    ExpectFreshlyOpened();
}

TEST_F(DepartmentWindow, StaysOpenWhenTheLecturersWindowCloses)
{
    Open();
    Click(Semestri(), "Zimski");
    Press(Main, "cmdStatNositelji");
    Press(FindOpen<frmStatNositelji>(), "cmdClose");
    EXPECT_EQ(FindOpen<frmStatZavodi>(), Stat);
    EXPECT_EQ(Semestri()->GetStringSelection(), "Zimski");
}

// After an edit in the main window

TEST_F(DepartmentWindow, ChoosingWhatIsChosenShowsTheTablesAsTheyAreNow)
{
    Open();
    int edit = 0;
    const auto expectShown = [&](const std::string& control, const std::function<void()>& choose)
    {
        choose();
        const std::string name = "Naziv " + std::to_string(++edit);
        modData::Kolegiji.Replace(0, {"1", name, "2", "1", "0", "5", "obvezni", "1", "1"});
        EXPECT_NE(Names().front(), name);
        choose();
        EXPECT_EQ(Names().front(), name) << control;
    };
    for (const int entry : {0, 1})
    {
        expectShown("lstSemestri", [&] { Click(Semestri(), entry); });
        expectShown("cboRazina", [&] { Choose(Box("cboRazina"), entry); });
    }
    expectShown("cboZavodi", [&] { Choose(Box("cboZavodi"), 0); });
}

TEST_F(DepartmentWindow, APressThatIsReleasedOnAnotherEntryIsOneChoice)
{
    Open();
    Click(Semestri(), "Svi");
    modData::Kolegiji.Replace(0, {"1", "Novi naziv", "2", "1", "0", "5", "obvezni", "1", "1"});
    const wxPoint first = Semestri()->ClientToScreen(wxPoint(20, 8));
    wxUIActionSimulator mouse;
    mouse.MouseMove(first);
    Settle();
    mouse.MouseDown();
    mouse.MouseMove(first + wxPoint(0, -100)); // outside the list: not a choice
    Settle();
    mouse.MouseUp();
    Settle();
    EXPECT_EQ(Names().front(), "Uvod u lov");
}

TEST_F(DepartmentWindow, ShowsWhatItShowedUntilTheUserActs)
{
    Open();
    const Texts courses = ShownRows(Kolegiji());
    const Texts table = ShownRows(Table());
    Kolegiji()->SelectRow(0);
    DeleteInMain(0);
    EXPECT_EQ(modData::Kolegiji.RowCount(), 4U);
    EXPECT_EQ(ShownRows(Kolegiji()), courses);
    EXPECT_EQ(ShownRows(Table()), table);
    Kolegiji()->ClickColumn(0);
    Table()->ClickColumn(3);
    Stat->Refresh();
    PressOpen();
    EXPECT_EQ(Kolegiji()->RowCount(), 4);
    Click(Semestri(), "Svi");
    EXPECT_EQ(Names(), (Texts{"Kolegij bez smjera", "Napredni lov"}));
    EXPECT_EQ(TakeUncaughtError(), "");
}

TEST_F(DepartmentWindow, OutlivesItsDepartmentsRowAndItsLecturers)
{
    Open();
    modData::Zavodi.RemoveMatches(Zavod::ID, 1);
    EXPECT_EQ(Names().size(), 4U);
    modData::Nastavnici.RemoveMatches(Nastavnik::ID, 1);
    Click(Semestri(), "Svi");
    EXPECT_EQ(ColumnTexts(Kolegiji(), 8), (Texts{"Đurić Ćiro", "Đurić Ćiro"}));
    EXPECT_EQ(Names(), (Texts{"Uvod u lov", "Napredni lov"}));
    EXPECT_EQ(Total(), "Ukupno;Total;5;1;1;15;2");
    EXPECT_EQ(TakeUncaughtError(), "");
}

// Errors

TEST_F(DepartmentWindow, NumbersThatCannotBeReadCountAsZero)
{
    Open();
    modData::Kolegiji.Append({"6", "Loš", "x", "", "1h", "pet", "obvezni", "2", "1"});
    modData::KolegijNastavnici.Append({"6", "2", "Nositelj", "1"});
    Choose(Box("cboZavodi"), "Zavod za kemiju");
    EXPECT_EQ(ShownRows(Kolegiji()).back(), "Loš;x;;1h;pet;obvezni;2;LOR;Šarić Žarko");
    EXPECT_EQ(Total(), "Ukupno;Total;3;1;3;10;3");
    EXPECT_EQ(TakeUncaughtError(), "");
}

TEST_F(DepartmentWindow, ALookupThatFailsOrARowThatIsTooShortGoesUncaught)
{
    Open();
    const MessageAnswers answers;
    modData::KolegijNastavnici.Append({"2", "2", "Nositelj", "prvi"});
    Choose(Box("cboZavodi"), "Zavod za kemiju");
    EXPECT_EQ(TakeUncaughtError(),
              "13: Vrijednost \"prvi\" nije broj (datoteka db_kolegij_nastavnik.csv, redak "
              "unesen u programu, stupac \"Redoslijed\").");
    Click(Semestri(), "6");
    EXPECT_EQ(TakeUncaughtError(), "") << "nothing to look up";
    modData::Nastavnici.Append({"9", "Bez zavoda", ""});
    Click(Semestri(), "5");
    EXPECT_EQ(TakeUncaughtError().substr(0, 3), "9: ");
    EXPECT_TRUE(answers.Shown().empty());
}

// The export

TEST_F(DepartmentWindow, TheExportFollowsTheFiltersNotTheSelectionOrTheOrder)
{
    Open();
    Choose(Box("cboZavodi"), "Zavod za kemiju");
    Click(Semestri(), "Ljetni");
    Table()->ClickColumn(0);
    const Texts shown = ShownRows(Table());
    ExpectWritten(Folder.PathOf("z.csv"), Folder.PathOf("z.csv"));
    const Texts lines = FileLines(ReadBytes(Folder.Path() / "z.csv"));
    ASSERT_EQ(lines.size(), 1U + 2 * 16);
    EXPECT_EQ(BlockOf(lines, 0).back(), "Ukupno;Total;0;0;0;0;0");
    EXPECT_EQ(BlockOf(lines, 1)[3], "2;Izborni;1;1;1;4;1");
    EXPECT_EQ(BlockOf(lines, 1).back(), "Ukupno;Total;1;1;1;4;1");
    EXPECT_EQ(ShownRows(Table()), shown);
}

// The demo catalogue

TEST_F(DepartmentWindow, EveryTableOfTheDemoCatalogueIsTheDepartmentsBlockInTheExport)
{
    OpenDemo();
    const int departments = static_cast<int>(Box("cboZavodi")->GetCount());
    ASSERT_EQ(departments, 6);
    const MessageAnswers answers;
    std::vector<std::string> files;
    for (int razina = 0; razina < 3; ++razina)
        for (int semestar = 0; semestar < 9; ++semestar)
        {
            Choose(Box("cboRazina"), razina);
            Click(Semestri(), semestar);
            PressExport(Folder.PathOf("z.csv"));
            files.push_back(ReadBytes(Folder.Path() / "z.csv"));
            const Texts lines = FileLines(files.back());
            ASSERT_EQ(lines.size(), 1U + 16 * 6);
            Choose(Box("cboZavodi"), 0);
            for (int position = 0; position < departments; ++position)
            {
                if (position > 0)
                    GoDown(Box("cboZavodi"));
                ASSERT_EQ(ShownRows(Table()), BlockOf(lines, position))
                    << Chosen("cboRazina") << ", " << semestar << ", " << position;
            }
        }
    EXPECT_EQ(TakeUncaughtError(), "");
    EXPECT_EQ(answers.Shown().size(), 27U);
    std::ranges::sort(files);
    files.erase(std::unique(files.begin(), files.end()), files.end());
    EXPECT_EQ(files.size(), 24U)
        << "only the semesters 5 and 6, which \"Diplomski\" lacks, give a file twice";
}

} // namespace

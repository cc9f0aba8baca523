#include "data/modData.h"
#include "support/Catalogue.h"
#include "support/EveryWindow.h"
#include "support/FolderState.h"
#include "support/ListWindow.h"
#include "support/TestFolder.h"
#include "support/Windows.h"
#include "ui/main/CourseDeletion.h"
#include "ui/main/frmMain.h"

#include <wx/button.h>
#include <wx/dialog.h>
#include <wx/msgdlg.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <utility>

namespace
{

using Texts = std::vector<std::string>;

const char* const InvalidAtStart =
    "Upozorenje: CSV datoteke sadrže greške. Neke funkcije možda neće raditi ispravno.";
const char* const InvalidAtExit = "CSV podaci nisu ispravni. Ispravite greške prije izvoza statistike.";

class MainWindow : public testing::Test
{
protected:
    void Open(const Catalogue& catalogue = SmallCatalogue())
    {
        catalogue.WriteTo(Folder.Data());
        Window = new frmMain;
        Window->Form_Load();
        Settle();
    }

    void TearDown() override { CloseAllWindows(); }

    wxChoice* Box(const char* name) { return Find<wxChoice>(Window, name); }
    ListView* Kolegiji() { return Find<ListView>(Window, "lvwKolegiji"); }
    Texts ShownIDs() { return ColumnTexts(Kolegiji(), 0); }
    std::string Chosen(const char* box) { return Box(box)->GetStringSelection().utf8_string(); }
    std::string File(const char* name) { return ReadBytes(Folder.Data() / name); }

    TestFolder Folder;
    frmMain* Window = nullptr;
};

// Start-up

TEST_F(MainWindow, OpensWithTheFirstLevelAndStudyAndNothingElseFiltered)
{
    Open();
    EXPECT_EQ(Window->GetTitle(), "Varlostudiji 1.0.20260309");
    EXPECT_EQ(EntriesOfBox(Box("cboRazina")), (Texts{"Preddiplomski", "Diplomski"}));
    EXPECT_EQ(EntriesOfBox(Box("cboProgram")), (Texts{"LOR", "BEV"}));
    EXPECT_EQ(EntriesOfBox(Box("cboSmjer")), (Texts{"Svi", "OPC", "POS"}));
    EXPECT_EQ(EntriesOfBox(Box("cboSemestar")), (Texts{"Svi", "1", "2", "3", "4", "5", "6"}));
    EXPECT_EQ(Chosen("cboRazina"), "Preddiplomski");
    EXPECT_EQ(Chosen("cboProgram"), "LOR");
    EXPECT_EQ(Chosen("cboSmjer"), "Svi");
    EXPECT_EQ(Chosen("cboSemestar"), "Svi");
    EXPECT_EQ(ShownIDs(), (Texts{"1", "2", "5"}));
    EXPECT_EQ(Kolegiji()->SelectedRow(), -1);
}

TEST_F(MainWindow, IsCentredOnTheScreen)
{
    Open();
    ExpectCentredOnScreen(Window);
}

TEST_F(MainWindow, WarnsOfInvalidDataAndGoesOn)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji.push_back("6;Bez studija;1;1;1;1;obvezni;1;99");
    MessageAnswers answers;
    Open(catalogue);
    const MessageShown warning = answers.TakeOnly();
    EXPECT_EQ(warning.Text, InvalidAtStart);
    EXPECT_EQ(warning.Title, "Varlostudiji");
    EXPECT_TRUE(warning.Has(wxICON_EXCLAMATION | wxOK));
    EXPECT_FALSE(warning.Has(wxCANCEL));
    EXPECT_EQ(ShownIDs(), (Texts{"1", "2", "5"}));
}

TEST_F(MainWindow, FillsNoListBeforeItIsReady)
{
    SmallCatalogue().Use();
    Window = new frmMain;
    Window->RefreshListView();
    EXPECT_EQ(Kolegiji()->RowCount(), 0);
}

TEST_F(MainWindow, HasItsControlsWithTheirCaptions)
{
    Open();
    const std::pair<const char*, const char*> buttons[] = {
        {"cmdAdd", "&Dodaj"},
        {"cmdEdit", "&Edit"},
        {"cmdDelete", "De&lete"},
        {"cmdStatNositelji", "&Nositelji"},
        {"cmdStatZavodi", "&Zavodi"},
        {"cmdExport", "&Semestri"},
        {"cmdExportVarlo", "&Kolegiji"},
        {"cmdECTSCalc", "E&CTS"},
        {"cmdAbout", "O &prog..."},
        {"cmdExit", "&Izlaz"},
    };
    for (const auto& [name, caption] : buttons)
        EXPECT_EQ(Find<wxButton>(Window, name)->GetLabel(), caption) << name;
    const std::pair<const char*, const char*> frames[] = {
        {"Frame1", "Kolegij"}, {"Frame2", "Statistika"}, {"Frame3", "Export"}};
    for (const auto& [name, caption] : frames)
        EXPECT_EQ(Find<wxWindow>(Window, name)->GetLabel(), caption) << name;
    EXPECT_EQ(Find<wxStaticText>(Window, "Label1")->GetLabel().utf8_string(), "Traži:");
}

// Columns

TEST_F(MainWindow, ListsTheColumnsOfACourse)
{
    Open();
    ExpectColumns(Kolegiji(), {{"ID", 800},
                               {"Kolegij", 3000},
                               {"P", 500},
                               {"S", 500},
                               {"V", 500},
                               {"ECTS", 700},
                               {"Tip", 1200},
                               {"Sem", 700},
                               {"Studij", 1200},
                               {"Smjerovi", 2000},
                               {"Nastavnici", 2500}});
    Texts first;
    for (int column = 0; column < Kolegiji()->ColumnCount(); ++column)
        first.push_back(Kolegiji()->CellText(0, column).utf8_string());
    EXPECT_EQ(first, (Texts{"1", "Uvod u lov", "2", "1", "0", "5", "obvezni", "1", "LOR", "OPC, POS",
                            "Anić Ana, Đurić Ćiro"}));
}

TEST_F(MainWindow, HasTheStatisticsGridInItsPlace)
{
    Open();
    ExpectColumns(Find<ListView>(Window, "lvwStatistika"), {{"Semestar", 1000},
                                                            {"Tip", 1200},
                                                            {"P", 700},
                                                            {"S", 700},
                                                            {"V", 700},
                                                            {"ECTS", 900},
                                                            {"Kolegija", 900}});
}

TEST_F(MainWindow, DrawsElectivesBlueAndTheOthersBlack)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji = {"1;A;1;1;1;1;Obvezni ;1;1", "2;B;1;1;1;1;izborni;1;1", "3;C;1;1;1;1; Izborni ;1;1",
                          "4;D;1;1;1;1;fakultativni;1;1"};
    catalogue.KolegijSmjerovi = {};
    catalogue.KolegijNastavnici = {};
    Open(catalogue);
    const wxColour blue(0, 0, 255);
    for (int column = 0; column < Kolegiji()->ColumnCount(); ++column)
    {
        EXPECT_EQ(Kolegiji()->CellColour(0, column), *wxBLACK);
        EXPECT_EQ(Kolegiji()->CellColour(1, column), blue);
        EXPECT_EQ(Kolegiji()->CellColour(2, column), blue);
        EXPECT_EQ(Kolegiji()->CellColour(3, column), *wxBLACK);
    }
}

// Filters

TEST_F(MainWindow, ChoosingALevelRefillsStudiesDirectionsAndSemesters)
{
    Open();
    Choose(Box("cboSmjer"), "POS");
    Choose(Box("cboSemestar"), "2");
    Choose(Box("cboRazina"), "Diplomski");
    EXPECT_EQ(EntriesOfBox(Box("cboProgram")), (Texts{"LOR"}));
    EXPECT_EQ(EntriesOfBox(Box("cboSmjer")), (Texts{"Svi", "DIP"}));
    EXPECT_EQ(EntriesOfBox(Box("cboSemestar")), (Texts{"Svi", "1", "2", "3", "4"}));
    EXPECT_EQ(Chosen("cboSmjer"), "Svi");
    EXPECT_EQ(Chosen("cboSemestar"), "Svi");
    EXPECT_EQ(ShownIDs(), (Texts{"4"}));
}

TEST_F(MainWindow, ChoosingAStudyRefillsTheDirectionsAlone)
{
    Open();
    Choose(Box("cboSemestar"), "1");
    Choose(Box("cboProgram"), "BEV");
    EXPECT_EQ(EntriesOfBox(Box("cboSmjer")), (Texts{"Svi", "BVS"}));
    EXPECT_EQ(Chosen("cboSemestar"), "1");
    EXPECT_EQ(ShownIDs(), (Texts{"3"}));
}

TEST_F(MainWindow, DirectionAndSemesterFilterTheList)
{
    Open();
    Choose(Box("cboSmjer"), "POS");
    EXPECT_EQ(ShownIDs(), (Texts{"1", "2"}));
    Choose(Box("cboSemestar"), "2");
    EXPECT_EQ(ShownIDs(), (Texts{"2"}));
    Choose(Box("cboSmjer"), "Svi");
    Choose(Box("cboSemestar"), "3");
    EXPECT_EQ(ShownIDs(), (Texts{"5"}));
    EXPECT_EQ(Kolegiji()->CellText(0, 9), "");
    Choose(Box("cboSmjer"), "OPC");
    EXPECT_EQ(ShownIDs(), Texts{});
}

TEST_F(MainWindow, ALevelWithoutStudiesShowsTheCoursesOfEveryStudy)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Studiji.pop_back();
    catalogue.Kolegiji[3] = "4;Napredni lov;3;0;1;10;obvezni;1;1";
    catalogue.Smjerovi.pop_back();
    catalogue.KolegijSmjerovi.pop_back();
    Open(catalogue);
    Choose(Box("cboRazina"), "Diplomski");
    EXPECT_EQ(Box("cboProgram")->GetSelection(), wxNOT_FOUND);
    EXPECT_EQ(EntriesOfBox(Box("cboProgram")), Texts{});
    EXPECT_EQ(EntriesOfBox(Box("cboSmjer")), Texts{"Svi"});
    EXPECT_EQ(ShownIDs(), (Texts{"1", "2", "3", "4", "5"}));
}

// Search

TEST_F(MainWindow, TheListFollowsEveryKeyInTheSearchBox)
{
    Open();
    auto* search = Find<wxTextCtrl>(Window, "txtSearch");
    Type(search, "5");
    EXPECT_EQ(ShownIDs(), Texts{"1"});
    search->Clear();
    Type(search, "IZBORNI");
    EXPECT_EQ(ShownIDs(), (Texts{"2", "5"}));
    Type(search, " an");
    EXPECT_EQ(ShownIDs(), (Texts{"5"})) << "the type and the lecturers stand side by side, a blank between";
}

TEST_F(MainWindow, TheSearchFindsCroatianLettersInEitherCase)
{
    Open();
    auto* search = Find<wxTextCtrl>(Window, "txtSearch");
    search->SetValue(wxString::FromUTF8("ŽIČ"));
    EXPECT_EQ(ShownIDs(), Texts{"2"});
    search->SetValue(wxString::FromUTF8("ćiro"));
    EXPECT_EQ(ShownIDs(), Texts{"1"});
    search->SetValue("   ");
    EXPECT_EQ(ShownIDs(), (Texts{"1", "2", "5"}));
}

TEST_F(MainWindow, EscapeEmptiesTheSearchBox)
{
    Open();
    auto* search = Find<wxTextCtrl>(Window, "txtSearch");
    Type(search, "alati");
    EXPECT_EQ(ShownIDs(), Texts{"2"});
    PressKey(search, WXK_ESCAPE);
    EXPECT_EQ(search->GetValue(), "");
    EXPECT_EQ(ShownIDs(), (Texts{"1", "2", "5"}));
}

// The mouse

TEST_F(MainWindow, ADoubleClickOpensTheCourseOfItsRow)
{
    Open();
    std::string title;
    const ModalSession session([&](wxTopLevelWindow& editor)
                               { title = Find<wxTextCtrl>(&editor, "txtNaziv")->GetValue().utf8_string(); });
    wxUIActionSimulator mouse;
    mouse.MouseMove(MiddleOf(CellPlace(Kolegiji(), 1, 0)));
    Settle();
    mouse.MouseDblClick();
    Settle();
    session.Check();
    EXPECT_EQ(title, "Žičani alati");
}

TEST_F(MainWindow, AListThatWasScrolledShowsItsNewRowsFromTheFirst)
{
    Catalogue catalogue = SmallCatalogue();
    std::vector<std::string> lines;
    for (int id = 6; id <= 100; ++id)
        lines.push_back(std::to_string(id) + ";Dodan;1;1;1;1;obvezni;1;1");
    lines.emplace_back("101;Zadnji;1;1;1;1;obvezni;2;1");
    catalogue.Kolegiji.insert(catalogue.Kolegiji.end(), lines.begin(), lines.end());
    Open(catalogue);
    const wxRect first = CellPlace(Kolegiji(), 0, 0);
    ClickRow(Kolegiji(), 3);
    PressKey(Kolegiji(), WXK_END);
    EXPECT_EQ(Kolegiji()->CellText(Kolegiji()->SelectedRow(), 0), "101");
    Choose(Box("cboSemestar"), "1"); // which hides the selected course
    EXPECT_EQ(Kolegiji()->RowCount(), 96);
    EXPECT_EQ(CellPlace(Kolegiji(), 0, 0), first);
    ClickAt(MiddleOf(first));
    EXPECT_EQ(Kolegiji()->SelectedRow(), 0);
}

// Sorting

TEST_F(MainWindow, AHeaderSortsAndSortsBackwardsWhenClickedAgain)
{
    Open();
    Kolegiji()->ClickColumn(1);
    EXPECT_EQ(ColumnTexts(Kolegiji(), 1), (Texts{"Kolegij bez smjera", "Uvod u lov", "Žičani alati"}));
    Kolegiji()->ClickColumn(1);
    EXPECT_EQ(ColumnTexts(Kolegiji(), 1), (Texts{"Žičani alati", "Uvod u lov", "Kolegij bez smjera"}));
    Kolegiji()->ClickColumn(5);
    EXPECT_EQ(ColumnTexts(Kolegiji(), 5), (Texts{"2", "4", "5"}));
}

TEST_F(MainWindow, OnlyTheHeaderClickedLastHasAnArrow)
{
    Open();
    for (ListView* list : {Kolegiji(), Find<ListView>(Window, "lvwStatistika")})
        for (const int column : {1, 2, 2, 5})
        {
            ClickHeader(list, column);
            EXPECT_EQ(Arrows(list), std::vector<int>{column}) << list->GetName();
        }
    EXPECT_EQ(ColumnTexts(Kolegiji(), 5), (Texts{"2", "4", "5"}));
}

TEST_F(MainWindow, BothGridsShareOneSortMemory)
{
    Open();
    Find<ListView>(Window, "lvwStatistika")->ClickColumn(5);
    Kolegiji()->ClickColumn(5);
    EXPECT_EQ(ColumnTexts(Kolegiji(), 5), (Texts{"5", "4", "2"})) << "the second click on a column number";
}

TEST_F(MainWindow, TheSortSurvivesARefreshAndTheSelectionSurvivesBoth)
{
    Open();
    Kolegiji()->SelectRow(0);
    Kolegiji()->ClickColumn(1);
    EXPECT_EQ(Kolegiji()->CellText(Kolegiji()->SelectedRow(), 0), "1");
    Choose(Box("cboSemestar"), "Svi");
    EXPECT_EQ(Kolegiji()->CellText(Kolegiji()->SelectedRow(), 0), "1");
    EXPECT_EQ(ColumnTexts(Kolegiji(), 1), (Texts{"Kolegij bez smjera", "Uvod u lov", "Žičani alati"}));
}

// Deleting

TEST_F(MainWindow, DeleteAsksAndRemovesTheCourseWithItsLinks)
{
    Open();
    const std::vector<FileState> before = FolderState(Folder.Data());
    Kolegiji()->SelectRow(0);
    MessageAnswers answers(wxID_YES);
    Press(Window, "cmdDelete");
    const MessageShown question = answers.TakeOnly();
    EXPECT_EQ(question.Text, "Želite li obrisati ovaj kolegij?");
    EXPECT_EQ(question.Title, "Potvrda");
    EXPECT_TRUE(question.Has(wxYES_NO | wxICON_QUESTION));
    EXPECT_EQ(ShownIDs(), (Texts{"2", "5"}));
    EXPECT_EQ(LinesOf(modData::KolegijSmjerovi), (Texts{"2;2", "3;3", "4;4"}));
    EXPECT_EQ(modData::KolegijNastavnici.RowCount(), 4U);
    EXPECT_EQ(FolderState(Folder.Data()), before) << "nothing is written before the way out";
}

TEST_F(MainWindow, PaintedBetweenADeletionAndTheRefreshTheListIsBlank)
{
    Open();
    ASSERT_EQ(ShownIDs(), (Texts{"1", "2", "5"}));
    DeleteKolegij(4); // now the last shown row is beyond the table
    InnerList(Kolegiji())->Refresh();
    Settle();
    EXPECT_EQ(ColumnTexts(Kolegiji(), 1), (Texts{"", "", ""}));
    EXPECT_EQ(Kolegiji()->CellColour(1, 0), *wxBLACK) << "an elective's row";
    Window->RefreshListView();
    EXPECT_EQ(ShownIDs(), (Texts{"1", "2", "5"}));
}

TEST_F(MainWindow, DeleteAnsweredWithNoChangesNothing)
{
    Open();
    Kolegiji()->SelectRow(1);
    MessageAnswers answers(wxID_NO);
    PressKey(Kolegiji(), WXK_DELETE);
    EXPECT_EQ(answers.TakeOnly().Text, "Želite li obrisati ovaj kolegij?");
    EXPECT_EQ(ShownIDs(), (Texts{"1", "2", "5"}));
    EXPECT_EQ(Kolegiji()->SelectedRow(), 1);
}

TEST_F(MainWindow, DeleteWithoutASelectionDoesNothing)
{
    Open();
    const MessageAnswers answers(wxID_YES);
    Press(Window, "cmdDelete");
    Focus(Kolegiji());
    Kolegiji()->SelectRow(-1); // some systems select the first row when the list gets the focus
    PressKey(Kolegiji(), WXK_DELETE);
    EXPECT_TRUE(answers.Shown().empty());
    EXPECT_EQ(modData::Kolegiji.RowCount(), 5U);
}

// Leaving

TEST_F(MainWindow, ExitSavesAllTablesAndClosesEveryWindow)
{
    Open();
    auto* other = new wxDialog(nullptr, wxID_ANY, "other");
    other->Bind(wxEVT_CLOSE_WINDOW, [other](wxCloseEvent&) { other->Destroy(); });
    other->Show();
    Kolegiji()->SelectRow(0);
    {
        MessageAnswers answers(wxID_YES);
        Press(Window, "cmdDelete");
    }
    const std::string before = File("db_zavod.csv");
    Press(Window, "cmdExit");
    EXPECT_TRUE(wxTopLevelWindows.empty());
    EXPECT_EQ(File("db_kolegij_smjer.csv"), "KolegijID;SmjerID\r\n2;2\r\n3;3\r\n4;4\r\n");
    EXPECT_EQ(File("db_zavod.csv"), before);
    EXPECT_TRUE(TemporaryFilesIn(Folder.Data()).empty());
}

TEST_F(MainWindow, TheCloseBoxSavesToo)
{
    Open();
    modData::Zavodi.RemoveMatches(Zavod::ID, 99);
    SmallCatalogue().WriteTo(Folder.Data());
    WriteBytes(Folder.Data() / "db_zavod.csv", "changed meanwhile");
    Window->Close();
    Settle();
    EXPECT_TRUE(wxTopLevelWindows.empty());
    EXPECT_EQ(File("db_zavod.csv"),
              "ID;Naziv;Kratica\r\n1;Zavod za povijest;POV\r\n2;Zavod za kemiju;KEM\r\n");
}

Catalogue InvalidCatalogue()
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.KolegijSmjerovi.push_back("77;1");
    return catalogue;
}

TEST_F(MainWindow, ExitRefusesInvalidDataAndSavesNothing)
{
    MessageAnswers answers(wxID_YES);
    Open(InvalidCatalogue());
    answers.TakeOnly();
    const std::vector<FileState> before = FolderState(Folder.Data());
    Press(Window, "cmdExit");
    const MessageShown refusal = answers.TakeOnly();
    EXPECT_EQ(refusal.Text, InvalidAtExit);
    EXPECT_EQ(refusal.Title, "Varlostudiji");
    EXPECT_TRUE(refusal.Has(wxICON_ERROR | wxOK));
    EXPECT_EQ(FindOpen<frmMain>(), Window);
    EXPECT_EQ(FolderState(Folder.Data()), before);
}

TEST_F(MainWindow, TheCloseBoxClosesInvalidDataWithoutSaving)
{
    MessageAnswers answers(wxID_YES);
    Open(InvalidCatalogue());
    answers.TakeOnly();
    const std::vector<FileState> before = FolderState(Folder.Data());
    Kolegiji()->SelectRow(0);
    Press(Window, "cmdDelete");
    answers.TakeOnly();
    Window->Close();
    Settle();
    EXPECT_EQ(answers.TakeOnly().Text, InvalidAtExit);
    EXPECT_TRUE(wxTopLevelWindows.empty());
    EXPECT_EQ(FolderState(Folder.Data()), before) << "the deletion is lost";
}

TEST_F(MainWindow, AnErrorWhileSavingGoesUncaught)
{
    Open();
    std::filesystem::remove_all(Folder.Data());
    WriteBytes(Folder.Data(), "a file where the folder was");
    Press(Window, "cmdExit");
    EXPECT_EQ(TakeUncaughtError(), "57: Greška pri čitanju ili pisanju: " + Folder.PathOf("Varlostudiji"));
}

// Keyboard

TEST_F(MainWindow, AccessKeysWorkWhereverTheFocusIs)
{
    for (const char* focused : {"lvwKolegiji", "lvwStatistika", "txtSearch", "cmdStatZavodi", "cmdExit"})
    {
        Open();
        Focus(Find<wxWindow>(Window, focused));
        PressKey(Find<wxWindow>(Window, focused), 'I', wxMOD_ALT);
        for (int i = 0; i < 20 && !wxTopLevelWindows.empty(); ++i)
            Settle(); // a button is shown pressed for a moment
        EXPECT_TRUE(wxTopLevelWindows.empty()) << focused;
        CloseAllWindows();
    }
}

// Layout

TEST_F(MainWindow, KeepsItsCommandsInViewAtItsSmallestSize)
{
    Open();
    Window->SetSize(Window->GetMinSize());
    Settle();
    const wxRect client = Window->GetClientRect();
    for (const char* name : {"cmdAdd", "cmdExit", "txtSearch", "lvwKolegiji", "lvwStatistika"})
    {
        auto* control = Find<wxWindow>(Window, name);
        const wxRect place(Window->ScreenToClient(control->GetScreenPosition()), control->GetSize());
        EXPECT_TRUE(client.Contains(place)) << name;
        EXPECT_GE(place.width, 40) << name;
        EXPECT_GE(place.height, 20) << name;
    }
}

} // namespace

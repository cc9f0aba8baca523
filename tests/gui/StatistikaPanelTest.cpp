#include "data/Files.h"
#include "data/modData.h"
#include "support/Catalogue.h"
#include "support/TestFolder.h"
#include "support/Windows.h"
#include "ui/main/frmMain.h"

#include <wx/msgdlg.h>
#include <wx/textctrl.h>

#include <algorithm>
#include <filesystem>
#include <utility>

#ifdef _WIN32
#include <windows.h>
#endif

namespace
{

using Texts = std::vector<std::string>;

const char* const InvalidData = "CSV podaci nisu ispravni. Ispravite greške prije izvoza statistike.";

class StatistikaPanel : public testing::Test
{
protected:
    void Open(const Catalogue& catalogue = SmallCatalogue())
    {
        catalogue.WriteTo(Folder.Data());
        OpenFiles();
    }

    void OpenDemo()
    {
        CopyDemo(Folder);
        OpenFiles();
    }

    void TearDown() override { CloseAllWindows(); }

    wxChoice* Box(const char* name) { return Find<wxChoice>(Window, name); }
    ListView* Statistika() { return Find<ListView>(Window, "lvwStatistika"); }
    ListView* Kolegiji() { return Find<ListView>(Window, "lvwKolegiji"); }

    /// A row of the panel as one text, its cells joined by ";".
    std::string Shown(int row)
    {
        std::string shown;
        for (int column = 0; column < Statistika()->ColumnCount(); ++column)
            shown += (column == 0 ? "" : ";") + Statistika()->CellText(row, column).utf8_string();
        return shown;
    }

    Texts AllShown()
    {
        Texts shown;
        for (int row = 0; row < Statistika()->RowCount(); ++row)
            shown.push_back(Shown(row));
        return shown;
    }

    std::string Total() { return Shown(Statistika()->RowCount() - 1); }

    std::string Export(const char* button, const std::string& name)
    {
        const SaveAnswers save(Folder.PathOf(name));
        MessageAnswers answers;
        Press(Window, button);
        const MessageShown message = answers.TakeOnly();
        EXPECT_TRUE(message.Has(wxICON_INFORMATION | wxOK)) << message.Text;
        return ReadBytes(Folder.Path() / name);
    }

    TestFolder Folder;
    frmMain* Window = nullptr;

private:
    void OpenFiles()
    {
        Window = new frmMain;
        Window->Form_Load();
        Settle();
    }
};

// The rows

TEST_F(StatistikaPanel, ShowsTheSumsPerSemesterAndTypeAndTheTotals)
{
    Open();
    EXPECT_EQ(
        AllShown(),
        (Texts{"1;Obvezni;4;2;0;10;2", "1;Izborni;0;0;0;0;0", "2;Obvezni;0;0;0;0;0", "2;Izborni;1;1;1;4;1",
               "3;Obvezni;0;0;0;0;0", "3;Izborni;0;0;0;0;0", "4;Obvezni;0;0;0;0;0", "4;Izborni;0;0;0;0;0",
               "5;Obvezni;0;0;0;0;0", "5;Izborni;0;0;0;0;0", "6;Obvezni;0;0;0;0;0", "6;Izborni;0;0;0;0;0",
               "UKUPNO;Obvezni;4;2;0;10;2", "UKUPNO;Izborni;1;1;1;4;1", "TOTAL;Sve;5;3;1;14;3"}));
}

TEST_F(StatistikaPanel, HasAsManyRowsAsTheSemestersShownNeed)
{
    Open();
    EXPECT_EQ(Statistika()->RowCount(), 15);
    Choose(Box("cboSemestar"), "6");
    EXPECT_EQ(Statistika()->RowCount(), 5);
    Choose(Box("cboRazina"), "Diplomski");
    EXPECT_EQ(Statistika()->RowCount(), 11);
    Choose(Box("cboSemestar"), "4");
    EXPECT_EQ(Statistika()->RowCount(), 5);
    Choose(Box("cboSemestar"), "Svi");
    EXPECT_EQ(Statistika()->RowCount(), 11);
}

TEST_F(StatistikaPanel, OnlyTheTotalsAreBold)
{
    Open();
    for (int row = 0; row < Statistika()->RowCount(); ++row)
        for (int column = 0; column < Statistika()->ColumnCount(); ++column)
            EXPECT_EQ(Statistika()->CellBold(row, column), row >= 12) << row << ", " << column;
}

TEST_F(StatistikaPanel, MoreThan30EctsAreRedInASemesterAndNowhereElse)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji = {"1;A;1;1;1;30;obvezni;1;1", "2;B;1;1;1;31;obvezni;2;1", "3;C;1;1;1;20;izborni;3;1"};
    catalogue.KolegijSmjerovi = {"1;1", "2;1", "3;1", "3;2"};
    catalogue.KolegijNastavnici = {};
    Open(catalogue);
    for (int row = 0; row < Statistika()->RowCount(); ++row)
        for (int column = 0; column < Statistika()->ColumnCount(); ++column)
        {
            const bool overfull = column == 5 && (row == 2 || row == 5);
            EXPECT_EQ(Statistika()->CellColour(row, column), overfull ? wxColour(255, 0, 0) : *wxBLACK)
                << Shown(row) << ", column " << column;
        }
    EXPECT_EQ(Shown(2), "2;Obvezni;1;1;1;31;1");
    EXPECT_EQ(Shown(5), "3;Izborni;2;2;2;40;2");
}

TEST_F(StatistikaPanel, ACourseAfterTheLevelsLastSemesterIsLeftOut)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji.push_back("6;Kasni;1;1;1;7;obvezni;5;3");
    catalogue.KolegijSmjerovi.push_back("6;4");
    Open(catalogue);
    Choose(Box("cboRazina"), "Diplomski");
    EXPECT_EQ(Kolegiji()->RowCount(), 2);
    EXPECT_EQ(Total(), "TOTAL;Sve;3;0;1;10;1");
}

// Refreshing

TEST_F(StatistikaPanel, FollowsEveryFilter)
{
    Open();
    EXPECT_EQ(Total(), "TOTAL;Sve;5;3;1;14;3");
    Choose(Box("cboSmjer"), "OPC");
    EXPECT_EQ(Total(), "TOTAL;Sve;2;1;0;5;1");
    Choose(Box("cboSmjer"), "POS");
    EXPECT_EQ(Total(), "TOTAL;Sve;3;2;1;9;2");
    Choose(Box("cboSemestar"), "2");
    EXPECT_EQ(AllShown(), (Texts{"2;Obvezni;0;0;0;0;0", "2;Izborni;1;1;1;4;1", "UKUPNO;Obvezni;0;0;0;0;0",
                                 "UKUPNO;Izborni;1;1;1;4;1", "TOTAL;Sve;1;1;1;4;1"}));
    Choose(Box("cboProgram"), "BEV");
    EXPECT_EQ(Total(), "TOTAL;Sve;0;0;0;0;0");
    Choose(Box("cboSemestar"), "Svi");
    EXPECT_EQ(Total(), "TOTAL;Sve;2;0;2;6;1");
    Choose(Box("cboRazina"), "Diplomski");
    EXPECT_EQ(Total(), "TOTAL;Sve;3;0;1;10;1");
}

TEST_F(StatistikaPanel, FollowsEveryKeyInTheSearchBox)
{
    Open();
    auto* search = Find<wxTextCtrl>(Window, "txtSearch");
    Type(search, "4");
    EXPECT_EQ(Total(), "TOTAL;Sve;1;1;1;4;1");
    Type(search, "4");
    EXPECT_EQ(Total(), "TOTAL;Sve;0;0;0;0;0");
    PressKey(search, WXK_BACK);
    EXPECT_EQ(Total(), "TOTAL;Sve;1;1;1;4;1");
    PressKey(search, WXK_ESCAPE);
    EXPECT_EQ(Total(), "TOTAL;Sve;5;3;1;14;3");
}

TEST_F(StatistikaPanel, FollowsADeletion)
{
    Open();
    Kolegiji()->SelectRow(0);
    const MessageAnswers answers(wxID_YES);
    Press(Window, "cmdDelete");
    EXPECT_EQ(Total(), "TOTAL;Sve;1;1;1;4;1");
}

TEST_F(StatistikaPanel, ADirectionNamedLikeTheEntryForAllFiltersOnlyTheList)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Smjerovi[0] = "1;Opći;Svi;1;Preddiplomski";
    Open(catalogue);
    Choose(Box("cboSmjer"), 1);
    EXPECT_EQ(ColumnTexts(Kolegiji(), 0), Texts{"1"});
    EXPECT_EQ(Total(), "TOTAL;Sve;5;3;1;14;3");
}

TEST_F(StatistikaPanel, IsEmptyBeforeTheWindowIsReady)
{
    SmallCatalogue().Use();
    Window = new frmMain;
    // Here the tables are loaded, and everything that can cause a refresh is enabled.
    Find<wxTextCtrl>(Window, "txtSearch")->SetValue("a");
    EXPECT_EQ(Statistika()->RowCount(), 0);
    Window->ExportStatistika_SelectedToCSV(Folder.PathOf("s.csv"));
    EXPECT_EQ(Statistika()->RowCount(), 0);
    EXPECT_EQ(ReadBytes(Folder.Path() / "s.csv"),
              "sep=;\r\nRazina;\r\nProgram;\r\nSmjer;\r\nSemestar;\r\n\r\n"
              "Semestar;Tip;P;S;V;ECTS;Kolegija\r\n");
    EXPECT_EQ(TakeUncaughtError(), "");
}

// Sorting

TEST_F(StatistikaPanel, SortsTextsAndMovesTheTotalsWithTheRest)
{
    Open();
    Choose(Box("cboSemestar"), "1");
    Statistika()->ClickColumn(5);
    EXPECT_EQ(ColumnTexts(Statistika(), 5), (Texts{"0", "0", "10", "10", "10"}));
    Statistika()->ClickColumn(5);
    EXPECT_EQ(ColumnTexts(Statistika(), 5), (Texts{"10", "10", "10", "0", "0"}));
    Statistika()->ClickColumn(0);
    EXPECT_EQ(ColumnTexts(Statistika(), 0), (Texts{"1", "1", "TOTAL", "UKUPNO", "UKUPNO"}));
    Choose(Box("cboSemestar"), "2");
    EXPECT_EQ(ColumnTexts(Statistika(), 0), (Texts{"2", "2", "TOTAL", "UKUPNO", "UKUPNO"}))
        << "the sort outlives a refresh";
}

TEST_F(StatistikaPanel, SharesItsSortMemoryWithTheCourseList)
{
    Open();
    Choose(Box("cboSemestar"), "1");
    Kolegiji()->ClickColumn(0);
    EXPECT_EQ(ColumnTexts(Statistika(), 0), (Texts{"1", "1", "UKUPNO", "UKUPNO", "TOTAL"}))
        << "a click sorts its own list alone";
    Statistika()->ClickColumn(0);
    EXPECT_EQ(ColumnTexts(Statistika(), 0), (Texts{"UKUPNO", "UKUPNO", "TOTAL", "1", "1"}))
        << "the second click on a column number";
}

// The export of the sums

TEST_F(StatistikaPanel, AsksWhereToSaveTheStatistics)
{
    Open();
    Choose(Box("cboProgram"), "BEV");
    Choose(Box("cboSemestar"), "2");
    const SaveAnswers save(std::nullopt);
    Press(Window, "cmdExport");
    ASSERT_EQ(save.Shown().size(), 1U);
    const SaveDialogOptions& options = save.Shown().front();
    EXPECT_EQ(options.Title, "Spremi statistiku (CSV)");
    EXPECT_EQ(options.Filter, "CSV datoteke (*.csv)|*.csv|Sve datoteke (*.*)|*.*");
    EXPECT_EQ(options.FilterIndex, 1);
    EXPECT_EQ(options.DefaultExtension, "csv");
    EXPECT_EQ(options.InitialFolder, "");
    EXPECT_EQ(options.ProposedName, "statistika_Preddiplomski_BEV_Svi_2.csv");
    EXPECT_TRUE(options.OverwritePrompt);
    EXPECT_TRUE(options.PathMustExist);
}

TEST_F(StatistikaPanel, ProposesAValidName)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Studiji = {"1;Lovstvo;L/Š:R;Preddiplomski", "2;Bevanda;BEV;Preddiplomski",
                         "3;Lovstvo;LOR;Preddiplomski"};
    Open(catalogue);
    const SaveAnswers save(std::nullopt);
    Press(Window, "cmdExport");
    Choose(Box("cboRazina"), "Diplomski");
    Press(Window, "cmdExport");
    ASSERT_EQ(save.Shown().size(), 2U);
    EXPECT_EQ(save.Shown()[0].ProposedName, "statistika_Preddiplomski_L_Š_R_Svi_Svi.csv");
    EXPECT_EQ(save.Shown()[1].ProposedName, "statistika_Diplomski__Svi_Svi.csv");
}

TEST_F(StatistikaPanel, WritesTheStatisticsAndSaysWhere)
{
    Open();
    Choose(Box("cboSmjer"), "POS");
    Choose(Box("cboSemestar"), "2");
    const SaveAnswers save(Folder.PathOf("izvoz šč.csv"));
    MessageAnswers answers;
    Press(Window, "cmdExport");
    const MessageShown message = answers.TakeOnly();
    EXPECT_EQ(message.Text, "Statistika exportirana u:\r\n" + Folder.PathOf("izvoz šč.csv"));
    EXPECT_EQ(message.Title, "Varlostudiji");
    EXPECT_TRUE(message.Has(wxICON_INFORMATION | wxOK));
    EXPECT_FALSE(message.Has(wxCANCEL));
    EXPECT_EQ(ReadBytes(Folder.Path() / u8"izvoz šč.csv"),
              "sep=;\r\nRazina;Preddiplomski\r\nProgram;LOR\r\nSmjer;POS\r\nSemestar;2\r\n\r\n"
              "Semestar;Tip;P;S;V;ECTS;Kolegija\r\n"
              "2;Obvezni;0;0;0;0;0\r\n2;Izborni;1;1;1;4;1\r\n"
              "UKUPNO;Obvezni;0;0;0;0;0\r\nUKUPNO;Izborni;1;1;1;4;1\r\nTOTAL;Sve;1;1;1;4;1\r\n");
}

TEST_F(StatistikaPanel, WritesTheRowsInTheOrderShown)
{
    Open();
    Choose(Box("cboSemestar"), "1");
    Statistika()->ClickColumn(0);
    Statistika()->ClickColumn(0);
    const Texts shown = AllShown();
    ASSERT_EQ(shown.front(), "UKUPNO;Obvezni;4;2;0;10;2");
    std::string lines = "Semestar;Tip;P;S;V;ECTS;Kolegija\r\n";
    for (const std::string& line : shown)
        lines += line + "\r\n";
    const std::string written = Export("cmdExport", "s.csv");
    EXPECT_EQ(written.substr(written.find("Semestar;Tip")), lines);
    EXPECT_EQ(AllShown(), shown);
}

TEST_F(StatistikaPanel, QuotesAFilterWithACommaButNotOneWithASemicolon)
{
    Open();
    modData::Studiji.Replace(0, {"1", "Lovstvo", "L,O\"R", "Preddiplomski"});
    modData::Smjerovi.Replace(0, {"1", "Opći", "O;C", "1", "Preddiplomski"});
    Choose(Box("cboRazina"), "Preddiplomski");
    Choose(Box("cboSmjer"), "O;C");
    const std::string written = Export("cmdExport", "s.csv");
    EXPECT_NE(written.find("Program;\"L,O\"\"R\"\r\nSmjer;O;C\r\n"), std::string::npos) << written;
}

TEST_F(StatistikaPanel, CancellingTheSaveDialogIsSilent)
{
    Open();
    const SaveAnswers save(std::nullopt);
    const MessageAnswers answers;
    Press(Window, "cmdExport");
    Press(Window, "cmdExportVarlo");
    EXPECT_EQ(save.Shown().size(), 2U);
    EXPECT_TRUE(answers.Shown().empty());
    EXPECT_EQ(EntriesOf(Folder.Path()), Texts{"Varlostudiji"});
}

TEST_F(StatistikaPanel, RefusesToExportStatisticsOfInvalidData)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.KolegijSmjerovi.push_back("77;1");
    MessageAnswers answers;
    Open(catalogue);
    answers.TakeOnly();
    EXPECT_EQ(Statistika()->RowCount(), 15) << "the panel itself is shown";
    const SaveAnswers save(Folder.PathOf("s.csv"));
    Press(Window, "cmdExport");
    const MessageShown refusal = answers.TakeOnly();
    EXPECT_EQ(refusal.Text, InvalidData);
    EXPECT_EQ(refusal.Title, "Varlostudiji");
    EXPECT_TRUE(refusal.Has(wxICON_ERROR | wxOK));
    EXPECT_TRUE(save.Shown().empty());
    EXPECT_EQ(EntriesOf(Folder.Path()), Texts{"Varlostudiji"});
}

// The export of the catalogue

TEST_F(StatistikaPanel, AsksWhereToSaveTheCatalogue)
{
    Open();
    const SaveAnswers save(std::nullopt);
    Press(Window, "cmdExportVarlo");
    ASSERT_EQ(save.Shown().size(), 1U);
    const SaveDialogOptions& options = save.Shown().front();
    EXPECT_EQ(options.Title, "Spremi export (CSV)");
    EXPECT_EQ(options.Filter, "CSV datoteke (*.csv)|*.csv|Sve datoteke (*.*)|*.*");
    EXPECT_EQ(options.FilterIndex, 1);
    EXPECT_EQ(options.DefaultExtension, "csv");
    EXPECT_EQ(options.InitialFolder, "");
    EXPECT_EQ(options.ProposedName, "kolegiji_export.csv");
    EXPECT_TRUE(options.OverwritePrompt);
    EXPECT_TRUE(options.PathMustExist);
}

TEST_F(StatistikaPanel, WritesTheWholeCatalogueWithAnyFiltersAndSaysWhere)
{
    Open();
    const std::string whole = Export("cmdExportVarlo", "all.csv");
    EXPECT_EQ(std::count(whole.begin(), whole.end(), '\n'), 6);
    Choose(Box("cboProgram"), "BEV");
    Choose(Box("cboSemestar"), "6");
    Type(Find<wxTextCtrl>(Window, "txtSearch"), "xyz");
    Kolegiji()->ClickColumn(1);

    const SaveAnswers save(Folder.PathOf("k.csv"));
    MessageAnswers answers;
    Press(Window, "cmdExportVarlo");
    const MessageShown message = answers.TakeOnly();
    EXPECT_EQ(message.Text, "Export završen:\r\n" + Folder.PathOf("k.csv"));
    EXPECT_EQ(message.Title, "Varlostudiji");
    EXPECT_TRUE(message.Has(wxICON_INFORMATION | wxOK));
    EXPECT_EQ(ReadBytes(Folder.Path() / "k.csv"), whole);
}

TEST_F(StatistikaPanel, WritesAnInvalidCatalogueToo)
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji = {"1;Bez studija;1;1;1;1;obvezni;9;99"};
    catalogue.KolegijSmjerovi = {};
    catalogue.KolegijNastavnici = {};
    {
        const MessageAnswers answers;
        Open(catalogue);
    }
    const std::string written = Export("cmdExportVarlo", "k.csv");
    EXPECT_NE(written.find("\r\n1;;;;Bez studija;1;1;1;1;;obvezni;;9;\r\n"), std::string::npos) << written;
}

// Exports that fail

class FailingExport : public StatistikaPanel
{
protected:
    /// Both exports to a path that cannot be written: each reports it after its prefix, and the program goes
    /// on.
    void ExpectFailures(const std::string& path, const std::string& description)
    {
        const std::pair<const char*, std::string> commands[] = {{"cmdExport", "Greška pri izvozu: "},
                                                                {"cmdExportVarlo", "Greška pri exportu: "}};
        const SaveAnswers save(path);
        for (const auto& [button, prefix] : commands)
        {
            MessageAnswers answers;
            Press(Window, button);
            EXPECT_EQ(TakeUncaughtError(), "") << button;
            const MessageShown message = answers.TakeOnly();
            EXPECT_EQ(message.Text, prefix + description);
            EXPECT_EQ(message.Title, "Varlostudiji");
            EXPECT_TRUE(message.Has(wxICON_ERROR | wxOK)) << button;
            EXPECT_FALSE(message.Has(wxCANCEL));
        }
        ExpectStillWorks();
    }

    void ExpectStillWorks()
    {
        EXPECT_EQ(FindOpen<frmMain>(), Window);
        Choose(Box("cboProgram"), "BEV");
        EXPECT_EQ(Total(), "TOTAL;Sve;2;0;2;6;1");
        Choose(Box("cboProgram"), "LOR");
    }

    std::string Older()
    {
        WriteBytes(Folder.Path() / "older.csv", "older");
        return Folder.PathOf("older.csv");
    }

    void ExpectOlderUnharmed()
    {
        EXPECT_EQ(ReadBytes(Folder.Path() / "older.csv"), "older");
        EXPECT_EQ(EntriesOf(Folder.Path()), (Texts{"Varlostudiji", "older.csv"}))
            << "no temporary file stays";
    }
};

TEST_F(FailingExport, APathThatIsAFolder)
{
    Open();
    const std::string path = Folder.PathOf("Varlostudiji");
    ExpectFailures(path, "Umjesto datoteke ondje je mapa istoga imena: " + path);
    EXPECT_EQ(EntriesOf(Folder.Data()).size(), 7U);
}

TEST_F(FailingExport, AFolderThatIsMissing)
{
    Open();
    const std::string path = Folder.PathOf("missing/s.csv");
    ExpectFailures(path, "Datoteka ili mapa nije pronađena: " + path);
    EXPECT_EQ(EntriesOf(Folder.Path()), Texts{"Varlostudiji"});
}

TEST_F(FailingExport, AnOlderFileMarkedReadOnlyStaysAsItIs)
{
    Open();
    const std::string path = Older();
    using std::filesystem::perms;
    constexpr perms write = perms::owner_write | perms::group_write | perms::others_write;
    std::filesystem::permissions(Folder.Path() / "older.csv", write, std::filesystem::perm_options::remove);
    ExpectFailures(
        path,
        "Pristup nije dopušten; datoteka je možda zaštićena od pisanja ili otvorena u drugom programu: " +
            path);
    std::filesystem::permissions(Folder.Path() / "older.csv", write, std::filesystem::perm_options::add);
    ExpectOlderUnharmed();
}

TEST_F(FailingExport, ATemporaryNameThatIsTakenByAFolderLeavesTheOlderFile)
{
    Open();
    const std::string path = Older();
    std::filesystem::create_directory(TemporaryNameFor(Folder.Path() / "older.csv"));
    const SaveAnswers save(path);
    MessageAnswers answers;
    Press(Window, "cmdExport");
    EXPECT_EQ(answers.TakeOnly().Text.find("Greška pri izvozu: "), 0U);
    EXPECT_EQ(ReadBytes(Folder.Path() / "older.csv"), "older");
    ExpectStillWorks();
}

TEST_F(FailingExport, AFolderNameThatNoSystemTakes)
{
    Open();
    const SaveAnswers save(Folder.PathOf(std::string(300, 'a') + "/s.csv"));
    for (const char* button : {"cmdExport", "cmdExportVarlo"})
    {
        MessageAnswers answers;
        Press(Window, button);
        EXPECT_EQ(TakeUncaughtError(), "") << button;
        ASSERT_EQ(answers.Shown().size(), 1U) << button;
        EXPECT_EQ(answers.Shown().front().Text.find("Greška pri "), 0U);
    }
    ExpectStillWorks();
}

#ifndef _WIN32
// Windows has no device that is always full, and allows new files in a read-only folder.

TEST_F(FailingExport, AFullDevice)
{
    Open();
    ExpectFailures("/dev/full", "Na disku nema dovoljno mjesta: /dev/full");
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
    EXPECT_FALSE(std::filesystem::exists(TemporaryNameFor("/dev/full")));
}

TEST_F(FailingExport, AReadOnlyFolder)
{
    Open();
    const std::string path = Older();
    using std::filesystem::perms;
    constexpr perms write = perms::owner_write | perms::group_write | perms::others_write;
    std::filesystem::permissions(Folder.Path(), write, std::filesystem::perm_options::remove);
    ExpectFailures(
        path,
        "Pristup nije dopušten; datoteka je možda zaštićena od pisanja ili otvorena u drugom programu: " +
            path);
    std::filesystem::permissions(Folder.Path(), perms::owner_write, std::filesystem::perm_options::add);
    ExpectOlderUnharmed();
}
#else
// Other systems allow replacing a file that another program has open.

TEST_F(FailingExport, AFileThatAnotherProgramHasLocked)
{
    Open();
    const std::string path = Older();
    HANDLE lock = CreateFileW((Folder.Path() / "older.csv").c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING,
                              FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(lock, INVALID_HANDLE_VALUE);
    ExpectFailures(
        path,
        "Pristup nije dopušten; datoteka je možda zaštićena od pisanja ili otvorena u drugom programu: " +
            path);
    CloseHandle(lock);
    ExpectOlderUnharmed();
}
#endif

// Faulty numbers: at start-up and exit they end the program, in an export they are reported.

TEST_F(FailingExport, ATypeMismatchWhileTheDataAreChecked)
{
    Open();
    modData::Nastavnici.Append({"9", "Bez zavoda", "", "x7"});
    const SaveAnswers save(Folder.PathOf("s.csv"));
    MessageAnswers answers;
    Press(Window, "cmdExport");
    EXPECT_EQ(TakeUncaughtError(), "");
    const MessageShown message = answers.TakeOnly();
    EXPECT_EQ(message.Text, "Greška pri izvozu: Vrijednost \"x7\" nije broj (datoteka "
                            "db_nastavnici.csv, redak unesen u programu, stupac \"ZavodID\").");
    EXPECT_TRUE(message.Has(wxICON_ERROR | wxOK));
    EXPECT_TRUE(save.Shown().empty());
    ExpectStillWorks();
}

TEST_F(FailingExport, AnOverflowWhileTheGridsAreRefreshed)
{
    Open();
    modData::Kolegiji.Append({"6", "Predug", "99999999999", "0", "0", "1", "obvezni", "1", "1"});
    modData::KolegijSmjerovi.Append({"6", "1"});
    const std::string path = Older();
    const SaveAnswers save(path);
    MessageAnswers answers;
    Press(Window, "cmdExport");
    EXPECT_EQ(TakeUncaughtError(), "");
    const MessageShown message = answers.TakeOnly();
    EXPECT_EQ(message.Text.find("Greška pri izvozu: Broj \"99999999999\" je izvan dopuštenog raspona"), 0U)
        << message.Text;
    EXPECT_EQ(save.Shown().size(), 1U);
    ExpectOlderUnharmed();
    EXPECT_EQ(FindOpen<frmMain>(), Window);
}

TEST_F(FailingExport, ATypeMismatchInTheCatalogue)
{
    Open();
    modData::Kolegiji.Append({"6", "K", "1", "0", "0", "1", "obvezni", "1", "LOR"});
    const std::string path = Older();
    const SaveAnswers save(path);
    MessageAnswers answers;
    Press(Window, "cmdExportVarlo");
    EXPECT_EQ(TakeUncaughtError(), "");
    EXPECT_EQ(answers.TakeOnly().Text, "Greška pri exportu: Vrijednost \"LOR\" nije broj (datoteka "
                                       "db_kolegij.csv, redak unesen u programu, stupac \"StudijID\").");
    ExpectOlderUnharmed();
}

// The demo catalogue, compared with files from an independent script

TEST_F(StatistikaPanel, TheDemoCatalogueGivesTheExpectedFiles)
{
    OpenDemo();
    EXPECT_EQ(Export("cmdExport", "s.csv"), ExpectedFile("statistika_Preddiplomski_LOR_Svi_Svi.csv"));
    Choose(Box("cboRazina"), "Diplomski");
    Choose(Box("cboSmjer"), "OP");
    Choose(Box("cboSemestar"), "2");
    EXPECT_EQ(Export("cmdExport", "s.csv"), ExpectedFile("statistika_Diplomski_LOR_OP_2.csv"));
    EXPECT_EQ(Export("cmdExportVarlo", "k.csv"), ExpectedFile("kolegiji_export.csv"));
}

} // namespace

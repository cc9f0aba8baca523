// The messages when an operation on a file fails while the windows save and export.

#include "data/Files.h"
#include "data/modData.h"
#include "ects/frmECTSCalc.h"
#include "support/Catalogue.h"
#include "support/TestFolder.h"
#include "support/WatchedFiles.h"
#include "support/Windows.h"
#include "ui/department_stats/frmStatZavodi.h"
#include "ui/lecturer_stats/frmStatNositelji.h"
#include "ui/main/frmMain.h"

#include <wx/msgdlg.h>

#include <algorithm>

namespace
{

/// The first operation of a kind fails; the result of that.
struct WriteFault
{
    FileOperation::Kind What;
    const char* Number;
    const char* Text;
};

constexpr const char* NotAllowed =
    "Pristup nije dopušten; datoteka je možda zaštićena od pisanja ili otvorena u drugom programu: ";
constexpr const char* Full = "Na disku nema dovoljno mjesta: ";
constexpr const char* Failed = "Greška pri čitanju ili pisanju: ";

constexpr WriteFault ExportFaults[] = {
    {FileOperation::Open, "70", NotAllowed},
    {FileOperation::Write, "61", Full},
    {FileOperation::Flush, "57", Failed},
    {FileOperation::Rename, "70", NotAllowed},
};

/// The number, from 1, of the first operation of a kind among those of an action.
template<typename Action>
std::size_t PlaceOf(FileOperation::Kind what, Action action)
{
    const WatchedFiles watched;
    action();
    const auto found = std::ranges::find(watched.Made(), what, &FileOperation::What);
    EXPECT_NE(found, watched.Made().end());
    return static_cast<std::size_t>(found - watched.Made().begin()) + 1;
}

class WriteFailureWindow : public testing::Test
{
protected:
    /// Opens the main window on files that each differ from what is saved.
    void Open()
    {
        SmallCatalogue().WriteTo(Folder.Data());
        for (const std::string& name : EntriesOf(Folder.Data()))
            WriteBytes(Folder.Data() / name, ReadBytes(Folder.Data() / name) + "\r\n");
        Main = new frmMain;
        Main->Form_Load();
        Settle();
    }

    void TearDown() override { CloseAllWindows(); }

    bool IsOld(const char* name) { return ReadBytes(Folder.Data() / name).ends_with("\r\n\r\n"); }

    /// Leaves by `leave` with a disk that fills up while the set is written: the error is not caught, and the
    /// window shows nothing.
    void ExpectSaveFailure(void (*leave)(frmMain*))
    {
        Open();
        const std::size_t write = PlaceOf(FileOperation::Write, modData::SaveAllTables);
        std::filesystem::remove_all(Folder.Data());
        std::filesystem::create_directory(Folder.Data());
        CloseAllWindows();
        Open();
        const MessageAnswers answers;
        {
            const WatchedFiles failing(write);
            leave(Main);
        }
        EXPECT_EQ(TakeUncaughtError(),
                  "61: " + std::string(Full) + PathIn(Folder.DataPath("spremanje"), "db_zavod.csv"));
        EXPECT_TRUE(answers.Shown().empty());
        EXPECT_TRUE(IsOld("db_zavod.csv"));
        EXPECT_EQ(EntriesOf(Folder.Data()).size(), 7U);
    }

    /// Exports by a button with each fault, and passes the message to `check`.
    template<typename Check>
    void FailExports(wxWindow* window, const char* button, Check check)
    {
        const std::filesystem::path older = Folder.Path() / "older.csv";
        WriteBytes(older, "older");
        const SaveAnswers save(Folder.PathOf("older.csv"));
        for (const WriteFault& fault : ExportFaults)
        {
            SCOPED_TRACE(testing::Message() << button << ", " << NameOf(fault.What));
            const std::size_t place = PlaceOf(fault.What,
                                              [&]
                                              {
                                                  const MessageAnswers success;
                                                  Press(window, button);
                                              });
            WriteBytes(older, "older");
            MessageAnswers answers;
            {
                const WatchedFiles failing(place);
                Press(window, button);
            }
            check(fault, answers);
            EXPECT_EQ(ReadBytes(older), "older");
            EXPECT_EQ(EntriesOf(Folder.Path()), (std::vector<std::string>{"Varlostudiji", "older.csv"}));
            EXPECT_TRUE(FindOpen<frmMain>() != nullptr);
        }
    }

    /// An export that reports its errors itself and goes on.
    void ExpectMessage(wxWindow* window, const char* button, const std::string& prefix, const char* title,
                       long icon)
    {
        FailExports(window, button,
                    [&](const WriteFault& fault, MessageAnswers& answers)
                    {
                        EXPECT_EQ(TakeUncaughtError(), "");
                        const MessageShown message = answers.TakeOnly();
                        EXPECT_EQ(message.Text, prefix + fault.Text + Folder.PathOf("older.csv"));
                        EXPECT_EQ(message.Title, title);
                        EXPECT_TRUE(message.Has(icon | wxOK));
                    });
    }

    /// An export whose error ends the program.
    void ExpectUncaught(wxWindow* window)
    {
        FailExports(window, "cmdExportAllStat",
                    [&](const WriteFault& fault, MessageAnswers& answers)
                    {
                        EXPECT_EQ(TakeUncaughtError(),
                                  std::string(fault.Number) + ": " + fault.Text + Folder.PathOf("older.csv"));
                        EXPECT_TRUE(answers.Shown().empty());
                    });
    }

    TestFolder Folder;
    frmMain* Main = nullptr;
};

void LeaveByButton(frmMain* window)
{
    Press(window, "cmdExit");
}

void LeaveByCloseBox(frmMain* window)
{
    window->Close();
    Settle();
}

TEST_F(WriteFailureWindow, ASaveOfTheExitButton)
{
    ExpectSaveFailure(LeaveByButton);
}

TEST_F(WriteFailureWindow, ASaveOfTheCloseBox)
{
    ExpectSaveFailure(LeaveByCloseBox);
}

TEST_F(WriteFailureWindow, InvalidDataAtTheExitTouchNothing)
{
    for (const auto leave : {LeaveByButton, LeaveByCloseBox})
    {
        Open();
        modData::KolegijSmjerovi.Append({"99", "1"});
        MessageAnswers answers;
        const WatchedFiles watched;
        leave(Main);
        EXPECT_EQ(answers.TakeOnly().Text,
                  "CSV podaci nisu ispravni. Ispravite greške prije izvoza statistike.");
        EXPECT_TRUE(watched.Effects(Folder.Data()).empty());
        EXPECT_TRUE(std::ranges::none_of(watched.Made(), [](const FileOperation& operation)
                                         { return operation.What == FileOperation::Lock; }));
        EXPECT_EQ(EntriesOf(Folder.Data()).size(), 7U);
        CloseAllWindows();
    }
}

TEST_F(WriteFailureWindow, AMissingDataFolderIsMadeAndEverythingSaved)
{
    Open();
    std::filesystem::remove_all(Folder.Data());
    const MessageAnswers answers;
    Press(Main, "cmdExit");
    EXPECT_EQ(TakeUncaughtError(), "");
    EXPECT_TRUE(answers.Shown().empty());
    EXPECT_TRUE(wxTopLevelWindows.empty());
    EXPECT_EQ(EntriesOf(Folder.Data()).size(), 7U);
    EXPECT_NE(ReadBytes(Folder.Data() / "db_kolegij.csv").find("Uvod u lov"), std::string::npos);
}

TEST_F(WriteFailureWindow, TheExportsOfTheMainWindow)
{
    Open();
    ExpectMessage(Main, "cmdExport", "Greška pri izvozu: ", "Varlostudiji", wxICON_ERROR);
    ExpectMessage(Main, "cmdExportVarlo", "Greška pri exportu: ", "Varlostudiji", wxICON_ERROR);
}

TEST_F(WriteFailureWindow, TheReportOfTheCalculator)
{
    Open();
    Press(Main, "cmdECTSCalc");
    ExpectMessage(FindOpen<frmECTSCalc>(), "cmdExport", "Greška kod izvoza: ", "Export", wxICON_EXCLAMATION);
}

TEST_F(WriteFailureWindow, TheExportOfAllLecturers)
{
    Open();
    Press(Main, "cmdStatNositelji");
    ExpectUncaught(FindOpen<frmStatNositelji>());
}

TEST_F(WriteFailureWindow, TheExportOfAllDepartments)
{
    Open();
    Press(Main, "cmdStatZavodi");
    ExpectUncaught(FindOpen<frmStatZavodi>());
}

} // namespace

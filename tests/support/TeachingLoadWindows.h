#pragma once

#include "data/modData.h"
#include "support/Catalogue.h"
#include "support/ListWindow.h"
#include "support/TeachingLoadChecks.h"
#include "support/Windows.h"
#include "ui/department_stats/frmStatZavodi.h"
#include "ui/lecturer_stats/frmStatNositelji.h"
#include "ui/main/frmMain.h"

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/stattext.h>
#include <wx/uiaction.h>

#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

// Shared by the tests of the two windows of teaching load.

inline const std::vector<ExpectedColumn> TaughtCourseColumnsExpected = {
    {"Kolegij", 2200}, {"P", 500},   {"S", 500},      {"V", 500},         {"ECTS", 700},
    {"Tip", 1200},     {"Sem", 600}, {"Studij", 800}, {"Nositelji", 2500}};

/// The rows of a list as shown, the cells joined by ";".
inline std::vector<std::string> ShownRows(const ListView* list)
{
    std::vector<std::string> rows;
    for (int row = 0; row < list->RowCount(); ++row)
    {
        std::string line = list->CellText(row, 0).utf8_string();
        for (int column = 1; column < list->ColumnCount(); ++column)
            line += ";" + list->CellText(row, column).utf8_string();
        rows.push_back(line);
    }
    return rows;
}

/// Goes to the next entry of a box by the keyboard.
inline void GoDown(wxControlWithItems* box)
{
    const int next = box->GetSelection() + 1;
    Focus(box);
    wxUIActionSimulator().Char(WXK_DOWN);
    WaitUntil([&] { return box->GetSelection() == next; });
}

// What tells the two windows apart.

struct LecturersLoad
{
    using Window = frmStatNositelji;
    static constexpr const char* Button = "cmdStatNositelji";
    static constexpr const char* DialogTitle = "Spremi statistiku nastavnika";
    static constexpr const char* ExportName = "statistika_svi_nastavnici.csv";
    static constexpr const char* Success = "Statistika za sve nastavnike je eksportirana u:";
    static constexpr std::size_t Count = 3; ///< Of lecturers in the small catalogue.

    /// Makes the export of the small catalogue fail with the error given.
    static void SpoilTables()
    {
        modData::Kolegiji.Append({"6", "Loš", "1", "0", "0", "1", "obvezni", "prvi", "1"});
        modData::KolegijNastavnici.Append({"6", "1", "Nositelj", "1"});
    }
    static constexpr const char* Error = "13: Vrijednost \"prvi\" nije broj";
};

struct DepartmentsLoad
{
    using Window = frmStatZavodi;
    static constexpr const char* Button = "cmdStatZavodi";
    static constexpr const char* DialogTitle = "Spremi statistiku zavoda";
    static constexpr const char* ExportName = "statistika_svi_zavodi.csv";
    static constexpr const char* Success = "Statistika za sve zavode je eksportirana u:";
    static constexpr std::size_t Count = 2; ///< Of departments in the small catalogue.

    /// Makes the export of the small catalogue fail with the error given.
    static void SpoilTables() { modData::Nastavnici.Append({"9", "Bez zavoda", ""}); }
    static constexpr const char* Error = "9: ";
};

/// A main window with a test's data, and the window of teaching load that a button opens.
template<typename Load>
class TeachingLoadWindowTest : public testing::Test
{
protected:
    using Window = typename Load::Window;

    void TearDown() override { CloseAllWindows(); }

    void OpenMain(const Catalogue& catalogue = SmallCatalogue())
    {
        catalogue.WriteTo(Folder.Data());
        const MessageAnswers warning; // about invalid data
        Main = new frmMain;
        Main->Form_Load();
        Settle();
    }

    void Open(const Catalogue& catalogue = SmallCatalogue())
    {
        OpenMain(catalogue);
        PressOpen();
    }

    void OpenDemo()
    {
        CopyDemo(Folder);
        Main = new frmMain;
        Main->Form_Load();
        PressOpen();
    }

    void PressOpen()
    {
        Press(Main, Load::Button);
        Stat = FindOpen<Window>();
        if (Stat == nullptr)
            throw std::runtime_error("no window of load is open");
    }

    wxChoice* Box(const char* name) { return Find<wxChoice>(Stat, name); }
    ListView* List(const char* name) { return Find<ListView>(Stat, name); }
    std::string Chosen(const char* box) { return Box(box)->GetStringSelection().utf8_string(); }

    /// Deletes the course at a row of the main window's list.
    void DeleteInMain(int row)
    {
        const MessageAnswers yes(wxID_YES);
        Find<ListView>(Main, "lvwKolegiji")->SelectRow(row);
        Press(Main, "cmdDelete");
    }

    /// Presses the export button; the Save dialog is answered with a path.
    void PressExport(const std::string& path)
    {
        const SaveAnswers save(path);
        auto* button = Find<wxButton>(Stat, "cmdExportAllStat");
        wxCommandEvent event(wxEVT_BUTTON, button->GetId());
        event.SetEventObject(button);
        button->GetEventHandler()->SafelyProcessEvent(event);
    }

    /// Exports to a path; checks that the message says so and names `written`.
    void ExpectWritten(const std::string& path, const std::string& written)
    {
        MessageAnswers answers;
        PressExport(path);
        const MessageShown message = answers.TakeOnly();
        EXPECT_EQ(message.Text, Load::Success + ("\r\n" + written));
        EXPECT_EQ(message.Title, "Izvoz završen");
        EXPECT_TRUE(message.Has(wxICON_INFORMATION | wxOK));
        EXPECT_FALSE(message.Has(wxCANCEL));
        EXPECT_EQ(TakeUncaughtError(), "");
    }

    /// The lines that an export writes for one lecturer or department, from 0, without the name before them.
    static std::vector<std::string> BlockOf(const std::vector<std::string>& lines, int position)
    {
        std::vector<std::string> block;
        for (std::size_t i = 1 + 16 * static_cast<std::size_t>(position); block.size() < 15; ++i)
            block.push_back(lines.at(i).substr(lines.at(i).find(';') + 1));
        return block;
    }

    std::vector<std::string> FilesWritten()
    {
        std::vector<std::string> names = EntriesOf(Folder.Path());
        std::erase(names, "Varlostudiji");
        return names;
    }

    TestFolder Folder;
    frmMain* Main = nullptr;
    Window* Stat = nullptr;
};

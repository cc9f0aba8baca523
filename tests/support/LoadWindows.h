#pragma once

#include "support/Catalogue.h"
#include "support/LoadChecks.h"
#include "support/Windows.h"
#include "ui/main/frmMain.h"

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/stattext.h>
#include <wx/uiaction.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

// What the tests of the two windows of teaching load share.

struct ExpectedColumn
{
    const char* Caption;
    int Twips;
};

inline const std::vector<ExpectedColumn> TaughtCourseColumnsExpected = {
    {"Kolegij", 2200}, {"P", 500},   {"S", 500},      {"V", 500},         {"ECTS", 700},
    {"Tip", 1200},     {"Sem", 600}, {"Studij", 800}, {"Nositelji", 2500}};

inline void ExpectColumns(const ListView* list, const std::vector<ExpectedColumn>& expected)
{
    ASSERT_EQ(list->ColumnCount(), static_cast<int>(expected.size()));
    for (int i = 0; i < list->ColumnCount(); ++i)
    {
        const ExpectedColumn& column = expected[static_cast<std::size_t>(i)];
        EXPECT_EQ(list->ColumnCaption(i), column.Caption);
        // A caption that does not fit makes its column wider, by no more than it needs where it is bold.
        const wxFont bold = list->GetFont().Bold();
        wxSize caption;
        list->GetTextExtent(column.Caption, &caption.x, &caption.y, nullptr, nullptr, &bold);
        EXPECT_GE(list->ColumnWidth(i), list->FromDIP(column.Twips / 15)) << column.Caption;
        EXPECT_LE(list->ColumnWidth(i),
                  std::max(list->FromDIP(column.Twips / 15), caption.x) + list->FromDIP(40))
            << column.Caption;
    }
}

/// The rows of a list as it shows them, the cells joined by ";".
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

/// Raises the event of a choice that the user has made, without waiting for anything.
inline void RaiseChosen(wxControlWithItems* box, wxEventType type)
{
    wxCommandEvent event(type, box->GetId());
    event.SetEventObject(box);
    event.SetInt(box->GetSelection());
    event.SetString(box->GetStringSelection());
    box->GetEventHandler()->SafelyProcessEvent(event);
}

/// Selects an entry of a drop-down list or list box as a click does, without waiting for anything.
inline void SelectAt(wxControlWithItems* box, int position)
{
    if (position >= static_cast<int>(box->GetCount()))
        throw std::runtime_error("no entry " + std::to_string(position));
    box->SetSelection(position);
    RaiseChosen(box, dynamic_cast<wxListBox*>(box) != nullptr ? wxEVT_LISTBOX : wxEVT_CHOICE);
}

/// Selects an entry of a list box by its text, as a click does.
inline void SelectEntry(wxListBox* list, const char* entry)
{
    const int position = list->FindString(wxString::FromUTF8(entry), true);
    if (position == wxNOT_FOUND)
        throw std::runtime_error(std::string("no entry ") + entry);
    SelectAt(list, position);
    Settle();
}

/// Clicks with the mouse on the first entry of a list box.
inline void ClickFirst(wxListBox* list)
{
    wxUIActionSimulator simulator;
    simulator.MouseMove(list->ClientToScreen(wxPoint(list->FromDIP(20), list->FromDIP(10))));
    Settle();
    simulator.MouseClick();
    Settle();
}

/// A main window on a test's data, and the window of load that its button opens.
template<typename Window>
class LoadWindowTest : public testing::Test
{
protected:
    explicit LoadWindowTest(const char* button) : Button(button) {}

    void TearDown() override { CloseAllWindows(); }

    void OpenMain(const Catalogue& catalogue = SmallCatalogue())
    {
        catalogue.WriteTo(Folder.Data());
        const MessageAnswers warning; // of data that are not valid
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
        Press(Main, Button);
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

    /// Presses the export button, the Save dialog answered with a path.
    void PressExport(const std::string& path)
    {
        const SaveAnswers save(path);
        auto* button = Find<wxButton>(Stat, "cmdExportAllStat");
        wxCommandEvent event(wxEVT_BUTTON, button->GetId());
        event.SetEventObject(button);
        button->GetEventHandler()->SafelyProcessEvent(event);
    }

    /// Exports to a path; the message box's text says so and names `written`.
    void ExpectExported(const std::string& path, const std::string& text, const std::string& written)
    {
        MessageAnswers answers;
        PressExport(path);
        const MessageShown message = answers.TakeOnly();
        EXPECT_EQ(message.Text, text + "\r\n" + written);
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

    const char* Button;
    TestFolder Folder;
    frmMain* Main = nullptr;
    Window* Stat = nullptr;
};

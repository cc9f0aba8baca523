#pragma once

#include "ui/controls/SaveDialog.h"
#include "ui/main/CourseList.h"
#include "ui/main/StatistikaExport.h"

#include <wx/frame.h>

#include <cstdint>
#include <optional>
#include <string_view>

class ListView;
class wxButton;
class wxChoice;
class wxKeyEvent;
class wxPanel;
class wxSizer;
class wxStaticText;
class wxTextCtrl;

/// The main window: filter boxes, course list, semester sums, and the exit that saves.
class frmMain : public wxFrame
{
public:
    frmMain();

    /// Loads and checks the tables, fills the window and shows it. Called once. @throws RuntimeError
    void Form_Load();

    /// Rebuilds the course list from the tables and the filter boxes.
    void RefreshListView();

    /// Refreshes the lists, then writes the semester sums as shown. @throws RuntimeError
    void ExportStatistika_SelectedToCSV(std::string_view path);

private:
    // Layout
    wxSizer* FilterRow();
    wxSizer* CommandColumn();
    void BindEvents();
    void SetAccelerators();

    // Lists and filter boxes
    void SetupKolegijiColumns();
    void SetupStatistikaColumns();
    void FillRazinaCombo();
    void FillProgramCombo();
    void FillSmjerCombo();
    void FillSemestarCombo();
    CourseFilter CurrentFilter() const;
    StatistikaFilters ShownFilters() const;
    void RefreshListView(const CourseFilter& filter, Search& search,
                         const std::optional<CourseMark>& selected);
    void RefreshStatistika(CourseFilter filter, Search& search);
    void RefreshGrids() { RefreshGrids(SelectedCourse()); }
    /// As above; selects the course, if it is shown.
    void RefreshGrids(const std::optional<CourseMark>& selected);

    /// Moves the focus to the search text and selects it.
    void FindText();
    /// Moves the focus to the first course, if there is one, and selects it.
    void GoToFirstCourse();

    // Events. Those of keys return true if the key is handled.
    void cboRazina_Click();
    void cboProgram_Click();
    void cboSmjer_Click();
    void cboSemestar_Click();
    void txtSearch_Change();
    bool txtSearch_KeyDown(const wxKeyEvent& key);
    void lvwKolegiji_ColumnClick(int column);
    void lvwKolegiji_DblClick();
    bool lvwKolegiji_KeyDown(const wxKeyEvent& key);
    void lvwStatistika_ColumnClick(int column);
    void cmdAdd_Click();
    void cmdEdit_Click();
    void cmdDelete_Click();
    void cmdStatNositelji_Click();
    void cmdStatZavodi_Click();
    void cmdECTSCalc_Click();
    void cmdAbout_Click();
    void cmdExport_Click();
    void cmdExportVarlo_Click();
    void cmdExit_Click();
    void Form_Unload();

    /// The ID in the selected row's first column; nothing without a selection.
    std::optional<std::int32_t> SelectedKolegijID() const;
    std::optional<CourseMark> SelectedCourse() const;
    /// The next course after the selected one with another ID; if there is none, the nearest before it.
    std::optional<CourseMark> CourseBesideSelected() const;
    /// Selects the last course of the table and scrolls to it, if it is shown.
    void SelectNewCourse();
    void UnloadOtherWindows();

    bool FormReady = false; ///< False until the filter boxes are filled; the lists are filled after that.
    bool m_unloading = false;
    const CourseListModel* m_courses = nullptr; ///< The course list's model, which the list owns.

    // Controls
    wxPanel* Panel;
    wxChoice* cboRazina;
    wxChoice* cboProgram;
    wxChoice* cboSmjer;
    wxChoice* cboSemestar;
    wxStaticText* Label1;
    wxTextCtrl* txtSearch;
    ListView* lvwKolegiji;
    ListView* lvwStatistika;
    wxButton* cmdAdd;
    wxButton* cmdEdit;
    wxButton* cmdDelete;
    wxButton* cmdStatNositelji;
    wxButton* cmdStatZavodi;
    wxButton* cmdExport;
    wxButton* cmdExportVarlo;
    wxButton* cmdECTSCalc;
    wxButton* cmdAbout;
    wxButton* cmdExit;
    SaveDialogOptions cdlSave;
};

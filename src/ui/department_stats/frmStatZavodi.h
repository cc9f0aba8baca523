#pragma once

#include "data/System.h"
#include "ui/controls/SaveDialog.h"
#include "ui/department_stats/DepartmentStatistics.h"

#include <wx/frame.h>

class ListView;
class wxButton;
class wxChoice;
class wxListBox;
class wxPanel;
class wxSizer;
class wxStaticText;

/// The teaching load of one department: the courses of its lecturers, and the sums per semester and type.
/// Modeless, one for the program.
class frmStatZavodi : public wxFrame
{
public:
    explicit frmStatZavodi(wxWindow* parent);

private:
    // Layout
    wxSizer* FilterRow();
    wxSizer* Grids();
    wxSizer* Buttons();
    void BindEvents();

    DepartmentFilter CurrentFilter() const;
    void ShowSelected();

    // Events
    void Form_Load();
    void cboRazina_Click();
    void cboZavodi_Click();
    void lstSemestri_Click();
    void lvwKolegiji_ColumnClick(int column);
    void lvwStatZavod_ColumnClick(int column);
    void cmdExportAllStat_Click();
    void cmdClose_Click();

    // Controls
    wxPanel* Panel;
    wxStaticText* Label1;
    wxStaticText* Label2;
    wxStaticText* Label3;
    wxChoice* cboRazina;
    wxChoice* cboZavodi;
    wxListBox* lstSemestri;
    ListView* lvwKolegiji;
    ListView* lvwStatZavod;
    wxButton* cmdExportAllStat;
    wxButton* cmdClose;
    SaveDialogOptions cdlSave{.InitialFolder = System::ProgramFolder(), .FileToWrite = WithCsvEnding};
};

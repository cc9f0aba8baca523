#pragma once

#include "data/System.h"
#include "ui/controls/SaveDialog.h"
#include "ui/lecturer_stats/LecturerStatistics.h"

#include <wx/frame.h>

#include <cstdint>

class ListView;
class wxButton;
class wxChoice;
class wxListBox;
class wxPanel;
class wxSizer;
class wxStaticText;

/// The teaching load of one lecturer: the courses, and the sums per semester and type. Modeless, one for the
/// program.
class frmStatNositelji : public wxFrame
{
public:
    explicit frmStatNositelji(wxWindow* parent);

private:
    // Layout
    wxSizer* NastavniciColumn();
    wxSizer* FilterRow();
    wxSizer* Buttons();
    void BindEvents();

    LecturerFilter CurrentFilter() const;
    void ShowSelected();

    // Events
    void Form_Load();
    void lstNastavnici_Click();
    void cboRazina_Click();
    void cboProgram_Click();
    void lvwKolegiji_ColumnClick(int column);
    void lvwStat_ColumnClick(int column);
    void cmdExportAllStat_Click();
    void cmdClose_Click();

    std::int32_t m_selectedNastavnikID = 0; ///< From the last click in the list.

    // Controls
    wxPanel* Panel;
    wxStaticText* Label1;
    wxStaticText* Label2;
    wxStaticText* Label3;
    wxListBox* lstNastavnici;
    wxChoice* cboRazina;
    wxChoice* cboProgram;
    ListView* lvwKolegiji;
    ListView* lvwStat;
    wxButton* cmdExportAllStat;
    wxButton* cmdClose;
    SaveDialogOptions cdlSave{.InitialFolder = System::ProgramFolder(), .FileToWrite = WithCsvEnding};
};

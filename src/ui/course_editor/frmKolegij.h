#pragma once

#include "data/Choice.h"
#include "ui/course_editor/CourseEntry.h"

#include <wx/dialog.h>

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class wxButton;
class wxChoice;
class wxComboBox;
class wxItemContainer;
class wxListBox;
class wxSizer;
class wxTextCtrl;

/// The dialog in which one course, its directions and its holders are entered or changed. It changes the
/// tables only, when the user saves. Its caller sets the four properties, then shows it modally.
class frmKolegij : public wxDialog
{
public:
    explicit frmKolegij(wxWindow* parent);

    // What to edit

    std::string Mode = "ADD";       ///< "ADD" for a new course, "EDIT" for one of the table.
    std::int32_t EditKolegijID = 0; ///< The course to change, in "EDIT" mode only.
    std::string StartRazina;        ///< The level to start with.
    std::int32_t StartStudijID = 0; ///< The study to start with; 0 for none.

    /// Fills the dialog by its properties, centres it and shows it until it is saved or cancelled.
    /// @throws DataError for a row that it needs and cannot read
    int ShowModal() override;

private:
    // Layout
    wxSizer* Fields();
    wxSizer* Lists();
    wxSizer* Buttons();
    void BindEvents();

    // Filling
    void Form_Load();
    void FillRazinaCombo();
    void FillProgramCombo();
    void FillSemestarList();
    void FillSmjerList();
    void ShowKolegij(const CourseEntry& entry);

    // Events
    void cboRazina_Click();
    void cboProgram_Click();
    void cmdSave_Click();
    void cmdCancel_Click();

    CourseEntry CurrentEntry() const;
    wxWindow* ControlOf(EntryField field) const;

    std::string m_currentRazina;
    std::int32_t m_currentStudijID = 0;

    // Controls
    wxTextCtrl* txtNaziv;
    wxChoice* cboRazina;
    wxChoice* cboProgram;
    wxTextCtrl* txtP;
    wxTextCtrl* txtS;
    wxTextCtrl* txtV;
    wxTextCtrl* txtECTS;
    wxComboBox* cboObvezniIzborni;
    wxListBox* lstSemestar;
    wxListBox* lstSmjerovi;
    std::array<wxListBox*, NositeljPlaces> lstNastavnik; ///< By place, from the first.
    wxButton* cmdSave;
    wxButton* cmdCancel;
};

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

/// The dialog to enter or change a course, its directions and its holders. The tables change only when the
/// user saves. The caller sets the four properties, then shows the dialog modally.
class frmKolegij : public wxDialog
{
public:
    explicit frmKolegij(wxWindow* parent);

    // What to edit

    std::string Mode = "ADD";       ///< "ADD" for a new course, "EDIT" for an existing one.
    std::int32_t EditKolegijID = 0; ///< The course to change; only for "EDIT".
    std::string StartRazina;        ///< The level to start with.
    std::int32_t StartStudijID = 0; ///< The study to start with; 0 for none.

    /// Fills the dialog from its properties, centres it, and shows it until the user saves or cancels.
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
    std::array<wxListBox*, NositeljPlaces> lstNastavnik; ///< By place; index 0 is place 1.
    wxButton* cmdSave;
    wxButton* cmdCancel;
};

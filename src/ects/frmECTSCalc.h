#pragma once

#include "ects/WorkloadModel.h"
#include "ui/controls/SaveDialog.h"

#include <wx/frame.h>

#include <array>
#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class wxButton;
class wxChoice;
class wxRadioButton;
class wxScrolledWindow;
class wxSizer;
class wxStaticBoxSizer;
class wxStaticText;
class wxTextCtrl;

/// The ECTS calculator: a course's workload for a student, the resulting hours and points, and a warning
/// about the entries. Modeless, one for the program; independent of the catalogue.
class frmECTSCalc : public wxFrame
{
public:
    explicit frmECTSCalc(wxWindow* parent);

private:
    // Layout
    wxSizer* CourseFrame();
    wxSizer* ContactFrame();
    wxSizer* LiteratureFrame();
    wxSizer* WrittenFrame();
    wxSizer* OtherMethodsFrame();
    wxSizer* TotalsFrame();
    wxSizer* CommandRow();
    wxTextCtrl* NewField(const std::string& name, std::string& text);
    /// A read-only box. Tab skips it, so that it goes from entry to entry.
    wxTextCtrl* NewOutput(const std::string& name, std::string& text);
    wxTextCtrl* AddField(wxTextCtrl* box, std::string& text);
    void AddOptions(wxStaticBoxSizer& frame, wxRadioButton*& norm, std::string_view normName,
                    wxRadioButton*& estimate, std::string_view estimateName);
    void FitToScreen(wxSizer& content);
    void BindEvents();
    void OnLostFocus(wxTextCtrl* box, const std::function<void()>& handler);
    void OnLostFocus(std::span<wxTextCtrl* const> boxes, const std::function<void()>& handler);

    void Form_Load();
    void ApplyLiteratureMode();
    void ApplyWrittenMode();

    /// Reads the fields, computes all figures and shows them.
    void Recalculate();
    void ReadFields();
    void ShowFields();

    // Events
    void txtKontaktniSati_LostFocus(std::size_t row);
    void txtSamostalniSati_LostFocus();
    void txtLitStranice_LostFocus();
    void txtLitProcjena_LostFocus();
    void txtOpsegStranice_LostFocus();
    void txtOpsegRijeci_LostFocus();
    void txtPismeniProcjena_LostFocus();
    void txtOstaleMetode_LostFocus();
    void optLitIzracun_Click();
    void optLitProcjena_Click();
    void optPismeniIzracun_Click();
    void optPismeniProcjena_Click();
    void cbo1ECTS_Click();
    void cmdIzracunaj_Click();
    void cmdOcisti_Click();
    void cmdExport_Click();
    void cmdClose_Click();

    /// A text box and the text that it shows.
    struct Field
    {
        wxTextCtrl* Box;
        std::string* Text;
    };

    WorkloadFields m_fields;
    std::vector<Field> m_boxes; ///< Every text box of the window.
    bool m_busy = false;        ///< True while the figures are computed, to prevent recursion.

    wxStaticText* m_widestLabel; ///< The caption that gets a second line on a narrow screen.

    // Controls. An array has no gaps, even where the controls' indices have some.
    wxScrolledWindow* Panel;
    wxTextCtrl* txtNazivKolegija;
    wxTextCtrl* txtNositelj;
    wxTextCtrl* txtKomentar;
    std::array<wxTextCtrl*, 3> txtKontaktniSati;
    std::array<wxTextCtrl*, 3> txtSamostalniSati;
    wxTextCtrl* txtKontaktniUkupno;  ///< Index 3 only.
    wxTextCtrl* txtSamostalniUkupno; ///< Index 3 only.
    wxRadioButton* optLitIzracun;
    wxRadioButton* optLitProcjena;
    std::array<wxTextCtrl*, 4> txtLitStranice;
    std::array<wxTextCtrl*, 4> txtLitIzracun;
    std::array<wxTextCtrl*, 4> txtLitProcjena;
    wxTextCtrl* txtLitUkupno;
    wxRadioButton* optPismeniIzracun;
    wxRadioButton* optPismeniProcjena;
    wxTextCtrl* txtOpsegStranice;
    wxTextCtrl* txtOpsegRijeci;
    wxTextCtrl* txtPismeniIzracun;
    wxTextCtrl* txtPismeniProcjena;
    std::array<wxTextCtrl*, 9> txtOstaleMetode; ///< Indices 0 to 6, 8 and 9.
    wxTextCtrl* txtOstaleMetodeUkupno;
    std::array<wxTextCtrl*, 5> txtUkupnoOpter;
    wxChoice* cbo1ECTS;
    wxStaticText* lblUpozorenje;
    wxButton* cmdIzracunaj;
    wxButton* cmdOcisti;
    wxButton* cmdExport;
    wxButton* cmdClose;
    SaveDialogOptions cdl1{
        .OverwritePrompt = false, .PathMustExist = false, .FileToWrite = WithoutBlanksAround};
};

#include "ects/frmECTSCalc.h"

#include "ects/EctsReport.h"
#include "ects/WorkloadLabels.h"
#include "ui/controls/CenterForm.h"
#include "ui/controls/Choices.h"
#include "ui/controls/DecimalSeparator.h"
#include "ui/controls/ExportCommand.h"
#include "ui/controls/Messages.h"
#include "ui/controls/NativeFields.h"
#include "ui/controls/ReadableColour.h"
#include "ui/controls/Strings.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/radiobut.h>
#include <wx/stattext.h>
#include <wx/textbuf.h>
#include <wx/textctrl.h>

namespace
{

constexpr ExportTexts ReportTexts = {.DialogTitle = "Spremi CSV izvještaj",
                                     .Success = "CSV izvještaj je uspješno spremljen.",
                                     .ErrorPrefix = "Greška kod izvoza: ",
                                     .MessageTitle = "Export",
                                     .SuccessNamesFile = false,
                                     .ShowError = ShowWarning};

/// The text of a box; the user's line breaks become CR LF, as in files.
std::string ShownText(const wxTextCtrl& box)
{
    return ToUtf8(wxTextBuffer::Translate(box.GetValue(), wxTextFileType_Dos));
}

} // namespace

void frmECTSCalc::BindEvents()
{
    for (std::size_t row = 0; row < txtKontaktniSati.size(); ++row)
        OnLostFocus(txtKontaktniSati[row], [this, row] { txtKontaktniSati_LostFocus(row); });
    OnLostFocus(txtSamostalniSati, [this] { txtSamostalniSati_LostFocus(); });
    OnLostFocus(txtLitStranice, [this] { txtLitStranice_LostFocus(); });
    OnLostFocus(txtLitProcjena, [this] { txtLitProcjena_LostFocus(); });
    OnLostFocus(txtOpsegStranice, [this] { txtOpsegStranice_LostFocus(); });
    OnLostFocus(txtOpsegRijeci, [this] { txtOpsegRijeci_LostFocus(); });
    OnLostFocus(txtPismeniProcjena, [this] { txtPismeniProcjena_LostFocus(); });
    OnLostFocus(txtOstaleMetode, [this] { txtOstaleMetode_LostFocus(); });
    optLitIzracun->Bind(wxEVT_RADIOBUTTON, [this](wxCommandEvent&) { optLitIzracun_Click(); });
    optLitProcjena->Bind(wxEVT_RADIOBUTTON, [this](wxCommandEvent&) { optLitProcjena_Click(); });
    optPismeniIzracun->Bind(wxEVT_RADIOBUTTON, [this](wxCommandEvent&) { optPismeniIzracun_Click(); });
    optPismeniProcjena->Bind(wxEVT_RADIOBUTTON, [this](wxCommandEvent&) { optPismeniProcjena_Click(); });
    cbo1ECTS->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { cbo1ECTS_Click(); });
    cmdIzracunaj->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdIzracunaj_Click(); });
    cmdOcisti->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdOcisti_Click(); });
    cmdExport->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdExport_Click(); });
    cmdClose->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdClose_Click(); });
}

void frmECTSCalc::OnLostFocus(wxTextCtrl* box, const std::function<void()>& handler)
{
    box->Bind(wxEVT_KILL_FOCUS,
              [this, handler](wxFocusEvent& event)
              {
                  event.Skip();
                  // Closing the window also takes the focus from its fields.
                  if (!IsBeingDeleted() && LeavesField(event))
                      handler();
              });
}

void frmECTSCalc::OnLostFocus(std::span<wxTextCtrl* const> boxes, const std::function<void()>& handler)
{
    for (wxTextCtrl* box : boxes)
        OnLostFocus(box, handler);
}

void frmECTSCalc::Form_Load()
{
    CenterForm(*this);
    for (const std::string_view hours : HoursPerEctsChoices)
        cbo1ECTS->Append(ToWx(hours));
    cbo1ECTS->SetSelection(InitialHoursPerEcts);
    optLitIzracun->SetValue(true);
    optPismeniIzracun->SetValue(true);
    ApplyLiteratureMode();
    ApplyWrittenMode();
    Recalculate();
    txtNazivKolegija->SetFocus();
}

void frmECTSCalc::ApplyLiteratureMode()
{
    for (wxTextCtrl* box : txtLitStranice)
        box->Enable(optLitIzracun->GetValue());
    for (wxTextCtrl* box : txtLitProcjena)
        box->Enable(optLitProcjena->GetValue());
}

void frmECTSCalc::ApplyWrittenMode()
{
    txtOpsegStranice->Enable(optPismeniIzracun->GetValue());
    txtOpsegRijeci->Enable(optPismeniIzracun->GetValue());
    txtPismeniProcjena->Enable(optPismeniProcjena->GetValue());
}

void frmECTSCalc::ReadFields()
{
    for (const Field& field : m_boxes)
        *field.Text = ShownText(*field.Box);
    m_fields.LitByEstimate = optLitProcjena->GetValue();
    m_fields.PismeniByEstimate = optPismeniProcjena->GetValue();
    m_fields.SatiPoEcts = ChosenText(*cbo1ECTS);
}

void frmECTSCalc::ShowFields()
{
    for (const Field& field : m_boxes)
        if (ShownText(*field.Box) != *field.Text)
            field.Box->ChangeValue(ToWx(*field.Text));
    lblUpozorenje->SetForegroundColour(
        ReadableColour(wxColour(m_fields.BojaUpozorenja), wxSYS_COLOUR_BTNFACE));
    lblUpozorenje->SetLabel(ToWx(m_fields.Upozorenje));
}

void frmECTSCalc::Recalculate()
{
    if (m_busy)
        return;
    m_busy = true;
    std::string failure;
    ReadFields();
    try
    {
        WorkloadModel(m_fields, SystemDecimalSeparator()).Recalculate();
    }
    catch (const std::exception& error)
    {
        failure = error.what();
    }
    ShowFields(); // after an error too: what is computed so far is right
    m_busy = false;
    if (!failure.empty())
        ShowWarning(this, "Greška kod preračuna: " + failure, EctsCaption);
}

void frmECTSCalc::txtKontaktniSati_LostFocus(std::size_t row)
{
    ReadFields();
    WorkloadModel(m_fields, SystemDecimalSeparator()).ProposeSelfStudy(row);
    ShowFields();
    Recalculate();
}

void frmECTSCalc::txtSamostalniSati_LostFocus()
{
    Recalculate();
}

void frmECTSCalc::txtLitStranice_LostFocus()
{
    Recalculate();
}

void frmECTSCalc::txtLitProcjena_LostFocus()
{
    Recalculate();
}

void frmECTSCalc::txtOpsegStranice_LostFocus()
{
    Recalculate();
}

void frmECTSCalc::txtOpsegRijeci_LostFocus()
{
    Recalculate();
}

void frmECTSCalc::txtPismeniProcjena_LostFocus()
{
    Recalculate();
}

void frmECTSCalc::txtOstaleMetode_LostFocus()
{
    Recalculate();
}

void frmECTSCalc::optLitIzracun_Click()
{
    ApplyLiteratureMode();
    Recalculate();
}

void frmECTSCalc::optLitProcjena_Click()
{
    ApplyLiteratureMode();
    Recalculate();
}

void frmECTSCalc::optPismeniIzracun_Click()
{
    ApplyWrittenMode();
    Recalculate();
}

void frmECTSCalc::optPismeniProcjena_Click()
{
    ApplyWrittenMode();
    Recalculate();
}

void frmECTSCalc::cbo1ECTS_Click()
{
    Recalculate();
}

void frmECTSCalc::cmdIzracunaj_Click()
{
    Recalculate();
}

void frmECTSCalc::cmdOcisti_Click()
{
    for (const Field& field : m_boxes)
        field.Box->ChangeValue("");
    optLitIzracun->SetValue(true);
    optPismeniIzracun->SetValue(true);
    ApplyLiteratureMode();
    ApplyWrittenMode();
    Recalculate();
}

void frmECTSCalc::cmdExport_Click()
{
    Recalculate();
    RunExport(
        this, cdl1, ReportTexts, [this] { return EctsReportFileName(m_fields.NazivKolegija); },
        [this](const std::string& path) { WriteEctsReport(path, m_fields); });
}

void frmECTSCalc::cmdClose_Click()
{
    Close();
}

// The layout of the calculator's window; its behaviour is in frmECTSCalc.cpp.

#include "ects/frmECTSCalc.h"

#include "ects/WorkloadLabels.h"
#include "ui/controls/AccessibleName.h"
#include "ui/controls/Controls.h"
#include "ui/controls/Strings.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/radiobut.h>
#include <wx/scrolwin.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <span>

namespace
{

constexpr std::string_view WrittenNormNote = "Normativ: 250 riječi po stranici, 100 riječi/sat";

constexpr int NumberCharacters = 6;
constexpr int CommentLines = 2;

/// The name of a control in a control array.
std::string Element(std::string_view array, std::size_t index)
{
    return std::string(array) + "(" + std::to_string(index) + ")";
}

wxFlexGridSizer* NewGrid(const wxWindow* window, int columns)
{
    return new wxFlexGridSizer(columns, window->FromDIP(2), Gap(window));
}

/// Adds the captions of a grid's columns.
void AddHeads(wxFlexGridSizer& grid, wxWindow* parent, std::span<const std::string_view> captions)
{
    for (const std::string_view caption : captions)
        grid.Add(NewCaption(parent, "lblHead", caption), wxSizerFlags().CenterVertical());
}

/// Adds the label of the next box.
wxStaticText* AddLabel(wxFlexGridSizer& grid, wxWindow* parent, std::string_view caption)
{
    wxStaticText* label = NewLabel(parent, "lblRow", caption);
    grid.Add(label, wxSizerFlags().CenterVertical());
    return label;
}

/// Adds the caption of a row in which every box has its own name.
void AddRowCaption(wxFlexGridSizer& grid, wxWindow* parent, std::string_view caption)
{
    grid.Add(NewCaption(parent, "lblRow", caption), wxSizerFlags().CenterVertical());
}

/// Adds a box whose name is the label before it.
void AddBox(wxFlexGridSizer& grid, wxTextCtrl* box)
{
    grid.Add(box, wxSizerFlags().Expand());
}

/// Adds a box with an accessible name of two captions: that of its group or row and its own.
void AddBox(wxFlexGridSizer& grid, wxTextCtrl* box, std::string_view outer, std::string_view own)
{
    AddBox(grid, box);
    SetAccessibleName(*box, std::string(outer) + ", " + std::string(own));
}

/// A box for a computed figure. Tab skips it: there is nothing to type.
class OutputBox : public wxTextCtrl
{
public:
    OutputBox(wxWindow* parent, const std::string& name)
        : wxTextCtrl(parent, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxTE_READONLY,
                     wxDefaultValidator, ToWx(name))
    {
        SetBackgroundColour(wxSystemSettings::GetColour(wxSYS_COLOUR_BTNFACE));
    }

    bool AcceptsFocusFromKeyboard() const override { return false; }
};

/// Adds something to a frame, in the frame's full width.
void AddWide(wxStaticBoxSizer& frame, wxSizer* content, int proportion = 0)
{
    const int gap = Gap(frame.GetStaticBox());
    auto* framed = new wxBoxSizer(wxVERTICAL);
    framed->Add(content, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT, gap));
    frame.Add(framed, wxSizerFlags(proportion).Expand().Border(wxTOP | wxBOTTOM, gap / 2));
}

} // namespace

frmECTSCalc::frmECTSCalc(wxWindow* parent)
{
    Create(parent, wxID_ANY, ToWx(EctsCaption), wxDefaultPosition, wxDefaultSize, wxDEFAULT_FRAME_STYLE,
           "frmECTSCalc");
    ApplyAppStyle(*this);
    Panel = new wxScrolledWindow(this, wxID_ANY);

    // The controls are made in tab order: column by column, then the results and the commands. Their parent
    // is the panel, not a frame: a button's access key must work in every field, and some systems look for it
    // only among siblings.
    const wxSizerFlags below = wxSizerFlags().Expand().Border(wxTOP, Gap(this));
    auto* left = new wxBoxSizer(wxVERTICAL);
    left->Add(CourseFrame(), wxSizerFlags(1).Expand());
    left->Add(ContactFrame(), below);
    left->Add(LiteratureFrame(), below);
    auto* right = new wxBoxSizer(wxVERTICAL);
    right->Add(WrittenFrame(), wxSizerFlags().Expand());
    right->Add(OtherMethodsFrame(), below);
    auto* columns = new wxFlexGridSizer(2, wxSize(2 * Gap(this), 0)); // each at least as wide as it needs
    columns->AddGrowableCol(0, 1);
    columns->AddGrowableCol(1, 1);
    columns->AddGrowableRow(0);
    columns->Add(left, wxSizerFlags().Expand());
    columns->Add(right, wxSizerFlags().Expand());

    auto* content = new wxBoxSizer(wxVERTICAL);
    content->Add(columns, wxSizerFlags(1).Expand());
    content->Add(TotalsFrame(), below);
    content->Add(lblUpozorenje = NewCaption(Panel, "lblUpozorenje", ""), below);
    content->Add(CommandRow(), below);
    auto* margin = new wxBoxSizer(wxVERTICAL);
    margin->Add(content, wxSizerFlags(1).Expand().Border(wxALL, 2 * Gap(this)));
    Panel->SetSizer(margin);
    FitToScreen(*margin);

    BindEvents();
    Form_Load();
}

wxTextCtrl* frmECTSCalc::NewField(const std::string& name, std::string& text)
{
    return AddField(NewTextBox(Panel, name, NumberCharacters), text);
}

wxTextCtrl* frmECTSCalc::NewOutput(const std::string& name, std::string& text)
{
    auto* box = new OutputBox(Panel, name);
    UseTextSize(*box, NumberCharacters);
    return AddField(box, text);
}

wxTextCtrl* frmECTSCalc::AddField(wxTextCtrl* box, std::string& text)
{
    m_boxes.push_back({box, &text});
    return box;
}

wxSizer* frmECTSCalc::CourseFrame()
{
    wxStaticBoxSizer* frame = NewFrame(Panel, "fraOpciPodaci", "Opći podaci");
    wxFlexGridSizer* grid = NewGrid(this, 2);
    grid->AddGrowableCol(1);
    grid->AddGrowableRow(2);
    AddLabel(*grid, Panel, EctsLabel::NazivKolegija);
    AddBox(*grid, txtNazivKolegija = NewField("txtNazivKolegija", m_fields.NazivKolegija));
    AddLabel(*grid, Panel, "Nositelj(i):");
    AddBox(*grid, txtNositelj = NewField("txtNositelj", m_fields.Nositelj));
    AddLabel(*grid, Panel, EctsLabel::Komentar);
    txtKomentar = new wxTextCtrl(Panel, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxTE_MULTILINE,
                                 wxDefaultValidator, "txtKomentar");
    AddBox(*grid, AddField(txtKomentar, m_fields.Komentar));
    txtKomentar->SetMinSize({-1, CommentLines * GetCharHeight() + FromDIP(10)});
    AddWide(*frame, grid, 1);
    return frame;
}

wxSizer* frmECTSCalc::ContactFrame()
{
    static constexpr std::string_view heads[] = {EctsLabel::VrstaNastave, EctsLabel::KontaktniSati,
                                                 EctsLabel::SamostalniSati};
    wxStaticBoxSizer* frame = NewFrame(Panel, "fraKontaktnaNastava", EctsGroup::Kontaktna);
    wxFlexGridSizer* grid = NewGrid(this, static_cast<int>(std::size(heads)));
    grid->AddGrowableCol(0);
    AddHeads(*grid, Panel, heads);
    for (std::size_t i = 0; i < ContactRows.size(); ++i)
    {
        const std::string_view row = ContactRows[i].Label;
        AddRowCaption(*grid, Panel, row);
        txtKontaktniSati[i] = NewField(Element("txtKontaktniSati", i), m_fields.KontaktniSati[i]);
        AddBox(*grid, txtKontaktniSati[i], row, EctsLabel::KontaktniSati);
        txtSamostalniSati[i] = NewField(Element("txtSamostalniSati", i), m_fields.SamostalniSati[i]);
        AddBox(*grid, txtSamostalniSati[i], row, EctsLabel::SamostalniSati);
    }
    AddRowCaption(*grid, Panel, EctsLabel::Ukupno);
    txtKontaktniUkupno = NewOutput("txtKontaktniUkupno(3)", m_fields.KontaktniUkupno);
    AddBox(*grid, txtKontaktniUkupno, EctsLabel::Ukupno, EctsLabel::KontaktniSati);
    txtSamostalniUkupno = NewOutput("txtSamostalniUkupno(3)", m_fields.SamostalniUkupno);
    AddBox(*grid, txtSamostalniUkupno, EctsLabel::Ukupno, EctsLabel::SamostalniSati);
    AddWide(*frame, grid);
    return frame;
}

wxSizer* frmECTSCalc::LiteratureFrame()
{
    static constexpr std::string_view heads[] = {EctsLabel::VrstaLiterature, EctsLabel::BrojStranica, "Norma",
                                                 EctsLabel::IzracunSati, EctsLabel::Procjena};
    wxStaticBoxSizer* frame = NewFrame(Panel, "fraLiteratura", EctsGroup::Literatura);
    AddOptions(*frame, optLitIzracun, "optLitIzracun", optLitProcjena, "optLitProcjena");

    wxFlexGridSizer* grid = NewGrid(this, static_cast<int>(std::size(heads)));
    grid->AddGrowableCol(0);
    AddHeads(*grid, Panel, heads);
    for (std::size_t i = 0; i < LiteratureRows.size(); ++i)
    {
        const std::string_view row = LiteratureRows[i].Label;
        AddRowCaption(*grid, Panel, row);
        txtLitStranice[i] = NewField(Element("txtLitStranice", i), m_fields.LitStranice[i]);
        AddBox(*grid, txtLitStranice[i], row, EctsLabel::BrojStranica);
        AddRowCaption(*grid, Panel, LiteratureRows[i].NormLabel);
        txtLitIzracun[i] = NewOutput(Element("txtLitIzracun", i), m_fields.LitIzracun[i]);
        AddBox(*grid, txtLitIzracun[i], row, EctsLabel::IzracunSati);
        txtLitProcjena[i] = NewField(Element("txtLitProcjena", i), m_fields.LitProcjena[i]);
        AddBox(*grid, txtLitProcjena[i], row, EctsLabel::Procjena);
    }
    AddRowCaption(*grid, Panel, EctsLabel::Ukupno);
    grid->AddStretchSpacer();
    grid->AddStretchSpacer();
    txtLitUkupno = NewOutput("txtLitUkupno", m_fields.LitUkupno);
    AddBox(*grid, txtLitUkupno, EctsGroup::Literatura, EctsLabel::Ukupno);
    AddWide(*frame, grid);
    return frame;
}

wxSizer* frmECTSCalc::WrittenFrame()
{
    wxStaticBoxSizer* frame = NewFrame(Panel, "fraPismeniZadatak", EctsGroup::Pismeni);
    AddOptions(*frame, optPismeniIzracun, "optPismeniIzracun", optPismeniProcjena, "optPismeniProcjena");

    wxFlexGridSizer* grid = NewGrid(this, 2);
    grid->AddGrowableCol(0);
    AddLabel(*grid, Panel, EctsLabel::OpsegStranice);
    AddBox(*grid, txtOpsegStranice = NewField("txtOpsegStranice", m_fields.OpsegStranice));
    AddLabel(*grid, Panel, EctsLabel::OpsegRijeci);
    AddBox(*grid, txtOpsegRijeci = NewField("txtOpsegRijeci", m_fields.OpsegRijeci));
    AddRowCaption(*grid, Panel, EctsLabel::IzracunatoVrijeme);
    txtPismeniIzracun = NewOutput("txtPismeniIzracun", m_fields.PismeniIzracun);
    AddBox(*grid, txtPismeniIzracun, EctsGroup::Pismeni, EctsLabel::IzracunatoVrijeme);
    AddLabel(*grid, Panel, EctsLabel::VlastitaProcjena);
    AddBox(*grid, txtPismeniProcjena = NewField("txtPismeniProcjena", m_fields.PismeniProcjena));
    AddWide(*frame, grid);
    auto* note = new wxBoxSizer(wxHORIZONTAL);
    note->Add(NewCaption(Panel, "lblPismeniNormativ", WrittenNormNote));
    AddWide(*frame, note);
    return frame;
}

wxSizer* frmECTSCalc::OtherMethodsFrame()
{
    wxStaticBoxSizer* frame = NewFrame(Panel, "fraOstaleMetode", EctsGroup::Ostale);
    wxFlexGridSizer* grid = NewGrid(this, 2);
    grid->AddGrowableCol(0);
    for (std::size_t i = 0; i < OtherMethods.size(); ++i)
    {
        const auto index = static_cast<std::size_t>(OtherMethods[i].Index);
        wxStaticText* label = AddLabel(*grid, Panel, OtherMethods[i].Label);
        if (i == 0 || label->GetBestSize().x > m_widestLabel->GetBestSize().x)
            m_widestLabel = label;
        txtOstaleMetode[i] = NewField(Element("txtOstaleMetode", index), m_fields.OstaleMetode[i]);
        grid->Add(txtOstaleMetode[i], wxSizerFlags().CenterVertical());
    }
    AddRowCaption(*grid, Panel, EctsLabel::Ukupno);
    txtOstaleMetodeUkupno = NewOutput("txtOstaleMetodeUkupno", m_fields.OstaleMetodeUkupno);
    AddBox(*grid, txtOstaleMetodeUkupno, EctsGroup::Ostale, EctsLabel::Ukupno);
    AddWide(*frame, grid);
    return frame;
}

wxSizer* frmECTSCalc::TotalsFrame()
{
    wxStaticBoxSizer* frame = NewFrame(Panel, "fraUkupnoOpter", EctsGroup::UkupnoOpter);
    wxFlexGridSizer* grid = NewGrid(this, static_cast<int>(TotalLabels.size()));
    AddHeads(*grid, Panel, TotalLabels);
    for (std::size_t i = 0; i < TotalLabels.size(); ++i)
    {
        grid->AddGrowableCol(i, 1);
        txtUkupnoOpter[i] = NewOutput(Element("txtUkupnoOpter", i), m_fields.UkupnoOpter[i]);
        AddBox(*grid, txtUkupnoOpter[i], EctsGroup::UkupnoOpter, TotalLabels[i]);
    }
    AddWide(*frame, grid);
    return frame;
}

wxSizer* frmECTSCalc::CommandRow()
{
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    AddLabelled(*row, Panel, "lbl1ECTS", "1 ECTS",
                [this] { return cbo1ECTS = NewChoice(Panel, "cbo1ECTS", 4); });
    row->Add(NewCaption(Panel, "lblSati", "sati"), wxSizerFlags().CenterVertical());
    row->AddStretchSpacer();
    const auto add = [&](std::string_view name, std::string_view caption)
    {
        wxButton* button = NewButton(Panel, name, caption);
        row->Add(button, wxSizerFlags().CenterVertical().Border(wxLEFT, Gap(this)));
        return button;
    };
    cmdIzracunaj = add("cmdIzracunaj", "&Izračunaj");
    cmdOcisti = add("cmdOcisti", "&Očisti");
    cmdExport = add("cmdExport", "E&xport");
    cmdClose = add("cmdClose", "&Zatvori");
    return row;
}

void frmECTSCalc::AddOptions(wxStaticBoxSizer& frame, wxRadioButton*& norm, std::string_view normName,
                             wxRadioButton*& estimate, std::string_view estimateName)
{
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    const auto add = [&](std::string_view name, std::string_view caption, long style)
    {
        auto* option = new wxRadioButton(Panel, wxID_ANY, ToWx(caption), wxDefaultPosition, wxDefaultSize,
                                         style, wxDefaultValidator, ToWx(name));
        row->Add(option, wxSizerFlags().Border(wxRIGHT, 2 * Gap(this)));
        return option;
    };
    norm = add(normName, EctsLabel::Normativ, wxRB_GROUP);
    estimate = add(estimateName, EctsLabel::VlastitaProcjena, 0);
    AddWide(frame, row);
}

void frmECTSCalc::FitToScreen(wxSizer& content)
{
    wxSize screen = wxGetClientDisplayRect().GetSize();
    screen.DecBy(GetSize() - GetClientSize());
    wxSize size = content.CalcMin();
    if (size.x > screen.x)
    {
        m_widestLabel->Wrap(m_widestLabel->GetBestSize().x - (size.x - screen.x));
        size = content.CalcMin();
    }
    // On a screen that is too small even so, the content scrolls.
    if (size.y > screen.y)
        size.x += wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, this);
    if (size.x > screen.x)
        size.y += wxSystemSettings::GetMetric(wxSYS_HSCROLL_Y, this);
    size.DecTo(screen);
    Panel->SetScrollRate(FromDIP(10), FromDIP(10));
    SetMinClientSize(size);
    SetClientSize(size);
}

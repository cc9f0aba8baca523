#include "ui/lecturer_stats/frmStatNositelji.h"

#include "data/TableChoices.h"
#include "ui/controls/CenterForm.h"
#include "ui/controls/Choices.h"
#include "ui/controls/Controls.h"
#include "ui/controls/ExportCommand.h"
#include "ui/controls/ListPairSizer.h"
#include "ui/controls/ListView.h"
#include "ui/controls/SortMemory.h"
#include "ui/controls/Strings.h"
#include "ui/teaching_stats/TaughtCourses.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/listbox.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

namespace
{

// The misspelling is the window's own.
constexpr std::string_view Caption = "Nostielji";

constexpr ListColumn StatColumns[] = {
    {"Semestar", 900}, {"Tip", 1200},           {"P", 700}, {"S", 700}, {"V", 700},
    {"ECTS", 900},     {"Broj kolegija", 1200},
};

constexpr ExportTexts AllStatTexts = {.DialogTitle = "Spremi statistiku nastavnika",
                                      .Success = "Statistika za sve nastavnike je eksportirana u:",
                                      .MessageTitle = "Izvoz završen"};

const wxSize InitialSize = {980, 740}; // at 96 dots to the inch
const wxSize SmallestSize = {680, 480};

} // namespace

frmStatNositelji::frmStatNositelji(wxWindow* parent)
{
    Create(parent, wxID_ANY, ToWx(Caption), wxDefaultPosition, wxDefaultSize, wxDEFAULT_FRAME_STYLE,
           "frmStatNositelji");
    ApplyAppStyle(*this);
    Panel = new wxPanel(this);

    // The controls are made in tab order: lecturers, filters, lists, buttons.
    auto* content = new wxBoxSizer(wxHORIZONTAL);
    content->Add(NastavniciColumn(), wxSizerFlags(1).Expand().Border(wxRIGHT, 2 * Gap(this)));
    auto* right = new wxBoxSizer(wxVERTICAL);
    right->Add(FilterRow(), wxSizerFlags().Expand().Border(wxBOTTOM, Gap(this)));
    lvwKolegiji = new ListView(Panel, "lvwKolegiji", "Kolegiji");
    lvwStat = new ListView(Panel, "lvwStat", "Statistika");
    right->Add(new ListPairSizer(lvwKolegiji, lvwStat), wxSizerFlags(1).Expand());
    right->Add(Buttons(), wxSizerFlags().Expand().Border(wxTOP, Gap(this)));
    content->Add(right, wxSizerFlags(4).Expand());
    auto* margin = new wxBoxSizer(wxVERTICAL);
    margin->Add(content, wxSizerFlags(1).Expand().Border(wxALL, 2 * Gap(this)));
    Panel->SetSizer(margin);
    UseClientSizes(*this, *margin, InitialSize, SmallestSize);

    ReportEveryChoice(*lstNastavnici);
    BindEvents();
    Form_Load();
}

wxSizer* frmStatNositelji::NastavniciColumn()
{
    auto* column = new wxBoxSizer(wxVERTICAL);
    column->Add(Label1 = NewLabel(Panel, "Label1", "Nostielji"), wxSizerFlags().Border(wxBOTTOM, Gap(this)));
    column->Add(lstNastavnici = NewListBox(Panel, "lstNastavnici"), wxSizerFlags(1).Expand());
    return column;
}

wxSizer* frmStatNositelji::FilterRow()
{
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    Label2 = AddLabelled(*row, Panel, "Label2", "Razina",
                         [this] { return cboRazina = NewChoice(Panel, "cboRazina", 14); });
    Label3 = AddLabelled(*row, Panel, "Label3", "Program",
                         [this] { return cboProgram = NewChoice(Panel, "cboProgram", 8); });
    return row;
}

wxSizer* frmStatNositelji::Buttons()
{
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(cmdExportAllStat = NewButton(Panel, "cmdExportAllStat", "E&xport"));
    row->AddStretchSpacer();
    row->Add(cmdClose = NewButton(Panel, "cmdClose", "&Zatvori"));
    return row;
}

void frmStatNositelji::BindEvents()
{
    lstNastavnici->Bind(wxEVT_LISTBOX, [this](wxCommandEvent&) { lstNastavnici_Click(); });
    cboRazina->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { cboRazina_Click(); });
    cboProgram->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { cboProgram_Click(); });
    lvwKolegiji->OnColumnClick([this](int column) { lvwKolegiji_ColumnClick(column); });
    lvwStat->OnColumnClick([this](int column) { lvwStat_ColumnClick(column); });
    cmdExportAllStat->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdExportAllStat_Click(); });
    cmdClose->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdClose_Click(); });
    CloseByEscape(*this);
}

void frmStatNositelji::Form_Load()
{
    FillChoices(*cboRazina, WithSvi(RazinaChoices()));
    SelectFirst(*cboRazina);
    FillChoices(*cboProgram, WithSvi({{"LOR"}, {"BEV"}}));
    SelectFirst(*cboProgram);
    FillChoices(*lstNastavnici, NastavnikChoices());
    LetFocusSelectNothing(*lstNastavnici);
    lvwKolegiji->SetColumns(TaughtCourseColumns);
    lvwKolegiji->SetEmptyText("Odaberite nastavnika.");
    lvwStat->SetColumns(StatColumns);
    Panel->Layout(); // the lists have headers now
    CenterForm(*this);
    Show();
    lstNastavnici->SetFocus();
}

LecturerFilter frmStatNositelji::CurrentFilter() const
{
    return {ChosenText(*cboRazina), ChosenText(*cboProgram)};
}

void frmStatNositelji::ShowSelected()
{
    lvwKolegiji->SetEmptyText(NoCourses);
    lvwKolegiji->ShowRows(LecturerCourseRows(m_selectedNastavnikID, CurrentFilter()));
    lvwStat->ShowRows(LecturerTeachingLoadRows(m_selectedNastavnikID, CurrentFilter()));
    Panel->Layout(); // the sums are as high as their rows
}

void frmStatNositelji::lstNastavnici_Click()
{
    if (lstNastavnici->GetSelection() == wxNOT_FOUND)
        return;
    m_selectedNastavnikID = SelectedData(*lstNastavnici);
    ShowSelected();
}

void frmStatNositelji::cboRazina_Click()
{
    lstNastavnici_Click(); // shows the selected lecturer by the new filter
}

void frmStatNositelji::cboProgram_Click()
{
    lstNastavnici_Click();
}

void frmStatNositelji::lvwKolegiji_ColumnClick(int column)
{
    SortListViewByColumn(*lvwKolegiji, column);
}

void frmStatNositelji::lvwStat_ColumnClick(int column)
{
    SortListViewByColumn(*lvwStat, column);
}

void frmStatNositelji::cmdExportAllStat_Click()
{
    RunExport(
        this, cdlSave, AllStatTexts, [] { return "statistika_svi_nastavnici.csv"; },
        [this](const std::string& path) { ExportAllLecturers(path, CurrentFilter()); });
}

void frmStatNositelji::cmdClose_Click()
{
    Close();
}

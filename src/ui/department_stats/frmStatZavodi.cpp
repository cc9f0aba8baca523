#include "ui/department_stats/frmStatZavodi.h"

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

constexpr std::string_view Caption = "Zavodi";

constexpr ListColumn StatColumns[] = {
    {"Semestar", 1400}, {"Tip", 1400}, {"P", 900}, {"S", 900}, {"V", 900}, {"ECTS", 1000}, {"Kolegija", 1400},
};

constexpr ExportTexts AllStatTexts = {.DialogTitle = "Spremi statistiku zavoda",
                                      .Success = "Statistika za sve zavode je eksportirana u:",
                                      .MessageTitle = "Izvoz završen"};

const wxSize InitialSize = {980, 740}; // at 96 dots to the inch
const wxSize SmallestSize = {680, 480};

} // namespace

frmStatZavodi::frmStatZavodi(wxWindow* parent)
{
    Create(parent, wxID_ANY, ToWx(Caption), wxDefaultPosition, wxDefaultSize, wxDEFAULT_FRAME_STYLE,
           "frmStatZavodi");
    ApplyAppStyle(*this);
    Panel = new wxPanel(this);

    // The controls are made in tab order: filters, lists, buttons.
    auto* content = new wxBoxSizer(wxVERTICAL);
    content->Add(FilterRow(), wxSizerFlags().Expand().Border(wxBOTTOM, Gap(this)));
    content->Add(Grids(), wxSizerFlags(1).Expand().Border(wxBOTTOM, Gap(this)));
    content->Add(Buttons(), wxSizerFlags().Expand());
    auto* margin = new wxBoxSizer(wxVERTICAL);
    margin->Add(content, wxSizerFlags(1).Expand().Border(wxALL, 2 * Gap(this)));
    Panel->SetSizer(margin);
    UseClientSizes(*this, *margin, InitialSize, SmallestSize);

    ReportEveryChoice(*lstSemestri);
    BindEvents();
    Form_Load();
}

wxSizer* frmStatZavodi::FilterRow()
{
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    Label1 = AddLabelled(*row, Panel, "Label1", "Razina",
                         [this] { return cboRazina = NewChoice(Panel, "cboRazina", 14); });
    Label2 = AddLabelled(*row, Panel, "Label2", "Zavod",
                         [this] { return cboZavodi = NewChoice(Panel, "cboZavodi", 36); });
    return row;
}

wxSizer* frmStatZavodi::Grids()
{
    auto* semesters = new wxBoxSizer(wxVERTICAL);
    semesters->Add(Label3 = NewLabel(Panel, "Label3", "Semestar"),
                   wxSizerFlags().Border(wxBOTTOM, Gap(this)));
    semesters->Add(lstSemestri = NewListBox(Panel, "lstSemestri"), wxSizerFlags(1).Expand());

    lvwKolegiji = new ListView(Panel, "lvwKolegiji", "Kolegiji");
    lvwStatZavod = new ListView(Panel, "lvwStatZavod", "Statistika");

    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(semesters, wxSizerFlags().Expand().Border(wxRIGHT, 2 * Gap(this)));
    row->Add(new ListPairSizer(lvwKolegiji, lvwStatZavod), wxSizerFlags(1).Expand());
    return row;
}

wxSizer* frmStatZavodi::Buttons()
{
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(cmdExportAllStat = NewButton(Panel, "cmdExportAllStat", "E&xport"));
    row->AddStretchSpacer();
    row->Add(cmdClose = NewButton(Panel, "cmdClose", "&Zatvori"));
    return row;
}

void frmStatZavodi::BindEvents()
{
    cboRazina->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { cboRazina_Click(); });
    cboZavodi->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { cboZavodi_Click(); });
    lstSemestri->Bind(wxEVT_LISTBOX, [this](wxCommandEvent&) { lstSemestri_Click(); });
    lvwKolegiji->OnColumnClick([this](int column) { lvwKolegiji_ColumnClick(column); });
    lvwStatZavod->OnColumnClick([this](int column) { lvwStatZavod_ColumnClick(column); });
    cmdExportAllStat->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdExportAllStat_Click(); });
    cmdClose->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdClose_Click(); });
    CloseByEscape(*this);
}

void frmStatZavodi::Form_Load()
{
    lvwStatZavod->SetColumns(StatColumns);
    lvwKolegiji->SetColumns(TaughtCourseColumns);
    lvwKolegiji->SetEmptyText(NoCourses);
    FillChoices(*cboRazina, WithSvi(RazinaChoices()));
    FillChoices(*cboZavodi, ZavodChoices());
    FillChoices(*lstSemestri, WithSvi({{"Zimski"}, {"Ljetni"}, {"1"}, {"2"}, {"3"}, {"4"}, {"5"}, {"6"}}));
    SelectFirst(*cboZavodi);
    SelectFirst(*lstSemestri);
    SelectFirst(*cboRazina);
    ShowSelected();
    Panel->Layout(); // the list of semesters is as wide as its entries
    CenterForm(*this);
    Show(); // a hidden drop-down list does not take the focus on every system
    cboZavodi->SetFocus();
}

DepartmentFilter frmStatZavodi::CurrentFilter() const
{
    return {ChosenText(*cboRazina), ChosenText(*lstSemestri)};
}

void frmStatZavodi::ShowSelected()
{
    for (const wxItemContainer* box :
         {static_cast<const wxItemContainer*>(cboZavodi), static_cast<const wxItemContainer*>(lstSemestri),
          static_cast<const wxItemContainer*>(cboRazina)})
        if (box->GetSelection() == wxNOT_FOUND)
            return;
    const std::int32_t zavodID = SelectedData(*cboZavodi);
    lvwKolegiji->ShowRows(DepartmentCourseRows(zavodID, CurrentFilter()));
    lvwStatZavod->ShowRows(DepartmentTeachingLoadRows(zavodID, CurrentFilter()));
    Panel->Layout(); // the sums are as high as their rows
}

void frmStatZavodi::cboRazina_Click()
{
    ShowSelected();
}

void frmStatZavodi::cboZavodi_Click()
{
    ShowSelected();
}

void frmStatZavodi::lstSemestri_Click()
{
    ShowSelected();
}

void frmStatZavodi::lvwKolegiji_ColumnClick(int column)
{
    SortListViewByColumn(*lvwKolegiji, column);
}

void frmStatZavodi::lvwStatZavod_ColumnClick(int column)
{
    SortListViewByColumn(*lvwStatZavod, column);
}

void frmStatZavodi::cmdExportAllStat_Click()
{
    RunExport(
        this, cdlSave, AllStatTexts, [] { return "statistika_svi_zavodi.csv"; },
        [this](const std::string& path) { ExportAllDepartments(path, CurrentFilter()); });
}

void frmStatZavodi::cmdClose_Click()
{
    Close();
}

#include "ui/department_stats/frmStatZavodi.h"

#include "data/TableChoices.h"
#include "ui/controls/CenterForm.h"
#include "ui/controls/Choices.h"
#include "ui/controls/Controls.h"
#include "ui/teaching_stats/TaughtCourses.h"

#include <wx/choice.h>
#include <wx/listbox.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/stattext.h>

#include <initializer_list>

namespace
{

constexpr ListColumn StatColumns[] = {
    {"Semestar", 1400}, {"Tip", 1400}, {"P", 900}, {"S", 900}, {"V", 900}, {"ECTS", 1000}, {"Kolegija", 1400},
};

} // namespace

frmStatZavodi::frmStatZavodi(wxWindow* parent)
    : TeachingLoadWindow(parent, {.Name = "frmStatZavodi",
                                  .Caption = "Zavodi",
                                  .SumsName = "lvwStatZavod",
                                  .SumsColumns = StatColumns,
                                  .Export = {.DialogTitle = "Spremi statistiku zavoda",
                                             .Success = "Statistika za sve zavode je eksportirana u:",
                                             .MessageTitle = "Izvoz završen"},
                                  .ExportName = "statistika_svi_zavodi.csv"})
{
    auto* controls = new wxBoxSizer(wxVERTICAL);
    controls->Add(FilterRow(), wxSizerFlags().Expand().Border(wxBOTTOM, Gap(this)));
    auto* lists = new wxBoxSizer(wxHORIZONTAL);
    lists->Add(SemestriColumn(), wxSizerFlags().Expand().Border(wxRIGHT, 2 * Gap(this)));
    lists->Add(NewLists(), wxSizerFlags(1).Expand());
    controls->Add(lists, wxSizerFlags(1).Expand().Border(wxBOTTOM, Gap(this)));
    controls->Add(NewButtons(), wxSizerFlags().Expand());
    SetLayout(controls);

    cboRazina->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { ShowSelected(); });
    cboZavodi->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { ShowSelected(); });
    lstSemestri->Bind(wxEVT_LISTBOX, [this](wxCommandEvent&) { ShowSelected(); });
    ReportEveryChoice(*lstSemestri);
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

wxSizer* frmStatZavodi::SemestriColumn()
{
    auto* column = new wxBoxSizer(wxVERTICAL);
    column->Add(Label3 = NewLabel(Panel, "Label3", "Semestar"), wxSizerFlags().Border(wxBOTTOM, Gap(this)));
    column->Add(lstSemestri = NewListBox(Panel, "lstSemestri"), wxSizerFlags(1).Expand());
    return column;
}

void frmStatZavodi::Form_Load()
{
    SetEmptyText(NoCourses);
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
         std::initializer_list<const wxItemContainer*>{cboZavodi, lstSemestri, cboRazina})
        if (box->GetSelection() == wxNOT_FOUND)
            return;
    const std::int32_t zavodID = SelectedData(*cboZavodi);
    ShowCourses(DepartmentCourseRows(zavodID, CurrentFilter()));
    ShowSums(DepartmentTeachingLoadRows(zavodID, CurrentFilter()));
}

void frmStatZavodi::ExportAll(const std::string& path) const
{
    ExportAllDepartments(path, CurrentFilter());
}

#include "ui/lecturer_stats/frmStatNositelji.h"

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

namespace
{

constexpr ListColumn StatColumns[] = {
    {"Semestar", 900}, {"Tip", 1200},           {"P", 700}, {"S", 700}, {"V", 700},
    {"ECTS", 900},     {"Broj kolegija", 1200},
};

} // namespace

frmStatNositelji::frmStatNositelji(wxWindow* parent)
    : TeachingLoadWindow(parent, {.Name = "frmStatNositelji",
                                  .Caption = "Nostielji", // the misspelling is the window's own
                                  .SumsName = "lvwStat",
                                  .SumsColumns = StatColumns,
                                  .Export = {.DialogTitle = "Spremi statistiku nastavnika",
                                             .Success = "Statistika za sve nastavnike je eksportirana u:",
                                             .MessageTitle = "Izvoz završen"},
                                  .ExportName = "statistika_svi_nastavnici.csv"})
{
    auto* controls = new wxBoxSizer(wxHORIZONTAL);
    controls->Add(NastavniciColumn(), wxSizerFlags(1).Expand().Border(wxRIGHT, 2 * Gap(this)));
    auto* right = new wxBoxSizer(wxVERTICAL);
    right->Add(FilterRow(), wxSizerFlags().Expand().Border(wxBOTTOM, Gap(this)));
    right->Add(NewLists(), wxSizerFlags(1).Expand());
    right->Add(NewButtons(), wxSizerFlags().Expand().Border(wxTOP, Gap(this)));
    controls->Add(right, wxSizerFlags(4).Expand());
    SetLayout(controls);

    lstNastavnici->Bind(wxEVT_LISTBOX, [this](wxCommandEvent&) { ShowSelected(); });
    cboRazina->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { ShowSelected(); });
    cboProgram->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { ShowSelected(); });
    ReportEveryChoice(*lstNastavnici);
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

void frmStatNositelji::Form_Load()
{
    FillChoices(*cboRazina, WithSvi(RazinaChoices()));
    SelectFirst(*cboRazina);
    FillChoices(*cboProgram, WithSvi({{"LOR"}, {"BEV"}}));
    SelectFirst(*cboProgram);
    FillChoices(*lstNastavnici, NastavnikChoices());
    LetFocusSelectNothing(*lstNastavnici);
    SetEmptyText("Odaberite nastavnika.");
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
    if (lstNastavnici->GetSelection() == wxNOT_FOUND)
        return;
    const std::int32_t nastavnikID = SelectedData(*lstNastavnici);
    SetEmptyText(NoCourses);
    ShowCourses(LecturerCourseRows(nastavnikID, CurrentFilter()));
    ShowSums(LecturerTeachingLoadRows(nastavnikID, CurrentFilter()));
}

void frmStatNositelji::ExportAll(const std::string& path) const
{
    ExportAllLecturers(path, CurrentFilter());
}

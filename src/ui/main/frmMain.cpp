#include "ui/main/frmMain.h"

#include "data/Numbers.h"
#include "data/Text.h"
#include "data/modData.h"
#include "ui/controls/CenterForm.h"
#include "ui/controls/Choices.h"
#include "ui/controls/Controls.h"
#include "ui/controls/ListView.h"
#include "ui/controls/Messages.h"
#include "ui/controls/SortMemory.h"
#include "ui/controls/Strings.h"
#include "ui/main/CourseDeletion.h"
#include "ui/main/FilterChoices.h"
#include "validation/modCSVValidator.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include <utility>
#include <vector>

namespace
{

constexpr ListColumn KolegijiColumns[] = {
    {"ID", 800},      {"Kolegij", 3000},  {"P", 500},           {"S", 500},
    {"V", 500},       {"ECTS", 700},      {"Tip", 1200},        {"Sem", 700},
    {"Studij", 1200}, {"Smjerovi", 2000}, {"Nastavnici", 2500},
};

constexpr ListColumn StatistikaColumns[] = {
    {"Semestar", 1000}, {"Tip", 1200}, {"P", 700}, {"S", 700}, {"V", 700}, {"ECTS", 900}, {"Kolegija", 900},
};

const wxSize InitialSize = {1120, 720}; // at 96 dots to the inch
const wxSize SmallestSize = {760, 560};

} // namespace

frmMain::frmMain()
{
    Create(nullptr, wxID_ANY, ToWx(ProductName), wxDefaultPosition, wxDefaultSize, wxDEFAULT_FRAME_STYLE,
           "frmMain");
    UseProgramFont(*this);
    Panel = new wxPanel(this);

    // The controls are made in tab order: filters, lists, commands.
    const wxSizerFlags whole = wxSizerFlags(1).Expand();
    auto* lists = new wxBoxSizer(wxVERTICAL);
    lists->Add(FilterRow(), wxSizerFlags().Expand().Border(wxBOTTOM, Gap(this)));
    lvwKolegiji = new ListView(Panel, "lvwKolegiji");
    lists->Add(lvwKolegiji, wxSizerFlags(3).Expand().Border(wxBOTTOM, Gap(this)));
    lvwStatistika = new ListView(Panel, "lvwStatistika");
    lists->Add(lvwStatistika, wxSizerFlags(2).Expand());

    auto* content = new wxBoxSizer(wxHORIZONTAL);
    content->Add(lists, whole);
    content->Add(CommandColumn(), wxSizerFlags().Expand().Border(wxLEFT, 2 * Gap(this)));
    auto* margin = new wxBoxSizer(wxVERTICAL);
    margin->Add(content, wxSizerFlags(1).Expand().Border(wxALL, 2 * Gap(this)));
    Panel->SetSizer(margin);

    UseClientSizes(*this, *margin, InitialSize, SmallestSize);
    BindEvents();
}

wxSizer* frmMain::FilterRow()
{
    struct Filter
    {
        wxChoice** Box;
        const char* Name;
        const char* LabelName;
        const char* Caption;
        int Characters;
    };
    const Filter filters[] = {
        {&cboRazina, "cboRazina", "lblRazina", "Razina:", 14},
        {&cboProgram, "cboProgram", "lblProgram", "Program:", 8},
        {&cboSmjer, "cboSmjer", "lblSmjer", "Smjer:", 8},
        {&cboSemestar, "cboSemestar", "lblSemestar", "Semestar:", 4},
    };

    auto* row = new wxBoxSizer(wxHORIZONTAL);
    const wxSizerFlags labelFlags = wxSizerFlags().CenterVertical().Border(wxRIGHT, Gap(this));
    const wxSizerFlags boxFlags = wxSizerFlags().CenterVertical().Border(wxRIGHT, 2 * Gap(this));
    for (const Filter& filter : filters)
    {
        row->Add(NewLabel(Panel, filter.LabelName, filter.Caption), labelFlags);
        *filter.Box = NewChoice(Panel, filter.Name, filter.Characters);
        row->Add(*filter.Box, boxFlags);
    }
    Label1 = NewLabel(Panel, "Label1", "Traži:");
    row->Add(Label1, labelFlags);
    txtSearch = NewTextBox(Panel, "txtSearch", 16);
    row->Add(txtSearch, wxSizerFlags(1).CenterVertical());
    return row;
}

wxSizer* frmMain::CommandColumn()
{
    struct Command
    {
        wxButton** Button;
        const char* Name;
        const char* Caption;
    };
    struct CommandFrame
    {
        const char* Name;
        const char* Caption;
        std::vector<Command> Commands;
    };
    const CommandFrame frames[] = {
        {"Frame1",
         "Kolegij",
         {{&cmdAdd, "cmdAdd", "&Dodaj"},
          {&cmdEdit, "cmdEdit", "&Edit"},
          {&cmdDelete, "cmdDelete", "De&lete"}}},
        {"Frame2",
         "Statistika",
         {{&cmdStatNositelji, "cmdStatNositelji", "&Nositelji"},
          {&cmdStatZavodi, "cmdStatZavodi", "&Zavodi"}}},
        {"Frame3",
         "Export",
         {{&cmdExport, "cmdExport", "&Semestri"}, {&cmdExportVarlo, "cmdExportVarlo", "&Kolegiji"}}},
    };
    const Command loose[] = {{&cmdECTSCalc, "cmdECTSCalc", "E&CTS"},
                             {&cmdAbout, "cmdAbout", "O &prog..."},
                             {&cmdExit, "cmdExit", "&Izlaz"}};

    auto* column = new wxBoxSizer(wxVERTICAL);
    const auto add = [this](wxSizer* sizer, wxWindow* parent, const Command& command)
    {
        *command.Button = NewButton(parent, command.Name, command.Caption);
        sizer->Add(*command.Button, wxSizerFlags().Expand().Border(wxALL, Gap(this) / 2));
    };
    for (const CommandFrame& frame : frames)
    {
        wxStaticBoxSizer* box = NewFrame(Panel, frame.Name, frame.Caption);
        for (const Command& command : frame.Commands)
            add(box, box->GetStaticBox(), command);
        column->Add(box, wxSizerFlags().Expand().Border(wxBOTTOM, Gap(this)));
    }
    column->AddStretchSpacer();
    for (const Command& command : loose)
        add(column, Panel, command);
    return column;
}

void frmMain::BindEvents()
{
    cboRazina->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { cboRazina_Click(); });
    cboProgram->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { cboProgram_Click(); });
    cboSmjer->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { RefreshGrids(); });
    cboSemestar->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { RefreshGrids(); });
    txtSearch->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { RefreshGrids(); });
    txtSearch->Bind(wxEVT_KEY_DOWN, &frmMain::txtSearch_KeyDown, this);

    lvwKolegiji->OnColumnClick([this](int column) { SortListViewByColumn(*lvwKolegiji, column); });
    lvwKolegiji->OnKey([this](const wxKeyEvent& key) { return lvwKolegiji_KeyDown(key); });
    lvwStatistika->OnColumnClick([this](int column) { SortListViewByColumn(*lvwStatistika, column); });

    cmdDelete->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdDelete_Click(); });
    cmdExit->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdExit_Click(); });
    Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent&) { Form_Unload(); });

    // Their windows and files are not there yet.
    for (wxButton* button :
         {cmdAdd, cmdEdit, cmdStatNositelji, cmdStatZavodi, cmdExport, cmdExportVarlo, cmdECTSCalc, cmdAbout})
        button->Disable();
}

void frmMain::Form_Load()
{
    modData::LoadAllTables();
    if (!modCSVValidator::ValidateAll())
        ShowWarning(this,
                    "Upozorenje: CSV datoteke sadrže greške. Neke funkcije možda neće raditi ispravno.");
    SetupKolegijiColumns();
    SetupStatistikaColumns();
    FillRazinaCombo();
    FillProgramCombo();
    FillSmjerCombo();
    FillSemestarCombo();
    FormReady = true;
    RefreshGrids();
    SetTitle(ToWx(ProductName) + " " + ToWx(ProductVersion));
    CenterForm(*this);
    Show();
    txtSearch->SetFocus();
}

void frmMain::SetupKolegijiColumns()
{
    lvwKolegiji->SetColumns(KolegijiColumns);
}

void frmMain::SetupStatistikaColumns()
{
    lvwStatistika->SetColumns(StatistikaColumns);
}

void frmMain::FillRazinaCombo()
{
    FillChoices(*cboRazina, RazinaChoices());
}

void frmMain::FillProgramCombo()
{
    FillChoices(*cboProgram, ProgramChoices(ToUtf8(cboRazina->GetStringSelection())));
}

void frmMain::FillSmjerCombo()
{
    std::optional<std::int32_t> studijID;
    if (cboProgram->GetSelection() != wxNOT_FOUND)
        studijID = SelectedData(*cboProgram);
    FillChoices(*cboSmjer, SmjerChoices(studijID));
}

void frmMain::FillSemestarCombo()
{
    FillChoices(*cboSemestar, SemestarChoices(ToUtf8(cboRazina->GetStringSelection())));
}

CourseFilter frmMain::CurrentFilter() const
{
    CourseFilter filter;
    filter.StudijID = SelectedData(*cboProgram);
    filter.SmjerID = SelectedData(*cboSmjer);
    const std::string semestar = ToUtf8(cboSemestar->GetStringSelection());
    if (!TrimBlanks(semestar).empty() && semestar != Svi)
        filter.Semestar = ToLong(semestar);
    filter.Search = ToUtf8(txtSearch->GetValue());
    return filter;
}

void frmMain::RefreshListView()
{
    if (!FormReady)
        return;
    lvwKolegiji->SetRows(CourseRows(CurrentFilter()));
}

void frmMain::RefreshStatistika()
{
    lvwStatistika->SetRows({});
}

void frmMain::RefreshGrids()
{
    RefreshListView();
    RefreshStatistika();
}

void frmMain::cboRazina_Click()
{
    FillProgramCombo();
    FillSmjerCombo();
    FillSemestarCombo();
    RefreshGrids();
}

void frmMain::cboProgram_Click()
{
    FillSmjerCombo();
    RefreshGrids();
}

void frmMain::txtSearch_KeyDown(wxKeyEvent& key)
{
    if (key.GetKeyCode() != WXK_ESCAPE)
    {
        key.Skip();
        return;
    }
    txtSearch->SetValue("");
    RefreshGrids();
}

bool frmMain::lvwKolegiji_KeyDown(const wxKeyEvent& key)
{
    if (key.GetKeyCode() != WXK_DELETE)
        return false;
    cmdDelete_Click();
    return true;
}

std::optional<std::int32_t> frmMain::SelectedKolegijID() const
{
    const int row = lvwKolegiji->SelectedRow();
    if (row < 0)
        return std::nullopt;
    return ToLong(lvwKolegiji->Cell(row, 0).Text);
}

void frmMain::cmdDelete_Click()
{
    const std::optional<std::int32_t> id = SelectedKolegijID();
    if (!id || !AskYesNo(this, "Želite li obrisati ovaj kolegij?", "Potvrda"))
        return;
    DeleteKolegij(*id);
    RefreshGrids();
}

void frmMain::cmdExit_Click()
{
    if (!modCSVValidator::ValidateAll())
    {
        ShowCritical(this, "CSV podaci nisu ispravni. Ispravite greške prije izvoza statistike.");
        return;
    }
    modData::SaveAllTables();
    UnloadOtherWindows();
    if (!Unloading)
        Close(true);
}

void frmMain::Form_Unload()
{
    // The window closes whatever the exit command says: with faulty data it closes without saving.
    Unloading = true;
    cmdExit_Click();
    Destroy();
}

void frmMain::UnloadOtherWindows()
{
    const std::vector<wxWindow*> open(wxTopLevelWindows.begin(), wxTopLevelWindows.end());
    for (wxWindow* window : open)
        if (window != this)
            window->Close(true);
}

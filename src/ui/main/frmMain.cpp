#include "ui/main/frmMain.h"

#include "data/CheckedNumbers.h"
#include "data/Errors.h"
#include "data/Lookups.h"
#include "data/TableChoices.h"
#include "data/modData.h"
#include "ects/frmECTSCalc.h"
#include "text/Text.h"
#include "ui/controls/CenterForm.h"
#include "ui/controls/Choices.h"
#include "ui/controls/Controls.h"
#include "ui/controls/ExportCommand.h"
#include "ui/controls/ListPairSizer.h"
#include "ui/controls/ListView.h"
#include "ui/controls/Messages.h"
#include "ui/controls/SharedWindow.h"
#include "ui/controls/SortMemory.h"
#include "ui/controls/Strings.h"
#include "ui/course_editor/frmKolegij.h"
#include "ui/department_stats/frmStatZavodi.h"
#include "ui/lecturer_stats/frmStatNositelji.h"
#include "ui/main/CatalogueExport.h"
#include "ui/main/CourseDeletion.h"
#include "ui/main/FilterChoices.h"
#include "ui/main/SemesterStatistics.h"
#include "ui/startup/frmAbout.h"
#include "validation/modCSVValidator.h"

#include <wx/accel.h>
#include <wx/button.h>
#include <wx/choice.h>
#include <wx/panel.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>
#include <wx/wrapsizer.h>

#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace
{

constexpr ListColumn StatistikaColumns[] = {
    {"Semestar", 1000}, {"Tip", 1200}, {"P", 700}, {"S", 700}, {"V", 700}, {"ECTS", 900}, {"Kolegija", 900},
};

const wxSize InitialSize = {1120, 720}; // at 96 dots to the inch
const wxSize SmallestSize = {760, 560};

constexpr ExportTexts StatistikaTexts = {.DialogTitle = "Spremi statistiku (CSV)",
                                         .Success = "Statistika exportirana u:",
                                         .ErrorPrefix = "Greška pri izvozu: "};
constexpr ExportTexts KolegijiTexts = {.DialogTitle = "Spremi export (CSV)",
                                       .Success = "Export završen:",
                                       .ErrorPrefix = "Greška pri exportu: "};

constexpr std::string_view InvalidData =
    "CSV podaci nisu ispravni. Ispravite greške prije izvoza statistike.";

} // namespace

frmMain::frmMain()
{
    Create(nullptr, wxID_ANY, ToWx(ProductName), wxDefaultPosition, wxDefaultSize, wxDEFAULT_FRAME_STYLE,
           "frmMain");
    ApplyAppStyle(*this);
    Panel = new wxPanel(this);

    // The controls are made in tab order: filters, lists, commands.
    const wxSizerFlags whole = wxSizerFlags(1).Expand();
    auto* lists = new wxBoxSizer(wxVERTICAL);
    lists->Add(FilterRow(), wxSizerFlags().Expand());
    lvwKolegiji = new ListView(Panel, "lvwKolegiji", "Kolegiji");
    lvwStatistika = new ListView(Panel, "lvwStatistika", "Statistika");
    lists->Add(new ListPairSizer(lvwKolegiji, lvwStatistika), whole);

    auto* content = new wxBoxSizer(wxHORIZONTAL);
    content->Add(lists, whole);
    content->Add(CommandColumn(), wxSizerFlags().Expand().Border(wxLEFT, 2 * Gap(this)));
    auto* margin = new wxBoxSizer(wxVERTICAL);
    margin->Add(content, wxSizerFlags(1).Expand().Border(wxALL, 2 * Gap(this)));
    Panel->SetSizer(margin);

    UseClientSizes(*this, *margin, InitialSize, SmallestSize);
    BindEvents();
    SetAccelerators();
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
        {&cboProgram, "cboProgram", "lblProgram", "Program:", 5},
        {&cboSmjer, "cboSmjer", "lblSmjer", "Smjer:", 5},
        {&cboSemestar, "cboSemestar", "lblSemestar", "Semestar:", 3},
    };

    constexpr int searchCharacters = 21; // 20, and the caret
    // With large text the search box is on a line of its own.
    auto* row = new wxWrapSizer(wxHORIZONTAL, 0);
    const wxSizerFlags belowFilters = wxSizerFlags().CenterVertical().Border(wxBOTTOM, Gap(this));
    for (const Filter& filter : filters)
    {
        auto* pair = new wxBoxSizer(wxHORIZONTAL);
        AddLabelled(*pair, Panel, filter.LabelName, filter.Caption,
                    [&] { return *filter.Box = NewChoice(Panel, filter.Name, filter.Characters); });
        row->Add(pair, belowFilters);
    }
    auto* search = new wxBoxSizer(wxHORIZONTAL);
    Label1 = AddLabelled(*search, Panel, "Label1", "Traži:",
                         [this] { return txtSearch = NewTextBox(Panel, "txtSearch", searchCharacters); });
    search->GetItem(txtSearch)->SetProportion(1); // the rest of the width
    search->GetItem(txtSearch)->SetBorder(0);
    row->Add(search, wxSizerFlags(belowFilters).Proportion(1));
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
    // The parent is the panel, not a frame: inside a frame the access keys of controls outside it are not
    // found.
    const auto add = [this](wxSizer* sizer, const Command& command)
    {
        *command.Button = NewButton(Panel, command.Name, command.Caption);
        sizer->Add(*command.Button, wxSizerFlags().Expand().Border(wxALL, Gap(this) / 2));
    };
    for (const CommandFrame& frame : frames)
    {
        wxStaticBoxSizer* box = NewFrame(Panel, frame.Name, frame.Caption);
        for (const Command& command : frame.Commands)
            add(box, command);
        column->Add(box, wxSizerFlags().Expand().Border(wxBOTTOM, Gap(this)));
    }
    column->AddStretchSpacer();
    for (const Command& command : loose)
        add(column, command);
    return column;
}

void frmMain::BindEvents()
{
    cboRazina->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { cboRazina_Click(); });
    cboProgram->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { cboProgram_Click(); });
    cboSmjer->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { cboSmjer_Click(); });
    cboSemestar->Bind(wxEVT_CHOICE, [this](wxCommandEvent&) { cboSemestar_Click(); });
    txtSearch->Bind(wxEVT_TEXT, [this](wxCommandEvent&) { txtSearch_Change(); });
    // At this event the system has not yet handled Enter itself.
    txtSearch->Bind(wxEVT_CHAR_HOOK, [this](wxKeyEvent& key) { key.Skip(!txtSearch_KeyDown(key)); });
    lvwKolegiji->OnColumnClick([this](int column) { lvwKolegiji_ColumnClick(column); });
    lvwKolegiji->OnActivate([this] { lvwKolegiji_DblClick(); });
    lvwKolegiji->OnKey([this](const wxKeyEvent& key) { return lvwKolegiji_KeyDown(key); });
    lvwKolegiji->SetCommands({{"&Dodaj", false, [this] { cmdAdd_Click(); }},
                              {"&Edit", true, [this] { cmdEdit_Click(); }},
                              {"De&lete", true, [this] { cmdDelete_Click(); }}});
    lvwStatistika->OnColumnClick([this](int column) { lvwStatistika_ColumnClick(column); });
    cmdAdd->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdAdd_Click(); });
    cmdEdit->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdEdit_Click(); });
    cmdDelete->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdDelete_Click(); });
    cmdStatNositelji->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdStatNositelji_Click(); });
    cmdStatZavodi->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdStatZavodi_Click(); });
    cmdExport->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdExport_Click(); });
    cmdExportVarlo->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdExportVarlo_Click(); });
    cmdECTSCalc->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdECTSCalc_Click(); });
    cmdAbout->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdAbout_Click(); });
    cmdExit->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdExit_Click(); });
    Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent&) { Form_Unload(); });
}

void frmMain::SetAccelerators()
{
    // These keys reach the window before any control. They work while the focus is in this window.
    const int find = wxWindow::NewControlId();
    const int add = wxWindow::NewControlId();
    Bind(
        wxEVT_MENU, [this](wxCommandEvent&) { FindText(); }, find);
    Bind(
        wxEVT_MENU, [this](wxCommandEvent&) { cmdAdd_Click(); }, add);
    const wxAcceleratorEntry keys[] = {{wxACCEL_CTRL, 'F', find}, {wxACCEL_CTRL, 'N', add}};
    SetAcceleratorTable(wxAcceleratorTable(static_cast<int>(std::size(keys)), keys));
}

void frmMain::FindText()
{
    txtSearch->SetFocus();
    txtSearch->SelectAll();
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
    lvwKolegiji->SetColumns(CourseListColumns);
    lvwKolegiji->SetEmptyText("Nijedan kolegij ne odgovara filtrima.");
}

void frmMain::SetupStatistikaColumns()
{
    lvwStatistika->SetColumns(StatistikaColumns);
}

void frmMain::FillRazinaCombo()
{
    FillChoices(*cboRazina, RazinaChoices());
    SelectFirst(*cboRazina);
}

void frmMain::FillProgramCombo()
{
    FillChoices(*cboProgram, StudijChoices(ChosenText(*cboRazina), RazinaMatch::Exact));
    SelectFirst(*cboProgram);
}

void frmMain::FillSmjerCombo()
{
    std::optional<std::int32_t> studijID;
    if (cboProgram->GetSelection() != wxNOT_FOUND)
        studijID = SelectedData(*cboProgram);
    FillChoices(*cboSmjer, SmjerFilterChoices(studijID));
    SelectFirst(*cboSmjer);
}

void frmMain::FillSemestarCombo()
{
    FillChoices(*cboSemestar, SemestarFilterChoices(ChosenText(*cboRazina)));
    SelectFirst(*cboSemestar);
}

CourseFilter frmMain::CurrentFilter() const
{
    CourseFilter filter;
    filter.StudijID = SelectedData(*cboProgram);
    filter.SmjerID = SelectedData(*cboSmjer);
    const std::string semestar = ChosenText(*cboSemestar);
    if (!TrimBlanks(semestar).empty() && semestar != Svi)
        filter.Semestar = ToLong(semestar);
    filter.Search = ToUtf8(txtSearch->GetValue());
    return filter;
}

void frmMain::RefreshListView()
{
    if (!FormReady)
        return;
    const CourseFilter filter = CurrentFilter();
    Search search(filter.Search);
    RefreshListView(filter, search, SelectedCourse());
}

void frmMain::RefreshListView(const CourseFilter& filter, Search& search,
                              const std::optional<CourseMark>& selected)
{
    auto courses = std::make_unique<CourseListModel>(CoursesThatPass(filter, search));
    m_courses = courses.get();
    lvwKolegiji->Show(std::move(courses), selected ? m_courses->RowOf(*selected) : std::nullopt);
}

void frmMain::RefreshStatistika(CourseFilter filter, Search& search)
{
    lvwStatistika->ShowRows({});
    if (ChosenText(*cboSmjer) == Svi) // an entry of this name means no filter, even one with an ID
        filter.SmjerID = 0;
    lvwStatistika->ShowRows(StatistikaRows(filter, search, ChosenText(*cboRazina)));
    Panel->Layout(); // the sums are as high as their rows
}

void frmMain::RefreshGrids(const std::optional<CourseMark>& selected)
{
    if (!FormReady)
        return;
    const CourseFilter filter = CurrentFilter();
    Search search(filter.Search);
    RefreshListView(filter, search, selected);
    RefreshStatistika(filter, search);
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

void frmMain::cboSmjer_Click()
{
    RefreshGrids();
}

void frmMain::cboSemestar_Click()
{
    RefreshGrids();
}

void frmMain::txtSearch_Change()
{
    RefreshGrids();
}

bool frmMain::txtSearch_KeyDown(const wxKeyEvent& key)
{
    switch (key.GetKeyCode())
    {
    case WXK_ESCAPE:
        txtSearch->ChangeValue("");
        RefreshGrids();
        return true;
    case WXK_DOWN:
    case WXK_NUMPAD_DOWN:
    case WXK_RETURN:
    case WXK_NUMPAD_ENTER:
        GoToFirstCourse();
        return true;
    default:
        return false;
    }
}

void frmMain::GoToFirstCourse()
{
    if (lvwKolegiji->RowCount() == 0)
        return;
    lvwKolegiji->SetFocus();
    lvwKolegiji->SelectRow(0);
}

void frmMain::lvwKolegiji_ColumnClick(int column)
{
    SortListViewByColumn(*lvwKolegiji, column);
}

void frmMain::lvwStatistika_ColumnClick(int column)
{
    SortListViewByColumn(*lvwStatistika, column);
}

void frmMain::lvwKolegiji_DblClick()
{
    cmdEdit_Click(); // does nothing without a selected row
}

bool frmMain::lvwKolegiji_KeyDown(const wxKeyEvent& key)
{
    const int code = key.GetKeyCode();
    if ((key.ControlDown() && code == 'N') || code == WXK_INSERT || code == WXK_NUMPAD_INSERT)
        cmdAdd_Click();
    else if (code == WXK_DELETE || code == WXK_NUMPAD_DELETE)
        cmdDelete_Click();
    else if (code == WXK_RETURN || code == WXK_NUMPAD_ENTER || code == WXK_F2)
        cmdEdit_Click();
    else
        return false;
    return true;
}

std::optional<std::int32_t> frmMain::SelectedKolegijID() const
{
    const int row = lvwKolegiji->SelectedRow();
    if (row < 0)
        return std::nullopt;
    return ToLong(lvwKolegiji->Text(row, 0));
}

std::optional<CourseMark> frmMain::SelectedCourse() const
{
    const int row = lvwKolegiji->SelectedRow();
    if (row < 0)
        return std::nullopt;
    return m_courses->MarkOf(lvwKolegiji->ModelRow(row));
}

std::optional<CourseMark> frmMain::CourseBesideSelected() const
{
    const int selected = lvwKolegiji->SelectedRow();
    const std::int32_t id = SelectedCourse()->ID;
    const auto firstOther = [&](int row, int step) -> std::optional<CourseMark>
    {
        for (; row >= 0 && row < lvwKolegiji->RowCount(); row += step)
            if (const CourseMark course = m_courses->MarkOf(lvwKolegiji->ModelRow(row)); course.ID != id)
                return course;
        return std::nullopt;
    };
    const std::optional<CourseMark> following = firstOther(selected + 1, 1);
    return following ? following : firstOther(selected - 1, -1);
}

void frmMain::SelectNewCourse()
{
    const auto last = static_cast<std::uint32_t>(modData::Kolegiji.RowCount() - 1);
    if (const std::optional<std::size_t> row = m_courses->RowOf(CourseListModel({last}).MarkOf(0)))
        lvwKolegiji->SelectModelRow(*row);
}

void frmMain::cmdAdd_Click()
{
    frmKolegij editor(this);
    editor.Mode = "ADD";
    editor.StartRazina = ChosenText(*cboRazina);
    editor.StartStudijID = SelectedData(*cboProgram);
    const bool isAdded = editor.ShowModal() == wxID_OK;
    RefreshGrids();
    if (isAdded)
        SelectNewCourse();
}

void frmMain::cmdEdit_Click()
{
    const std::optional<std::int32_t> id = SelectedKolegijID();
    if (!id)
        return;
    frmKolegij editor(this);
    editor.Mode = "EDIT";
    editor.EditKolegijID = *id;
    if (const modData::Row* kolegij = modData::Kolegiji.FindFirst(Kolegij::ID, *id))
    {
        editor.StartStudijID = kolegij->Number(Kolegij::StudijID);
        editor.StartRazina = modData::GetStudijRazina(editor.StartStudijID);
    }
    editor.ShowModal();
    RefreshGrids();
}

void frmMain::cmdDelete_Click()
{
    const std::optional<std::int32_t> id = SelectedKolegijID();
    if (!id || !AskYesNo(this, "Želite li obrisati ovaj kolegij?", "Potvrda"))
        return;
    const std::optional<CourseMark> beside = CourseBesideSelected();
    DeleteKolegij(*id);
    RefreshGrids(beside);
}

void frmMain::cmdStatNositelji_Click()
{
    ShowShared<frmStatNositelji>(this);
}

void frmMain::cmdStatZavodi_Click()
{
    ShowShared<frmStatZavodi>(this);
}

void frmMain::cmdECTSCalc_Click()
{
    ShowShared<frmECTSCalc>(this);
}

void frmMain::cmdAbout_Click()
{
    frmAbout(this).ShowModal();
}

void frmMain::cmdExport_Click()
{
    RunExport(
        this, cdlSave, StatistikaTexts,
        [this]() -> std::optional<std::string>
        {
            if (modCSVValidator::ValidateAll())
                return StatistikaFileName(ShownFilters());
            ShowCritical(this, InvalidData);
            return std::nullopt;
        },
        [this](const std::string& path) { ExportStatistika_SelectedToCSV(path); });
}

void frmMain::cmdExportVarlo_Click()
{
    RunExport(
        this, cdlSave, KolegijiTexts, [] { return "kolegiji_export.csv"; }, ExportKolegijiToCSV);
}

void frmMain::ExportStatistika_SelectedToCSV(std::string_view path)
{
    RefreshGrids();
    std::vector<std::vector<std::string>> rows;
    for (int row = 0; row < lvwStatistika->RowCount(); ++row)
    {
        rows.emplace_back();
        for (int column = 0; column < lvwStatistika->ColumnCount(); ++column)
            rows.back().push_back(lvwStatistika->Text(row, column));
    }
    WriteStatistika(path, ShownFilters(), rows);
}

StatistikaFilters frmMain::ShownFilters() const
{
    return {ChosenText(*cboRazina), ChosenText(*cboProgram), ChosenText(*cboSmjer), ChosenText(*cboSemestar)};
}

void frmMain::cmdExit_Click()
{
    if (!modCSVValidator::ValidateAll())
    {
        ShowCritical(this, InvalidData);
        return;
    }
    modData::SaveAllTables();
    UnloadOtherWindows();
    if (!m_unloading)
        Close(true); // Form_Unload saves the same once more
}

void frmMain::Form_Unload()
{
    // The window closes even if the exit command refuses: invalid data are not saved.
    m_unloading = true;
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

#include "ui/teaching_stats/TeachingLoadWindow.h"

#include "ui/controls/Controls.h"
#include "ui/controls/ListPairSizer.h"
#include "ui/controls/ListView.h"
#include "ui/controls/SortMemory.h"
#include "ui/controls/Strings.h"
#include "ui/teaching_stats/TaughtCourses.h"

#include <wx/button.h>
#include <wx/panel.h>
#include <wx/sizer.h>

#include <utility>

namespace
{

const wxSize InitialSize = {980, 740}; // at 96 dots to the inch
const wxSize SmallestSize = {680, 480};

} // namespace

TeachingLoadWindow::TeachingLoadWindow(wxWindow* parent, const Description& description)
    : m_description(description)
{
    Create(parent, wxID_ANY, ToWx(description.Caption), wxDefaultPosition, wxDefaultSize,
           wxDEFAULT_FRAME_STYLE, ToWx(description.Name));
    ApplyAppStyle(*this);
    Panel = new wxPanel(this);
    CloseByEscape(*this);
}

wxSizer* TeachingLoadWindow::NewLists()
{
    lvwKolegiji = new ListView(Panel, "lvwKolegiji", "Kolegiji");
    lvwKolegiji->SetColumns(TaughtCourseColumns);
    m_sums = new ListView(Panel, ToWx(m_description.SumsName), "Statistika");
    m_sums->SetColumns(m_description.SumsColumns);
    for (ListView* list : {lvwKolegiji, m_sums})
        list->OnColumnClick([list](int column) { SortListViewByColumn(*list, column); });
    return new ListPairSizer(lvwKolegiji, m_sums);
}

wxSizer* TeachingLoadWindow::NewButtons()
{
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(cmdExportAllStat = NewButton(Panel, "cmdExportAllStat", "E&xport"));
    row->AddStretchSpacer();
    row->Add(cmdClose = NewButton(Panel, "cmdClose", "&Zatvori"));
    cmdExportAllStat->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdExportAllStat_Click(); });
    cmdClose->Bind(wxEVT_BUTTON, [this](wxCommandEvent&) { cmdClose_Click(); });
    return row;
}

void TeachingLoadWindow::SetLayout(wxSizer* controls)
{
    auto* margin = new wxBoxSizer(wxVERTICAL);
    margin->Add(controls, wxSizerFlags(1).Expand().Border(wxALL, 2 * Gap(this)));
    Panel->SetSizer(margin);
    UseClientSizes(*this, *margin, InitialSize, SmallestSize);
}

void TeachingLoadWindow::SetEmptyText(std::string_view text)
{
    lvwKolegiji->SetEmptyText(text);
}

void TeachingLoadWindow::ShowCourses(std::vector<ListRow> rows)
{
    lvwKolegiji->ShowRows(std::move(rows));
}

void TeachingLoadWindow::ShowSums(std::vector<ListRow> rows)
{
    m_sums->ShowRows(std::move(rows));
    Panel->Layout(); // the sums are as high as their rows
}

void TeachingLoadWindow::cmdExportAllStat_Click()
{
    RunExport(
        this, cdlSave, m_description.Export, [this] { return std::string(m_description.ExportName); },
        [this](const std::string& path) { ExportAll(path); });
}

void TeachingLoadWindow::cmdClose_Click()
{
    Close();
}

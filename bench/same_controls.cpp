// The toolkit's share of the main window's start: the same number of controls of each kind, made by the
// toolkit's own calls, without data and without the program's code.

#include "FirstIdle.h"

#include <wx/button.h>
#include <wx/choice.h>
#include <wx/dataview.h>
#include <wx/frame.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

namespace
{

constexpr int Labels = 5;
constexpr int Boxes = 4;
constexpr int FramedButtons[] = {3, 2, 2};
constexpr int LooseButtons = 3;
constexpr int ListColumns[] = {11, 7};
constexpr int ColumnWidth = 60;

wxSizer* Filters(wxWindow* panel)
{
    auto* row = new wxBoxSizer(wxHORIZONTAL);
    for (int i = 0; i < Labels; ++i)
    {
        row->Add(new wxStaticText(panel, wxID_ANY, "Natpis:"));
        if (i < Boxes)
            row->Add(new wxChoice(panel, wxID_ANY));
        else
            row->Add(new wxTextCtrl(panel, wxID_ANY), wxSizerFlags(1));
    }
    return row;
}

wxSizer* Commands(wxWindow* panel)
{
    auto* column = new wxBoxSizer(wxVERTICAL);
    for (const int buttons : FramedButtons)
    {
        auto* frame = new wxStaticBoxSizer(wxVERTICAL, panel, "Okvir");
        for (int i = 0; i < buttons; ++i)
            frame->Add(new wxButton(panel, wxID_ANY, "Naredba"));
        column->Add(frame);
    }
    for (int i = 0; i < LooseButtons; ++i)
        column->Add(new wxButton(panel, wxID_ANY, "Naredba"));
    return column;
}

class SameControlsApp : public wxApp
{
public:
    bool OnInit() override
    {
        auto* window = new wxFrame(nullptr, wxID_ANY, "Varlostudiji");
        auto* panel = new wxPanel(window);
        auto* lists = new wxBoxSizer(wxVERTICAL);
        lists->Add(Filters(panel), wxSizerFlags().Expand());
        for (const int columns : ListColumns)
        {
            auto* list = new wxDataViewListCtrl(panel, wxID_ANY);
            for (int i = 0; i < columns; ++i)
                list->AppendTextColumn("Stupac", wxDATAVIEW_CELL_INERT, ColumnWidth);
            lists->Add(list, wxSizerFlags(1).Expand());
        }
        auto* content = new wxBoxSizer(wxHORIZONTAL);
        content->Add(lists, wxSizerFlags(1).Expand());
        content->Add(Commands(panel));
        panel->SetSizer(content);
        window->SetClientSize(window->FromDIP(wxSize(1120, 720)));
        window->Show();
        ExitAtFirstIdle(*window);
        return true;
    }
};

} // namespace

wxIMPLEMENT_APP(SameControlsApp);

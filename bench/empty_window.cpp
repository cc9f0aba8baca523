// The fastest start of a program with this toolkit: a window with an empty panel, as large as the main
// window.

#include "FirstIdle.h"

#include <wx/frame.h>

namespace
{

class EmptyWindowApp : public wxApp
{
public:
    bool OnInit() override
    {
        auto* window = new wxFrame(nullptr, wxID_ANY, "Varlostudiji");
        new wxPanel(window);
        window->SetClientSize(window->FromDIP(wxSize(1120, 720)));
        window->Show();
        ExitAtFirstIdle(*window);
        return true;
    }
};

} // namespace

wxIMPLEMENT_APP(EmptyWindowApp);

#include "ui/controls/CenterForm.h"

#include <wx/gdicmn.h>
#include <wx/toplevel.h>

void CenterForm(wxTopLevelWindow& window)
{
    const wxSize screen = wxGetDisplaySize();
    const wxSize size = window.GetSize();
    window.Move(CenteredEdge(screen.x, size.x), CenteredEdge(screen.y, size.y));
}

#pragma once

#include <wx/frame.h>
#include <wx/weakref.h>

/// Shows the one shared window of its class: opens it, or brings the one that is open to the front as it
/// stands. A window that the user has closed is opened anew.
template<typename Window>
Window* ShowShared(wxWindow* parent)
{
    static wxWeakRef<Window> open;
    if (open == nullptr || open->IsBeingDeleted())
        open = new Window(parent);
    if (open->IsIconized())
        open->Restore();
    open->Show();
    open->Raise();
    return open;
}

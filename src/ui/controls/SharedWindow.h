#pragma once

#include <wx/frame.h>
#include <wx/weakref.h>

/// Shows the one shared window of its class: opens it, or brings the open one to the front unchanged.
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

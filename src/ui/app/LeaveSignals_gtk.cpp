#include "ui/app/LeaveSignals.h"

#include "ui/controls/NativeFunction_gtk.h"

#include <wx/dialog.h>
#include <wx/toplevel.h>

#include <csignal>

namespace
{

constexpr unsigned StepPause = 10; // milliseconds, for an ended dialog's loop to return

// Constants of GLib and GTK.
constexpr int GoOn = 1;
constexpr int Stop = 0;
constexpr int DeleteEventResponse = -4;

using GlibCallback = int (*)(void* data);

bool IsLeaving = false;

/// The toolkit's dialog of a native window; null if it has none.
wxDialog* DialogOf(GtkWidget* native)
{
    for (wxWindow* window : wxTopLevelWindows)
        if (window->GetHandle() == native)
            return wxDynamicCast(window, wxDialog);
    return nullptr;
}

/// Cancels the innermost modal dialog or open menu; false if there is none.
bool CancelInnermost()
{
    GtkWidget* grab = NativeFunction<GtkWidget* (*)()>("gtk_grab_get_current")();
    if (grab == nullptr)
        return false;
    GtkWidget* window = NativeFunction<GtkWidget* (*)(GtkWidget*)>("gtk_widget_get_toplevel")(grab);
    if (wxDialog* dialog = DialogOf(window); dialog != nullptr && dialog->IsModal())
        dialog->EndModal(wxID_CANCEL);
    else if (IsNative(window, "gtk_dialog_get_type"))
        NativeFunction<void (*)(GtkWidget*, int)>("gtk_dialog_response")(window, DeleteEventResponse);
    else if (IsNative(grab, "gtk_menu_shell_get_type"))
        NativeFunction<void (*)(GtkWidget*)>("gtk_menu_shell_cancel")(grab);
    else
        NativeFunction<void (*)(GtkWidget*)>("gtk_grab_remove")(grab);
    return true;
}

int LeaveStep(void*)
{
    if (CancelInnermost())
        return GoOn;
    if (wxWindow* window = wxWindow::FindWindowByName("frmMain"))
        window->Close(true);
    else if (wxWindow* splash = wxWindow::FindWindowByName("frmSplash"))
        splash->Destroy();
    IsLeaving = false;
    return Stop;
}

int Leave(void*)
{
    if (!IsLeaving)
    {
        IsLeaving = true;
        NativeFunction<unsigned (*)(unsigned, GlibCallback, void*)>("g_timeout_add")(StepPause, LeaveStep,
                                                                                     nullptr);
    }
    return GoOn;
}

} // namespace

void LeaveOnSignals()
{
    const auto onSignal = NativeFunction<unsigned (*)(int, GlibCallback, void*)>("g_unix_signal_add");
    for (const int signal : {SIGTERM, SIGHUP, SIGINT})
        onSignal(signal, Leave, nullptr);
}

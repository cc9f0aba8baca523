#pragma once

#include <wx/filedlg.h>

#include <optional>
#include <string>

// The system's own Save dialog, as far as a test needs to look into it.

/// The text of the name box, when it has the keyboard focus; nothing while the dialog is not ready for keys.
std::optional<std::string> FocusedNameBoxText(const wxFileDialog& dialog);

/// True while a message box of the dialog's own is open.
bool ShowsOwnMessage(const wxFileDialog& dialog);

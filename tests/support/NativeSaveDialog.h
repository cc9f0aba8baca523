#pragma once

#include <wx/filedlg.h>

#include <optional>
#include <string>

// The parts of the system's own Save dialog that a test needs.

/// The text of the name box, if it has the keyboard focus; nothing until the dialog is ready for keys.
std::optional<std::string> FocusedNameBoxText(const wxFileDialog& dialog);

/// True while the dialog shows a message box.
bool ShowsOwnMessage(const wxFileDialog& dialog);

#pragma once

#include <wx/defs.h>
#include <wx/gdicmn.h>

#include <optional>
#include <string>
#include <vector>

/// The system's own message box as the user sees it.
struct MessageBoxOnScreen
{
    std::string Title;
    std::string Text;
    long Icon; ///< wxICON_INFORMATION, wxICON_WARNING, wxICON_QUESTION or wxICON_ERROR; wxICON_NONE for none.
    std::vector<std::string> Buttons; ///< Their captions without access keys, in alphabetical order.
    wxRect Place;
};

/// The message box that this program shows now.
std::optional<MessageBoxOnScreen> FindMessageBox();

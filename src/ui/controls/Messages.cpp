#include "ui/controls/Messages.h"

#include "ui/controls/Strings.h"

#include <wx/msgdlg.h>

namespace
{

int ShowBox(wxWindow* parent, std::string_view text, std::string_view title, long style)
{
    return wxMessageDialog(parent, ToWx(text), ToWx(title), style | wxCENTRE).ShowModal();
}

} // namespace

void ShowInformation(wxWindow* parent, std::string_view text, std::string_view title)
{
    ShowBox(parent, text, title, wxOK | wxICON_INFORMATION);
}

void ShowWarning(wxWindow* parent, std::string_view text, std::string_view title)
{
    ShowBox(parent, text, title, wxOK | wxICON_EXCLAMATION);
}

void ShowCritical(wxWindow* parent, std::string_view text, std::string_view title)
{
    ShowBox(parent, text, title, wxOK | wxICON_ERROR);
}

bool AskYesNo(wxWindow* parent, std::string_view text, std::string_view title)
{
    return ShowBox(parent, text, title, wxYES_NO | wxICON_QUESTION) == wxID_YES;
}

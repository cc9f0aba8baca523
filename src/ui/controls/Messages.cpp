#include "ui/controls/Messages.h"

#include "ui/controls/NativeMessageBox.h"
#include "ui/controls/Strings.h"

#include <wx/modalhook.h>
#include <wx/msgdlg.h>

namespace
{

/// Shows the system's own message box, unless a modal hook answers for it.
class SystemMessageDialog final : public wxMessageDialog
{
public:
    using wxMessageDialog::wxMessageDialog;

    int ShowModal() override
    {
        WX_HOOK_MODAL_DIALOG();
        return ShowNativeMessageBox(*this);
    }
};

int ShowBox(wxWindow* parent, std::string_view text, std::string_view title, long style)
{
    return SystemMessageDialog(parent, ToWx(text), ToWx(title), style).ShowModal();
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
    return ShowBox(parent, text, title, wxYES_NO | wxNO_DEFAULT | wxICON_QUESTION) == wxID_YES;
}

// The plain message box of Windows. The toolkit prefers the task dialog, which has no question icon.

#include "ui/controls/NativeMessageBox.h"

#include <wx/msgdlg.h>
#include <wx/msw/wrapwin.h>

#include <algorithm>

namespace
{

struct BoxKind
{
    long Icon;
    UINT NativeIcon;
};

constexpr BoxKind BoxKinds[] = {
    {wxICON_INFORMATION, MB_ICONINFORMATION},
    {wxICON_WARNING, MB_ICONWARNING},
    {wxICON_QUESTION, MB_ICONQUESTION},
    {wxICON_ERROR, MB_ICONERROR},
};

} // namespace

int ShowNativeMessageBox(const wxMessageDialog& dialog)
{
    const wxWindow* parent = dialog.GetParentForModalDialog();
    const bool asks = (dialog.GetMessageDialogStyle() & wxYES_NO) == wxYES_NO;
    const BoxKind& kind = *std::ranges::find(BoxKinds, dialog.GetEffectiveIcon(), &BoxKind::Icon);
    // Without an owner the box itself must block all windows of the program.
    const UINT modality = parent != nullptr ? MB_APPLMODAL : MB_TASKMODAL;
    const UINT defaultButton =
        (dialog.GetMessageDialogStyle() & wxNO_DEFAULT) != 0 ? MB_DEFBUTTON2 : MB_DEFBUTTON1;
    const int answer = MessageBoxW(parent != nullptr ? parent->GetHWND() : nullptr,
                                   dialog.GetMessage().wc_str(), dialog.GetCaption().wc_str(),
                                   (asks ? MB_YESNO : MB_OK) | kind.NativeIcon | modality | defaultButton);
    switch (answer)
    {
    case IDOK:
        return wxID_OK;
    case IDYES:
        return wxID_YES;
    case IDNO:
        return wxID_NO;
    default:
        return wxID_CANCEL;
    }
}

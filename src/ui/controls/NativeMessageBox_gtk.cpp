// GTK's own message box with an image: GTK 3 shows no icon unless one is set.

#include "ui/controls/NativeMessageBox.h"

#include "ui/controls/NativeFunction_gtk.h"

#include <wx/msgdlg.h>

#include <algorithm>

namespace
{

struct BoxKind
{
    long Icon;
    int MessageType; ///< A GtkMessageType.
    const char* IconName;
};

constexpr BoxKind BoxKinds[] = {
    {wxICON_INFORMATION, 0, "dialog-information"},
    {wxICON_WARNING, 1, "dialog-warning"},
    {wxICON_QUESTION, 2, "dialog-question"},
    {wxICON_ERROR, 3, "dialog-error"},
};

// Constants of GTK.
constexpr int ModalDialog = 1;
constexpr int DialogIconSize = 6;
constexpr int AlignStart = 1;
constexpr int OkButton = 1;
constexpr int YesNoButtons = 4;
constexpr int OkResponse = -5;
constexpr int YesResponse = -8;
constexpr int NoResponse = -9;

GtkWidget* NewIcon(const char* name)
{
    const auto newImage = NativeFunction<GtkWidget* (*)(const char*, int)>("gtk_image_new_from_icon_name");
    const auto align = NativeFunction<void (*)(GtkWidget*, int)>("gtk_widget_set_valign");
    const auto show = NativeFunction<void (*)(GtkWidget*)>("gtk_widget_show");
    GtkWidget* icon = newImage(name, DialogIconSize);
    align(icon, AlignStart);
    show(icon);
    return icon;
}

GtkWidget* NewBox(const wxMessageDialog& dialog)
{
    const auto newBox =
        NativeFunction<GtkWidget* (*)(GtkWidget*, int, int, int, const char*, ...)>("gtk_message_dialog_new");
    const auto setTitle = NativeFunction<void (*)(GtkWidget*, const char*)>("gtk_window_set_title");
    const auto setImage = NativeFunction<void (*)(GtkWidget*, GtkWidget*)>("gtk_message_dialog_set_image");
    const auto setDefault = NativeFunction<void (*)(GtkWidget*, int)>("gtk_dialog_set_default_response");

    const wxWindow* parent = dialog.GetParentForModalDialog();
    const bool asks = (dialog.GetMessageDialogStyle() & wxYES_NO) == wxYES_NO;
    const BoxKind& kind = *std::ranges::find(BoxKinds, dialog.GetEffectiveIcon(), &BoxKind::Icon);
    GtkWidget* box = newBox(parent != nullptr ? parent->m_widget : nullptr, ModalDialog, kind.MessageType,
                            asks ? YesNoButtons : OkButton, "%s", dialog.GetMessage().utf8_str().data());
    setTitle(box, dialog.GetCaption().utf8_str());
    setImage(box, NewIcon(kind.IconName));
    const int yesOrNo = (dialog.GetMessageDialogStyle() & wxNO_DEFAULT) != 0 ? NoResponse : YesResponse;
    setDefault(box, asks ? yesOrNo : OkResponse);
    return box;
}

} // namespace

int ShowNativeMessageBox(const wxMessageDialog& dialog)
{
    if (wxWindow* capturing = wxWindow::GetCapture())
        capturing->GTKReleaseMouseAndNotify(); // while it is captured, the mouse cannot reach the box

    const auto run = NativeFunction<int (*)(GtkWidget*)>("gtk_dialog_run");
    const auto destroy = NativeFunction<void (*)(GtkWidget*)>("gtk_widget_destroy");
    GtkWidget* box = NewBox(dialog);
    const int response = run(box);
    destroy(box);
    switch (response)
    {
    case OkResponse:
        return wxID_OK;
    case YesResponse:
        return wxID_YES;
    case NoResponse:
        return wxID_NO;
    default:
        return wxID_CANCEL;
    }
}

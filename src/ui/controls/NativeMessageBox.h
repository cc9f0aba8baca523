#pragma once

class wxMessageDialog;

/// Shows the system's own message box with the dialog's text, title, icon and buttons, and waits for the
/// answer: wxID_OK, wxID_YES, wxID_NO, or wxID_CANCEL if the user closes the box.
int ShowNativeMessageBox(const wxMessageDialog& dialog);

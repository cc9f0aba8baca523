// Fields and buttons on Windows.

#include "ui/controls/NativeFields.h"

#include <wx/button.h>
#include <wx/clipbrd.h>
#include <wx/event.h>
#include <wx/msw/wrapwin.h>
#include <wx/textentry.h>
#include <wx/window.h>

namespace
{

/// The text on the clipboard with line breaks as "\n"; empty if there is none.
wxString ClipboardText()
{
    const wxClipboardLocker lock;
    wxTextDataObject text;
    return !!lock && wxTheClipboard->GetData(text) ? text.GetText() : wxString();
}

/// Replaces the selection of a box by a text; like a paste, this can be undone.
void WriteOverSelection(wxWindow& box, const wxString& text)
{
    const HWND inCombo = FindWindowExW(box.GetHWND(), nullptr, L"Edit", nullptr);
    SendMessageW(inCombo != nullptr ? inCombo : box.GetHWND(), EM_REPLACESEL, TRUE,
                 reinterpret_cast<LPARAM>(static_cast<const wchar_t*>(text.wc_str())));
}

} // namespace

void PasteFirstLineOnly(wxTextEntry& box)
{
    // The system's own box stops at CR LF, but not at every other line break.
    auto& window = dynamic_cast<wxWindow&>(box);
    window.Bind(wxEVT_TEXT_PASTE,
                [&window](wxClipboardTextEvent& event)
                {
                    const wxString text = ClipboardText();
                    if (text.Contains('\n'))
                        WriteOverSelection(window, text.BeforeFirst('\n'));
                    else
                        event.Skip();
                });
}

void KeepTabOffArrow(wxComboBox&)
{
    // The arrow is not a separate control here.
}

bool LeavesField(const wxFocusEvent& lostFocus)
{
    const wxWindow* next = lostFocus.GetWindow();
    return next != nullptr && wxGetTopLevelParent(const_cast<wxWindow*>(next)) ==
                                  wxGetTopLevelParent(dynamic_cast<wxWindow*>(lostFocus.GetEventObject()));
}

bool IsKeyOfOpenList()
{
    return SendMessageW(GetFocus(), CB_GETDROPPEDSTATE, 0, 0) != 0;
}

void MakeDefault(wxButton& button)
{
    button.SetDefault();
}

void FocusByAccessKey(wxButton&)
{
    // The system already does this.
}

#include "ui/controls/OptionalSelection.h"

#include <wx/button.h>
#include <wx/listbox.h>
#include <wx/toplevel.h>

#include <memory>

namespace
{

void OnClick(wxListBox& list, wxMouseEvent& event)
{
    const int clicked = list.HitTest(event.GetPosition());
    if (!event.ControlDown() || clicked == wxNOT_FOUND || clicked != list.GetSelection())
    {
        event.Skip();
        return;
    }
    list.SetFocus();
    list.SetSelection(wxNOT_FOUND);
}

void PressDefaultButton(wxListBox& list)
{
    auto* window = dynamic_cast<wxTopLevelWindow*>(wxGetTopLevelParent(&list));
    auto* button = window == nullptr ? nullptr : dynamic_cast<wxButton*>(window->GetDefaultItem());
    if (button == nullptr || !button->IsEnabled())
        return;
    wxCommandEvent press(wxEVT_BUTTON, button->GetId());
    press.SetEventObject(button);
    wxPostEvent(button, press);
}

void OnKey(wxListBox& list, wxKeyEvent& event)
{
    switch (event.GetKeyCode())
    {
    case WXK_DELETE:
    case WXK_NUMPAD_DELETE:
        list.SetSelection(wxNOT_FOUND);
        break;
    case WXK_RETURN:
    case WXK_NUMPAD_ENTER:
        PressDefaultButton(list);
        break;
    default:
        event.Skip();
    }
}

} // namespace

void LetSelectionBeEmpty(wxListBox& list)
{
    // Some systems select the first entry when the list gets the focus from the keyboard or from code; undo
    // that. A selection by the mouse is the user's and stays.
    const auto byMouse = std::make_shared<bool>(false);
    list.Bind(wxEVT_SET_FOCUS,
              [&list, byMouse](wxFocusEvent& event)
              {
                  event.Skip();
                  if (list.GetSelection() == wxNOT_FOUND && !*byMouse)
                      list.CallAfter(
                          [&list, byMouse]
                          {
                              if (!*byMouse)
                                  list.SetSelection(wxNOT_FOUND);
                          });
              });
    list.Bind(wxEVT_KILL_FOCUS,
              [byMouse](wxFocusEvent& event)
              {
                  event.Skip();
                  *byMouse = false;
              });
    list.Bind(wxEVT_LEFT_DOWN,
              [&list, byMouse](wxMouseEvent& event)
              {
                  *byMouse = true;
                  OnClick(list, event);
              });
    list.Bind(wxEVT_KEY_DOWN, [&list](wxKeyEvent& event) { OnKey(list, event); });
}

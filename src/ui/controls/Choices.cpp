#include "ui/controls/Choices.h"

#include "ui/controls/Strings.h"

#include <wx/listbox.h>

#include <memory>
#include <utility>

void FillChoices(wxItemContainer& box, const std::vector<Choice>& choices)
{
    wxArrayString texts;
    std::vector<void*> data;
    for (const Choice& choice : choices)
    {
        texts.push_back(ToWx(choice.Text));
        // The toolkit stores a pointer with each entry and never dereferences it.
        // NOLINTNEXTLINE(performance-no-int-to-ptr)
        data.push_back(reinterpret_cast<void*>(static_cast<std::intptr_t>(choice.Data)));
    }
    if (texts.empty())
        box.Clear();
    else
        box.Set(texts, data.data());
}

void SelectFirst(wxItemContainer& box)
{
    if (!box.IsEmpty())
        box.SetSelection(0);
}

bool SelectData(wxItemContainer& box, std::int32_t data)
{
    const int count = static_cast<int>(box.GetCount());
    for (int position = 0; position < count; ++position)
        if (DataAt(box, position) == data)
        {
            box.SetSelection(position);
            return true;
        }
    return false;
}

std::int32_t DataAt(const wxItemContainer& box, int position)
{
    return static_cast<std::int32_t>(
        reinterpret_cast<std::intptr_t>(box.GetClientData(static_cast<unsigned>(position))));
}

std::string ChosenText(const wxItemContainer& box)
{
    return ToUtf8(box.GetStringSelection());
}

std::int32_t SelectedData(const wxItemContainer& box)
{
    const int selected = box.GetSelection();
    return selected == wxNOT_FOUND ? 0 : DataAt(box, selected);
}

void ReportEveryChoice(wxListBox& list)
{
    // The selected entry under the pressed mouse button; it is chosen if the button is released on it.
    const auto pressed = std::make_shared<int>(wxNOT_FOUND);
    const auto onPress = [&list, pressed](wxMouseEvent& event)
    {
        event.Skip();
        const int entry = list.HitTest(event.GetPosition());
        *pressed = entry == list.GetSelection() ? entry : wxNOT_FOUND;
    };
    list.Bind(wxEVT_LEFT_DOWN, onPress);
    list.Bind(wxEVT_LEFT_DCLICK, onPress);
    list.Bind(wxEVT_LEFT_UP,
              [&list, pressed](wxMouseEvent& event)
              {
                  event.Skip();
                  const int entry = std::exchange(*pressed, wxNOT_FOUND);
                  if (entry != wxNOT_FOUND && entry == list.HitTest(event.GetPosition()))
                      list.CallAfter([&list] { list.SendSelectionChangedEvent(wxEVT_LISTBOX); });
              });
}

#include "ui/controls/Choices.h"

#include "ui/controls/Strings.h"

#include <wx/ctrlsub.h>

#include <cstdint>

void FillChoices(wxItemContainer& box, const std::vector<Choice>& choices)
{
    box.Clear();
    for (const Choice& choice : choices)
        box.Append(ToWx(choice.Text), reinterpret_cast<void*>(static_cast<std::intptr_t>(choice.Data)));
    if (!choices.empty())
        box.SetSelection(0);
}

std::int32_t SelectedData(const wxItemContainer& box)
{
    const int selected = box.GetSelection();
    if (selected == wxNOT_FOUND)
        return 0;
    return static_cast<std::int32_t>(
        reinterpret_cast<std::intptr_t>(box.GetClientData(static_cast<unsigned>(selected))));
}

#pragma once

#include "lists/Choice.h"

#include <cstdint>
#include <vector>

class wxItemContainer;

/// Replaces the entries of a combo box or list box and selects the first one, if there is one.
void FillChoices(wxItemContainer& box, const std::vector<Choice>& choices);

/// The number of the selected entry; 0 when none is selected.
std::int32_t SelectedData(const wxItemContainer& box);

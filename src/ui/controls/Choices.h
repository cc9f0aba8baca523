#pragma once

#include "data/Choice.h"

#include <cstdint>
#include <string>
#include <vector>

class wxChoice;
class wxItemContainer;
class wxListBox;

// Combo boxes and list boxes whose entries carry a number. Selecting an entry here raises no event.

/// Replaces the entries; none is selected then.
void FillChoices(wxItemContainer& box, const std::vector<Choice>& choices);

/// Selects the first entry, if there is one.
void SelectFirst(wxItemContainer& box);

/// Selects the first entry with the number, beside others in a multi-select list; false when there is none.
bool SelectData(wxItemContainer& box, std::int32_t data);

/// The number of the entry at a position.
std::int32_t DataAt(const wxItemContainer& box, int position);

/// The text of the selected entry (UTF-8); empty when none is selected.
std::string ChosenText(const wxItemContainer& box);

/// The number of the selected entry; 0 when none is selected.
std::int32_t SelectedData(const wxItemContainer& box);

// A choice by the user raises the control's event. The systems raise none for the entry that is selected
// already: with these every choice raises it. A menu closed by Escape is no choice.

void ReportEveryChoice(wxChoice& box);
void ReportEveryChoice(wxListBox& list);

/// Lets a filled list box without a selection have the focus: some systems select the first entry then.
void LetFocusSelectNothing(wxListBox& list);

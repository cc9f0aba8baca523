#pragma once

#include "data/Choice.h"

#include <cstdint>
#include <string>
#include <vector>

class wxChoice;
class wxItemContainer;
class wxListBox;

// Combo boxes and list boxes whose entries have a number each. Selecting an entry by these functions raises
// no event.

/// Replaces the entries; afterwards none is selected.
void FillChoices(wxItemContainer& box, const std::vector<Choice>& choices);

/// Selects the first entry, if there is one.
void SelectFirst(wxItemContainer& box);

/// Selects the first entry with the number; in a multi-select list the other selected entries stay selected.
/// False if there is no such entry.
bool SelectData(wxItemContainer& box, std::int32_t data);

/// The number of the entry at a position.
std::int32_t DataAt(const wxItemContainer& box, int position);

/// The text of the selected entry (UTF-8); empty if none is selected.
std::string ChosenText(const wxItemContainer& box);

/// The number of the selected entry; 0 if none is selected.
std::int32_t SelectedData(const wxItemContainer& box);

// Makes every choice by the user raise the control's event. Without this the systems raise none for an entry
// that is already selected. Closing a menu by Escape is not a choice.

void ReportEveryChoice(wxChoice& box);
void ReportEveryChoice(wxListBox& list);

/// Lets a list box have the focus without a selection; some systems would select its first entry.
void LetFocusSelectNothing(wxListBox& list);

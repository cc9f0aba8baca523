#pragma once

#include "ui/controls/ListView.h"

#include <wx/gdicmn.h>

#include <vector>

/// Shows a list's context menu at a point of the screen: first the commands, then those that copy rows.
/// Returns when the menu is closed; then the chosen command runs.
void ShowListMenu(ListView& list, const wxPoint& place, const std::vector<ListCommand>& commands);

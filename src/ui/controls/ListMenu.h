#pragma once

#include "ui/controls/ListView.h"

#include <wx/gdicmn.h>

#include <vector>

/// Shows a list's context menu at a point of the screen, until the user has chosen or left it: the commands,
/// then those that copy rows. The chosen one runs when the menu is closed.
void ShowListMenu(ListView& list, const wxPoint& place, const std::vector<ListCommand>& commands);

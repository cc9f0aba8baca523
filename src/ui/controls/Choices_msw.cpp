// Choices on Windows, where the toolkit reports every choice from a drop-down list and the focus selects
// nothing.

#include "ui/controls/Choices.h"

void ReportEveryChoice(wxChoice&) {}

void LetFocusSelectNothing(wxListBox&) {}

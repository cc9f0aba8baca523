// Choices on Windows. The toolkit already reports every choice from a drop-down list, and the focus selects
// nothing.

#include "ui/controls/Choices.h"

void ReportEveryChoice(wxChoice&) {}

void LetFocusSelectNothing(wxListBox&) {}

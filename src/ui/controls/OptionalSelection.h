#pragma once

class wxListBox;

/// Lets a list box in a dialog have no selection, on every system: the focus alone selects nothing; the
/// Delete key, or a click with Ctrl on the selected entry, removes the selection. Enter presses the dialog's
/// default button.
void LetSelectionBeEmpty(wxListBox& list);

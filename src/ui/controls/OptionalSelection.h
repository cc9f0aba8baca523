#pragma once

class wxListBox;

/// Lets a list box in a dialog stand without a selection, on every system: the focus alone selects nothing,
/// the Delete key or a click with Ctrl on the selected entry takes the selection off, and Enter is the
/// dialog's.
void LetSelectionBeEmpty(wxListBox& list);

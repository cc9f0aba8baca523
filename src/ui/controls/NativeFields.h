#pragma once

class wxComboBox;
class wxTextEntry;

// What the systems' own fields do differently.

/// Makes a one-line box take a pasted text up to its first line break.
void PasteFirstLineOnly(wxTextEntry& box);

/// Makes Tab stop once at a combo box with a text box: in the text, not also at the arrow.
void KeepTabOffArrow(wxComboBox& box);

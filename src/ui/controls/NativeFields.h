#pragma once

class wxButton;
class wxComboBox;
class wxFocusEvent;
class wxTextEntry;
class wxWindow;

// What the systems' own fields and buttons do differently.

/// Makes a one-line box take a pasted text up to its first line break.
void PasteFirstLineOnly(wxTextEntry& box);

/// Makes Tab stop once at a combo box with a text box: in the text, not also at the arrow.
void KeepTabOffArrow(wxComboBox& box);

/// Whether the focus moves from a field to another control of the same window. It also goes when the user
/// turns to another window, and comes back to the same field.
bool LeavesField(const wxFocusEvent& lostFocus);

/// Whether the key that a window receives belongs to an open drop-down list in it.
bool IsKeyOfOpenList();

/// Makes a button its window's default: Enter presses it, and it is drawn so.
void MakeDefault(wxButton& button);

/// Makes an access key move the focus to its button before it presses it.
void FocusByAccessKey(wxButton& button);

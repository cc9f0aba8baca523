#pragma once

class wxButton;
class wxComboBox;
class wxFocusEvent;
class wxTextEntry;
class wxWindow;

// Differences between the systems' fields and buttons.

/// Makes a one-line box paste a text only up to its first line break.
void PasteFirstLineOnly(wxTextEntry& box);

/// Makes Tab stop only once at an editable combo box: in the text, not also at the arrow.
void KeepTabOffArrow(wxComboBox& box);

/// True if the focus moves from a field to another control of the same window. It is false when the user
/// switches to another window, since the focus then returns to the same field.
bool LeavesField(const wxFocusEvent& lostFocus);

/// True if the key that a window receives belongs to an open drop-down list in it.
bool IsKeyOfOpenList();

/// Makes a button its window's default button: Enter presses it, and it is drawn as one.
void MakeDefault(wxButton& button);

/// Makes a button's access key move the focus to the button before it presses it.
void FocusByAccessKey(wxButton& button);

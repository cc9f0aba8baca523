#pragma once

#include <wx/defs.h>
#include <wx/gdicmn.h>

#include <functional>
#include <string_view>

class wxButton;
class wxChoice;
class wxComboBox;
class wxControl;
class wxFont;
class wxListBox;
class wxSizer;
class wxStaticBoxSizer;
class wxStaticText;
class wxTextCtrl;
class wxTopLevelWindow;
class wxWindow;

// Controls as every window of the program makes them: with the name that the code has for them, and captions
// in UTF-8.

/// The program's font: Segoe UI at the system's size, the system's own font where it is missing.
wxFont ProgramFont();

/// Gives a window the program's icon, and its font, which every control made in it from then on inherits.
void ApplyAppStyle(wxTopLevelWindow& window);

wxButton* NewButton(wxWindow* parent, std::string_view name, std::string_view caption);
wxStaticText* NewLabel(wxWindow* parent, std::string_view name, std::string_view caption);

/// A drop-down list, wide enough for `characters` of text. Every choice from it raises its event.
wxChoice* NewChoice(wxWindow* parent, std::string_view name, int characters);

/// A one-line text box, wide enough for `characters` of text. A pasted text ends at its first line break.
wxTextCtrl* NewTextBox(wxWindow* parent, std::string_view name, int characters);

/// A one-line text box as above, with a drop-down list.
wxComboBox* NewComboBox(wxWindow* parent, std::string_view name, int characters);

/// The width that a control needs to show `characters` of text.
int WidthForText(const wxControl& control, int characters);

/// Makes a text box or combo box wide enough for `characters`, and high enough for large text: some systems'
/// own height is too little for it.
void UseTextSize(wxControl& box, int characters);

/// A list box of which one entry can be selected, or with another style more.
wxListBox* NewListBox(wxWindow* parent, std::string_view name, long style = wxLB_SINGLE);

/// Adds a label to a row, then the control that it names: a screen reader takes for the label of a control
/// what was made right before it. Returns the label.
wxStaticText* AddLabelled(wxSizer& row, wxWindow* parent, std::string_view labelName,
                          std::string_view caption, const std::function<wxWindow*()>& makeControl);

/// A frame with a caption; its content goes into the sizer.
wxStaticBoxSizer* NewFrame(wxWindow* parent, std::string_view name, std::string_view caption);

/// A length in pixels that is right for text of the usual size, as it must be for the user's text.
int WithTextSize(const wxWindow& window, int pixels);

/// Gives a window the size of its client area, never more than the screen has, and the least that the user
/// can make it: both for text of the usual size at 96 dots to the inch, and no less than its layout needs.
void UseClientSizes(wxTopLevelWindow& window, wxSizer& layout, wxSize initial, wxSize smallest);

/// Makes Escape close a window. An open drop-down list in it takes the key for itself first.
void CloseByEscape(wxTopLevelWindow& window);

/// The gap between neighbouring controls, in pixels of the window's screen.
int Gap(const wxWindow* window);

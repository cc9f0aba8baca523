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

// Functions that make the controls of all windows. Names are the controls' names in the code; captions are
// UTF-8.

/// The program's font: Segoe UI in the system's size, or the system's own font if it is missing.
wxFont ProgramFont();

/// Gives a window the program's icon and font. Controls made in it afterwards inherit the font.
void ApplyAppStyle(wxTopLevelWindow& window);

wxButton* NewButton(wxWindow* parent, std::string_view name, std::string_view caption);
wxStaticText* NewLabel(wxWindow* parent, std::string_view name, std::string_view caption);

/// A drop-down list, wide enough for `characters` of text. Every choice raises its event.
wxChoice* NewChoice(wxWindow* parent, std::string_view name, int characters);

/// A one-line text box, wide enough for `characters` of text. A paste takes the text up to its first line
/// break.
wxTextCtrl* NewTextBox(wxWindow* parent, std::string_view name, int characters);

/// As NewTextBox, with a drop-down list.
wxComboBox* NewComboBox(wxWindow* parent, std::string_view name, int characters);

/// The width that a control needs to show `characters` of text.
int WidthForText(const wxControl& control, int characters);

/// Makes a text box or combo box wide enough for `characters`, and high enough for large text, for which some
/// systems' own height is too small.
void UseTextSize(wxControl& box, int characters);

/// A list box; one entry can be selected, or more with another style.
wxListBox* NewListBox(wxWindow* parent, std::string_view name, long style = wxLB_SINGLE);

/// Adds a label to a row, then the control that it names: screen readers take the label made just before a
/// control. Returns the label.
wxStaticText* AddLabelled(wxSizer& row, wxWindow* parent, std::string_view labelName,
                          std::string_view caption, const std::function<wxWindow*()>& makeControl);

/// A frame with a caption; add its content to the sizer.
wxStaticBoxSizer* NewFrame(wxWindow* parent, std::string_view name, std::string_view caption);

/// Scales a length in pixels from text of the usual size to the user's text size.
int WithTextSize(const wxWindow& window, int pixels);

/// Sets a window's initial client size and the smallest one that the user can set. Both are for text of the
/// usual size at 96 dots to the inch, and at least as large as the layout needs; the initial one is not
/// larger than the screen.
void UseClientSizes(wxTopLevelWindow& window, wxSizer& layout, wxSize initial, wxSize smallest);

/// Makes Escape close a window. If a drop-down list in it is open, Escape closes only the list.
void CloseByEscape(wxTopLevelWindow& window);

/// The gap between neighbouring controls, in pixels of the window's screen.
int Gap(const wxWindow* window);

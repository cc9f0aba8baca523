#pragma once

#include <string_view>

class wxStaticText;
class wxWindow;

// The names that screen readers read. A button's name is its caption. The name of a field, a box or a list is
// the label before it in the order of the controls. The functions below are for the rest.

/// Sets the accessible name (UTF-8) of a control without a label.
void SetAccessibleName(wxWindow& control, std::string_view name);

/// A text that does not name the control after it.
wxStaticText* NewCaption(wxWindow* parent, std::string_view name, std::string_view caption);

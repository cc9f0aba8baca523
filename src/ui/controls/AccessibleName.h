#pragma once

#include <string_view>

class wxStaticText;
class wxWindow;

// What a screen reader says for a control. A button says its caption; a field, a box or a list says the label
// that stands before it in the order of the controls. The rest is here.

/// Names a control that has no label of its own, in UTF-8.
void SetAccessibleName(wxWindow& control, std::string_view name);

/// A text that is no label: what stands behind it does not get its name from it.
wxStaticText* NewCaption(wxWindow* parent, std::string_view name, std::string_view caption);

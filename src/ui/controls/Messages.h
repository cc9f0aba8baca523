#pragma once

#include "data/Product.h"

#include <string_view>

class wxWindow;

// The message boxes. The icon shows the severity; the default title is the program's name.

void ShowInformation(wxWindow* parent, std::string_view text, std::string_view title = ProductName);
void ShowWarning(wxWindow* parent, std::string_view text, std::string_view title = ProductName);
void ShowCritical(wxWindow* parent, std::string_view text, std::string_view title = ProductName);

/// Asks a question with Yes and No; true for Yes. No is the default button, since a Yes loses data.
bool AskYesNo(wxWindow* parent, std::string_view text, std::string_view title);

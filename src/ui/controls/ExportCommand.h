#pragma once

#include "data/Product.h"

#include <functional>
#include <string>
#include <string_view>

class wxWindow;

/// Writes an export file by `write` and tells the user where it is: the text, a line break, the path.
/// @throws what `write` throws
void WriteAndTell(wxWindow* parent, const std::string& path,
                  const std::function<void(const std::string& path)>& write, std::string_view successText,
                  std::string_view successTitle = ProductName);

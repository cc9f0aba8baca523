#pragma once

#include <span>
#include <string>
#include <vector>

/// Rows in the form that a spreadsheet pastes: a tab between cells and `lineEnd` after each row. A tab or a
/// line break inside a cell becomes a blank.
std::string TabSeparated(std::span<const std::vector<std::string>> rows, const std::string& lineEnd);

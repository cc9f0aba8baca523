#pragma once

#include "statistics/LoadTable.h"

#include <string>
#include <string_view>
#include <vector>

class TextFile;

// The pattern of the two export files that hold a table of load for everyone.

/// The header: what the first column names, then the table's columns.
void AddLoadHeader(TextFile& file, std::string_view firstColumn);

/// The table of one lecturer or department, the name before each line, and an empty line behind the last.
/// Nothing is quoted: a ";" in a name stays as it is.
void AddLoadBlock(TextFile& file, std::string_view name, const std::vector<LoadLine>& lines);

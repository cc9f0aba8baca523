#pragma once

#include <string_view>

/// Writes the whole catalogue for a spreadsheet: a header and a line per course, whatever the filters say.
/// Nothing is quoted; a ";" in a name shifts what stands behind it.
/// @throws FileError, and an older file stays; DataError for a bad row
void ExportKolegijiToCSV(std::string_view path);

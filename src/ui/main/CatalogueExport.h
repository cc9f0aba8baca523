#pragma once

#include <string_view>

/// Writes the whole catalogue for a spreadsheet: a header and a line per course, without the filters. Nothing
/// is quoted; a ";" in a name shifts the columns after it.
/// @throws DataError, FileError
void ExportKolegijiToCSV(std::string_view path);

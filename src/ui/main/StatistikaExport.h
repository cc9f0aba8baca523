#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The texts of the filter boxes for the exported sums.
struct StatistikaFilters
{
    std::string Razina;
    std::string Program;
    std::string Smjer;
    std::string Semestar;
};

/// Writes the semester sums for a spreadsheet: "sep=;", the filters, a header, then the rows as shown.
/// @throws FileError
void WriteStatistika(std::string_view path, const StatistikaFilters& filters,
                     const std::vector<std::vector<std::string>>& rows);

/// The name that the export proposes: "statistika_Preddiplomski_LOR_Svi_Svi.csv".
std::string StatistikaFileName(const StatistikaFilters& filters);

/// A field of this export: quoted, with its quotes doubled, if it holds a comma, a quote or a line break. A
/// semicolon does not cause quoting, although it separates the fields.
std::string CsvQuote(std::string_view text);

/// A filter's text as part of a file name: trimmed, with "_" for each character that file names cannot hold.
std::string SanitizeFileNamePart(std::string_view text);

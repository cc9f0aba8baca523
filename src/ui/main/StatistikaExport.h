#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The filters that the exported sums were made with, as the boxes show them.
struct StatistikaFilters
{
    std::string Razina;
    std::string Program;
    std::string Smjer;
    std::string Semestar;
};

/// Writes the semester sums for a spreadsheet: "sep=;", the filters, a header, then the rows as they are
/// shown.
/// @throws FileError, and an older file stays
void WriteStatistika(std::string_view path, const StatistikaFilters& filters,
                     const std::vector<std::vector<std::string>>& rows);

/// The name that the export proposes: "statistika_Preddiplomski_LOR_Svi_Svi.csv".
std::string StatistikaFileName(const StatistikaFilters& filters);

/// A field of this export: in quotes, and its quotes doubled, when it holds a comma, a quote or a line break.
/// A semicolon, although it separates the fields, does not cause quoting.
std::string CsvQuote(std::string_view text);

/// A filter's text as part of a file name: trimmed, with "_" for each character that no file name may hold.
std::string SanitizeFileNamePart(std::string_view text);

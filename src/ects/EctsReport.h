#pragma once

#include "ects/WorkloadModel.h"

#include <string>
#include <string_view>
#include <vector>

/// The fifty lines of the calculator's report: the texts of its fields exactly as they are shown.
std::vector<std::string> EctsReportLines(const WorkloadFields& fields);

/// Writes the report. @throws FileError; an older file stays whole then
void WriteEctsReport(std::string_view path, const WorkloadFields& fields);

/// The name that the Save dialog proposes: the course's, as it was typed.
std::string EctsReportFileName(std::string_view nazivKolegija);

/// A field of the report: its quotes doubled, and in quotes itself when it holds a quote, a semicolon or a
/// line break.
std::string CsvField(std::string_view text);

/// The fields as a line, ";" between them.
std::string CsvRow(const std::vector<std::string_view>& fields);

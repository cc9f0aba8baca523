#pragma once

#include "ects/WorkloadModel.h"

#include <string>
#include <string_view>
#include <vector>

/// The fifty lines of the calculator's report, with the texts of its fields exactly as shown.
std::vector<std::string> EctsReportLines(const WorkloadFields& fields);

/// Writes the report. @throws FileError
void WriteEctsReport(std::string_view path, const WorkloadFields& fields);

/// The name that the Save dialog proposes: the course's, as typed.
std::string EctsReportFileName(std::string_view nazivKolegija);

/// A field of the report: quoted, with its quotes doubled, if it holds a quote, a semicolon or a line break.
std::string CsvField(std::string_view text);

/// The fields as a line, separated by ";".
std::string CsvRow(const std::vector<std::string_view>& fields);

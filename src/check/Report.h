#pragma once

#include "check/Finding.h"

#include <string>
#include <string_view>

namespace Check
{

/// The report on the console: three groups of findings, a line for each.
std::string ReportOf(const Findings& findings);

/// A place and what is there: "db_smjer.csv, redak 3, StudijID: ...".
std::string LineOf(const FieldPlace& place, std::string_view text);

} // namespace Check

#pragma once

#include "check/Finding.h"

#include <string>
#include <string_view>

namespace Check
{

/// The findings as the console shows them: three groups, a line each.
std::string ReportOf(const Findings& findings);

/// Where something is and what: "db_smjer.csv, redak 3, StudijID: ...".
std::string LineOf(const FieldPlace& place, std::string_view text);

} // namespace Check

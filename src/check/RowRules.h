#pragma once

#include "check/Finding.h"

namespace Check
{

/// The findings from the rows of the loaded tables that the validation does not check: no errors.
void FindInRows(Findings& findings);

} // namespace Check

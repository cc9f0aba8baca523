#pragma once

#include "check/Finding.h"

namespace Check
{

/// What the rows of the loaded tables show that the validation does not look at.
void FindInRows(Findings& findings);

} // namespace Check

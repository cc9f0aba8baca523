#pragma once

#include "check/Finding.h"

namespace Check
{

/// The findings from the rows of the loaded tables that the validation does not check. None is in
/// `Group::Error`.
void FindInRows(Findings& findings);

} // namespace Check

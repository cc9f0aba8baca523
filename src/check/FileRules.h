#pragma once

#include "check/Finding.h"
#include "data/Table.h"

#include <string_view>

namespace Check
{

/// The findings from the bytes of a table's file, before any field is read as a number.
/// None is in `Group::Error`.
void FindInFile(std::string_view bytes, const modData::TableLayout& layout, Findings& findings);

} // namespace Check

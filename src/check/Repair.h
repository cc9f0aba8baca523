#pragma once

#include "check/Mend.h"

#include <string>
#include <string_view>
#include <vector>

namespace Check
{

/// The result of a repair.
struct Repair
{
    std::vector<Change> Changes;
    std::vector<Change> Left; ///< What needs a decision.
    std::string_view Refusal; ///< Why the repair was refused; empty if it was not.
};

/// True if a repair would change a file of the folder. @throws FileError if the folder cannot be read
bool IsRepairable(const std::string& folder);

/// Mends the files of a folder: keeps a dated copy of the catalogue, then saves it whole. Refuses while the
/// program has the catalogue open, and while a save is interrupted.
/// @throws FileError if the folder cannot be read or the catalogue cannot be saved: nothing is changed
/// @throws SaveNotFinished
Repair RepairCatalogue(const std::string& folder);

} // namespace Check

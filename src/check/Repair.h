#pragma once

#include "check/Mend.h"

#include <string>
#include <string_view>
#include <vector>

namespace Check
{

/// What a repair has done to a catalogue.
struct Repair
{
    std::vector<Change> Changes;
    std::vector<Change> Left; ///< Needs a decision.
    std::string_view Refusal; ///< Why nothing was tried; empty otherwise.
};

/// Whether a repair would change a file of a folder. @throws FileError when the folder cannot be read
bool IsRepairable(const std::string& folder);

/// Mends the files of a folder: keeps a dated copy of the catalogue, then saves it whole. Refuses while the
/// program has the catalogue open, and while an interrupted save is not finished.
/// @throws FileError when the folder cannot be read or the catalogue not be saved: nothing is changed
/// @throws SaveNotFinished
Repair RepairCatalogue(const std::string& folder);

} // namespace Check

#pragma once

#include "data/Errors.h"

#include <string>
#include <vector>

/// Finds what is wrong with a catalogue's files, and where. Mends what needs no decision.
namespace Check
{

enum class Group
{
    Error,  ///< The program cannot load the catalogue, or its validation fails.
    Danger, ///< The next save would lose or change data, or a window would end in an error.
    Note    ///< May be intended.
};

/// Something that a person should look at. `Line` is the line number that an editor shows, 0 for a whole
/// file; `Column` is empty for a whole line.
struct Finding
{
    Group In;
    FieldPlace Place;
    std::string Text;
    bool MayBeMended = false; ///< Mend handles this kind, if no decision is needed.
};

using Findings = std::vector<Finding>;

} // namespace Check

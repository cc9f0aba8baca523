#pragma once

#include "data/Errors.h"

#include <string>
#include <vector>

/// What is wrong with a catalogue's files, and where; and the mending of what needs no decision.
namespace Check
{

enum class Group
{
    Error,  ///< Ends the load, or fails the validation.
    Danger, ///< The next save would lose or spoil it, or a window would end in an error.
    Note    ///< May be meant.
};

/// Something that a person should look at. The line is the one that an editor shows, 0 for a whole file; the
/// column is empty for a whole line.
struct Finding
{
    Group In;
    FieldPlace Place;
    std::string Text;
    bool MayBeMended = false; ///< Mend mends this kind where it needs no decision.
};

using Findings = std::vector<Finding>;

} // namespace Check

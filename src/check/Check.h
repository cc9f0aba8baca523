#pragma once

#include "check/Finding.h"

#include <array>
#include <optional>
#include <string>

namespace Check
{

/// The content of a table's file.
struct FileContent
{
    std::optional<std::string> Bytes;    ///< None if it is missing or cannot be read.
    std::optional<RuntimeError> Failure; ///< The error that ends the program's load of this file.
};

/// The seven files in the order of modData::AllTables.
using Contents = std::array<FileContent, 7>;

/// Reads the files of a folder; changes none. @throws FileError if the folder cannot be read
Contents ReadContents(const std::string& folder);

/// Finds what is wrong with a catalogue, in the order of the files, then of the lines. The program's tables
/// become those of these files. There is an Error exactly if the program's load of the files fails, or its
/// validation.
Findings FindingsOf(const Contents& contents);

bool HasErrors(const Findings& findings);

} // namespace Check

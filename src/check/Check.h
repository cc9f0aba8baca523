#pragma once

#include "check/Finding.h"
#include "data/CatalogueOnDisk.h"

#include <array>
#include <optional>
#include <string>

namespace Check
{

/// A table's file as it is.
struct FileContent
{
    std::optional<std::string> Bytes;    ///< None when it is missing or cannot be read.
    std::optional<RuntimeError> Failure; ///< The error that the program would end in while it loads the file.
};

/// The seven files in the order of modData::AllTables.
using Contents = std::array<FileContent, 7>;

/// Where the files of a catalogue are; the files need not be there.
CatalogueOnDisk OnDisk(const std::string& folder);

/// Reads the files of a folder and changes none. @throws FileError when the folder cannot be read
Contents ReadContents(const std::string& folder);

/// What is wrong with a catalogue. The program's tables become those of the files. There is an Error exactly
/// when the program's load of these files ends in one, or its validation fails or ends in one.
/// The findings are in the order of the files, then of the lines.
Findings FindingsOf(const Contents& contents);

bool HasErrors(const Findings& findings);

} // namespace Check

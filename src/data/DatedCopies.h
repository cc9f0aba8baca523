#pragma once

#include "data/CatalogueOnDisk.h"

#include <string>
#include <string_view>

/// The copies of a catalogue in the folder "kopije" beside its files. Each is a folder named after the local
/// time to the second, "2026-11-21_143005"; "_2", "_3" follow if that name is taken.
namespace DatedCopies
{

/// The present time in the form of a copy's name. Test hook: a test can set its own clock.
extern std::string (*CurrentTime)();

/// The path of a copy, or of anything else in "kopije", by its name.
std::string FolderOf(const CatalogueOnDisk& files, std::string_view name);

/// True if a text is the name of a copy.
bool IsName(std::string_view text);

/// A new copy's name: nothing in "kopije" has it, alone or before "." or "-". @throws FileError
std::string NewName(const CatalogueOnDisk& files);

/// Copies those of the catalogue's files that exist, durably. Does nothing if there are none.
/// @throws FileError
void Keep(const CatalogueOnDisk& files, std::string_view name);

/// As Keep, under a new name. Does nothing if the newest copy holds the same. @throws FileError
void KeepAnother(const CatalogueOnDisk& files);

/// The path for a new folder in "kopije": a new name with `ending` at its end. "kopije" is made if missing.
/// @throws FileError
std::string NewFolder(const CatalogueOnDisk& files, std::string_view ending);

/// Removes old copies. What stays: the newest 30, the last of each of the newest 30 days, the one named
/// `newest`, and every folder that has another name or holds anything but the files of a catalogue. Best
/// effort.
void Prune(const CatalogueOnDisk& files, std::string_view newest);

} // namespace DatedCopies

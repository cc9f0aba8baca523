#pragma once

#include "data/CatalogueOnDisk.h"

#include <string>
#include <string_view>

/// The copies of a catalogue in the folder "kopije" beside its files. Each is a folder named after the local
/// time to the second, "2026-11-21_143005", and then "_2", "_3" where that name is taken.
namespace DatedCopies
{

/// The time as a copy's name says it. A test puts a clock of its own here.
extern std::string (*CurrentTime)();

/// The folder of a copy, or of anything else that is kept under a name there.
std::string FolderOf(const CatalogueOnDisk& files, std::string_view name);

/// Whether a text is the name of a copy.
bool IsName(std::string_view text);

/// A name that nothing in "kopije" begins with. @throws FileError
std::string NewName(const CatalogueOnDisk& files);

/// Copies the catalogue's files, those that are there, durably. Nothing happens when there is none.
/// @throws FileError
void Keep(const CatalogueOnDisk& files, std::string_view name);

/// As Keep, under a new name, unless the newest copy holds the same already. @throws FileError
void KeepAnother(const CatalogueOnDisk& files);

/// A new folder's path in "kopije", which is made when missing: a new name with `ending` at its end.
/// @throws FileError
std::string NewPlace(const CatalogueOnDisk& files, std::string_view ending);

/// Removes copies except the newest 30, the last of each of the newest 30 days, and the one named `newest`.
/// A folder that has another name, or holds anything but the files of a catalogue, stays. Best effort.
void Prune(const CatalogueOnDisk& files, std::string_view newest);

} // namespace DatedCopies

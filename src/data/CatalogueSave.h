#pragma once

#include "data/CatalogueOnDisk.h"

#include <optional>
#include <string>

/// Saves the catalogue whole or not at all:
///   1. write the new files into a set beside the catalogue, "spremanje", and flush them;
///   2. mark the set complete: this is the moment of saving;
///   3. keep a dated copy of the catalogue, then replace each file from the set;
///   4. remove the mark and the set.
/// A start or a save that finds a set of an earlier run finishes it if it is complete, and removes it if not.
namespace CatalogueSave
{

/// Saves the files that `fill` writes.
/// @throws FileError, and what `fill` throws, before the end of step 2: the catalogue is untouched
/// @throws SaveNotFinished later: the set is kept, and the next start or save goes on
void Save(const CatalogueOnDisk& files, const FillFolder& fill);

/// The folder of a complete set of an earlier save; nothing if there is none. @throws FileError
std::optional<std::string> CompleteSet(const CatalogueOnDisk& files);

/// Finishes a complete set of an earlier save, if there is one. @throws SaveNotFinished
void FinishAtStart(const CatalogueOnDisk& files);

/// Removes what a program that was ended has left: an incomplete set, and temporary files. Best effort.
void RemoveLeftovers(const CatalogueOnDisk& files);

/// As FinishAtStart, but moves a set that cannot be finished to "kopije". @throws FileError
void FinishAtSave(const CatalogueOnDisk& files);

} // namespace CatalogueSave

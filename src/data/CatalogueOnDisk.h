#pragma once

#include "data/FileOperations.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// The folder of a catalogue, and the names of its files in the order in which they are saved.
struct CatalogueOnDisk
{
    std::string Folder;
    std::vector<std::string_view> Names;
};

/// Writes the files of a catalogue into a folder that has none of them yet. May throw anything.
using FillFolder = std::function<void(const std::string& folder)>;

/// A lock on the folder of a catalogue. Without effect where the file system has no locks.
class CatalogueLock
{
public:
    /// Waits up to 10 seconds for another process. @throws FileError if that process holds the lock longer
    CatalogueLock(const std::string& folder, LockKind kind);
    ~CatalogueLock();
    CatalogueLock(const CatalogueLock&) = delete;
    CatalogueLock& operator=(const CatalogueLock&) = delete;

    bool IsHeld() const { return m_held; }

private:
    FileOperations::Handle m_lock = 0;
    bool m_held = false;
};

/// Makes a folder that is filled by `fill`. It appears under its name whole, or not at all: until it is
/// filled and flushed, its name ends in ".dio". @throws FileError, and what `fill` throws
void MakeWholeFolder(const CatalogueOnDisk& files, const std::string& folder, const FillFolder& fill);

/// Removes the files of a catalogue from a folder, and the folder if nothing else is in it. Best effort.
void RemoveFolderOf(const CatalogueOnDisk& files, const std::string& folder);

/// What is at a path. @throws FileError if the system does not say
FileType TypeOf(const std::string& path);

/// True if a file has the same content in two folders, or is in neither. @throws FileError
bool HaveSame(const std::string& folder, const std::string& other, std::string_view name);

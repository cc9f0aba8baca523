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

/// Writes the files of a catalogue into a folder that has none of them yet. It throws what it meets.
using FillFolder = std::function<void(const std::string& folder)>;

/// A lock on the folder of a catalogue. Where the file system has no locks, there is none.
class CatalogueLock
{
public:
    /// Waits up to 10 seconds for another process. @throws FileError when that is not enough
    CatalogueLock(const std::string& folder, LockKind kind);
    ~CatalogueLock();
    CatalogueLock(const CatalogueLock&) = delete;
    CatalogueLock& operator=(const CatalogueLock&) = delete;

    bool IsHeld() const { return m_held; }

private:
    FileOperations::Handle m_lock = 0;
    bool m_held = false;
};

/// Throws the failure of an operation on the file or folder at `path`. @throws FileError
void RequireDone(std::error_code failure, std::string_view path);

/// Makes a folder filled by `fill` appear under its name whole and durable, or not at all. While it is being
/// filled, ".dio" ends its name. @throws FileError, and what `fill` throws
void MakeWholeFolder(const CatalogueOnDisk& files, const std::string& folder, const FillFolder& fill);

/// Removes the files of a catalogue from a folder, and the folder if nothing else is in it. Best effort.
void RemoveFolderOf(const CatalogueOnDisk& files, const std::string& folder);

/// The type of what is at a path. @throws FileError when the system does not say
FileType TypeOf(const std::string& path);

/// Whether two folders hold the same of a file: equal contents, or neither has it. @throws FileError
bool HaveSame(const std::string& folder, const std::string& other, std::string_view name);

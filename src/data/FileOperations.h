#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <span>
#include <string_view>
#include <system_error>
#include <vector>

enum class FileType
{
    Missing,
    File,
    Folder,
    Other ///< A device, a pipe and the like.
};

struct FileFacts
{
    FileType Type = FileType::Missing;
    bool Writable = false; ///< False if marked read-only; also for root, who could write all the same.
};

enum class OpenFor
{
    Reading,
    NewFile,  ///< Fails if anything has this name. Only the user may read the file.
    Rewriting ///< An existing file or device; links are followed.
};

enum class LockKind
{
    Saving, ///< One process at a time.
    Running ///< Any number of processes.
};

/// All operations on files and folders. The program calls them only through the table `System::Files`, so
/// that a test can record each operation, make it fail, or end the program after it. On Windows, operations
/// that change a name retry for a moment if another program has the file open.
struct FileOperations
{
    using Path = std::filesystem::path;
    using Result = std::error_code;
    using Handle = std::intptr_t;

    /// What is at a path. Links are followed; a missing file is no failure.
    Result (*Inspect)(const Path& path, FileFacts& facts);

    /// Where a symbolic link leads; an empty path for anything else, and always on Windows.
    Result (*ReadLink)(const Path& path, Path& target);

    /// The names in a folder, in any order.
    Result (*List)(const Path& folder, std::vector<Path>& names);

    Result (*Open)(const Path& path, OpenFor purpose, Handle& file);

    /// Reads at most as many bytes as the buffer holds; `count` is 0 at the end of the file.
    Result (*Read)(Handle file, std::span<char> buffer, std::size_t& count);

    /// Writes all bytes; some of them may be written after a failure.
    Result (*Write)(Handle file, std::string_view bytes);

    /// Gives an open file the mode and, where permitted, the owner and group of the file at `model`; those of
    /// any new file if `model` is missing.
    Result (*TakeAccess)(Handle file, const Path& model);

    /// Makes the content of a file durable. A device that cannot be flushed is no failure.
    Result (*Flush)(Handle file);

    /// Closes a file; it is closed even after a failure.
    Result (*Close)(Handle file);

    /// Renames a file or folder. A file that has the new name is replaced in one step.
    Result (*Rename)(const Path& from, const Path& to);

    /// Removes a file or link. A missing one is no failure.
    Result (*RemoveFile)(const Path& path);

    /// Removes an empty folder. A missing one is no failure.
    Result (*RemoveFolder)(const Path& path);

    /// Makes a folder. An existing one is a failure.
    Result (*MakeFolder)(const Path& path);

    /// Makes the names in a folder durable: what was made, renamed or removed there. A file system that
    /// cannot do so is no failure.
    Result (*FlushFolder)(const Path& path);

    /// Locks a folder against other processes of this computer that lock it too. No file is made; the lock
    /// ends with the process. `timed_out` if another process holds the lock all the time; any other failure
    /// means that the file system has no locks.
    Result (*Lock)(const Path& folder, LockKind kind, int milliseconds, Handle& lock);

    /// Ends a lock.
    void (*Unlock)(Handle lock);

    /// True if a process holds a lock of the kind `Running` on a folder.
    bool (*IsLockedByRunning)(const Path& folder);
};

namespace System
{

/// The operating system's own operations.
extern const FileOperations OwnFiles;

/// The operations in use.
extern FileOperations Files;

} // namespace System

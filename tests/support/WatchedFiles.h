#pragma once

#include "data/FileOperations.h"

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

/// An operation of the program on a file.
struct FileOperation
{
    enum Kind
    {
        Inspect,
        ReadLink,
        List,
        Open,
        Read,
        Write,
        TakeAccess,
        Flush,
        Close,
        Rename,
        RemoveFile,
        RemoveFolder,
        MakeFolder,
        FlushFolder,
        Lock
    };
    Kind What;
    std::filesystem::path File; ///< The file that is renamed.
    std::filesystem::path NewName = {};
    bool Reading = false;   ///< True for a file that is open for reading.
    bool HasEffect = false; ///< It changes the disk, or makes a change durable.
};

/// "write", "flush folder" and so on.
const char* NameOf(FileOperation::Kind what);

/// A test that makes each of `count` operations fail in turn goes on by this many. Natively it is one. Under
/// an emulator, where operations are slow, only about forty of the same operations fail.
std::size_t FailingStep(std::size_t count);

/// While it lives, it records the program's operations on files, and makes one of them fail after half of the
/// work: a write writes half, a close closes. Nothing waits for the disk.
class WatchedFiles
{
public:
    enum class After
    {
        AllIsWell,     ///< The one operation fails.
        NothingIsGone, ///< Every removal fails as well.
        NothingWorks   ///< No later operation does anything, as after the end of the program.
    };

    /// Makes the operation with this number, from 1, fail; 0 makes none fail. `error` is the error of an open
    /// or a rename.
    explicit WatchedFiles(std::size_t failing = 0, After after = After::AllIsWell, int error = 0);
    ~WatchedFiles();
    WatchedFiles(const WatchedFiles&) = delete;
    WatchedFiles& operator=(const WatchedFiles&) = delete;

    /// The operations so far, including the failed ones.
    const std::vector<FileOperation>& Made() const { return m_operations; }

    /// The operations that change the disk, a text each, with paths relative to `folder` and "N" for the
    /// process number in a temporary name: "flush spremanje/db_zavod.csv".
    std::vector<std::string> Effects(const std::filesystem::path& folder) const;

private:
    friend struct WatchedOperations;

    /// Records an operation; true if it is to fail.
    bool Fails(FileOperation operation);

    std::size_t m_failing;
    After m_then;
    int m_error;
    std::vector<FileOperation> m_operations;
    std::map<FileOperations::Handle, FileOperation> m_openFiles;
};

#pragma once

#include "data/FileOperations.h"

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

/// An operation on a file that the program has made.
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
    std::filesystem::path File; ///< The one that is renamed.
    std::filesystem::path NewName = {};
    bool Reading = false;   ///< On a file that is open for reading.
    bool HasEffect = false; ///< The disk differs after it, or is surer to hold what it should.
};

/// "write", "flush folder" and so on.
const char* NameOf(FileOperation::Kind what);

/// A test that lets each of `count` operations fail in turn goes on by this many: natively by one. Under an
/// emulator each operation is slow, so that only about forty of the same operations fail there.
std::size_t FailingStep(std::size_t count);

/// While it lives, the program's operations on files are recorded, and one of them fails in the way that
/// hurts most: a write does half of its work first, a close closes. Nothing waits for the disk.
class WatchedFiles
{
public:
    enum class After
    {
        AllIsWell,     ///< The one operation fails.
        NothingIsGone, ///< Every removal fails as well.
        NothingWorks   ///< No later operation does anything, as after the end of the program.
    };

    /// The operation of this number, from 1, fails; 0 lets all pass. `error` is what an open or a rename
    /// fails with.
    explicit WatchedFiles(std::size_t failing = 0, After after = After::AllIsWell, int error = 0);
    ~WatchedFiles();
    WatchedFiles(const WatchedFiles&) = delete;
    WatchedFiles& operator=(const WatchedFiles&) = delete;

    /// The operations so far, the failed ones included.
    const std::vector<FileOperation>& Made() const { return m_operations; }

    /// Those that have an effect on the disk, a text each, with paths inside `folder` and "N" for the process
    /// number in a temporary name: "flush spremanje/db_zavod.csv".
    std::vector<std::string> Effects(const std::filesystem::path& folder) const;

private:
    friend struct WatchedOperations;

    /// Records an operation and says whether it is to fail.
    bool Fails(FileOperation operation);

    std::size_t m_failing;
    After m_then;
    int m_error;
    std::vector<FileOperation> m_operations;
    std::map<FileOperations::Handle, FileOperation> m_openFiles;
};

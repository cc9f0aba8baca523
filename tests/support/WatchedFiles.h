#pragma once

#include "data/FileOperations.h"

#include <cerrno>
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

/// What happens after an operation that fails.
enum class After
{
    AllIsWell,     ///< No other operation fails.
    NothingIsGone, ///< Every removal fails as well.
    NothingWorks   ///< No later operation does anything, as after the end of the program.
};

/// A way for an operation to fail.
struct Fault
{
    After Then = After::AllIsWell;
    int Error = EACCES; ///< The error of an open or a rename.
};

/// The ways that the tests try. Windows has the same operations, slow under an emulator: two ways do there.
inline constexpr Fault Faults[] = {
    {After::AllIsWell, EACCES},
    {After::NothingWorks, EACCES},
#ifndef _WIN32
    {After::AllIsWell, ENOSPC},
    {After::NothingIsGone, ENOSPC},
#endif
};

/// The operation with this number and its fault, for a failed test's message.
std::string Describe(std::size_t number, const FileOperation& operation, const Fault& fault);

/// "write", "flush folder" and so on.
const char* NameOf(FileOperation::Kind what);

/// A test that makes each of `count` operations fail in turn goes on by this many. Natively it is one. Under
/// an emulator and with sanitizers, where the same operations are slow, only about forty of them fail.
std::size_t FailingStep(std::size_t count);

/// While it lives, it records the program's operations on files, and makes one of them fail after half of the
/// work: a write writes half, a close closes. Nothing waits for the disk.
class WatchedFiles
{
public:
    /// Makes the operation with this number, from 1, fail; 0 makes none fail.
    explicit WatchedFiles(std::size_t failing = 0, Fault fault = {});
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
    Fault m_fault;
    std::vector<FileOperation> m_operations;
    std::map<FileOperations::Handle, FileOperation> m_openFiles;
};

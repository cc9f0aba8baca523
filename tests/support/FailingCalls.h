#pragma once

#include "data/FileCalls.h"

#include <cstddef>
#include <filesystem>
#include <map>
#include <vector>

enum class FileCall
{
    Open,
    Write,
    FlushToDisk,
    Close,
    Replace,
    Remove
};

/// A call on a file that the program has made.
struct FileCallMade
{
    FileCall Kind;
    std::filesystem::path File; ///< The one that is moved, where one takes another's place.
    bool Reading;
};

/// While it lives, the program's calls on files are noted, and one of them fails, each in the way that hurts
/// most: a write does half of its work first, a close closes. Nothing waits for the disk.
class FailingCalls
{
public:
    enum class After
    {
        AllIsWell,     ///< The one call fails.
        NothingIsGone, ///< Every removal fails as well.
        NothingWorks   ///< So does every later call.
    };

    /// The call of this number, from 1, fails; 0 lets all of them pass. `openErrno` is what an open or a
    /// replacement fails with.
    explicit FailingCalls(std::size_t failing = 0, After after = After::AllIsWell, int openErrno = 0);
    ~FailingCalls();
    FailingCalls(const FailingCalls&) = delete;
    FailingCalls& operator=(const FailingCalls&) = delete;

    /// The calls so far, the failed ones included.
    const std::vector<FileCallMade>& Made() const { return Calls; }

private:
    friend struct FailingCallsTable;

    /// Notes a call and says whether it is to fail.
    bool Fails(FileCall kind, const std::filesystem::path& file, bool reading = false);

    std::size_t Failing;
    After Then;
    int OpenErrno;
    std::vector<FileCallMade> Calls;
    std::map<std::FILE*, FileCallMade> OpenFiles;
};

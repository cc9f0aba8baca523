#include "data/System.h"

#include "data/FileOperations.h"

#include <cerrno>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{

using Path = FileOperations::Path;
using Result = FileOperations::Result;
using Handle = FileOperations::Handle;

constexpr mode_t OwnerOnly = 0600;
constexpr mode_t OthersPermissions = 0077;
constexpr mode_t AnyPermission = 0777;
constexpr mode_t AnyWrite = 0222;

Result LastFailure()
{
    return {errno, std::generic_category()};
}

/// The outcome of a call that gives -1 on failure.
Result OutcomeOf(int answer)
{
    return answer == -1 ? LastFailure() : Result();
}

int Descriptor(Handle handle)
{
    return static_cast<int>(handle);
}

Result Inspect(const Path& path, FileFacts& facts)
{
    facts = {};
    struct stat status;
    if (::stat(path.c_str(), &status) != 0)
        return errno == ENOENT || errno == ENOTDIR ? Result() : LastFailure();
    facts.Type = S_ISREG(status.st_mode)   ? FileType::File
                 : S_ISDIR(status.st_mode) ? FileType::Folder
                                           : FileType::Other;
    // Treat a file without write bits as read-only, even for root, who may write anything.
    facts.Writable = (status.st_mode & AnyWrite) != 0 && ::access(path.c_str(), W_OK) == 0;
    return {};
}

Result ReadLink(const Path& path, Path& target)
{
    std::error_code failure;
    target = fs::is_symlink(path, failure) ? fs::read_symlink(path, failure) : Path();
    return {};
}

Result List(const Path& folder, std::vector<Path>& names)
{
    names.clear();
    std::error_code failure;
    for (fs::directory_iterator entry(folder, failure), end; !failure && entry != end;
         entry.increment(failure))
        names.push_back(entry->path().filename());
    return failure;
}

Result Open(const Path& path, OpenFor purpose, Handle& file)
{
    constexpr int flags[] = {O_RDONLY, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, O_WRONLY | O_TRUNC};
    const int opened = ::open(path.c_str(), flags[static_cast<int>(purpose)] | O_CLOEXEC, OwnerOnly);
    file = opened;
    return OutcomeOf(opened);
}

Result Read(Handle file, std::span<char> buffer, std::size_t& count)
{
    ssize_t answer = -1;
    do
        answer = ::read(Descriptor(file), buffer.data(), buffer.size());
    while (answer < 0 && errno == EINTR);
    count = answer < 0 ? 0 : static_cast<std::size_t>(answer);
    return answer < 0 ? LastFailure() : Result();
}

Result Write(Handle file, std::string_view bytes)
{
    while (!bytes.empty())
    {
        const ssize_t answer = ::write(Descriptor(file), bytes.data(), bytes.size());
        if (answer < 0 && errno != EINTR)
            return LastFailure();
        if (answer > 0)
            bytes.remove_prefix(static_cast<std::size_t>(answer));
    }
    return {};
}

/// The mode of a new file.
mode_t ModeByUmask()
{
    const mode_t mask = ::umask(OthersPermissions); // strict, in case another thread makes a file meanwhile
    ::umask(mask);
    return 0666 & ~mask;
}

Result TakeAccess(Handle file, const Path& model)
{
    const int descriptor = Descriptor(file);
    struct stat status;
    if (::stat(model.c_str(), &status) != 0)
        return OutcomeOf(::fchmod(descriptor, ModeByUmask()));
    // Only root may change the owner; for others this is best effort. The mode comes last, since a new owner
    // clears some of its bits.
    [[maybe_unused]] const bool isOwned = ::fchown(descriptor, status.st_uid, status.st_gid) == 0 ||
                                          ::fchown(descriptor, static_cast<uid_t>(-1), status.st_gid) == 0;
    return OutcomeOf(::fchmod(descriptor, status.st_mode & AnyPermission));
}

Result Flush(Handle file)
{
    // A pipe or another device cannot be flushed.
    return ::fsync(Descriptor(file)) == 0 || errno == EINVAL ? Result() : LastFailure();
}

Result Close(Handle file)
{
    return OutcomeOf(::close(Descriptor(file)));
}

Result Rename(const Path& from, const Path& to)
{
    return OutcomeOf(::rename(from.c_str(), to.c_str()));
}

Result RemoveFile(const Path& path)
{
    return ::unlink(path.c_str()) == 0 || errno == ENOENT ? Result() : LastFailure();
}

Result RemoveFolder(const Path& path)
{
    return ::rmdir(path.c_str()) == 0 || errno == ENOENT ? Result() : LastFailure();
}

Result MakeFolder(const Path& path)
{
    return OutcomeOf(::mkdir(path.c_str(), AnyPermission));
}

Result FlushFolder(const Path& path)
{
    const int folder = ::open(path.empty() ? "." : path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0)
        return {};
    const bool failed = ::fsync(folder) != 0 && (errno == EIO || errno == ENOSPC || errno == EDQUOT);
    const Result result = failed ? LastFailure() : Result();
    ::close(folder);
    return result;
}

// The two kinds of lock are independent, so one folder carries both: flock() for saving, a read lock of the
// open file for running.

Result TryLock(int folder, LockKind kind)
{
    if (kind == LockKind::Saving)
        return OutcomeOf(::flock(folder, LOCK_EX | LOCK_NB));
    struct flock whole = {};
    whole.l_type = F_RDLCK;
    return OutcomeOf(::fcntl(folder, F_OFD_SETLK, &whole));
}

Result Lock(const Path& folder, LockKind kind, int milliseconds, Handle& lock)
{
    const int opened = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (opened < 0)
        return LastFailure();
    constexpr int pause = 10; // milliseconds
    Result failure = TryLock(opened, kind);
    for (; failure == std::errc::operation_would_block && milliseconds > 0; milliseconds -= pause)
    {
        const struct timespec wait = {0, pause * 1'000'000L};
        ::nanosleep(&wait, nullptr);
        failure = TryLock(opened, kind);
    }
    lock = opened;
    if (!failure)
        return {};
    ::close(opened);
    return failure == std::errc::operation_would_block ? std::make_error_code(std::errc::timed_out) : failure;
}

void Unlock(Handle lock)
{
    ::close(Descriptor(lock));
}

bool IsLockedByRunning(const Path& folder)
{
    const int opened = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (opened < 0)
        return false;
    struct flock whole = {};
    whole.l_type = F_WRLCK;
    const bool isLocked = ::fcntl(opened, F_OFD_GETLK, &whole) == 0 && whole.l_type != F_UNLCK;
    ::close(opened);
    return isLocked;
}

} // namespace

namespace System
{

const FileOperations OwnFiles = {
    Inspect,    ReadLink,     List,       Open,        Read, Write,  TakeAccess,       Flush, Close, Rename,
    RemoveFile, RemoveFolder, MakeFolder, FlushFolder, Lock, Unlock, IsLockedByRunning};

FileOperations Files = OwnFiles;

std::string EnvironmentVariable(const char* name)
{
    const char* value = std::getenv(name);
    return value == nullptr ? std::string() : std::string(value);
}

std::string ProgramFolder()
{
    std::error_code ignored;
    return fs::read_symlink("/proc/self/exe", ignored).parent_path().string();
}

std::string TemporaryFolder()
{
    std::error_code ignored;
    return fs::temp_directory_path(ignored).string();
}

unsigned long ProcessId()
{
    return static_cast<unsigned long>(::getpid());
}

} // namespace System

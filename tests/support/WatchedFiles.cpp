#include "support/WatchedFiles.h"

#include "data/System.h"

#include <cerrno>
#include <stdexcept>

namespace fs = std::filesystem;

namespace
{

WatchedFiles* InUse = nullptr;

using Path = FileOperations::Path;
using Result = FileOperations::Result;
using Handle = FileOperations::Handle;

bool IsThere(const fs::path& path)
{
    std::error_code failure;
    return fs::exists(fs::symlink_status(path, failure));
}

Result FailureOf(int error)
{
    return {error, std::generic_category()};
}

/// Replaces every process number in a text by "N".
std::string WithoutProcessId(std::string text)
{
    const std::string number = "." + std::to_string(System::ProcessId()) + ".tmp";
    const std::size_t place = text.find(number);
    return place == std::string::npos ? text : text.replace(place, number.size(), ".N.tmp");
}

} // namespace

/// The replacements of the system's operations: each is recorded, then fails or is passed on.
struct WatchedOperations
{
    static Result Inspect(const Path& path, FileFacts& facts)
    {
        return Fails({FileOperation::Inspect, path}) ? FailureOf(EACCES)
                                                     : System::OwnFiles.Inspect(path, facts);
    }

    static Result ReadLink(const Path& path, Path& target)
    {
        return Fails({FileOperation::ReadLink, path}) ? FailureOf(EACCES)
                                                      : System::OwnFiles.ReadLink(path, target);
    }

    static Result List(const Path& folder, std::vector<Path>& names)
    {
        return Fails({FileOperation::List, folder}) ? FailureOf(EACCES)
                                                    : System::OwnFiles.List(folder, names);
    }

    static Result Open(const Path& path, OpenFor purpose, Handle& file)
    {
        const bool reading = purpose == OpenFor::Reading;
        if (Fails({FileOperation::Open, path, {}, reading, !reading}))
            return FailureOf(InUse->m_fault.Error);
        const Result result = System::OwnFiles.Open(path, purpose, file);
        if (!result)
            InUse->m_openFiles[file] = {FileOperation::Open, path, {}, reading, false};
        return result;
    }

    static Result Read(Handle file, std::span<char> buffer, std::size_t& count)
    {
        if (!FailsOnOpen(FileOperation::Read, file, false))
            return System::OwnFiles.Read(file, buffer, count);
        count = 0; // as after a failed read of the system's own
        return FailureOf(EIO);
    }

    static Result Write(Handle file, std::string_view bytes)
    {
        const bool isEnded = InUse->m_fault.Then == After::NothingWorks && HasFailed();
        if (!FailsOnOpen(FileOperation::Write, file, true))
            return System::OwnFiles.Write(file, bytes);
        if (!isEnded)
            System::OwnFiles.Write(file, bytes.substr(0, bytes.size() / 2));
        return FailureOf(ENOSPC);
    }

    static Result TakeAccess(Handle file, const Path& model)
    {
        return FailsOnOpen(FileOperation::TakeAccess, file, true) ? FailureOf(EPERM)
                                                                  : System::OwnFiles.TakeAccess(file, model);
    }

    static Result Flush(Handle file)
    {
        return FailsOnOpen(FileOperation::Flush, file, true) ? FailureOf(EIO) : Result();
    }

    static Result Close(Handle file)
    {
        const bool fails = FailsOnOpen(FileOperation::Close, file, false);
        InUse->m_openFiles.erase(file);
        const Result result = System::OwnFiles.Close(file);
        return fails ? FailureOf(EIO) : result;
    }

    static Result Rename(const Path& from, const Path& to)
    {
        if (Fails({FileOperation::Rename, from, to, false, true}))
            return FailureOf(InUse->m_fault.Error);
        // Some file systems delay a rename over a file until the new content is on the disk.
        std::error_code failure;
        if (fs::is_regular_file(to, failure))
            System::OwnFiles.RemoveFile(to);
        return System::OwnFiles.Rename(from, to);
    }

    static Result RemoveFile(const Path& path)
    {
        return Fails({FileOperation::RemoveFile, path, {}, false, IsThere(path)})
                   ? FailureOf(EACCES)
                   : System::OwnFiles.RemoveFile(path);
    }

    static Result RemoveFolder(const Path& path)
    {
        return Fails({FileOperation::RemoveFolder, path, {}, false, IsThere(path)})
                   ? FailureOf(EACCES)
                   : System::OwnFiles.RemoveFolder(path);
    }

    static Result MakeFolder(const Path& path)
    {
        return Fails({FileOperation::MakeFolder, path, {}, false, true}) ? FailureOf(InUse->m_fault.Error)
                                                                         : System::OwnFiles.MakeFolder(path);
    }

    static Result FlushFolder(const Path& path)
    {
        return Fails({FileOperation::FlushFolder, path, {}, false, true}) ? FailureOf(EIO) : Result();
    }

    static Result Lock(const Path& folder, LockKind kind, int milliseconds, Handle& lock)
    {
        return Fails({FileOperation::Lock, folder}) ? FailureOf(ENOTSUP)
                                                    : System::OwnFiles.Lock(folder, kind, milliseconds, lock);
    }

private:
    static bool HasFailed()
    {
        return InUse->m_failing != 0 && InUse->m_operations.size() >= InUse->m_failing;
    }

    static bool Fails(FileOperation operation) { return InUse->Fails(std::move(operation)); }

    static bool FailsOnOpen(FileOperation::Kind what, Handle file, bool hasEffect)
    {
        const FileOperation& opened = InUse->m_openFiles.at(file);
        return InUse->Fails({what, opened.File, {}, opened.Reading, hasEffect && !opened.Reading});
    }
};

const char* NameOf(FileOperation::Kind what)
{
    constexpr const char* names[] = {"inspect", "read link",     "list",        "open",         "read",
                                     "write",   "take access",   "flush",       "close",        "rename",
                                     "remove",  "remove folder", "make folder", "flush folder", "lock"};
    return names[what];
}

std::size_t FailingStep([[maybe_unused]] std::size_t count)
{
#if defined(_WIN32) || defined(__SANITIZE_ADDRESS__)
    return count / 40 + 1;
#else
    return 1;
#endif
}

std::string Describe(std::size_t number, const FileOperation& operation, const Fault& fault)
{
    return "operation " + std::to_string(number) + ", " + NameOf(operation.What) + " " +
           operation.File.string() + ", then " + std::to_string(static_cast<int>(fault.Then)) + ", errno " +
           std::to_string(fault.Error);
}

WatchedFiles::WatchedFiles(std::size_t failing, Fault fault) : m_failing(failing), m_fault(fault)
{
    if (InUse != nullptr)
        throw std::logic_error("files are watched already");
    InUse = this;
    using Watched = WatchedOperations;
    System::Files = {Watched::Inspect,
                     Watched::ReadLink,
                     Watched::List,
                     Watched::Open,
                     Watched::Read,
                     Watched::Write,
                     Watched::TakeAccess,
                     Watched::Flush,
                     Watched::Close,
                     Watched::Rename,
                     Watched::RemoveFile,
                     Watched::RemoveFolder,
                     Watched::MakeFolder,
                     Watched::FlushFolder,
                     Watched::Lock,
                     System::OwnFiles.Unlock,
                     System::OwnFiles.IsLockedByRunning};
}

WatchedFiles::~WatchedFiles()
{
    System::Files = System::OwnFiles;
    InUse = nullptr;
}

bool WatchedFiles::Fails(FileOperation operation)
{
    const bool isRemoval = operation.HasEffect && (operation.What == FileOperation::RemoveFile ||
                                                   operation.What == FileOperation::RemoveFolder);
    m_operations.push_back(std::move(operation));
    if (m_failing == 0)
        return false;
    return m_operations.size() == m_failing || (m_fault.Then == After::NothingIsGone && isRemoval) ||
           (m_fault.Then == After::NothingWorks && m_operations.size() > m_failing);
}

std::vector<std::string> WatchedFiles::Effects(const fs::path& folder) const
{
    const auto inside = [&](const fs::path& path)
    { return WithoutProcessId(path.lexically_relative(folder).generic_string()); };
    std::vector<std::string> effects;
    for (const FileOperation& operation : m_operations)
        if (operation.HasEffect)
        {
            std::string effect = std::string(NameOf(operation.What)) + " " + inside(operation.File);
            if (!operation.NewName.empty())
                effect += " to " + inside(operation.NewName);
            effects.push_back(effect);
        }
    return effects;
}

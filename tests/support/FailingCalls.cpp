#include "support/FailingCalls.h"

#include <cerrno>
#include <stdexcept>

namespace
{

FailingCalls* InUse = nullptr;

} // namespace

/// The calls that stand in for the system's: noted, failed or passed on.
struct FailingCallsTable
{
    static std::FILE* Open(const std::filesystem::path& path, const char* mode)
    {
        const bool reading = *mode == 'r';
        if (InUse->Fails(FileCall::Open, path, reading))
        {
            errno = InUse->OpenErrno;
            return nullptr;
        }
        std::FILE* file = SystemFileCalls.Open(path, mode);
        if (file != nullptr)
            InUse->OpenFiles[file] = {FileCall::Open, path, reading};
        return file;
    }

    static bool Write(std::FILE* file, std::string_view bytes)
    {
        if (!Fails(FileCall::Write, file))
            return SystemFileCalls.Write(file, bytes);
        SystemFileCalls.Write(file, bytes.substr(0, bytes.size() / 2));
        errno = ENOSPC;
        return false;
    }

    static bool FlushToDisk(std::FILE* file)
    {
        if (!Fails(FileCall::FlushToDisk, file))
            return true;
        errno = EIO;
        return false;
    }

    static bool Close(std::FILE* file)
    {
        const bool fails = Fails(FileCall::Close, file);
        InUse->OpenFiles.erase(file);
        const bool closed = SystemFileCalls.Close(file);
        if (fails)
            errno = EIO;
        return closed && !fails;
    }

    static std::error_code Replace(const std::filesystem::path& from, const std::filesystem::path& to)
    {
        if (InUse->Fails(FileCall::Replace, from))
            return {InUse->OpenErrno, std::generic_category()};
        // Some file systems hold a file that another replaces back until its successor is on the disk.
        std::error_code failure;
        if (std::filesystem::is_regular_file(to, failure))
            std::filesystem::remove(to, failure);
        std::filesystem::rename(from, to, failure);
        return failure;
    }

    static std::error_code Remove(const std::filesystem::path& path)
    {
        if (InUse->Fails(FileCall::Remove, path))
            return std::make_error_code(std::errc::permission_denied);
        return SystemFileCalls.Remove(path);
    }

private:
    static bool Fails(FileCall kind, std::FILE* file)
    {
        const FileCallMade& opened = InUse->OpenFiles.at(file);
        return InUse->Fails(kind, opened.File, opened.Reading);
    }
};

FailingCalls::FailingCalls(std::size_t failing, After after, int openErrno)
    : Failing(failing),
      Then(after),
      OpenErrno(openErrno == 0 ? EACCES : openErrno)
{
    if (InUse != nullptr)
        throw std::logic_error("calls on files are failing already");
    InUse = this;
    using StandIn = FailingCallsTable;
    CurrentFileCalls = {StandIn::Open,  StandIn::Write,   StandIn::FlushToDisk,
                        StandIn::Close, StandIn::Replace, StandIn::Remove};
}

FailingCalls::~FailingCalls()
{
    CurrentFileCalls = SystemFileCalls;
    InUse = nullptr;
}

bool FailingCalls::Fails(FileCall kind, const std::filesystem::path& file, bool reading)
{
    Calls.push_back({kind, file, reading});
    if (Failing == 0)
        return false;
    return Calls.size() == Failing || (Then == After::NothingIsGone && kind == FileCall::Remove) ||
           (Then == After::NothingWorks && Calls.size() > Failing);
}

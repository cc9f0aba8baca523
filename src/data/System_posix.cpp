#include "data/System.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace System
{

std::string EnvironmentVariable(const char* name)
{
    const char* value = std::getenv(name);
    return value == nullptr ? std::string() : std::string(value);
}

std::string ProgramFolder()
{
    std::error_code ignored;
    return std::filesystem::read_symlink("/proc/self/exe", ignored).parent_path().string();
}

std::FILE* Open(const std::filesystem::path& path, const char* mode)
{
    return std::fopen(path.c_str(), mode);
}

bool FlushToDisk(std::FILE* file)
{
    // A device such as a pipe has nothing to flush to and says so; that is no failure.
    return ::fsync(::fileno(file)) == 0 || errno == EINVAL;
}

bool MayWrite(const std::filesystem::path& path)
{
    // The administrator may write anything; a file that nobody else may write is taken at its word.
    using std::filesystem::perms;
    std::error_code failure;
    const perms granted = std::filesystem::status(path, failure).permissions();
    const perms anyWrite = perms::owner_write | perms::group_write | perms::others_write;
    return !failure && (granted & anyWrite) != perms::none && ::access(path.c_str(), W_OK) == 0;
}

unsigned long ProcessNumber()
{
    return static_cast<unsigned long>(::getpid());
}

std::error_code Replace(const std::filesystem::path& from, const std::filesystem::path& to)
{
    std::error_code failure;
    std::filesystem::rename(from, to, failure);
    if (failure)
        return failure;
    // The new name is on disk only when its folder is; a folder that cannot be flushed has still been renamed
    // in.
    const std::filesystem::path folderPath = to.has_parent_path() ? to.parent_path() : ".";
    const int folder = ::open(folderPath.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder >= 0)
    {
        ::fsync(folder);
        ::close(folder);
    }
    return {};
}

} // namespace System

#include "data/FileCalls.h"

#include "data/System.h"

#include <cerrno>

namespace
{

bool Write(std::FILE* file, std::string_view bytes)
{
    errno = 0;
    if (std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size() && std::fflush(file) == 0)
        return true;
    // Of a write that the disk takes a part of, some C libraries tell no reason, or a wrong one.
    if (errno == 0 || errno == EINVAL)
        errno = ENOSPC;
    return false;
}

bool Close(std::FILE* file)
{
    return std::fclose(file) == 0;
}

std::error_code Remove(const std::filesystem::path& path)
{
    std::error_code failure;
    std::filesystem::remove(path, failure);
    return failure;
}

} // namespace

const FileCalls SystemFileCalls = {System::Open, Write, System::FlushToDisk, Close, System::Replace, Remove};

FileCalls CurrentFileCalls = SystemFileCalls;

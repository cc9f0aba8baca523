#include "data/CatalogueOnDisk.h"

#include "data/Errors.h"
#include "data/Files.h"

using System::Files;

namespace
{

constexpr int LockWait = 10'000; // milliseconds

} // namespace

CatalogueLock::CatalogueLock(const std::string& folder, LockKind kind)
{
    const std::error_code failure = Files.Lock(ToPath(folder), kind, LockWait, m_lock);
    if (failure == std::errc::timed_out)
        throw FileError(failure, folder);
    m_held = !failure;
}

CatalogueLock::~CatalogueLock()
{
    if (m_held)
        Files.Unlock(m_lock);
}

void MakeWholeFolder(const CatalogueOnDisk& files, const std::string& folder, const FillFolder& fill)
{
    const std::string unfinished = folder + ".dio";
    RemoveFolderOf(files, unfinished); // of an earlier run
    try
    {
        RequireDone(Files.MakeFolder(ToPath(unfinished)), unfinished);
        fill(unfinished);
        RequireDone(Files.FlushFolder(ToPath(unfinished)), unfinished);
        RequireDone(Files.Rename(ToPath(unfinished), ToPath(folder)), folder);
        RequireDone(Files.FlushFolder(ToPath(folder).parent_path()), folder);
    }
    catch (...)
    {
        RemoveFolderOf(files, unfinished);
        throw;
    }
}

void RemoveFolderOf(const CatalogueOnDisk& files, const std::string& folder)
{
    for (const std::string_view name : files.Names)
        Files.RemoveFile(ToPath(PathIn(folder, name)));
    Files.RemoveFolder(ToPath(folder));
}

FileType TypeOf(const std::string& path)
{
    FileFacts facts;
    RequireDone(Files.Inspect(ToPath(path), facts), path);
    return facts.Type;
}

bool HaveSame(const std::string& folder, const std::string& other, std::string_view name)
{
    const std::string path = PathIn(folder, name);
    const std::string otherPath = PathIn(other, name);
    const bool isThere = TypeOf(path) != FileType::Missing;
    if (isThere != (TypeOf(otherPath) != FileType::Missing))
        return false;
    return !isThere || ReadFile(path) == ReadFile(otherPath);
}

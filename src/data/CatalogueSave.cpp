#include "data/CatalogueSave.h"

#include "data/DatedCopies.h"
#include "data/Errors.h"
#include "data/Files.h"

#include <algorithm>

using System::Files;

namespace
{

constexpr std::string_view SetFolder = "spremanje";
constexpr std::string_view MarkName = "gotovo"; // holds the name of the dated copy
constexpr std::string_view UnfinishedMarkName = "gotovo.tmp";

std::string SetOf(const CatalogueOnDisk& files)
{
    return PathIn(files.Folder, SetFolder);
}

std::string MarkOf(const CatalogueOnDisk& files)
{
    return PathIn(SetOf(files), MarkName);
}

bool IsSetComplete(const CatalogueOnDisk& files)
{
    return TypeOf(MarkOf(files)) == FileType::File;
}

/// Throws for a folder that is marked read-only, also for root, who could write all the same.
void RequireWritableFolder(const std::string& folder)
{
    FileFacts facts;
    RequireDone(Files.Inspect(ToPath(folder), facts), folder);
    if (facts.Type == FileType::Folder && !facts.Writable)
        throw FileError(std::make_error_code(std::errc::permission_denied), folder);
}

/// Removes a set. The mark goes first: without it the rest is an incomplete set.
void RemoveSet(const CatalogueOnDisk& files)
{
    const std::string set = SetOf(files);
    for (const std::string_view name : {MarkName, UnfinishedMarkName})
        Files.RemoveFile(ToPath(PathIn(set, name)));
    RemoveFolderOf(files, set);
}

/// Marks a set as complete; all of it is then durable except the mark's name.
void Mark(const CatalogueOnDisk& files)
{
    const std::string set = SetOf(files);
    const std::string unfinished = PathIn(set, UnfinishedMarkName);
    RequireDone(Files.FlushFolder(ToPath(set)), set);
    RequireDone(Files.FlushFolder(ToPath(files.Folder)), files.Folder);
    WriteNewFile(unfinished, DatedCopies::NewName(files) + "\r\n", "");
    RequireDone(Files.Rename(ToPath(unfinished), ToPath(MarkOf(files))), MarkOf(files));
}

/// The name of the dated copy that belongs to a complete set.
std::string MarkedName(const CatalogueOnDisk& files)
{
    const std::string mark = ReadFile(MarkOf(files));
    const std::string name = mark.substr(0, mark.find('\r'));
    return DatedCopies::IsName(name) ? name : DatedCopies::NewName(files);
}

/// True if a file differs from both the copied one and the one that replaces it.
bool IsEdited(const CatalogueOnDisk& files, const std::string& copy, std::string_view name)
{
    return TypeOf(PathIn(files.Folder, name)) != FileType::Missing && !HaveSame(files.Folder, copy, name) &&
           !HaveSame(files.Folder, SetOf(files), name);
}

/// Copies the catalogue before it is replaced.
void KeepFormer(const CatalogueOnDisk& files, const std::string& name)
{
    const std::string copy = DatedCopies::FolderOf(files, name);
    if (TypeOf(copy) == FileType::Missing)
    {
        try
        {
            DatedCopies::Keep(files, name);
        }
        catch (const FileError&)
        {
            // The copy is best effort and must not block the save.
        }
    }
    // This finishes an interrupted save. Edits made since it began must not be lost.
    else if (std::ranges::any_of(files.Names,
                                 [&](std::string_view file) { return IsEdited(files, copy, file); }))
        DatedCopies::KeepAnother(files);
}

void ReplaceFiles(const CatalogueOnDisk& files)
{
    for (const std::string_view name : files.Names)
        if (!HaveSame(SetOf(files), files.Folder, name))
            ReplaceFile(PathIn(files.Folder, name), ReadFile(PathIn(SetOf(files), name)));
}

/// Replaces the catalogue by a complete set.
void Finish(const CatalogueOnDisk& files)
{
    std::string name;
    try
    {
        const std::string set = SetOf(files);
        RequireDone(Files.FlushFolder(ToPath(set)), set); // the mark's name
        name = MarkedName(files);
        KeepFormer(files, name);
        ReplaceFiles(files);
        RequireDone(Files.RemoveFile(ToPath(MarkOf(files))), MarkOf(files));
        RequireDone(Files.FlushFolder(ToPath(set)), set);
    }
    catch (const FileError& failure)
    {
        throw SaveNotFinished(failure);
    }
    RemoveSet(files); // if some of it stays, it is incomplete and harmless
    DatedCopies::Prune(files, name);
}

/// Moves a complete set that cannot be finished to "kopije".
void SetAside(const CatalogueOnDisk& files)
{
    const std::string folder = DatedCopies::NewFolder(files, "-nedovrseno");
    RequireDone(Files.Rename(ToPath(SetOf(files)), ToPath(folder)), folder);
    RequireDone(Files.FlushFolder(ToPath(folder).parent_path()), folder);
    RequireDone(Files.FlushFolder(ToPath(files.Folder)), files.Folder);
}

/// True if a name is that of a temporary file of ReplaceFile, for a file of the catalogue or for the ".bak"
/// copy that earlier versions kept.
bool IsTemporaryOf(std::string_view file, std::string_view name)
{
    constexpr std::string_view formerEnding = ".bak";
    constexpr std::string_view ending = ".tmp";
    if (!name.starts_with(file) || !name.ends_with(ending))
        return false;
    name.remove_prefix(file.size());
    if (name.starts_with(formerEnding))
        name.remove_prefix(formerEnding.size());
    if (name.size() < ending.size() + 2 || name.front() != '.')
        return false;
    return std::ranges::all_of(name.substr(1, name.size() - 1 - ending.size()),
                               [](char letter) { return letter >= '0' && letter <= '9'; });
}

} // namespace

namespace CatalogueSave
{

void Save(const CatalogueOnDisk& files, const FillFolder& fill)
{
    try
    {
        RequireWritableFolder(files.Folder);
        RemoveSet(files);
        MakeFolders(SetOf(files));
        fill(SetOf(files));
        Mark(files);
    }
    catch (...)
    {
        RemoveSet(files);
        throw;
    }
    Finish(files);
}

std::optional<std::string> CompleteSet(const CatalogueOnDisk& files)
{
    return IsSetComplete(files) ? std::optional(SetOf(files)) : std::nullopt;
}

void FinishAtStart(const CatalogueOnDisk& files)
{
    if (IsSetComplete(files))
        Finish(files);
}

void RemoveLeftovers(const CatalogueOnDisk& files)
{
    std::vector<FileOperations::Path> names;
    Files.List(ToPath(files.Folder), names);
    for (const FileOperations::Path& path : names)
        if (ToText(path) == SetFolder)
            RemoveSet(files);
        else if (std::ranges::any_of(files.Names, [&](std::string_view file)
                                     { return IsTemporaryOf(file, ToText(path)); }))
            Files.RemoveFile(ToPath(PathIn(files.Folder, ToText(path))));
}

void FinishAtSave(const CatalogueOnDisk& files)
{
    if (!IsSetComplete(files))
        return;
    try
    {
        Finish(files);
    }
    catch (const SaveNotFinished&)
    {
        SetAside(files);
    }
}

} // namespace CatalogueSave

#include "data/DatedCopies.h"

#include "data/Errors.h"
#include "data/Files.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <iterator>
#include <set>
#include <tuple>

using System::Files;

namespace
{

constexpr std::string_view TimePattern = "0000-00-00_000000"; // 0: any digit
constexpr std::size_t DateLength = 10;
constexpr std::string_view CopiesFolder = "kopije";
constexpr std::string_view UnfinishedEnding = ".dio";
constexpr std::size_t MaxCopies = 30;
constexpr std::size_t MaxDays = 30;

std::string LocalTime()
{
    const std::time_t now = std::time(nullptr);
    std::array<char, TimePattern.size() + 1> text{};
    std::strftime(text.data(), text.size(), "%Y-%m-%d_%H%M%S", std::localtime(&now));
    return text.data();
}

bool IsDigit(char letter)
{
    return letter >= '0' && letter <= '9';
}

std::string CopiesOf(const CatalogueOnDisk& files)
{
    return PathIn(files.Folder, CopiesFolder);
}

std::vector<std::string> NamesIn(const std::string& folder)
{
    std::vector<FileOperations::Path> paths;
    RequireDone(Files.List(ToPath(folder), paths), folder);
    std::vector<std::string> names;
    std::ranges::transform(paths, std::back_inserter(names), ToText);
    return names;
}

std::vector<std::string> NamesInCopies(const CatalogueOnDisk& files)
{
    const std::string copies = CopiesOf(files);
    return TypeOf(copies) == FileType::Folder ? NamesIn(copies) : std::vector<std::string>();
}

/// Orders names by time; names of the same second by their number.
bool IsOlder(std::string_view name, std::string_view other)
{
    const auto key = [](std::string_view text)
    { return std::tuple(text.substr(0, TimePattern.size()), text.size(), text); };
    return key(name) < key(other);
}

/// The names of the copies, the newest first.
std::vector<std::string> CopyNames(const CatalogueOnDisk& files)
{
    std::vector<std::string> names = NamesInCopies(files);
    std::erase_if(names, [](const std::string& name) { return !DatedCopies::IsName(name); });
    std::ranges::sort(names, [](const auto& name, const auto& other) { return IsOlder(other, name); });
    return names;
}

void MakeCopiesFolder(const CatalogueOnDisk& files)
{
    if (TypeOf(CopiesOf(files)) == FileType::Folder)
        return;
    MakeFolders(CopiesOf(files));
    RequireDone(Files.FlushFolder(ToPath(files.Folder)), files.Folder);
}

void CopyFiles(const CatalogueOnDisk& files, const std::string& folder)
{
    for (const std::string_view name : files.Names)
        if (const std::string path = PathIn(files.Folder, name); TypeOf(path) != FileType::Missing)
            WriteNewFile(PathIn(folder, name), ReadFile(path), path);
}

bool IsAnyFileThere(const CatalogueOnDisk& files)
{
    return std::ranges::any_of(files.Names, [&](std::string_view name)
                               { return TypeOf(PathIn(files.Folder, name)) != FileType::Missing; });
}

bool HoldsOnlyFilesOf(const CatalogueOnDisk& files, const std::string& folder)
{
    return std::ranges::all_of(NamesIn(folder), [&](const std::string& name)
                               { return std::ranges::find(files.Names, name) != files.Names.end(); });
}

void RemoveCopy(const CatalogueOnDisk& files, std::string_view name)
{
    const std::string folder = DatedCopies::FolderOf(files, name);
    if (HoldsOnlyFilesOf(files, folder))
        RemoveFolderOf(files, folder);
}

} // namespace

namespace DatedCopies
{

std::string (*CurrentTime)() = LocalTime;

std::string FolderOf(const CatalogueOnDisk& files, std::string_view name)
{
    return PathIn(CopiesOf(files), name);
}

bool IsName(std::string_view text)
{
    const auto fits = [](char letter, char pattern)
    { return pattern == '0' ? IsDigit(letter) : letter == pattern; };
    if (!std::ranges::equal(text.substr(0, TimePattern.size()), TimePattern, fits))
        return false;
    const std::string_view number = text.substr(TimePattern.size());
    return number.empty() || (number.size() > 1 && number.front() == '_' && number[1] != '0' &&
                              std::ranges::all_of(number.substr(1), IsDigit));
}

std::string NewName(const CatalogueOnDisk& files)
{
    const std::vector<std::string> names = NamesInCopies(files);
    const auto isTaken = [&](const std::string& wanted)
    {
        return std::ranges::any_of(
            names, [&](const std::string& name)
            { return name == wanted || name.starts_with(wanted + ".") || name.starts_with(wanted + "-"); });
    };
    const std::string time = CurrentTime();
    std::string name = time;
    for (int number = 2; isTaken(name); ++number)
        name = time + "_" + std::to_string(number);
    return name;
}

void Keep(const CatalogueOnDisk& files, std::string_view name)
{
    if (!IsAnyFileThere(files))
        return;
    try
    {
        MakeCopiesFolder(files);
        MakeWholeFolder(files, FolderOf(files, name),
                        [&](const std::string& folder) { CopyFiles(files, folder); });
    }
    catch (const FileError&)
    {
        Files.RemoveFolder(ToPath(CopiesOf(files))); // only if it is empty
        throw;
    }
}

void KeepAnother(const CatalogueOnDisk& files)
{
    const std::vector<std::string> names = CopyNames(files);
    const auto isInNewest = [&](std::string_view name)
    { return HaveSame(files.Folder, FolderOf(files, names.front()), name); };
    if (names.empty() || !std::ranges::all_of(files.Names, isInNewest))
        Keep(files, NewName(files));
}

std::string NewFolder(const CatalogueOnDisk& files, std::string_view ending)
{
    MakeCopiesFolder(files);
    return FolderOf(files, NewName(files)).append(ending);
}

void Prune(const CatalogueOnDisk& files, std::string_view newest)
{
    try
    {
        std::set<std::string> days;
        std::size_t seen = 0;
        for (const std::string& name : CopyNames(files))
        {
            const bool isLastOfDay = days.insert(name.substr(0, DateLength)).second;
            const bool stays = ++seen <= MaxCopies || (isLastOfDay && days.size() <= MaxDays);
            if (!stays && name != newest)
                RemoveCopy(files, name);
        }
        for (const std::string& name : NamesInCopies(files))
            if (name.ends_with(UnfinishedEnding) &&
                IsName(std::string_view(name).substr(0, name.size() - UnfinishedEnding.size())))
                RemoveCopy(files, name);
    }
    catch (const FileError&)
    {
        // Best effort: the next save tries again.
    }
}

} // namespace DatedCopies

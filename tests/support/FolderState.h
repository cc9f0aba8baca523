#pragma once

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

/// A file as it is on disk.
struct FileState
{
    std::string Name;
    std::uintmax_t Size;
    std::filesystem::file_time_type Written;

    bool operator==(const FileState&) const = default;
};

inline void PrintTo(const FileState& file, std::ostream* stream)
{
    *stream << file.Name << ", " << file.Size << " bytes, " << file.Written.time_since_epoch().count();
}

/// Every file of a folder. Two states are equal if nothing was written to the folder between them.
inline std::vector<FileState> FolderState(const std::filesystem::path& folder)
{
    std::vector<FileState> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        files.push_back({entry.path().filename().string(), entry.file_size(), entry.last_write_time()});
    std::ranges::sort(files, {}, &FileState::Name);
    return files;
}

#pragma once

#include <cstdio>
#include <filesystem>
#include <string_view>
#include <system_error>

/// The calls on files that can fail. A test puts others in their place to make each fail in its turn.
struct FileCalls
{
    /// Opens a file for reading ("rb") or writing ("wb", "ab"), binary; a null pointer and `errno` on
    /// failure.
    std::FILE* (*Open)(const std::filesystem::path& path, const char* mode);

    /// Hands bytes to the system; false and `errno` on failure, when some of them may have been written.
    bool (*Write)(std::FILE* file, std::string_view bytes);

    /// Hands a file's content to the disk itself, where the file has one; false and `errno` on failure.
    bool (*FlushToDisk)(std::FILE* file);

    /// Closes a file, on failure too; false and `errno` then.
    bool (*Close)(std::FILE* file);

    /// Puts a file in the place of another in one step that survives a power cut.
    std::error_code (*Replace)(const std::filesystem::path& from, const std::filesystem::path& to);

    /// Removes a file, if it is there.
    std::error_code (*Remove)(const std::filesystem::path& path);
};

/// The system's own calls.
extern const FileCalls SystemFileCalls;

/// The calls in use.
extern FileCalls CurrentFileCalls;

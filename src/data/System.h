#pragma once

#include <cstdio>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

/// What the operating systems do differently about files, folders and the environment. Texts are UTF-8.
namespace System
{

#ifdef _WIN32
inline constexpr std::string_view PathSeparator = "\\";
#else
inline constexpr std::string_view PathSeparator = "/";
#endif

/// The value of an environment variable; empty when it is not set.
std::string EnvironmentVariable(const char* name);

/// The folder that holds the program's own executable, without a separator behind it.
std::string ProgramFolder();

/// Opens a file for reading ("rb") or writing ("wb", "ab"), binary; a null pointer and `errno` on failure.
std::FILE* Open(const std::filesystem::path& path, const char* mode);

/// Hands a file's content to the disk itself, where the file has one; false and `errno` on failure.
bool FlushToDisk(std::FILE* file);

/// False for a file or folder that is marked as not to be written, even to a user who could do it all the
/// same.
bool MayWrite(const std::filesystem::path& path);

/// The number of this process, which no other that runs has.
unsigned long ProcessNumber();

/// Puts a file in the place of another in one step that survives a power cut.
std::error_code Replace(const std::filesystem::path& from, const std::filesystem::path& to);

} // namespace System

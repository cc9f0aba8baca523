#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// The environment of the program. Texts are UTF-8. Operations on files are in data/FileOperations.h.
namespace System
{

#ifdef _WIN32
inline constexpr std::string_view PathSeparator = "\\";
#else
inline constexpr std::string_view PathSeparator = "/";
#endif

/// The value of an environment variable; empty if it is not set.
std::string EnvironmentVariable(const char* name);

/// The folder that holds the program's own executable, without a separator at its end.
std::string ProgramFolder();

/// The folder for temporary files; empty if there is none.
std::string TemporaryFolder();

/// The number of this process; no other running process has it.
unsigned long ProcessId();

} // namespace System

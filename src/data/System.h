#pragma once

#include <filesystem>
#include <string>
#include <string_view>

/// What the operating systems do differently about the environment. Texts are UTF-8. Files have a table of
/// operations of their own, in data/FileOperations.h.
namespace System
{

#ifdef _WIN32
inline constexpr std::string_view PathSeparator = "\\";
#else
inline constexpr std::string_view PathSeparator = "/";
#endif

/// The value of an environment variable; empty when it is not set.
std::string EnvironmentVariable(const char* name);

/// The folder that holds the program's own executable, without a separator at its end.
std::string ProgramFolder();

/// The folder for temporary files; empty when there is none.
std::string TemporaryFolder();

/// The number of this process, which no other that runs has.
unsigned long ProcessId();

} // namespace System

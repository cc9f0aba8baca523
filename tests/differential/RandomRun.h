#pragma once

#include "data/FileOperations.h"
#include "data/System.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>

// Shared by the tests with random catalogues.

/// A whole number from the environment.
inline std::uint64_t Setting(const char* variable, std::uint64_t otherwise)
{
    const std::string value = System::EnvironmentVariable(variable);
    return value.empty() ? otherwise : std::stoull(value);
}

/// While it lives, nothing waits for the disk: these tests write thousands of files that need not survive.
class HastyFiles
{
public:
    HastyFiles()
    {
        System::Files.Flush = [](FileOperations::Handle) { return std::error_code(); };
        System::Files.FlushFolder = [](const std::filesystem::path&) { return std::error_code(); };
        System::Files.Rename = [](const std::filesystem::path& from, const std::filesystem::path& to)
        {
            // Some file systems wait for the disk when a rename replaces a file, so remove the old one first.
            System::OwnFiles.RemoveFile(to);
            return System::OwnFiles.Rename(from, to);
        };
    }
    ~HastyFiles() { System::Files = m_former; }
    HastyFiles(const HastyFiles&) = delete;
    HastyFiles& operator=(const HastyFiles&) = delete;

private:
    FileOperations m_former = System::Files;
};

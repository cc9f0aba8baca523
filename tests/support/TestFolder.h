#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

/// A folder for one test, removed with this object. While it lives, LOCALAPPDATA names it, so that the
/// program's data folder is in it.
class TestFolder
{
public:
    TestFolder();
    ~TestFolder();
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    const std::filesystem::path& Path() const { return m_folder; }

    /// The program's data folder, "Varlostudiji" in this one; it exists.
    std::filesystem::path Data() const { return m_folder / "Varlostudiji"; }

    /// The path of a file of the data folder, as in the program's messages.
    std::string DataPath(std::string_view name) const;

    /// The path of a file of this folder as UTF-8, for the program's functions.
    std::string PathOf(std::string_view name) const;

private:
    std::filesystem::path m_folder;
    std::string m_formerLocalAppData;
};

/// Sets an environment variable for this process; empty removes it.
void SetEnvironment(const char* name, const std::string& value);

std::string ReadBytes(const std::filesystem::path& file);
void WriteBytes(const std::filesystem::path& file, std::string_view bytes);

/// The folder of the demo catalogue.
std::filesystem::path DemoFolder();

/// Copies the demo catalogue into a test's data folder.
void CopyDemo(const TestFolder& folder);

/// The bytes of a file in tests/expected; the scripts there make the files.
std::string ExpectedFile(std::string_view name);

/// The bytes of a file in tests/data/spoiled; the README there tells which program made it.
std::string SpoiledFile(std::string_view folder, std::string_view name);

/// The names of the entries of a folder, sorted.
std::vector<std::string> EntriesOf(const std::filesystem::path& folder);

/// The names of the temporary files that a save has left in a folder.
std::vector<std::string> TemporaryFilesIn(const std::filesystem::path& folder);

#include "support/TestFolder.h"

#include "data/Files.h"
#include "data/System.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

#ifdef _WIN32
#include <windows.h>
#endif

namespace fs = std::filesystem;

TestFolder::TestFolder() : m_formerLocalAppData(System::EnvironmentVariable("LOCALAPPDATA"))
{
    std::random_device random;
    m_folder =
        fs::temp_directory_path() / ("varlo-" + std::to_string(random()) + "-" + std::to_string(random()));
    fs::create_directories(Data());
    SetEnvironment("LOCALAPPDATA", PathOf(""));
}

TestFolder::~TestFolder()
{
    SetEnvironment("LOCALAPPDATA", m_formerLocalAppData);
    std::error_code ignored;
    fs::remove_all(m_folder, ignored);
}

std::string TestFolder::DataPath(std::string_view name) const
{
    const std::string separator(System::PathSeparator);
    return PathOf("") + separator + "Varlostudiji" + separator + std::string(name);
}

std::string TestFolder::PathOf(std::string_view name) const
{
    const std::u8string path = (name.empty() ? m_folder : m_folder / ToPath(name)).u8string();
    return {path.begin(), path.end()};
}

void SetEnvironment(const char* name, const std::string& value)
{
#ifdef _WIN32
    const std::wstring wideName = ToPath(name).wstring();
    SetEnvironmentVariableW(wideName.c_str(), value.empty() ? nullptr : ToPath(value).c_str());
#else
    if (value.empty())
        ::unsetenv(name);
    else
        ::setenv(name, value.c_str(), 1);
#endif
}

std::string ReadBytes(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw std::runtime_error("cannot read " + file.string());
    return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

void WriteBytes(const fs::path& file, std::string_view bytes)
{
    std::ofstream stream(file, std::ios::binary | std::ios::trunc);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!stream.flush())
        throw std::runtime_error("cannot write " + file.string());
}

fs::path DemoFolder()
{
    return fs::path(VARLO_SOURCE_DIR) / "demo";
}

void CopyDemo(const TestFolder& folder)
{
    fs::copy(DemoFolder(), folder.Data(), fs::copy_options::recursive | fs::copy_options::overwrite_existing);
}

std::string ExpectedFile(std::string_view name)
{
    return ReadBytes(fs::path(VARLO_SOURCE_DIR) / "tests" / "expected" / name);
}

std::string SpoiledFile(std::string_view folder, std::string_view name)
{
    return ReadBytes(fs::path(VARLO_SOURCE_DIR) / "tests" / "data" / "spoiled" / folder / name);
}

std::vector<std::string> EntriesOf(const fs::path& folder)
{
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::ranges::sort(names);
    return names;
}

std::vector<std::string> TemporaryFilesIn(const fs::path& folder)
{
    std::vector<std::string> names = EntriesOf(folder);
    std::erase_if(names, [](const std::string& name) { return !name.ends_with(".tmp"); });
    return names;
}

#include "data/System.h"

#include <io.h>
#include <windows.h>

namespace System
{

namespace
{

std::wstring Wide(const char* text)
{
    return {text, text + std::char_traits<char>::length(text)};
}

std::string Utf8(const std::wstring& text)
{
    const std::u8string utf8 = std::filesystem::path(text).u8string();
    return {utf8.begin(), utf8.end()};
}

/// A virus scanner, an indexer or a second copy of the program holds a file for a moment only.
bool MayPassSoon(DWORD failure)
{
    return failure == ERROR_ACCESS_DENIED || failure == ERROR_SHARING_VIOLATION;
}

} // namespace

std::string EnvironmentVariable(const char* name)
{
    const std::wstring wideName = Wide(name);
    std::wstring value(GetEnvironmentVariableW(wideName.c_str(), nullptr, 0), L'\0');
    value.resize(GetEnvironmentVariableW(wideName.c_str(), value.data(), static_cast<DWORD>(value.size())));
    return Utf8(value);
}

std::string ProgramFolder()
{
    constexpr DWORD longestPath = 32768;
    std::wstring program(longestPath, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), longestPath));
    return Utf8(std::filesystem::path(program).parent_path().wstring());
}

std::FILE* Open(const std::filesystem::path& path, const char* mode)
{
    return _wfopen(path.c_str(), Wide(mode).c_str());
}

bool FlushToDisk(std::FILE* file)
{
    return _commit(_fileno(file)) == 0;
}

bool MayWrite(const std::filesystem::path& path)
{
    // The attribute says nothing about a folder's content, so only files are asked for it.
    const DWORD attributes = GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return false;
    return (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 || (attributes & FILE_ATTRIBUTE_READONLY) == 0;
}

unsigned long ProcessNumber()
{
    return GetCurrentProcessId();
}

std::error_code Replace(const std::filesystem::path& from, const std::filesystem::path& to)
{
    constexpr int attempts = 10;
    constexpr DWORD pause = 30; // milliseconds
    DWORD failure = ERROR_SUCCESS;
    for (int attempt = 0; attempt < attempts; ++attempt)
    {
        if (MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0)
            return {};
        failure = GetLastError();
        if (!MayPassSoon(failure))
            break;
        Sleep(pause);
    }
    return {static_cast<int>(failure), std::system_category()};
}

} // namespace System

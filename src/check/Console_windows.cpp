#include "check/Console.h"

#include <algorithm>
#include <cstdio>
#include <windows.h>

#include <shellapi.h> // after windows.h, which it needs

namespace Console
{

namespace
{

std::wstring Wide(std::string_view text)
{
    const int size = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0'); // enough: a UTF-16 unit comes from one byte or more
    wide.resize(static_cast<std::size_t>(
        MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), static_cast<int>(wide.size()))));
    return wide;
}

std::string Utf8(std::wstring_view text)
{
    constexpr std::size_t mostBytes = 3; // of a UTF-16 unit
    std::string utf8(text.size() * mostBytes, '\0');
    utf8.resize(static_cast<std::size_t>(
        WideCharToMultiByte(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), utf8.data(),
                            static_cast<int>(utf8.size()), nullptr, nullptr)));
    return utf8;
}

bool IsConsole(HANDLE output)
{
    DWORD mode = 0;
    return GetConsoleMode(output, &mode) != 0;
}

void WriteToConsole(HANDLE console, std::wstring_view text)
{
    constexpr std::size_t most = 8000; // one call takes about 64 KB
    while (!text.empty())
    {
        DWORD written = 0;
        const std::size_t size = std::min(text.size(), most);
        if (WriteConsoleW(console, text.data(), static_cast<DWORD>(size), &written, nullptr) == 0 ||
            written == 0)
            return;
        text.remove_prefix(written);
    }
}

} // namespace

std::vector<std::string> Arguments(int, char* const*)
{
    // The arguments of main are in the system's code page, which lacks some letters.
    int count = 0;
    wchar_t** wide = CommandLineToArgvW(GetCommandLineW(), &count);
    std::vector<std::string> arguments;
    for (int i = 1; i < count; ++i)
        arguments.push_back(Utf8(wide[i]));
    LocalFree(wide);
    return arguments;
}

void Write(std::string_view text)
{
    const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
    if (IsConsole(output))
        return WriteToConsole(output, Wide(text));
    std::fwrite(text.data(), 1, text.size(), stdout); // turns "\n" into CR LF
    std::fflush(stdout);
}

} // namespace Console

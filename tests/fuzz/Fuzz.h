#pragma once

#include "data/Errors.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

// What the fuzz targets share. A target may end in a result or in one of the program's own errors; anything
// else - a crash, a sanitizer's report, another exception, a broken promise - is a find.

/// Ends the run as a find, with the promise that does not hold.
inline void Promise(bool held, const char* promise)
{
    if (held)
        return;
    std::fprintf(stderr, "Broken promise: %s\n", promise);
    std::abort();
}

/// Runs a step that may end in one of the program's own errors; returns whether it did not.
template<typename Step>
bool Succeeds(const Step& step)
{
    try
    {
        step();
        return true;
    }
    catch (const RuntimeError& error)
    {
        Promise(error.Number() > 0 && *error.what() != '\0', "an error has a number and a text");
        return false;
    }
}

/// The input as text.
inline std::string_view TextOf(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

/// The parts of the input between the bytes that separate them; always `count`, the missing ones empty.
inline std::vector<std::string_view> PartsOf(std::string_view input, char separator, std::size_t count)
{
    std::vector<std::string_view> parts(count);
    for (std::size_t i = 0; i < count && !input.empty(); ++i)
    {
        const std::size_t end = i + 1 == count ? input.size() : input.find(separator);
        parts[i] = input.substr(0, end);
        input.remove_prefix(end >= input.size() ? input.size() : end + 1);
    }
    return parts;
}

#pragma once

#include "data/Errors.h"

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

// Shared by the fuzz targets. A target ends in a result or in one of the program's own errors. Anything else
// is a find: a crash, a sanitizer's report, another exception, or a broken promise.

/// Ends the run as a find, with the broken promise.
inline void Promise(bool held, const char* promise)
{
    if (held)
        return;
    std::fprintf(stderr, "Broken promise: %s\n", promise);
    std::abort();
}

/// Runs a step that may end in one of the program's own errors; true if it did not.
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

/// The parts of the input between separator bytes; always `count`, missing ones are empty.
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

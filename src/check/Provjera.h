#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace Check
{

/// How the program ends.
enum ExitCode : int
{
    Valid = 0,
    Invalid = 1, ///< The load of the catalogue or its validation fails.
    NotDone = 2  ///< The folder cannot be read, a repair is refused, or the arguments make no sense.
};

/// What the program talks through.
struct Terminal
{
    std::function<void(std::string_view text)> Write;
    std::function<std::string()> ReadLine; ///< Waits for Enter.
};

/// The program varlostudiji-provjera: takes its arguments, writes its report and answers with its exit code.
ExitCode Provjera(std::span<const std::string> arguments, const Terminal& terminal);

} // namespace Check

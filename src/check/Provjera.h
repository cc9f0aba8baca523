#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

namespace Check
{

/// The program's exit codes.
enum ExitCode : int
{
    Valid = 0,
    Invalid = 1, ///< The catalogue cannot be loaded, or its validation fails.
    NotDone = 2  ///< The folder cannot be read, a repair is refused, or the arguments are wrong.
};

/// The program's input and output.
struct Terminal
{
    std::function<void(std::string_view text)> Write;
    std::function<std::string()> ReadLine; ///< Waits for Enter.
};

/// The program varlostudiji-provjera: writes its report about a catalogue, and returns its exit code.
ExitCode Provjera(std::span<const std::string> arguments, const Terminal& terminal);

} // namespace Check

#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The console of the operating system. Texts are UTF-8 with "\n" as the line end.
namespace Console
{

/// The arguments of the program without its name.
std::vector<std::string> Arguments(int count, char* const* values);

/// Writes to the standard output: to a console as Unicode, under any code page; to a file or pipe as UTF-8.
void Write(std::string_view text);

/// Waits for Enter and returns what was typed before it; empty at the end of the input.
std::string ReadLine();

} // namespace Console

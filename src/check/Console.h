#pragma once

#include <string>
#include <string_view>
#include <vector>

/// The console, which the systems treat differently. Texts are UTF-8, with "\n" at the ends of lines.
namespace Console
{

/// The arguments of the program without its name.
std::vector<std::string> Arguments(int count, char* const* values);

/// Writes to the standard output: a console shows the right letters under any code page; elsewhere the output
/// is UTF-8.
void Write(std::string_view text);

/// Waits for Enter and answers with what was typed before it; empty when there is no more input.
std::string ReadLine();

} // namespace Console

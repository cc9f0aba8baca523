#pragma once

#include <string>
#include <string_view>
#include <vector>

// The least work that any program must do: to read or write the bytes.

/// Reads files whole and decodes windows-1250 byte by byte, with its own decoder: a yardstick must not change
/// with the program. Returns the texts' length.
std::size_t ReadAndDecode(const std::vector<std::string>& paths);

/// Writes a file in one step, as the program does: to a temporary file beside it, flushed, renamed, the
/// folder flushed. Uses the system's own calls.
void WriteFlushed(const std::string& path, std::string_view bytes);

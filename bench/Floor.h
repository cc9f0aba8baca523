#pragma once

#include <string>
#include <string_view>
#include <vector>

// What no program can do without: the bytes read or written, and nothing done to them.

/// Reads files whole and decodes windows-1250 byte by byte, by a decoder of its own: a yardstick must not
/// move with what it measures. Returns the texts' length.
std::size_t ReadAndDecode(const std::vector<std::string>& paths);

/// Writes a file in one step: to a temporary file beside it, flushed, renamed, the folder flushed, as the
/// program does, but by the system's bare calls.
void WriteFlushed(const std::string& path, std::string_view bytes);

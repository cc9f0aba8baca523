#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

/// The path that a UTF-8 text names.
std::filesystem::path ToPath(std::string_view path);

/// The content of a file, at most `limit` bytes of it. @throws FileError
std::string ReadFile(std::string_view path, std::size_t limit = std::string::npos);

/// Creates an empty file where none exists. @throws FileError
void CreateFileIfMissing(std::string_view path);

/// Gives a file a new content, created when missing. The content goes to the file's name with ".tmp" behind
/// it, is flushed to disk and takes the file's place in one step: a failure leaves the old content whole.
/// @throws FileError, also for a file or folder that is marked as not to be written
void ReplaceFile(std::string_view path, std::string_view content);

/// A text file that leaves the program: windows-1250, CR LF behind every line.
class TextFile
{
public:
    /// Adds a line; the text is UTF-8 and may hold line breaks of its own, which stay as they are.
    void AddLine(std::string_view text);

    /// Writes the lines added so far, by ReplaceFile. @throws FileError
    void SaveAs(std::string_view path) const { ReplaceFile(path, Content); }

private:
    std::string Content;
};

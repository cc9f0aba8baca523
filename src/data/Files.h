#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

/// The path that a UTF-8 text names.
std::filesystem::path ToPath(std::string_view path);

/// A path as UTF-8 text.
std::string ToText(const std::filesystem::path& path);

/// The path of a file or folder in a folder.
std::string PathIn(std::string_view folder, std::string_view name);

/// The content of a file, at most `limit` bytes of it. @throws FileError
std::string ReadFile(std::string_view path, std::size_t limit = std::string::npos);

/// Creates an empty file where none exists. @throws FileError
void CreateFileIfMissing(std::string_view path);

/// Makes a folder and those above it, where they are missing. @throws FileError
void MakeFolders(std::string_view path);

/// Gives a file a new content, created when missing. The content goes to a temporary file beside it, is
/// flushed to disk and replaces the file in one step: a failure leaves the old content whole.
/// @throws FileError, also for a file or folder that is read-only
void ReplaceFile(std::string_view path, std::string_view content);

/// Checks that ReplaceFile can write to a path, by making its temporary file and removing it. @throws
/// FileError
void CheckWritable(std::string_view path);

/// The temporary file of ReplaceFile. It holds the process number, so that two copies of the program do not
/// share one. Never longer than the file's own name, which the system accepts.
std::filesystem::path TemporaryNameFor(std::filesystem::path file);

/// As ReplaceFile, but the temporary file is named after the whole path with ".tmp" at its end, and stays
/// when it is whole but cannot replace the file. @throws FileError
void ConvertFile(std::string_view path, std::string_view content);

/// Writes a file that must not exist yet, with the mode and owner of the one at `model` if there is one, and
/// flushes it to disk. The folder is not flushed. A failure leaves no file. @throws FileError
void WriteNewFile(std::string_view path, std::string_view content, std::string_view model);

/// A text file that leaves the program: windows-1250, CR LF after every line.
class TextFile
{
public:
    /// Adds a line; the text is UTF-8 and may hold line breaks of its own, which stay as they are.
    void AddLine(std::string_view text);

    /// The bytes of the lines added so far.
    const std::string& Content() const { return m_bytes; }

    /// Writes the lines added so far, by ReplaceFile. @throws FileError
    void SaveAs(std::string_view path) const { ReplaceFile(path, m_bytes); }

private:
    std::string m_bytes;
};

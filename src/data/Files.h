#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

/// The path that a UTF-8 text names.
std::filesystem::path ToPath(std::string_view path);

/// A path as UTF-8 text.
std::string ToText(const std::filesystem::path& path);

/// Throws if an operation failed; `path` is its file or folder. @throws FileError
void RequireDone(std::error_code failure, std::string_view path);

/// The path of a file or folder in a folder.
std::string PathIn(std::string_view folder, std::string_view name);

/// The characters that no file name may have on Windows, apart from control characters.
inline constexpr std::string_view ForbiddenInFileNames = "\\/:*?\"<>|";

/// The content of a file, at most `limit` bytes of it. @throws FileError
std::string ReadFile(std::string_view path, std::size_t limit = std::string::npos);

/// Creates an empty file where none exists. @throws FileError
void CreateFileIfMissing(std::string_view path);

/// Makes a folder and its parent folders, if missing. @throws FileError
void MakeFolders(std::string_view path);

/// Replaces the content of a file; creates the file if missing. The content goes to a temporary file beside
/// it, which is flushed to disk and renamed to the file: a failure leaves the old file or, if only the last
/// flush fails, the new one.
/// @throws FileError, also for a file or folder that is read-only
void ReplaceFile(std::string_view path, std::string_view content);

/// Checks that ReplaceFile can write to a path: makes its temporary file and removes it. @throws FileError
void CheckWritable(std::string_view path);

/// The temporary file of ReplaceFile. Its name contains the process ID, so that two copies of the program do
/// not share one. A name of more than 100 characters is shortened, so that the system accepts the temporary
/// one too.
std::filesystem::path TemporaryNameFor(std::filesystem::path file);

/// As ReplaceFile, but the temporary file is `path` with ".tmp" at its end. If it is whole and cannot replace
/// the file, it stays. @throws FileError
void ConvertFile(std::string_view path, std::string_view content);

/// Writes a new file and flushes it to disk; its folder is not flushed. The file gets the mode and owner of
/// the one at `model`, if there is one. A failure leaves no file. @throws FileError
void WriteNewFile(std::string_view path, std::string_view content, std::string_view model);

/// A text file that leaves the program: windows-1250, CR LF after every line.
class TextFile
{
public:
    /// Adds a line (UTF-8). Line breaks inside the text stay as they are.
    void AddLine(std::string_view text);

    /// The bytes of the lines added so far.
    const std::string& Content() const { return m_bytes; }

    /// Writes the lines added so far, by ReplaceFile. @throws FileError
    void SaveAs(std::string_view path) const { ReplaceFile(path, m_bytes); }

private:
    std::string m_bytes;
};

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

/// What becomes of the content that a file had.
enum class Former
{
    Dropped,
    Kept, ///< Beside the file, under its name with ".bak" behind it, when the new content differs. An older
          ///< copy gives way to it; a copy that cannot be made is done without.
};

/// Gives a file a new content, created when missing. The content goes to a temporary file beside it, is
/// flushed to disk and takes the file's place in one step: a failure leaves the old content whole.
/// @throws FileError, also for a file or folder that is marked as not to be written
void ReplaceFile(std::string_view path, std::string_view content, Former former = Former::Dropped);

/// The temporary file of ReplaceFile: no two copies of the program share one, and one that a killed program
/// left behind is in nobody's way.
std::filesystem::path TemporaryNameFor(std::filesystem::path file);

/// A text file that leaves the program: windows-1250, CR LF behind every line.
class TextFile
{
public:
    /// Adds a line; the text is UTF-8 and may hold line breaks of its own, which stay as they are.
    void AddLine(std::string_view text);

    /// Writes the lines added so far, by ReplaceFile. @throws FileError
    void SaveAs(std::string_view path, Former former = Former::Dropped) const
    {
        ReplaceFile(path, Content, former);
    }

private:
    std::string Content;
};

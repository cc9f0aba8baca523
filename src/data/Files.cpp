#include "data/Files.h"

#include "data/Errors.h"
#include "data/FileOperations.h"
#include "data/System.h"
#include "data/Windows1250.h"

#include <algorithm>
#include <array>

namespace fs = std::filesystem;

using System::Files;

namespace
{

class OpenFile
{
public:
    OpenFile(const fs::path& file, OpenFor purpose, std::string_view path) : m_path(path)
    {
        RequireDone(Files.Open(file, purpose, m_handle), path);
    }
    ~OpenFile()
    {
        if (m_isOpen)
            Files.Close(m_handle);
    }
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    /// Reads at most `limit` bytes more.
    std::string Read(std::size_t limit)
    {
        std::string content;
        std::array<char, 0x10000> buffer;
        for (std::size_t count = 1; count > 0 && content.size() < limit; content.append(buffer.data(), count))
        {
            const std::size_t wanted = std::min(buffer.size(), limit - content.size());
            RequireDone(Files.Read(m_handle, {buffer.data(), wanted}, count), m_path);
        }
        return content;
    }

    void Write(std::string_view content) { RequireDone(Files.Write(m_handle, content), m_path); }

    /// Copies the mode and owner of another file, where the file system has them.
    void TakeAccess(const fs::path& model) { Files.TakeAccess(m_handle, model); }

    /// Flushes to disk and closes.
    void Finish()
    {
        RequireDone(Files.Flush(m_handle), m_path);
        m_isOpen = false;
        RequireDone(Files.Close(m_handle), m_path);
    }

private:
    std::string_view m_path;
    FileOperations::Handle m_handle = 0;
    bool m_isOpen = true;
};

FileFacts FactsOf(const fs::path& file, std::string_view path)
{
    FileFacts facts;
    RequireDone(Files.Inspect(file, facts), path);
    return facts;
}

fs::path FolderOf(const fs::path& file)
{
    return file.has_parent_path() ? file.parent_path() : fs::path(".");
}

void RequireWritable(const fs::path& file, const FileFacts& facts, std::string_view path)
{
    if (facts.Type == FileType::Folder)
        throw FileError(std::make_error_code(std::errc::is_a_directory), path);
    const FileFacts folder = FactsOf(FolderOf(file), path);
    if (folder.Type != FileType::Folder)
        throw FileError(std::make_error_code(std::errc::no_such_file_or_directory), path);
    if (!folder.Writable || (facts.Type != FileType::Missing && !facts.Writable))
        throw FileError(std::make_error_code(std::errc::permission_denied), path);
}

/// Resolves symbolic links; the target may not exist.
fs::path ResolveSymlinks(fs::path file)
{
    constexpr int most = 40; // as many as the systems follow
    fs::path target;
    for (int i = 0; i < most && !Files.ReadLink(file, target) && !target.empty(); ++i)
        file = file.parent_path() / target;
    return file;
}

/// A model that does not exist: the file gets the mode of any new file.
const fs::path NoModel;

void WriteNew(const fs::path& file, std::string_view content, const fs::path& model, std::string_view path)
{
    bool isMade = false;
    try
    {
        OpenFile opened(file, OpenFor::NewFile, path);
        isMade = true;
        opened.Write(content);
        opened.TakeAccess(model);
        opened.Finish();
    }
    catch (const FileError&)
    {
        if (isMade) // not a file of another program
            Files.RemoveFile(file);
        throw;
    }
}

enum class Unused
{
    Removed,
    Kept
};

/// Writes the new content beside the file, then replaces the file by it. `unused` says what happens to a
/// temporary file that is whole but cannot replace the file.
void WriteBesideAndReplace(const fs::path& file, const fs::path& temporary, std::string_view content,
                           std::string_view path, Unused unused)
{
    RequireDone(Files.RemoveFile(temporary), path); // of an earlier run
    WriteNew(temporary, content, file, path);
    if (const std::error_code failure = Files.Rename(temporary, file))
    {
        if (unused == Unused::Removed)
            Files.RemoveFile(temporary);
        throw FileError(failure, path);
    }
    RequireDone(Files.FlushFolder(FolderOf(file)), path);
}

} // namespace

void RequireDone(std::error_code failure, std::string_view path)
{
    if (failure)
        throw FileError(failure, path);
}

fs::path ToPath(std::string_view path)
{
    return {std::u8string(path.begin(), path.end())};
}

std::string ToText(const fs::path& path)
{
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::string PathIn(std::string_view folder, std::string_view name)
{
    return std::string(folder).append(System::PathSeparator).append(name);
}

fs::path TemporaryNameFor(fs::path file)
{
    constexpr std::size_t longName = 100;
    const fs::path ending = "." + std::to_string(System::ProcessId()) + ".tmp";
    fs::path::string_type name = file.filename().native();
    if (name.size() > longName)
        name.resize(name.size() - ending.native().size());
    return file.replace_filename(name) += ending;
}

std::string ReadFile(std::string_view path, std::size_t limit)
{
    const fs::path file = ToPath(path);
    if (FactsOf(file, path).Type == FileType::Folder)
        throw FileError(std::make_error_code(std::errc::is_a_directory), path);
    return OpenFile(file, OpenFor::Reading, path).Read(limit);
}

void CreateFileIfMissing(std::string_view path)
{
    const fs::path file = ResolveSymlinks(ToPath(path));
    if (FactsOf(file, path).Type == FileType::Missing)
        WriteNew(file, "", NoModel, path);
}

void MakeFolders(std::string_view path)
{
    const fs::path folder = ToPath(path);
    if (FactsOf(folder, path).Type == FileType::Folder)
        return;
    if (folder.has_relative_path())
        MakeFolders(ToText(folder.parent_path()));
    RequireDone(Files.MakeFolder(folder), path);
}

void ReplaceFile(std::string_view path, std::string_view content)
{
    // On Linux a link stays a link: its target gets the new content.
    const fs::path file = ResolveSymlinks(ToPath(path));
    const FileFacts facts = FactsOf(file, path);
    RequireWritable(file, facts, path);
    if (facts.Type == FileType::Other) // a device: no old content to keep, nothing to rename over
    {
        OpenFile opened(file, OpenFor::Rewriting, path);
        opened.Write(content);
        opened.Finish();
        return;
    }
    WriteBesideAndReplace(file, TemporaryNameFor(file), content, path, Unused::Removed);
}

void CheckWritable(std::string_view path)
{
    constexpr std::size_t longestName = 255; // bytes on Linux, UTF-16 units on Windows
    const fs::path file = ResolveSymlinks(ToPath(path));
    if (file.filename().native().size() > longestName)
        throw FileError(std::make_error_code(std::errc::filename_too_long), path);
    const FileFacts facts = FactsOf(file, path);
    RequireWritable(file, facts, path);
    if (facts.Type == FileType::Other)
        return;
    const fs::path temporary = TemporaryNameFor(file);
    RequireDone(Files.RemoveFile(temporary), path); // of an earlier run
    WriteNew(temporary, "", file, path);
    Files.RemoveFile(temporary);
}

void ConvertFile(std::string_view path, std::string_view content)
{
    const fs::path file = ResolveSymlinks(ToPath(path));
    RequireWritable(file, FactsOf(file, path), path);
    WriteBesideAndReplace(file, fs::path(file) += ".tmp", content, path, Unused::Kept);
}

void WriteNewFile(std::string_view path, std::string_view content, std::string_view model)
{
    WriteNew(ToPath(path), content, ToPath(model), path);
}

void TextFile::AddLine(std::string_view text)
{
    AppendWindows1250(m_bytes, text);
    m_bytes += "\r\n";
}

#include "data/Files.h"

#include "data/Errors.h"
#include "data/FileCalls.h"
#include "data/System.h"
#include "data/Windows1250.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>

namespace fs = std::filesystem;

namespace
{

struct CloseFile
{
    void operator()(std::FILE* file) const { CurrentFileCalls.Close(file); }
};
using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

std::error_code LastFailure()
{
    return {errno, std::generic_category()};
}

OpenFile Open(const fs::path& file, const char* mode, std::string_view path)
{
    OpenFile opened(CurrentFileCalls.Open(file, mode));
    if (!opened)
        throw FileError(LastFailure(), path);
    return opened;
}

/// Writes a file and closes it; `path` is the name that an error speaks of.
void WriteContent(const fs::path& file, std::string_view content, std::string_view path)
{
    OpenFile opened = Open(file, "wb", path);
    if (!CurrentFileCalls.Write(opened.get(), content) || !CurrentFileCalls.FlushToDisk(opened.get()))
        throw FileError(LastFailure(), path); // made before the file is closed, which may fail as well
    if (!CurrentFileCalls.Close(opened.release()))
        throw FileError(LastFailure(), path);
}

/// What stands at a path, or that nothing does; what cannot even be asked is an error.
fs::file_type TypeOf(const fs::path& file, std::string_view path)
{
    std::error_code failure;
    const fs::file_type type = fs::status(file, failure).type();
    if (type == fs::file_type::none)
        throw FileError(failure, path);
    return type;
}

void RequireWritable(const fs::path& file, fs::file_type type, std::string_view path)
{
    if (type == fs::file_type::directory)
        throw FileError(std::make_error_code(std::errc::is_a_directory), path);
    const fs::path folder = file.has_parent_path() ? file.parent_path() : fs::path(".");
    if (TypeOf(folder, path) != fs::file_type::directory)
        throw FileError(std::make_error_code(std::errc::no_such_file_or_directory), path);
    if (!System::MayWrite(folder) || (type != fs::file_type::not_found && !System::MayWrite(file)))
        throw FileError(std::make_error_code(std::errc::permission_denied), path);
}

/// Keeps a file's content beside it where the new one differs.
void KeepFormer(std::string_view path, std::string_view newContent)
{
    try
    {
        if (const std::string former = ReadFile(path); !former.empty() && former != newContent)
            ReplaceFile(std::string(path) + ".bak", former);
    }
    catch (const FileError&)
    {
        // The copy is a kindness, and the save that it must not hinder is what the user has asked for.
    }
}

/// Writes the new content beside the file, with the file's own permissions, and puts it in the file's place.
void WriteBesideAndReplace(const fs::path& file, std::string_view content, std::string_view path,
                           Former former)
{
    const fs::path temporary = TemporaryNameFor(file);
    std::error_code ignored;
    try
    {
        WriteContent(temporary, content, path);
        if (const fs::file_status replaced = fs::status(file, ignored); fs::exists(replaced))
            fs::permissions(temporary, replaced.permissions(), ignored);
        if (former == Former::Kept)
            KeepFormer(path, content); // not before the new content has its place on the disk
        if (const std::error_code failure = CurrentFileCalls.Replace(temporary, file))
            throw FileError(failure, path);
    }
    catch (const FileError&)
    {
        if (fs::is_regular_file(temporary, ignored)) // and not something else that stood in its place
            CurrentFileCalls.Remove(temporary);
        throw;
    }
}

/// What a link leads to in the end, whether it is there or not; any other path is its own end.
fs::path EndOfLinks(fs::path file)
{
    constexpr int most = 40; // as many as the systems follow
    std::error_code failure;
    for (int i = 0; i < most && fs::is_symlink(file, failure); ++i)
        file = file.parent_path() / fs::read_symlink(file, failure);
    return file;
}

} // namespace

fs::path ToPath(std::string_view path)
{
    return {std::u8string(path.begin(), path.end())};
}

fs::path TemporaryNameFor(fs::path file)
{
    // Of a long name it is no longer than the file's own, since both have to be names that the system takes.
    constexpr std::size_t longName = 100;
    const fs::path ending = "." + std::to_string(System::ProcessNumber()) + ".tmp";
    fs::path::string_type name = file.filename().native();
    if (name.size() > longName)
        name.resize(name.size() - ending.native().size());
    return file.replace_filename(name) += ending;
}

std::string ReadFile(std::string_view path, std::size_t limit)
{
    const fs::path file = ToPath(path);
    if (TypeOf(file, path) == fs::file_type::directory)
        throw FileError(std::make_error_code(std::errc::is_a_directory), path);
    const OpenFile opened = Open(file, "rb", path);

    std::string content;
    std::array<char, 0x10000> buffer;
    while (content.size() < limit)
    {
        const std::size_t wanted = std::min(buffer.size(), limit - content.size());
        const std::size_t count = std::fread(buffer.data(), 1, wanted, opened.get());
        content.append(buffer.data(), count);
        if (count < wanted)
            break;
    }
    if (std::ferror(opened.get()) != 0)
        throw FileError(LastFailure(), path);
    return content;
}

void CreateFileIfMissing(std::string_view path)
{
    const fs::path file = ToPath(path);
    if (TypeOf(file, path) == fs::file_type::not_found)
        Open(file, "ab", path);
}

void ReplaceFile(std::string_view path, std::string_view content, Former former)
{
    // A link stays a link: what it leads to is what gets the new content.
    const fs::path file = EndOfLinks(ToPath(path));
    const fs::file_type type = TypeOf(file, path);
    RequireWritable(file, type, path);
    if (type == fs::file_type::regular || type == fs::file_type::not_found)
        WriteBesideAndReplace(file, content, path, former);
    else
        WriteContent(file, content, path); // a device has no old content to keep, and must not be replaced
}

void TextFile::AddLine(std::string_view text)
{
    AppendWindows1250(Content, text);
    Content += "\r\n";
}

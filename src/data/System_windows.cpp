#include "data/System.h"

#include "data/FileOperations.h"

#include <algorithm>
#include <windows.h>

namespace
{

using Path = FileOperations::Path;
using Result = FileOperations::Result;
using Handle = FileOperations::Handle;

Result FailureOf(DWORD error)
{
    // For a file that another program holds, an open reports a sharing violation and a rename "access
    // denied"; both mean the same.
    if (error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION)
        error = ERROR_ACCESS_DENIED;
    return {static_cast<int>(error), std::system_category()};
}

/// The outcome of a call that gives 0 on failure.
Result OutcomeOf(BOOL answer)
{
    return answer != 0 ? Result() : FailureOf(GetLastError());
}

HANDLE ToWin(Handle handle)
{
    return reinterpret_cast<HANDLE>(handle);
}

Handle FromWin(HANDLE handle)
{
    return reinterpret_cast<Handle>(handle);
}

/// The path in the form that has no limit of 260 characters, if it is that long.
std::wstring Long(const Path& path)
{
    constexpr std::size_t needsNoForm = 240; // leaves room for a file name of the old form, 8.3
    const std::wstring& text = path.native();
    std::wstring whole(GetFullPathNameW(text.c_str(), 0, nullptr, nullptr), L'\0');
    whole.resize(GetFullPathNameW(text.c_str(), static_cast<DWORD>(whole.size()), whole.data(), nullptr));
    if (whole.size() < needsNoForm || whole.starts_with(L"\\\\?\\") || whole.starts_with(L"\\\\.\\"))
        return text;
    return whole.starts_with(L"\\\\") ? L"\\\\?\\UNC" + whole.substr(1) : L"\\\\?\\" + whole;
}

/// Usually a virus scanner, an indexer or another copy of the program holds a file, and only for a moment.
bool IsTransient(DWORD error)
{
    return error == ERROR_ACCESS_DENIED;
}

bool IsMissing(DWORD error)
{
    return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

/// Calls `change`, which gives 0 on failure, until it succeeds or the time is up.
template<typename Change>
Result Persist(const Change& change)
{
    constexpr int attempts = 10;
    constexpr DWORD pause = 30; // milliseconds
    Result result = OutcomeOf(change());
    for (int attempt = 1; attempt < attempts && IsTransient(static_cast<DWORD>(result.value())); ++attempt)
    {
        Sleep(pause);
        result = OutcomeOf(change());
    }
    return result;
}

HANDLE OpenHandle(const Path& path, DWORD access, DWORD sharing, DWORD disposition, DWORD flags)
{
    return CreateFileW(Long(path).c_str(), access, sharing, nullptr, disposition, flags, nullptr);
}

HANDLE OpenFolder(const Path& path, DWORD access)
{
    return OpenHandle(path, access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, OPEN_EXISTING,
                      FILE_FLAG_BACKUP_SEMANTICS);
}

Result Inspect(const Path& path, FileFacts& facts)
{
    facts = {};
    const DWORD attributes = GetFileAttributesW(Long(path).c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return IsMissing(GetLastError()) ? Result() : FailureOf(GetLastError());
    const bool isFolder = (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    facts.Type = isFolder ? FileType::Folder : FileType::File;
    // The read-only attribute of a folder does not concern the files in it.
    facts.Writable = isFolder || (attributes & FILE_ATTRIBUTE_READONLY) == 0;
    return {};
}

Result ReadLink(const Path&, Path& target)
{
    target.clear();
    return {};
}

Result List(const Path& folder, std::vector<Path>& names)
{
    names.clear();
    WIN32_FIND_DATAW entry;
    const HANDLE search = FindFirstFileW(Long(folder / L"*").c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE)
        return FailureOf(GetLastError());
    do
        if (const std::wstring name = entry.cFileName; name != L"." && name != L"..")
            names.emplace_back(name);
    while (FindNextFileW(search, &entry) != 0);
    const DWORD end = GetLastError();
    FindClose(search);
    return end == ERROR_NO_MORE_FILES ? Result() : FailureOf(end);
}

Result Open(const Path& path, OpenFor purpose, Handle& file)
{
    constexpr struct
    {
        DWORD Access;
        DWORD Sharing;
        DWORD Disposition;
    } ways[] = {{GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING},
                {GENERIC_WRITE, FILE_SHARE_READ, CREATE_NEW},
                {GENERIC_WRITE, FILE_SHARE_READ, TRUNCATE_EXISTING}};
    const auto& way = ways[static_cast<int>(purpose)];
    const HANDLE opened = OpenHandle(path, way.Access, way.Sharing, way.Disposition, FILE_ATTRIBUTE_NORMAL);
    file = FromWin(opened);
    return OutcomeOf(opened != INVALID_HANDLE_VALUE);
}

constexpr std::size_t MaxTransfer = 1U << 30U; // a call's count has 32 bits

Result Read(Handle file, std::span<char> buffer, std::size_t& count)
{
    DWORD done = 0;
    const auto wanted = static_cast<DWORD>(std::min(buffer.size(), MaxTransfer));
    const Result result = OutcomeOf(ReadFile(ToWin(file), buffer.data(), wanted, &done, nullptr));
    count = done;
    return result;
}

Result Write(Handle file, std::string_view bytes)
{
    while (!bytes.empty())
    {
        DWORD done = 0;
        const auto wanted = static_cast<DWORD>(std::min(bytes.size(), MaxTransfer));
        if (WriteFile(ToWin(file), bytes.data(), wanted, &done, nullptr) == 0)
            return FailureOf(GetLastError());
        if (done == 0)
            return FailureOf(ERROR_DISK_FULL);
        bytes.remove_prefix(done);
    }
    return {};
}

Result TakeAccess(Handle, const Path&)
{
    return {}; // a file inherits the rights of its folder
}

Result Flush(Handle file)
{
    if (FlushFileBuffers(ToWin(file)) != 0)
        return {};
    // A device cannot be flushed.
    const DWORD failure = GetLastError();
    return failure == ERROR_INVALID_FUNCTION || failure == ERROR_INVALID_HANDLE ? Result()
                                                                                : FailureOf(failure);
}

Result Close(Handle file)
{
    return OutcomeOf(CloseHandle(ToWin(file)));
}

Result Rename(const Path& from, const Path& to)
{
    return Persist(
        [old = Long(from), now = Long(to)] {
            return MoveFileExW(old.c_str(), now.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH);
        });
}

/// The outcome of a removal; a missing file or folder is no failure.
template<typename Removal>
Result RemoveIfThere(const Removal& removal)
{
    const Result result = Persist(removal);
    return IsMissing(static_cast<DWORD>(result.value())) ? Result() : result;
}

Result RemoveFile(const Path& path)
{
    return RemoveIfThere([name = Long(path)] { return DeleteFileW(name.c_str()); });
}

Result RemoveFolder(const Path& path)
{
    return RemoveIfThere([name = Long(path)] { return RemoveDirectoryW(name.c_str()); });
}

Result MakeFolder(const Path& path)
{
    return OutcomeOf(CreateDirectoryW(Long(path).c_str(), nullptr));
}

Result FlushFolder(const Path& path)
{
    // Nothing to do: a rename is durable by itself (MOVEFILE_WRITE_THROUGH), and not every file system
    // flushes a folder.
    const HANDLE folder = OpenFolder(path, GENERIC_WRITE);
    if (folder != INVALID_HANDLE_VALUE)
    {
        FlushFileBuffers(folder);
        CloseHandle(folder);
    }
    return {};
}

// The locks are named objects of the system, which end with the last process that holds them. The name
// contains the folder's number on its disk, so that every spelling of its path gives the same lock.

std::wstring LockName(const Path& folder, LockKind kind)
{
    const HANDLE opened = OpenFolder(folder, 0);
    if (opened == INVALID_HANDLE_VALUE)
        return {};
    BY_HANDLE_FILE_INFORMATION facts = {};
    const BOOL known = GetFileInformationByHandle(opened, &facts);
    const DWORD failure = GetLastError();
    CloseHandle(opened);
    SetLastError(failure);
    if (known == 0)
        return {};
    const wchar_t* name =
        kind == LockKind::Saving ? L"Global\\Varlostudiji-saving" : L"Global\\Varlostudiji-running";
    std::wstring whole = name;
    for (const DWORD part : {facts.dwVolumeSerialNumber, facts.nFileIndexHigh, facts.nFileIndexLow})
        whole += L"-" + std::to_wstring(part);
    return whole;
}

Result Lock(const Path& folder, LockKind kind, int milliseconds, Handle& lock)
{
    const std::wstring name = LockName(folder, kind);
    if (name.empty())
        return FailureOf(GetLastError());
    const HANDLE made = kind == LockKind::Saving ? CreateMutexW(nullptr, FALSE, name.c_str())
                                                 : CreateEventW(nullptr, TRUE, FALSE, name.c_str());
    if (made == nullptr)
        return FailureOf(GetLastError());
    lock = FromWin(made);
    if (kind == LockKind::Running)
        return {};
    // A mutex whose owner has ended counts as free.
    const DWORD answer = WaitForSingleObject(made, static_cast<DWORD>(milliseconds));
    if (answer == WAIT_OBJECT_0 || answer == WAIT_ABANDONED)
        return {};
    const Result failure =
        answer == WAIT_TIMEOUT ? std::make_error_code(std::errc::timed_out) : FailureOf(GetLastError());
    CloseHandle(made);
    return failure;
}

void Unlock(Handle lock)
{
    ReleaseMutex(ToWin(lock)); // does nothing to an event
    CloseHandle(ToWin(lock));
}

bool IsLockedByRunning(const Path& folder)
{
    const std::wstring name = LockName(folder, LockKind::Running);
    const HANDLE held = name.empty() ? nullptr : OpenEventW(SYNCHRONIZE, FALSE, name.c_str());
    if (held != nullptr)
        CloseHandle(held);
    return held != nullptr;
}

std::wstring Wide(const char* text)
{
    return {text, text + std::char_traits<char>::length(text)};
}

std::string Utf8(const std::wstring& text)
{
    const std::u8string utf8 = Path(text).u8string();
    return {utf8.begin(), utf8.end()};
}

} // namespace

namespace System
{

const FileOperations OwnFiles = {
    Inspect,    ReadLink,     List,       Open,        Read, Write,  TakeAccess,       Flush, Close, Rename,
    RemoveFile, RemoveFolder, MakeFolder, FlushFolder, Lock, Unlock, IsLockedByRunning};

FileOperations Files = OwnFiles;

std::string EnvironmentVariable(const char* name)
{
    const std::wstring wideName = Wide(name);
    std::wstring value(GetEnvironmentVariableW(wideName.c_str(), nullptr, 0), L'\0');
    value.resize(GetEnvironmentVariableW(wideName.c_str(), value.data(), static_cast<DWORD>(value.size())));
    return Utf8(value);
}

std::string ProgramFolder()
{
    constexpr DWORD longestPath = 32768;
    std::wstring program(longestPath, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), longestPath));
    return Utf8(Path(program).parent_path().wstring());
}

std::string TemporaryFolder()
{
    std::error_code ignored;
    return Utf8(std::filesystem::temp_directory_path(ignored).wstring());
}

unsigned long ProcessId()
{
    return GetCurrentProcessId();
}

} // namespace System

// Writing files: a failure leaves the old content whole and no other file.

#include "data/Files.h"
#include "data/Errors.h"
#include "data/Windows1250.h"
#include "data/modData.h"
#include "support/TestFolder.h"
#include "support/WatchedFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>

#ifdef _WIN32
#include <process.h>
#else // devices, limits on the size of files, and a disk that fails
#include <cerrno>
#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/sysmacros.h>
#include <unistd.h>
#endif

namespace fs = std::filesystem;

#ifndef _WIN32

static int FlushError = 0;

/// Takes the place of the system's own, so that a disk can fail.
extern "C" int fsync(int file)
{
    errno = FlushError;
    return FlushError == 0 ? static_cast<int>(::syscall(SYS_fsync, file)) : -1;
}

#endif

namespace
{

constexpr fs::perms AnyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;

class Files : public testing::Test
{
protected:
    /// Expects that replacing a file fails with an error of that number that names the path.
    void ExpectFailure(const std::string& path, int number)
    {
        try
        {
            ReplaceFile(path, "new");
            FAIL() << path;
        }
        catch (const FileError& error)
        {
            EXPECT_EQ(error.Number(), number) << error.what();
            EXPECT_NE(std::string(error.what()).find(path), std::string::npos) << error.what();
        }
    }

    TestFolder Folder;
    fs::path File = Folder.Path() / "file.csv";
    fs::path Temporary = TemporaryNameFor(File);
    std::string Path = Folder.PathOf("file.csv");
};

TEST_F(Files, ANewContentReplacesTheOldOne)
{
    ReplaceFile(Path, "first");
    EXPECT_EQ(ReadBytes(File), "first");
    ReplaceFile(Path, "");
    EXPECT_EQ(ReadBytes(File), "");
    EXPECT_EQ(EntriesOf(Folder.Path()), (std::vector<std::string>{"Varlostudiji", "file.csv"}));
}

TEST_F(Files, AFileThatIsMarkedReadOnlyKeepsItsContent)
{
    WriteBytes(File, "old");
    fs::permissions(File, AnyWrite, fs::perm_options::remove);
    ExpectFailure(Path, 70);
    EXPECT_EQ(ReadBytes(File), "old");
    EXPECT_EQ(EntriesOf(Folder.Path()).size(), 2U) << "nothing temporary stays";
    fs::permissions(File, AnyWrite, fs::perm_options::add);
}

TEST_F(Files, AFolderIsNoFile)
{
    fs::create_directory(File);
    ExpectFailure(Path, 75);
    EXPECT_THROW(ReadFile(Path), FileError);
}

TEST_F(Files, AFolderThatIsNotThereIsAnError)
{
    ExpectFailure(Folder.PathOf("missing") + "/file.csv", 53);
    EXPECT_THROW(ReadFile(Folder.PathOf("missing.csv")), FileError);
}

TEST_F(Files, ANameThatNoSystemTakesIsAnError)
{
    const std::string path = Folder.PathOf(std::string(5000, 'a'));
    EXPECT_THROW(ReplaceFile(path, "new"), FileError);
    EXPECT_THROW(ReadFile(path), FileError);
    EXPECT_THROW(ReplaceFile(path + "/file.csv", "new"), FileError);
}

TEST_F(Files, ALeftoverTemporaryFileIsOverwritten)
{
    WriteBytes(Temporary, "left over from a crash");
    ReplaceFile(Path, "new");
    EXPECT_EQ(ReadBytes(File), "new");
    EXPECT_FALSE(fs::exists(Temporary));
}

TEST_F(Files, AnotherProcessesTemporaryFileIsLeftAlone)
{
    WriteBytes(Folder.Path() / "file.csv.tmp", "half");
    WriteBytes(Folder.Path() / "file.csv.1.tmp", "half");
    ReplaceFile(Path, "new");
    EXPECT_EQ(ReadBytes(File), "new");
    EXPECT_EQ(EntriesOf(Folder.Path()),
              (std::vector<std::string>{"Varlostudiji", "file.csv", "file.csv.1.tmp", "file.csv.tmp"}));
}

TEST_F(Files, LinesAreWrittenInWindows1250WithCrLf)
{
    TextFile file;
    file.AddLine("Žičani;č");
    file.AddLine("");
    file.AddLine("two\nparts");
    file.SaveAs(Path);
    EXPECT_EQ(ReadBytes(File), "\x8Ei\xE8"
                               "ani;\xE8\r\n\r\ntwo\nparts\r\n");
}

TEST_F(Files, NamesMayHoldAnyLetter)
{
    const std::string path = Folder.PathOf("Željka Šćepanović €.csv");
    ReplaceFile(path, "x");
    EXPECT_EQ(ReadFile(path), "x");
    EXPECT_TRUE(fs::exists(Folder.Path() / u8"Željka Šćepanović €.csv"));
}

TEST_F(Files, ANameMayBeAsLongAsTheSystemTakes)
{
#ifdef _WIN32
    const std::string name = std::string(251, 'x') + ".csv"; // the path is longer than 260 characters
#else
    const std::string name = "š" + std::string(249, 'x') + ".csv";
#endif
    ReplaceFile(Folder.PathOf(name), "old");
    ReplaceFile(Folder.PathOf(name), "new");
    EXPECT_EQ(ReadBytes(Folder.Path() / ToPath(name)), "new");
    EXPECT_EQ(EntriesOf(Folder.Path()).size(), 2U);
}

TEST_F(Files, ACheckForWritingReportsWhatWouldFailAndLeavesNoFile)
{
    EXPECT_NO_THROW(CheckWritable(Path));
    EXPECT_FALSE(fs::exists(File));
    WriteBytes(File, "old");
    EXPECT_NO_THROW(CheckWritable(Path));
    EXPECT_EQ(ReadBytes(File), "old");
    for (const std::string& path : {Folder.PathOf("missing") + "/file.csv", Folder.PathOf("Varlostudiji"),
                                    Folder.PathOf(std::string(300, 'a')), Path + "/file.csv"})
        EXPECT_THROW(CheckWritable(path), FileError) << path;
    EXPECT_EQ(EntriesOf(Folder.Path()), (std::vector<std::string>{"Varlostudiji", "file.csv"}));
}

TEST_F(Files, AFolderInTheTemporaryFilesPlaceIsAnErrorAndStays)
{
    WriteBytes(File, "old");
    fs::create_directory(Temporary);
    EXPECT_THROW(ReplaceFile(Path, "new"), FileError);
    EXPECT_EQ(ReadBytes(File), "old");
    EXPECT_TRUE(fs::exists(Temporary));
}

TEST_F(Files, AFileInAFoldersPlaceIsAnError)
{
    WriteBytes(File, "old");
    EXPECT_THROW(ReplaceFile(Path + "/inner.csv", "new"), FileError);
    EXPECT_THROW(ReadFile(Path + "/inner.csv"), FileError);
    EXPECT_EQ(ReadBytes(File), "old");
}

TEST_F(Files, ReadingStopsAtItsLimit)
{
    WriteBytes(File, std::string("ab\0\r\n\x1Az", 7));
    EXPECT_EQ(ReadFile(Path, 2), "ab");
    EXPECT_EQ(ReadFile(Path, 0), "");
    EXPECT_EQ(ReadFile(Path), std::string("ab\0\r\n\x1Az", 7)) << "no byte ends a file early";
    WriteBytes(File, std::string(200'000, 'x'));
    EXPECT_EQ(ReadFile(Path, 100'000).size(), 100'000U);
    EXPECT_EQ(ReadFile(Path).size(), 200'000U);
}

TEST_F(Files, AMissingFileIsCreatedAndAnExistingOneLeftAlone)
{
    CreateFileIfMissing(Path);
    EXPECT_EQ(ReadBytes(File), "");
    WriteBytes(File, "content");
    CreateFileIfMissing(Path);
    EXPECT_EQ(ReadBytes(File), "content");
    EXPECT_THROW(CreateFileIfMissing(Folder.PathOf("missing") + "/file.csv"), FileError);
}

#ifndef _WIN32 // Windows has no mark on folders that keeps files from being written there, no devices, other
               // links.

TEST_F(Files, AFolderThatIsMarkedReadOnlyIsAnError)
{
    WriteBytes(File, "old");
    fs::permissions(Folder.Path(), AnyWrite, fs::perm_options::remove);
    ExpectFailure(Path, 70);
    fs::permissions(Folder.Path(), AnyWrite, fs::perm_options::add);
    EXPECT_EQ(ReadBytes(File), "old");
}

class Devices : public Files
{
protected:
    /// A memory device of Linux by its minor number. A user who could damage the system's own one gets a
    /// device made by the test.
    std::string Device(const char* name, unsigned minorNumber)
    {
        if (::geteuid() != 0)
            return std::string("/dev/") + name;
        const std::string path = Folder.PathOf(name);
        constexpr unsigned memoryDevices = 1;
        const bool made = ::mknod(path.c_str(), S_IFCHR | 0666, makedev(memoryDevices, minorNumber)) == 0;
        return made ? path : "";
    }
};

TEST_F(Devices, AFullOneIsAnErrorAndStaysADevice)
{
    const std::string full = Device("full", 7);
    if (full.empty())
        GTEST_SKIP() << "an administrator who may not make devices, as in some containers";
    ExpectFailure(full, 61);
    EXPECT_TRUE(fs::is_character_file(full));
    EXPECT_FALSE(fs::exists(TemporaryNameFor(full)));
}

TEST_F(Devices, OneThatTakesAnythingTakesAFileAndStaysADevice)
{
    const std::string null = Device("null", 3);
    if (null.empty())
        GTEST_SKIP() << "an administrator who may not make devices, as in some containers";
    EXPECT_NO_THROW(ReplaceFile(null, "gone"));
    EXPECT_TRUE(fs::is_character_file(null));
}

TEST_F(Devices, OneIsFlushedAndClosedAndAFailureOfEitherIsAnError)
{
    const std::string null = Device("null", 3);
    if (null.empty())
        GTEST_SKIP() << "an administrator who may not make devices, as in some containers";
    std::vector<FileOperation> good;
    {
        const WatchedFiles watched;
        ReplaceFile(null, "gone");
        good = watched.Made();
    }
    for (const FileOperation::Kind last : {FileOperation::Write, FileOperation::Flush, FileOperation::Close})
    {
        const auto place = std::ranges::find(good, last, &FileOperation::What);
        ASSERT_NE(place, good.end()) << NameOf(last);
        const WatchedFiles failing(static_cast<std::size_t>(place - good.begin()) + 1);
        EXPECT_THROW(ReplaceFile(null, "gone"), FileError) << NameOf(last);
    }
}

TEST_F(Files, ALinkStaysALink)
{
    WriteBytes(Folder.Path() / "real.csv", "old");
    fs::create_symlink("real.csv", File);
    ReplaceFile(Path, "new");
    EXPECT_TRUE(fs::is_symlink(File));
    EXPECT_EQ(ReadBytes(Folder.Path() / "real.csv"), "new");
}

TEST_F(Files, ALinkWhoseFileIsMissingStaysALinkAndGetsItsFile)
{
    fs::create_symlink("real.csv", File);
    ReplaceFile(Path, "new");
    EXPECT_TRUE(fs::is_symlink(File));
    EXPECT_EQ(ReadBytes(Folder.Path() / "real.csv"), "new");
}

TEST_F(Files, ALinkToALinkInAnotherFolderReachesTheFile)
{
    fs::create_directory(Folder.Path() / "inner");
    WriteBytes(Folder.Path() / "inner/real.csv", "old");
    fs::create_symlink("real.csv", Folder.Path() / "inner/second.csv");
    fs::create_symlink("inner/second.csv", File);
    ReplaceFile(Path, "new");
    EXPECT_TRUE(fs::is_symlink(File) && fs::is_symlink(Folder.Path() / "inner/second.csv"));
    EXPECT_EQ(ReadBytes(Folder.Path() / "inner/real.csv"), "new");
    EXPECT_EQ(EntriesOf(Folder.Path() / "inner"), (std::vector<std::string>{"real.csv", "second.csv"}));
}

TEST_F(Files, AReadOnlyFileThatALinkNamesKeepsItsContent)
{
    WriteBytes(Folder.Path() / "real.csv", "old");
    fs::permissions(Folder.Path() / "real.csv", AnyWrite, fs::perm_options::remove);
    fs::create_symlink("real.csv", File);
    ExpectFailure(Path, 70);
    EXPECT_EQ(ReadBytes(Folder.Path() / "real.csv"), "old");
}

TEST_F(Files, LinksInACircleAreAnError)
{
    fs::create_symlink("other.csv", File);
    fs::create_symlink("file.csv", Folder.Path() / "other.csv");
    EXPECT_THROW(ReplaceFile(Path, "new"), FileError);
    EXPECT_THROW(ReadFile(Path), FileError);
    EXPECT_TRUE(fs::is_symlink(File));
}

TEST_F(Files, ADiskThatFillsUpOnTheWayLeavesTheOldContent)
{
    WriteBytes(File, "old");
    const auto replaceWithinLimit = [&]
    {
        const auto formerHandler = std::signal(SIGXFSZ, SIG_IGN); // the write must fail, not the process
        rlimit former;
        ::getrlimit(RLIMIT_FSIZE, &former);
        const rlimit small = {100'000, former.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &small);
        bool failed = false;
        try
        {
            ReplaceFile(Path, std::string(1'000'000, 'x'));
        }
        catch (const FileError&)
        {
            failed = true;
        }
        ::setrlimit(RLIMIT_FSIZE, &former);
        std::signal(SIGXFSZ, formerHandler);
        return !failed;
    };
    EXPECT_FALSE(replaceWithinLimit());
    EXPECT_EQ(ReadBytes(File), "old");
    EXPECT_EQ(EntriesOf(Folder.Path()).size(), 2U) << "nothing temporary stays";
}

fs::perms ModeOf(const fs::path& file)
{
    return fs::status(file).permissions();
}

TEST_F(Files, AFileKeepsItsPermissions)
{
    for (const unsigned mode : {0600U, 0664U, 0644U, 0640U})
    {
        WriteBytes(File, "old");
        fs::permissions(File, static_cast<fs::perms>(mode));
        ReplaceFile(Path, "new");
        EXPECT_EQ(ModeOf(File), static_cast<fs::perms>(mode));
    }
}

TEST_F(Files, ANewFileHasThePermissionsOfTheUmask)
{
    for (const mode_t mask : {0022U, 0077U, 0002U})
    {
        const mode_t former = ::umask(mask);
        ReplaceFile(Path, "new");
        CreateFileIfMissing(Folder.PathOf("empty.csv"));
        EXPECT_EQ(::umask(former), mask) << "the umask is not changed";
        EXPECT_EQ(ModeOf(File), static_cast<fs::perms>(0666U & ~mask));
        EXPECT_EQ(ModeOf(Folder.Path() / "empty.csv"), static_cast<fs::perms>(0666U & ~mask));
        fs::remove(File);
        fs::remove(Folder.Path() / "empty.csv");
    }
}

TEST_F(Files, ATemporaryFileIsOnlyForTheUserWhileItIsWritten)
{
    static fs::perms mode;
    mode = fs::perms::none;
    WriteBytes(File, "old");
    const WatchedFiles watched;
    System::Files.Write = [](FileOperations::Handle file, std::string_view bytes)
    {
        mode = ModeOf("/proc/self/fd/" + std::to_string(file));
        return System::OwnFiles.Write(file, bytes);
    };
    ReplaceFile(Path, "new");
    EXPECT_EQ(mode, fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(Files, ALinkInTheTemporaryFilesPlaceIsNotFollowed)
{
    WriteBytes(Folder.Path() / "victim", "untouched");
    fs::create_symlink("victim", Temporary);
    ReplaceFile(Path, "new");
    EXPECT_EQ(ReadBytes(Folder.Path() / "victim"), "untouched");
    EXPECT_EQ(ReadBytes(File), "new");
    EXPECT_FALSE(fs::is_symlink(File));
}

TEST_F(Files, AFileKeepsItsOwnerIfThatIsPermitted)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root may give a file to somebody else";
    constexpr uid_t somebody = 12345;
    constexpr gid_t group = 23456;
    WriteBytes(File, "old");
    ASSERT_EQ(::chown(File.c_str(), somebody, group), 0);
    ReplaceFile(Path, "new");
    struct stat status = {};
    ASSERT_EQ(::stat(File.c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, somebody);
    EXPECT_EQ(status.st_gid, group);
}

#endif

TEST_F(Files, ATemporaryNameHoldsTheProcessNumberAndIsNoLongerThanALongName)
{
#ifdef _WIN32
    const std::string number = std::to_string(::_getpid());
#else
    const std::string number = std::to_string(::getpid());
#endif
    EXPECT_EQ(TemporaryNameFor(Folder.Path() / "a.csv"), Folder.Path() / ("a.csv." + number + ".tmp"));
    for (const std::size_t length : {101U, 255U})
    {
        const std::string name = TemporaryNameFor(std::string(length, 'x')).string();
        EXPECT_EQ(name.size(), length);
        EXPECT_TRUE(name.ends_with("x." + number + ".tmp")) << name;
    }
    EXPECT_EQ(TemporaryNameFor(std::string(100, 'x')).string(),
              std::string(100, 'x') + "." + number + ".tmp");
}

// The system's own operations

TEST_F(Files, ARenameThatTheSystemRefusesSaysSo)
{
    fs::create_directories(Folder.Path() / "full" / "inner");
    WriteBytes(File, "old");
    EXPECT_TRUE(System::OwnFiles.Rename(File, Folder.Path() / "full"));
    EXPECT_TRUE(System::OwnFiles.Rename(Folder.Path() / "missing", File));
    EXPECT_EQ(ReadBytes(File), "old");
}

#ifndef _WIN32 // a handle that is no longer open is a number like any other there

TEST_F(Files, AFlushFailsWhereTheDiskDoesAndNotWhereThereIsNothingToFlush)
{
    constexpr struct
    {
        int Error;
        bool FailsForFile;
        bool FailsForFolder;
    } errors[] = {{0, false, false},    {EIO, true, true},      {ENOSPC, true, true},
                  {EDQUOT, true, true}, {EINVAL, false, false}, {EROFS, true, false}};
    FileOperations::Handle handle = 0;
    ASSERT_FALSE(System::OwnFiles.Open(File, OpenFor::NewFile, handle));
    for (const auto& [error, failsForFile, failsForFolder] : errors)
    {
        const std::error_code failure(error, std::generic_category());
        FlushError = error;
        EXPECT_EQ(System::OwnFiles.Flush(handle), failsForFile ? failure : std::error_code()) << failure;
        EXPECT_EQ(System::OwnFiles.FlushFolder(Folder.Path()), failsForFolder ? failure : std::error_code())
            << failure;
        FlushError = 0;
    }
    System::OwnFiles.Close(handle);
}

TEST_F(Files, ALockOfAMissingFolderSaysSo)
{
    FileOperations::Handle lock = 0;
    for (const LockKind kind : {LockKind::Saving, LockKind::Running})
        EXPECT_EQ(System::OwnFiles.Lock(Folder.Path() / "missing", kind, 0, lock),
                  std::errc::no_such_file_or_directory);
    EXPECT_FALSE(System::OwnFiles.IsLockedByRunning(Folder.Path() / "missing"));
}

TEST_F(Files, AFlushOrACloseThatTheSystemRefusesSaysSo)
{
    FileOperations::Handle handle = 0;
    ASSERT_FALSE(System::OwnFiles.Open(File, OpenFor::NewFile, handle));
    EXPECT_FALSE(System::OwnFiles.Write(handle, "new"));
    EXPECT_FALSE(System::OwnFiles.Flush(handle));
    EXPECT_FALSE(System::OwnFiles.Close(handle));
    EXPECT_EQ(System::OwnFiles.Flush(handle), std::errc::bad_file_descriptor);
    EXPECT_EQ(System::OwnFiles.Close(handle), std::errc::bad_file_descriptor);
    EXPECT_EQ(System::OwnFiles.Write(handle, "x"), std::errc::bad_file_descriptor);
    std::array<char, 4> buffer{};
    std::size_t count = 1;
    EXPECT_EQ(System::OwnFiles.Read(handle, buffer, count), std::errc::bad_file_descriptor);
    EXPECT_EQ(count, 0U);
}

#endif

TEST_F(Files, AReadGivesWhatThereIsAndThenNothing)
{
    WriteBytes(File, "abc");
    FileOperations::Handle handle = 0;
    ASSERT_FALSE(System::OwnFiles.Open(File, OpenFor::Reading, handle));
    std::array<char, 8> buffer{};
    std::size_t count = 0;
    EXPECT_FALSE(System::OwnFiles.Read(handle, buffer, count));
    EXPECT_EQ(std::string_view(buffer.data(), count), "abc");
    EXPECT_FALSE(System::OwnFiles.Read(handle, buffer, count));
    EXPECT_EQ(count, 0U);
    System::OwnFiles.Close(handle);
}

TEST_F(Files, ARemovalOfAMissingFileIsNoFailure)
{
    EXPECT_FALSE(System::OwnFiles.RemoveFile(Folder.Path() / "missing"));
    EXPECT_FALSE(System::OwnFiles.RemoveFolder(Folder.Path() / "missing"));
    fs::create_directories(Folder.Path() / "full" / "inner");
    EXPECT_TRUE(System::OwnFiles.RemoveFolder(Folder.Path() / "full"));
    EXPECT_TRUE(System::OwnFiles.RemoveFile(Folder.Path() / "full"));
    EXPECT_TRUE(System::OwnFiles.MakeFolder(Folder.Path() / "full")) << "it exists";
}

TEST_F(Files, AFileIsNotCreatedOverAnother)
{
    WriteBytes(File, "old");
    FileOperations::Handle handle = 0;
    EXPECT_TRUE(System::OwnFiles.Open(File, OpenFor::NewFile, handle));
    EXPECT_THROW(WriteNewFile(Path, "new", ""), FileError);
    EXPECT_EQ(ReadBytes(File), "old");
}

// Converting a file to windows-1250

class Encoding : public Files
{
protected:
    std::string Normalized(std::string_view content)
    {
        WriteBytes(File, content);
        modData::NormalizeFileEncoding(Path);
        return ReadBytes(File);
    }
};

TEST_F(Encoding, AMarkedFileIsConvertedAndKeepsItsLineEnds)
{
    EXPECT_EQ(Normalized("\xEF\xBB\xBFID;Naziv\n1;Čćđ\r\n\r\n  2;\xE2\x82\xAC\r"),
              "ID;Naziv\n1;\xC8\xE6\xF0\r\n\r\n  2;\x80\r");
    EXPECT_EQ(EntriesOf(Folder.Path()).size(), 2U);
}

TEST_F(Encoding, TheMarkAloneBecomesAnEmptyFile)
{
    EXPECT_EQ(Normalized("\xEF\xBB\xBF"), "");
}

TEST_F(Encoding, AFileWithoutTheMarkStays)
{
    for (const char* content : {"1;Č", "\xEF", "\xEF\xBB", "\xEF\xBBx", "x\xEF\xBB\xBF", ""})
        EXPECT_EQ(Normalized(content), content);
}

TEST_F(Encoding, AFileWithoutTheMarkIsNotEvenWrittenAgain)
{
    WriteBytes(File, "1;\x8E\r\n");
    const auto longAgo = fs::file_time_type::clock::now() - std::chrono::hours(48);
    fs::last_write_time(File, longAgo);
    const auto before = fs::last_write_time(File);
    modData::NormalizeFileEncoding(Path);
    EXPECT_EQ(fs::last_write_time(File), before);
}

TEST_F(Encoding, ALeftoverTemporaryFileIsReplaced)
{
    WriteBytes(Folder.Path() / "file.csv.tmp", "left over from a crash, and longer than the new content");
    EXPECT_EQ(Normalized("\xEF\xBB\xBFx"), "x");
    EXPECT_EQ(EntriesOf(Folder.Path()).size(), 2U);
}

TEST_F(Encoding, EveryCharacterOfWindows1250GetsItsByte)
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    EXPECT_EQ(Normalized("\xEF\xBB\xBF" + FromWindows1250(bytes)), bytes);
}

TEST_F(Encoding, AConversionThatFailsLeavesTheMarkedFile)
{
    fs::create_directory(Folder.Path() / "file.csv.tmp");
    EXPECT_THROW(Normalized("\xEF\xBB\xBFx"), FileError);
    EXPECT_EQ(ReadBytes(File), "\xEF\xBB\xBFx");
}

TEST_F(Encoding, AFolderOrAMissingFolderIsAnError)
{
    EXPECT_THROW(modData::NormalizeFileEncoding(Folder.PathOf("")), FileError);
    EXPECT_THROW(modData::NormalizeFileEncoding(Folder.PathOf("missing") + "/file.csv"), FileError);
}

TEST_F(Encoding, Utf8WithoutTheMarkReadsAsTwoWrongCharactersALetter)
{
    WriteBytes(File, "h\r\n1;č\r\n");
    modData::NormalizeFileEncoding(Path);
    EXPECT_EQ(modData::LoadTable(Path, modData::Zavodi.Layout())[0].Field(1), "ÄŤ");
}

TEST_F(Encoding, CharactersThatWindows1250LacksBecomeQuestionMarks)
{
    EXPECT_EQ(Normalized("\xEF\xBB\xBFЖ\xEF\xBB\xBF\x80"), "???") << "a second mark and a broken byte, too";
}

TEST_F(Encoding, AMissingFileIsCreatedEmpty)
{
    modData::NormalizeFileEncoding(Path);
    EXPECT_EQ(ReadBytes(File), "");
}

TEST_F(Encoding, AReadOnlyFileIsNotConverted)
{
    WriteBytes(File, "\xEF\xBB\xBFx");
    fs::permissions(File, AnyWrite, fs::perm_options::remove);
    EXPECT_THROW(modData::NormalizeFileEncoding(Path), FileError);
    EXPECT_EQ(ReadBytes(File), "\xEF\xBB\xBFx");
    WriteBytes(Folder.Path() / "plain.csv", "x");
    fs::permissions(Folder.Path() / "plain.csv", AnyWrite, fs::perm_options::remove);
    EXPECT_NO_THROW(modData::NormalizeFileEncoding(Folder.PathOf("plain.csv"))) << "nothing to write there";
    for (const char* name : {"file.csv", "plain.csv"})
        fs::permissions(Folder.Path() / name, AnyWrite, fs::perm_options::add);
}

} // namespace

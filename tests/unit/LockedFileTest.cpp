// Files that another program has open without sharing them; only Windows supports that.

#ifdef _WIN32

#include "data/Errors.h"
#include "data/FileOperations.h"
#include "data/modData.h"
#include "support/Catalogue.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <stdexcept>
#include <thread>
#include <windows.h>

namespace fs = std::filesystem;

namespace
{

/// While it lives, a file is open elsewhere: not shared, or shared only for reading.
class Lock
{
public:
    explicit Lock(const fs::path& file, DWORD sharing = 0)
        : m_file(CreateFileW(file.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING,
                             FILE_ATTRIBUTE_NORMAL, nullptr))
    {
        if (m_file == INVALID_HANDLE_VALUE)
            throw std::runtime_error("cannot lock " + file.string());
    }
    ~Lock() { CloseHandle(m_file); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

private:
    HANDLE m_file;
};

class LockedFile : public testing::Test
{
protected:
    LockedFile()
    {
        SmallCatalogue().WriteTo(Folder.Data());
        modData::LoadAllTables();
        Former = ReadBytes(File);
        modData::Zavodi.Append({"3", "Treći", "T"});
        modData::Studiji.Append({"9", "Novi", "N", "Diplomski"});
    }

    /// Expects that an action ends with the error of a file that is in use.
    template<typename Error>
    void ExpectDenied(void (*action)())
    {
        try
        {
            action();
            FAIL() << "no error";
        }
        catch (const Error& error)
        {
            EXPECT_TRUE(
                std::string_view(error.what())
                    .starts_with(
                        "Pristup nije dopušten; datoteka je možda zaštićena od pisanja ili otvorena u "
                        "drugom programu: " +
                        Folder.DataPath("db_studij.csv")))
                << error.what();
            EXPECT_EQ(error.Number(), 70);
        }
    }

    TestFolder Folder;
    fs::path File = Folder.Data() / "db_studij.csv";
    std::string Former;
};

TEST_F(LockedFile, IsAnErrorOfTheSaveWhichTheNextStartFinishes)
{
    for (const DWORD sharing : {0, FILE_SHARE_READ, FILE_SHARE_READ | FILE_SHARE_WRITE})
    {
        {
            const Lock lock(File, sharing);
            ExpectDenied<SaveNotFinished>(modData::SaveAllTables);
        }
        EXPECT_EQ(ReadBytes(File), Former);
        modData::LoadAllTables();
        EXPECT_EQ(ReadBytes(File), Former + "9;Novi;N;Diplomski\r\n");
        EXPECT_FALSE(fs::exists(Folder.Data() / "spremanje"));
        WriteBytes(File, Former);
    }
}

TEST_F(LockedFile, IsAnErrorOfTheLoad)
{
    const Lock lock(File);
    ExpectDenied<FileError>(modData::LoadAllTables);
}

TEST_F(LockedFile, ThatIsReleasedSoonIsNotNoticed)
{
    const fs::path successor = Folder.Data() / "successor";
    WriteBytes(successor,
               "new"); // only the replacement: the time for writing a file is longer than the lock
    auto lock = std::make_unique<Lock>(File);
    std::thread other(
        [&]
        {
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
            lock.reset();
        });
    EXPECT_FALSE(System::Files.Rename(successor, File));
    other.join();
    EXPECT_EQ(ReadBytes(File), "new");
    EXPECT_FALSE(fs::exists(successor));
}

TEST_F(LockedFile, ThatIsRemovedIsWaitedFor)
{
    WriteBytes(Folder.Data() / "old", "");
    auto lock = std::make_unique<Lock>(Folder.Data() / "old");
    std::thread other(
        [&]
        {
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
            lock.reset();
        });
    EXPECT_FALSE(System::Files.RemoveFile(Folder.Data() / "old"));
    other.join();
    EXPECT_FALSE(fs::exists(Folder.Data() / "old"));
}

TEST_F(LockedFile, InAFolderThatIsRenamedIsWaitedFor)
{
    const fs::path folder = Folder.Path() / "inner";
    fs::create_directory(folder);
    WriteBytes(folder / "file", "");
    auto lock = std::make_unique<Lock>(folder / "file");
    std::thread other(
        [&]
        {
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
            lock.reset();
        });
    EXPECT_FALSE(System::Files.Rename(folder, Folder.Path() / "renamed"));
    other.join();
    EXPECT_TRUE(fs::exists(Folder.Path() / "renamed" / "file"));
}

} // namespace

#endif

// Files that another program holds open and shares with nobody, as only Windows lets it.

#ifdef _WIN32

#include "data/Errors.h"
#include "data/System.h"
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

/// While it lives, a file is open elsewhere; shared with nobody, or with those who only read.
class Lock
{
public:
    explicit Lock(const fs::path& file, DWORD sharing = 0)
        : File(CreateFileW(file.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL,
                           nullptr))
    {
        if (File == INVALID_HANDLE_VALUE)
            throw std::runtime_error("cannot lock " + file.string());
    }
    ~Lock() { CloseHandle(File); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

private:
    HANDLE File;
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

    /// Expects that an action fails with the error of a file that may not be touched.
    template<typename Action>
    void ExpectDenied(Action action)
    {
        try
        {
            action();
            FAIL() << "no error";
        }
        catch (const FileError& error)
        {
            EXPECT_EQ(error.Description(),
                      "Pristup nije dopušten; možda je zaštićeno od pisanja ili otvoreno u "
                      "drugom programu: " +
                          Folder.DataPath("db_studij.csv"));
            EXPECT_EQ(error.Number(), 70);
        }
    }

    TestFolder Folder;
    fs::path File = Folder.Data() / "db_studij.csv";
    fs::path Copy = Folder.Data() / "db_studij.csv.bak";
    std::string Former;
};

TEST_F(LockedFile, IsAnErrorOfTheSaveAndKeepsItsContent)
{
    for (const DWORD sharing : {0, FILE_SHARE_READ, FILE_SHARE_READ | FILE_SHARE_WRITE})
    {
        {
            const Lock lock(File, sharing);
            ExpectDenied(modData::SaveAllTables);
        }
        EXPECT_EQ(ReadBytes(File), Former);
        EXPECT_NE(ReadBytes(Folder.Data() / "db_zavod.csv").find("3;Tre\xE6i;T"), std::string::npos)
            << "saved before it";
        EXPECT_TRUE(TemporaryFilesIn(Folder.Data()).empty());
    }
}

TEST_F(LockedFile, IsAnErrorOfTheLoad)
{
    const Lock lock(File);
    ExpectDenied(modData::LoadAllTables);
}

TEST_F(LockedFile, ThatIsLetGoOfSoonIsNotNoticed)
{
    const fs::path successor = Folder.Data() / "successor";
    WriteBytes(successor,
               "new"); // the replacement alone: writing a file takes long enough for the lock to go
    auto lock = std::make_unique<Lock>(File);
    std::thread other(
        [&]
        {
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
            lock.reset();
        });
    EXPECT_FALSE(System::Replace(successor, File));
    other.join();
    EXPECT_EQ(ReadBytes(File), "new");
    EXPECT_FALSE(fs::exists(successor));
}

TEST_F(LockedFile, OfTheFormerContentDoesNotHinderTheSave)
{
    WriteBytes(Copy, "older");
    {
        const Lock lock(Copy);
        EXPECT_NO_THROW(modData::SaveAllTables());
    }
    EXPECT_EQ(ReadBytes(File), Former + "9;Novi;N;Diplomski\r\n");
    EXPECT_EQ(ReadBytes(Copy), "older");
    EXPECT_TRUE(TemporaryFilesIn(Folder.Data()).empty());
}

} // namespace

#endif

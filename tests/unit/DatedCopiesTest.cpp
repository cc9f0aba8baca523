// The dated copies of the catalogue: their names, their content, and which of them stay.

#include "data/DatedCopies.h"
#include "data/Errors.h"
#include "data/Files.h"
#include "data/modData.h"
#include "support/Catalogue.h"
#include "support/TestFolder.h"
#include "support/WatchedFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>

namespace fs = std::filesystem;

namespace
{

class Copies : public testing::Test
{
protected:
    Copies()
    {
        SmallCatalogue().WriteTo(Folder.Data());
        Files.Folder = modData::GetDataFolder();
        for (const modData::Table* table : modData::AllTables())
            Files.Names.push_back(table->Layout().FileName);
        DatedCopies::CurrentTime = [] { return Time; };
        Time = "2026-11-21_143005";
    }
    ~Copies() override { DatedCopies::CurrentTime = FormerClock; }

    fs::path Kept(const std::string& name) const { return Folder.Data() / "kopije" / name; }

    void Make(const std::string& name, const std::string& file = "db_zavod.csv") const
    {
        fs::create_directories(Kept(name));
        WriteBytes(Kept(name) / file, name);
    }

    std::vector<std::string> Names() const { return EntriesOf(Folder.Data() / "kopije"); }

    /// The text of a number with two digits.
    static std::string TwoDigits(int number)
    {
        std::array<char, 4> text{};
        std::snprintf(text.data(), text.size(), "%02d", number % 100);
        return text.data();
    }

    inline static std::string Time;
    TestFolder Folder;
    CatalogueOnDisk Files;
    std::string (*FormerClock)() = DatedCopies::CurrentTime;
};

TEST_F(Copies, AreNamedAfterTheLocalTime)
{
    const std::string now = FormerClock();
    EXPECT_TRUE(DatedCopies::IsName(now)) << now;
    EXPECT_EQ(now.size(), 17U);
}

TEST_F(Copies, HaveNamesOfOnePattern)
{
    for (const char* name : {"2026-11-21_143005", "2026-11-21_143005_2", "2026-11-21_143005_31"})
        EXPECT_TRUE(DatedCopies::IsName(name)) << name;
    for (const char* name :
         {"", "2026-11-21", "2026-11-21_14300", "2026-11-21_1430055", "2026-11-21_143005_",
          "2026-11-21_143005_02", "2026-11-21_143005_x", "2026-11-21_143005-prekid", "2026-11-21_143005.dio",
          "2026-11-21 143005", "x026-11-21_143005", "Varlostudiji 2026-03-09"})
        EXPECT_FALSE(DatedCopies::IsName(name)) << name;
}

TEST_F(Copies, OfOneSecondAreNumbered)
{
    EXPECT_EQ(DatedCopies::NewName(Files), "2026-11-21_143005");
    DatedCopies::Keep(Files, "2026-11-21_143005");
    EXPECT_EQ(DatedCopies::NewName(Files), "2026-11-21_143005_2");
    Make("2026-11-21_143005_2-prekid");
    EXPECT_EQ(DatedCopies::NewName(Files), "2026-11-21_143005_3");
    Make("2026-11-21_143005_3.dio");
    EXPECT_EQ(DatedCopies::NewName(Files), "2026-11-21_143005_4");
    Make("2026-11-21_143005_40");
    EXPECT_EQ(DatedCopies::NewName(Files), "2026-11-21_143005_4");
}

TEST_F(Copies, HoldTheFilesThatAreThere)
{
    fs::remove(Folder.Data() / "db_studij.csv");
    WriteBytes(Folder.Data() / "mine.txt", "");
    DatedCopies::Keep(Files, "2026-11-21_143005");
    const std::vector<std::string> entries = EntriesOf(Kept("2026-11-21_143005"));
    EXPECT_EQ(entries.size(), 6U);
    for (const std::string& name : entries)
        EXPECT_EQ(ReadBytes(Kept("2026-11-21_143005") / name), ReadBytes(Folder.Data() / name)) << name;
}

TEST_F(Copies, BegunByAnEndedProgramAreMadeAgain)
{
    Make("2026-11-21_143005.dio");
    DatedCopies::Keep(Files, "2026-11-21_143005");
    EXPECT_EQ(ReadBytes(Kept("2026-11-21_143005") / "db_zavod.csv"),
              ReadBytes(Folder.Data() / "db_zavod.csv"));
    EXPECT_EQ(Names().size(), 1U);
}

TEST_F(Copies, ThatCannotBeMadeLeaveNothing)
{
    const WatchedFiles watched;
    System::Files.Write = [](FileOperations::Handle, std::string_view)
    { return std::make_error_code(std::errc::no_space_on_device); };
    EXPECT_THROW(DatedCopies::Keep(Files, "2026-11-21_143005"), FileError);
    EXPECT_EQ(EntriesOf(Folder.Data()).size(), 7U) << "no empty folder either";
}

TEST_F(Copies, AreNotMadeIfTheNewestHoldsTheSame)
{
    DatedCopies::KeepAnother(Files);
    DatedCopies::KeepAnother(Files);
    EXPECT_EQ(Names().size(), 1U);
    WriteBytes(Folder.Data() / "db_kolegij_nastavnik.csv", "other");
    DatedCopies::KeepAnother(Files);
    EXPECT_EQ(Names().size(), 2U);
    fs::remove(Folder.Data() / "db_zavod.csv");
    DatedCopies::KeepAnother(Files);
    EXPECT_EQ(Names().size(), 3U);
}

#ifndef _WIN32
TEST_F(Copies, MayBeReadByThoseWhoMayReadTheFiles)
{
    constexpr fs::perms ownerOnly = fs::perms::owner_read | fs::perms::owner_write;
    fs::permissions(Folder.Data() / "db_zavod.csv", ownerOnly);
    fs::permissions(Folder.Data() / "db_studij.csv", ownerOnly | fs::perms::group_read);
    DatedCopies::Keep(Files, "2026-11-21_143005");
    for (const char* name : {"db_zavod.csv", "db_studij.csv", "db_kolegij.csv"})
        EXPECT_EQ(fs::status(Kept("2026-11-21_143005") / name).permissions(),
                  fs::status(Folder.Data() / name).permissions())
            << name;
}
#endif

// Which of them stay

TEST_F(Copies, TheNewestThirtyStay)
{
    for (int second = 0; second < 40; ++second)
        Make("2026-11-21_1430" + TwoDigits(second));
    DatedCopies::Prune(Files, "2026-11-21_143039");
    ASSERT_EQ(Names().size(), 30U);
    EXPECT_EQ(Names().front(), "2026-11-21_143010");
    EXPECT_EQ(Names().back(), "2026-11-21_143039");
}

TEST_F(Copies, OfOneSecondAreOrderedByTheirNumber)
{
    Make("2026-11-21_143005");
    for (int number = 2; number <= 40; ++number)
        Make("2026-11-21_143005_" + std::to_string(number));
    DatedCopies::Prune(Files, "2026-11-21_143005_40");
    EXPECT_EQ(Names().size(), 30U);
    EXPECT_FALSE(fs::exists(Kept("2026-11-21_143005_10")));
    EXPECT_TRUE(fs::exists(Kept("2026-11-21_143005_11")));
    EXPECT_FALSE(fs::exists(Kept("2026-11-21_143005_9"))) << "which is older than the tenth";
}

TEST_F(Copies, TheLastOfEachOfTheNewestThirtyDaysStay)
{
    for (int day = 1; day <= 40; ++day)
        for (const char* time : {"_080000", "_160000"})
            Make("2026-" + TwoDigits(day <= 20 ? 9 : 10) + "-" + TwoDigits((day - 1) % 20 + 1) + time);
    DatedCopies::Prune(Files, "2026-10-20_160000");
    // The newest 30 copies are from the last 15 days; each of the 15 days before keeps its last copy.
    std::vector<std::string> expected;
    for (int day = 11; day <= 40; ++day)
    {
        const std::string date =
            "2026-" + TwoDigits(day <= 20 ? 9 : 10) + "-" + TwoDigits((day - 1) % 20 + 1);
        if (day > 25)
            expected.push_back(date + "_080000");
        expected.push_back(date + "_160000");
    }
    EXPECT_EQ(Names(), expected);
}

TEST_F(Copies, TheOneJustMadeStaysEvenIfTheClockWasSetBack)
{
    for (int second = 0; second < 40; ++second)
        Make("2026-11-21_1430" + TwoDigits(second));
    Make("2025-01-01_000000");
    DatedCopies::Prune(Files, "2025-01-01_000000");
    EXPECT_EQ(Names().size(), 31U);
    EXPECT_TRUE(fs::exists(Kept("2025-01-01_000000")));
}

TEST_F(Copies, OfOtherNamesAndWithOtherFilesStay)
{
    for (int second = 0; second < 40; ++second)
        Make("2026-11-21_1430" + TwoDigits(second));
    const std::vector<std::string> others = {"2020-01-01_000000-prekid", "2020-01-01_000000-nedovrseno",
                                             "2020-01-01", "za dekana"};
    for (const std::string& name : others)
        Make(name);
    Make("2020-01-01_000000");
    WriteBytes(Kept("2020-01-01_000000") / "note.txt", "mine");
    Make("2020-01-02_000000.dio");
    DatedCopies::Prune(Files, "2026-11-21_143039");
    for (const std::string& name : others)
        EXPECT_TRUE(fs::exists(Kept(name) / "db_zavod.csv")) << name;
    EXPECT_EQ(EntriesOf(Kept("2020-01-01_000000")).size(), 2U);
    EXPECT_FALSE(fs::exists(Kept("2020-01-02_000000.dio"))) << "a copy that was never finished";
    EXPECT_EQ(Names().size(), 30 + others.size() + 1);
}

TEST_F(Copies, ArePrunedAfterASave)
{
    for (int second = 0; second < 40; ++second)
        Make("2026-11-20_1430" + TwoDigits(second));
    RenumberedCatalogue().Use();
    modData::SaveAllTables();
    EXPECT_EQ(Names().size(), 30U);
    EXPECT_EQ(Names().back(), "2026-11-21_143005");
}

} // namespace

// The copy of a table file's former content that a save keeps beside it.

#include "data/Files.h"
#include "data/modData.h"
#include "support/Catalogue.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace
{

class FormerCopy : public testing::Test
{
protected:
    void SetUp() override
    {
        SmallCatalogue().WriteTo(Folder.Data());
        modData::LoadAllTables();
    }

    std::string Content(const char* name) { return ReadBytes(Folder.Data() / name); }

    TestFolder Folder;
    fs::path Copy = Folder.Data() / "db_zavod.csv.bak";
};

TEST_F(FormerCopy, ASaveThatChangesNothingMakesNone)
{
    modData::SaveAllTables();
    EXPECT_EQ(EntriesOf(Folder.Data()).size(), 7U);
}

TEST_F(FormerCopy, HoldsWhatAChangedFileHeld)
{
    const std::string former = Content("db_zavod.csv");
    modData::Zavodi.Append({"3", "Zavod za \u0161umu", "\u0160UM"});
    modData::SaveAllTables();
    EXPECT_EQ(ReadBytes(Copy), former);
    EXPECT_EQ(Content("db_zavod.csv"), former + "3;Zavod za \x9Aumu;\x8AUM\r\n");
    EXPECT_EQ(EntriesOf(Folder.Data()).size(), 8U) << "no other file has changed";
}

TEST_F(FormerCopy, TheSecondSaveOfTheWayOutLeavesItAlone)
{
    const std::string former = Content("db_zavod.csv");
    modData::Zavodi.Append({"3", "Treći", "T"});
    modData::SaveAllTables();
    modData::SaveAllTables();
    EXPECT_EQ(ReadBytes(Copy), former);
}

TEST_F(FormerCopy, IsOneGenerationOld)
{
    modData::Zavodi.Append({"3", "Treći", "T"});
    modData::SaveZavodi();
    const std::string second = Content("db_zavod.csv");
    modData::Zavodi.Append({"4", "Četvrti", "C"});
    modData::SaveZavodi();
    EXPECT_EQ(ReadBytes(Copy), second);
}

TEST_F(FormerCopy, BringsBackAFileWithLineEndsThatReadAsNoRows)
{
    const std::string spoiled = "ID;Naziv;Kratica\n7;Zavod za vodu;VOD\n";
    WriteBytes(Folder.Data() / "db_zavod.csv", spoiled);
    modData::LoadZavodi();
    modData::SaveZavodi();
    EXPECT_EQ(Content("db_zavod.csv"), "ID;Naziv;Kratica\r\n") << "a lone LF ends no line";
    EXPECT_EQ(ReadBytes(Copy), spoiled);
}

TEST_F(FormerCopy, AnEmptyFileTakesNoCopysPlace)
{
    WriteBytes(Copy, "older");
    WriteBytes(Folder.Data() / "db_zavod.csv", "");
    modData::SaveZavodi();
    EXPECT_EQ(ReadBytes(Copy), "older");
}

TEST_F(FormerCopy, ThatCannotBeMadeDoesNotHinderTheSave)
{
    fs::create_directory(Copy);
    modData::Zavodi.Append({"3", "Treći", "T"});
    EXPECT_NO_THROW(modData::SaveZavodi());
    EXPECT_NE(Content("db_zavod.csv").find("3;Tre\xE6i;T\r\n"), std::string::npos);
    EXPECT_TRUE(fs::is_directory(Copy));
}

TEST_F(FormerCopy, OfAFileThatIsNotThereIsNotMade)
{
    fs::remove(Folder.Data() / "db_zavod.csv");
    modData::SaveZavodi();
    EXPECT_FALSE(fs::exists(Copy));
    EXPECT_EQ(EntriesOf(Folder.Data()).size(), 7U);
}

TEST_F(FormerCopy, IsNotMadeWhenTheFileMayNotBeWritten)
{
    constexpr fs::perms write = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    const fs::path file = Folder.Data() / "db_zavod.csv";
    fs::permissions(file, write, fs::perm_options::remove);
    modData::Zavodi.Append({"3", "Treći", "T"});
    EXPECT_ANY_THROW(modData::SaveZavodi());
    EXPECT_EQ(EntriesOf(Folder.Data()).size(), 7U);
    fs::permissions(file, write, fs::perm_options::add);
}

TEST_F(FormerCopy, OfAnExportIsNotMade)
{
    WriteBytes(Folder.Path() / "export.csv", "older");
    TextFile file;
    file.AddLine("new");
    file.SaveAs(Folder.PathOf("export.csv"));
    EXPECT_EQ(EntriesOf(Folder.Path()), (std::vector<std::string>{"Varlostudiji", "export.csv"}));
}

} // namespace

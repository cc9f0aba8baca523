// The whole data store: the seven files together, the data folder, the next ID.

#include "data/modData.h"
#include "data/Errors.h"
#include "data/Files.h"
#include "data/Windows1250.h"
#include "support/Catalogue.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace
{

constexpr const char* FilesInOrder[] = {
    "db_zavod.csv",   "db_nastavnici.csv",    "db_studij.csv",           "db_smjer.csv",
    "db_kolegij.csv", "db_kolegij_smjer.csv", "db_kolegij_nastavnik.csv"};

class DataStore : public testing::Test
{
protected:
    std::string Content(const char* name) { return ReadBytes(Folder.Data() / name); }
    void Replace(const char* name, std::string_view content) { WriteBytes(Folder.Data() / name, content); }

    /// The description of a load's error; empty if there is none.
    std::string LoadFailure()
    {
        try
        {
            modData::LoadAllTables();
        }
        catch (const RuntimeError& error)
        {
            return error.what();
        }
        return "";
    }

    TestFolder Folder;
};

// Loading

TEST_F(DataStore, LoadsTheFilesInAFixedOrderAndCreatesAMissingOneEmpty)
{
    for (const char* name : FilesInOrder)
    {
        EXPECT_TRUE(LoadFailure().ends_with(": " + Folder.DataPath(name))) << LoadFailure();
        EXPECT_EQ(Content(name), "");
        Replace(name, "header");
    }
    EXPECT_EQ(LoadFailure(), "");
}

TEST_F(DataStore, ConvertsEveryMarkedFileToWindows1250BeforeItIsRead)
{
    SmallCatalogue().WriteTo(Folder.Data());
    std::vector<std::string> contents;
    for (const char* name : FilesInOrder)
    {
        contents.push_back(Content(name));
        Replace(name, "\xEF\xBB\xBF" + FromWindows1250(contents.back()));
    }
    modData::LoadAllTables();
    for (std::size_t i = 0; i < contents.size(); ++i)
        EXPECT_EQ(Content(FilesInOrder[i]), contents[i]) << FilesInOrder[i];
    EXPECT_EQ(LinesOf(modData::Nastavnici).at(1), "2;Šarić Žarko;;2");
}

TEST_F(DataStore, AMissingFileIsNoReasonForACopy)
{
    SmallCatalogue().WriteTo(Folder.Data());
    fs::remove(Folder.Data() / "db_zavod.csv");
    EXPECT_TRUE(LoadFailure().ends_with(": " + Folder.DataPath("db_zavod.csv"))) << LoadFailure();
    EXPECT_FALSE(fs::exists(Folder.Data() / "kopije"));
}

TEST_F(DataStore, EachFileFillsItsOwnTable)
{
    SmallCatalogue().WriteTo(Folder.Data());
    modData::LoadAllTables();
    EXPECT_EQ(LinesOf(modData::Zavodi).front(), "1;Zavod za povijest;POV");
    EXPECT_EQ(LinesOf(modData::Nastavnici).front(), "1;Anić Ana;prof. dr. sc.;1");
    EXPECT_EQ(LinesOf(modData::Studiji).front(), "1;Lovstvo;LOR;Preddiplomski");
    EXPECT_EQ(LinesOf(modData::Smjerovi).front(), "1;Opći;OPC;1;Preddiplomski");
    EXPECT_EQ(LinesOf(modData::Kolegiji).front(), "1;Uvod u lov;2;1;0;5;obvezni;1;1");
    EXPECT_EQ(LinesOf(modData::KolegijSmjerovi).front(), "1;1");
    EXPECT_EQ(LinesOf(modData::KolegijNastavnici).front(), "1;1;Nositelj;1");
}

TEST_F(DataStore, EachTableIsLoadedFromAndSavedToItsOwnFileAlone)
{
    constexpr struct
    {
        void (*Load)();
        void (*Save)();
    } operations[] = {{modData::LoadZavodi, modData::SaveZavodi},
                      {modData::LoadNastavnici, modData::SaveNastavnici},
                      {modData::LoadStudiji, modData::SaveStudiji},
                      {modData::LoadSmjerovi, modData::SaveSmjerovi},
                      {modData::LoadKolegiji, modData::SaveKolegiji},
                      {modData::LoadKolegijSmjerovi, modData::SaveKolegijSmjerovi},
                      {modData::LoadKolegijNastavnici, modData::SaveKolegijNastavnici}};
    SmallCatalogue().WriteTo(Folder.Data());
    for (std::size_t i = 0; i < std::size(operations); ++i)
    {
        Catalogue().Use();
        operations[i].Load();
        for (std::size_t other = 0; other < std::size(operations); ++other)
            EXPECT_EQ(modData::AllTables()[other]->RowCount() > 0, other == i) << FilesInOrder[i];
        const std::string content = Content(FilesInOrder[i]);
        fs::remove(Folder.Data() / FilesInOrder[i]);
        operations[i].Save();
        EXPECT_EQ(Content(FilesInOrder[i]), content);
    }
}

TEST_F(DataStore, LoadingAgainReplacesTheRows)
{
    SmallCatalogue().WriteTo(Folder.Data());
    modData::LoadAllTables();
    modData::LoadAllTables();
    EXPECT_EQ(modData::Kolegiji.RowCount(), 5U);
}

TEST_F(DataStore, ATableThatCannotBeLoadedStaysAsItWas)
{
    SmallCatalogue().Use();
    Replace("db_studij.csv", "");
    EXPECT_THROW(modData::LoadStudiji(), InputPastEnd);
    EXPECT_EQ(modData::Studiji.RowCount(), 3U);
}

TEST_F(DataStore, AFolderInAFilesPlaceIsAnError)
{
    fs::create_directory(Folder.Data() / "db_zavod.csv");
    EXPECT_THROW(modData::LoadZavodi(), FileError);
}

// Saving

TEST_F(DataStore, SavesEachTableToItsOwnFileWithItsHeader)
{
    SmallCatalogue().Use();
    modData::SaveAllTables();
    std::vector<std::string> saved;
    for (const char* name : FilesInOrder)
        saved.push_back(Content(name));
    SmallCatalogue().WriteTo(Folder.Data());
    for (std::size_t i = 0; i < saved.size(); ++i)
        EXPECT_EQ(saved[i], Content(FilesInOrder[i])) << FilesInOrder[i];
}

TEST_F(DataStore, ARowEnteredInTheProgramIsSavedAsTheOthersAre)
{
    SmallCatalogue().Use();
    modData::KolegijSmjerovi.Append({"", "7"});
    modData::KolegijSmjerovi.Append({" 5 ", "Č"});
    modData::SaveKolegijSmjerovi();
    EXPECT_TRUE(Content("db_kolegij_smjer.csv").ends_with("4;4\r\n7\r\n 5 ;\xC8\r\n"));
}

// The next ID

std::int32_t NextAfter(std::string_view id)
{
    Catalogue catalogue;
    catalogue.Kolegiji = {"3;Kolegij", id};
    catalogue.Use();
    return modData::NextKolegijID();
}

TEST(NextKolegijID, ReadsAnIDInEveryFormThatANumberHas)
{
    for (const char* id : {"7", "+7", " 7 ", "007", "7.0", "7,0", "7.", "6.5001"})
        EXPECT_EQ(NextAfter(id), 8) << id;
    EXPECT_EQ(NextAfter("-7"), 4);
    EXPECT_EQ(NextAfter("2147483646"), INT32_MAX);
}

TEST(NextKolegijID, FailsOnAnIDThatIsNoNumber)
{
    for (const char* id : {"1e3", "0x10", "", " ", "-", "+", ".", "7a", "1 000", "\t7", "٧"})
        EXPECT_THROW(NextAfter(id), TypeMismatch) << id;
}

TEST(NextKolegijID, FailsIfNoNumberIsLeft)
{
    for (const char* id : {"2147483647", "2147483648", "-2147483649", "99999999999999999999"})
        EXPECT_THROW(NextAfter(id), OverflowError) << id;
}

// The data folder

TEST_F(DataStore, TheEnvironmentIsReadForTheDataFolderEveryTime)
{
    EXPECT_EQ(ToPath(modData::GetDataFolder()), Folder.Data());
    const TestFolder other;
    EXPECT_EQ(ToPath(modData::GetDataFolder()), other.Data());
}

TEST_F(DataStore, TheDataFolderMayHaveAnyLetterInItsName)
{
    SetEnvironment("LOCALAPPDATA", Folder.PathOf("Željka Đurić"));
    EXPECT_TRUE(modData::GetDataFolder().starts_with(Folder.PathOf("Željka Đurić")));
    EXPECT_TRUE(fs::is_directory(Folder.Path() / u8"Željka Đurić" / "Varlostudiji"));
}

TEST_F(DataStore, ADataFolderThatCannotBeCreatedFailsOnlyWhenItIsUsed)
{
    WriteBytes(Folder.Path() / "file", "");
    SetEnvironment("LOCALAPPDATA", Folder.PathOf("file"));
    EXPECT_EQ(ToPath(modData::GetDataFolder()), Folder.Path() / "file" / "Varlostudiji");
    EXPECT_THROW(modData::LoadAllTables(), FileError);
    EXPECT_THROW(modData::SaveAllTables(), FileError);
    EXPECT_EQ(ReadBytes(Folder.Path() / "file"), "");
}

} // namespace

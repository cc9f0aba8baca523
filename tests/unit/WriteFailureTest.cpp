// Every operation on a file fails in turn, for everything that the program writes except the whole catalogue:
// each file has its whole old content or its whole new one, and the error names the file.

#include "data/DatedCopies.h"
#include "data/Errors.h"
#include "data/Files.h"
#include "data/modData.h"
#include "ects/EctsReport.h"
#include "support/Catalogue.h"
#include "support/TestFolder.h"
#include "support/WatchedFiles.h"
#include "ui/department_stats/DepartmentStatistics.h"
#include "ui/lecturer_stats/LecturerStatistics.h"
#include "ui/main/CatalogueExport.h"
#include "ui/main/StatistikaExport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <functional>
#include <map>
#include <optional>
#include <ostream>
#include <utility>

namespace fs = std::filesystem;

namespace
{

using Contents = std::map<std::string, std::string>;
constexpr const char* TableFiles[] = {
    "db_zavod.csv",   "db_nastavnici.csv",    "db_studij.csv",           "db_smjer.csv",
    "db_kolegij.csv", "db_kolegij_smjer.csv", "db_kolegij_nastavnik.csv"};

/// The number and the path that an error names.
struct ReportedError
{
    int Number;
    std::string Description;
};

std::optional<ReportedError> ErrorOf(const std::function<void()>& action)
{
    try
    {
        action();
    }
    catch (const FileError& error)
    {
        return ReportedError{error.Number(), error.what()};
    }
    return std::nullopt;
}

/// The number of the error that an action ends in; 0 if it ends in none.
int ErrorNumberOf(const std::function<void()>& action)
{
    const std::optional<ReportedError> reported = ErrorOf(action);
    return reported ? reported->Number : 0;
}

/// The number of the error for a failed operation.
int NumberOf(FileOperation::Kind what, int error)
{
    switch (what)
    {
    case FileOperation::Open:
    case FileOperation::Rename:
        return error == ENOSPC ? 61 : 70;
    case FileOperation::Write:
        return 61;
    case FileOperation::Inspect:
    case FileOperation::RemoveFile:
        return 70;
    default:
        return 57;
    }
}

/// Operations whose failure does not stop a write: closing a file that was read, and what some file systems
/// lack.
bool IsHindrance(const FileOperation& operation, After then)
{
    const bool isSpare = operation.What == FileOperation::TakeAccess ||
                         operation.What == FileOperation::ReadLink ||
                         (operation.What == FileOperation::Close && operation.Reading);
    return !isSpare || then == After::NothingWorks;
}

/// Runs an action with each of its calls failing in turn, in each way. `prepare` runs before each run;
/// `check` runs after it, with the calls of a run without failures and the position of the failed one among
/// them.
void FailEachCall(const std::function<void()>& prepare, const std::function<void()>& action,
                  const std::function<void(const std::vector<FileOperation>&, std::size_t place, const Fault&,
                                           const std::optional<ReportedError>&)>& check)
{
    prepare();
    std::vector<FileOperation> good;
    {
        const WatchedFiles none;
        action();
        good = none.Made();
    }
    ASSERT_FALSE(good.empty());
    for (const Fault& fault : Faults)
        for (std::size_t place = 0; place < good.size(); place += FailingStep(good.size()))
        {
            SCOPED_TRACE(Describe(place + 1, good[place], fault));
            prepare();
            std::optional<ReportedError> reported;
            {
                const WatchedFiles failing(place + 1, fault);
                reported = ErrorOf(action);
            }
            check(good, place, fault, reported);
            if (testing::Test::HasFailure())
                return; // one failure is enough
        }
}

class WriteFailure : public testing::Test
{
protected:
    Contents FilesIn(const fs::path& folder)
    {
        Contents files;
        for (const std::string& name : EntriesOf(folder))
            if (fs::is_regular_file(folder / name))
                files[name] = ReadBytes(folder / name);
        return files;
    }

    Contents DataFiles() { return FilesIn(Folder.Data()); }

    /// Makes a folder hold exactly these files.
    static void Restore(const fs::path& folder, const Contents& files)
    {
        for (const std::string& name : EntriesOf(folder))
            if (fs::is_regular_file(folder / name))
                fs::remove(folder / name);
        for (const auto& [name, content] : files)
            WriteBytes(folder / name, content);
    }

    /// What a failed write leaves beside a file: nothing, unless removing fails too.
    static void ExpectNoStray(const fs::path& folder, After then)
    {
        if (then == After::AllIsWell)
            EXPECT_TRUE(TemporaryFilesIn(folder).empty()) << testing::PrintToString(TemporaryFilesIn(folder));
        else
            EXPECT_LE(TemporaryFilesIn(folder).size(), 2U);
    }

    TestFolder Folder;
};

// The order of the operations

TEST_F(WriteFailure, AFileIsOnTheDiskBeforeItReplacesTheOldOne)
{
    const std::string path = Folder.PathOf("file.csv");
    const std::vector<std::string> expected = {"open file.csv.N.tmp",
                                               "write file.csv.N.tmp",
                                               "take access file.csv.N.tmp",
                                               "flush file.csv.N.tmp",
                                               "rename file.csv.N.tmp to file.csv",
                                               "flush folder ."};
    for (const char* content : {"new", "newer"})
    {
        const WatchedFiles watched;
        ReplaceFile(path, content);
        EXPECT_EQ(watched.Effects(Folder.Path()), expected);
    }
}

TEST_F(WriteFailure, ARenameThatTheSystemRefusesIsAnError)
{
    const std::string path = Folder.PathOf("file.csv");
    WriteBytes(Folder.Path() / "file.csv", "old");
    const WatchedFiles watched;
    System::Files.Rename = [](const fs::path&, const fs::path&)
    { return std::make_error_code(std::errc::text_file_busy); };
    EXPECT_EQ(ErrorNumberOf([&] { ReplaceFile(path, "new"); }), 70);
    EXPECT_EQ(ReadBytes(Folder.Path() / "file.csv"), "old");
    EXPECT_TRUE(TemporaryFilesIn(Folder.Path()).empty());
}

TEST_F(WriteFailure, AReadErrorIsNotTheEndOfTheFile)
{
    const std::string path = Folder.PathOf("file.csv");
    WriteBytes(Folder.Path() / "file.csv", std::string(200'000, 'x'));
    const WatchedFiles good;
    ReadFile(path);
    const auto reads = std::ranges::count(good.Made(), FileOperation::Read, &FileOperation::What);
    EXPECT_GT(reads, 2);
    System::Files.Read = [](FileOperations::Handle, std::span<char>, std::size_t& count)
    {
        count = 0;
        return std::make_error_code(std::errc::io_error);
    };
    EXPECT_EQ(ErrorNumberOf([&] { ReadFile(path); }), 57);
}

TEST_F(WriteFailure, ATableThatIsCutShortByAReadErrorIsNotLoaded)
{
    SmallCatalogue().WriteTo(Folder.Data());
    Catalogue().Use();
    static int reads = 0;
    reads = 0;
    const WatchedFiles watched;
    System::Files.Read = [](FileOperations::Handle file, std::span<char> buffer, std::size_t& count)
    {
        if (++reads > 2) // the first bytes, and some of the content
        {
            count = 0;
            return std::make_error_code(std::errc::io_error);
        }
        return System::OwnFiles.Read(file, buffer.first(std::min<std::size_t>(buffer.size(), 40)), count);
    };
    EXPECT_TRUE(ErrorOf(modData::LoadZavodi).has_value());
    EXPECT_EQ(modData::Zavodi.RowCount(), 0U);
}

// The conversion of a file to windows-1250, and the load around it

class EncodingFailure : public WriteFailure
{
protected:
    EncodingFailure()
    {
        for (const char* name : TableFiles)
            Marked[name] = "\xEF\xBB\xBF"
                           "ID;\xC5\xBD\r\n\r\n";
        Marked["db_zavod.csv"] += "1;Zavod za \xC5\xBE"
                                  "ito;\xC4\x90\r\n";
        Plain = Marked;
        for (auto& [name, content] : Plain)
            content = "ID;\x8E\r\n\r\n";
        Plain["db_zavod.csv"] += "1;Zavod za \x9E"
                                 "ito;\xD0\r\n";
    }

    Contents Marked;
    Contents Plain;
};

TEST_F(EncodingFailure, LeavesTheFileMarkedOrConverted)
{
    const std::string name = "db_zavod.csv";
    FailEachCall(
        [&] {
            Restore(Folder.Data(), {{name, Marked[name]}});
        },
        [&] { modData::NormalizeFileEncoding(Folder.DataPath(name)); },
        [&](const std::vector<FileOperation>& good, std::size_t place, const Fault& fault,
            const std::optional<ReportedError>& reported)
        {
            const bool hinders = IsHindrance(good[place], fault.Then);
            ASSERT_EQ(reported.has_value(), hinders);
            if (hinders)
            {
                EXPECT_TRUE(reported->Description.ends_with(": " + Folder.DataPath(name)));
                EXPECT_TRUE(reported->Number == NumberOf(good[place].What, fault.Error) ||
                            !IsHindrance(good[place], After::AllIsWell))
                    << reported->Number;
            }
            const bool isReplaced = !hinders || good[place].What == FileOperation::FlushFolder;
            EXPECT_EQ(ReadBytes(Folder.Data() / name), isReplaced ? Plain[name] : Marked[name]);
            const bool mayStay = fault.Then != After::AllIsWell || good[place].What == FileOperation::Rename;
            EXPECT_LE(TemporaryFilesIn(Folder.Data()).size(), mayStay ? 1U : 0U);
            const WatchedFiles none;
            EXPECT_NO_THROW(modData::LoadZavodi());
            EXPECT_EQ(LinesOf(modData::Zavodi), (std::vector<std::string>{"1;Zavod za \u017Eito;\u0110"}));
            if (!isReplaced)
            {
                EXPECT_TRUE(TemporaryFilesIn(Folder.Data()).empty()) << "the next conversion replaces it";
            }
        });
}

TEST_F(EncodingFailure, AWholeTemporaryFileStaysWhereItCannotReplaceTheFile)
{
    WriteBytes(Folder.Data() / "db_zavod.csv", Marked["db_zavod.csv"]);
    const WatchedFiles watched;
    System::Files.Rename = [](const fs::path&, const fs::path&)
    { return std::make_error_code(std::errc::permission_denied); };
    EXPECT_TRUE(ErrorOf(modData::LoadZavodi).has_value());
    EXPECT_EQ(ReadBytes(Folder.Data() / "db_zavod.csv.tmp"), Plain["db_zavod.csv"]);
    EXPECT_EQ(ReadBytes(Folder.Data() / "db_zavod.csv"), Marked["db_zavod.csv"]);
}

TEST_F(EncodingFailure, WhileTheTablesAreLoadedLeavesEachFileMarkedOrConverted)
{
    FailEachCall([&] { Restore(Folder.Data(), Marked); }, modData::LoadAllTables,
                 [&](const std::vector<FileOperation>&, std::size_t, const Fault&,
                     const std::optional<ReportedError>& reported)
                 {
                     for (const char* name : TableFiles)
                     {
                         const std::string content = ReadBytes(Folder.Data() / name);
                         EXPECT_TRUE(content == Plain[name] || (reported && content == Marked[name]))
                             << content;
                     }
                     EXPECT_TRUE(reported || modData::Zavodi.RowCount() == 1);
                     const WatchedFiles none;
                     EXPECT_NO_THROW(modData::LoadAllTables());
                     EXPECT_EQ(DataFiles()["db_zavod.csv"], Plain["db_zavod.csv"]);
                 });
}

TEST_F(EncodingFailure, WhileAMissingFileIsMadeLeavesNone)
{
    const fs::path file = Folder.Data() / "db_zavod.csv";
    const WatchedFiles watched;
    System::Files.Open = [](const fs::path&, OpenFor, FileOperations::Handle&)
    { return std::make_error_code(std::errc::no_space_on_device); };
    const std::optional<ReportedError> reported =
        ErrorOf([&] { modData::NormalizeFileEncoding(Folder.DataPath("db_zavod.csv")); });
    ASSERT_TRUE(reported.has_value());
    EXPECT_EQ(reported->Number, 61);
    EXPECT_FALSE(fs::exists(file));
}

// Letters that a conversion to windows-1250 loses

class LostLetters : public EncodingFailure
{
protected:
    LostLetters()
    {
        SmallCatalogue().WriteTo(Folder.Data());
        DatedCopies::CurrentTime = [] { return std::string("2026-11-21_143005"); };
        WriteBytes(Folder.Data() / "db_studij.csv", Marked["db_studij.csv"]);
    }
    ~LostLetters() override { DatedCopies::CurrentTime = FormerClock; }

    /// Loads the tables with this content of the fifth file; returns the catalogue before that.
    Contents LoadWith(std::string_view content)
    {
        WriteBytes(Folder.Data() / "db_kolegij.csv", content);
        Contents before = DataFiles();
        modData::LoadAllTables();
        return before;
    }

    fs::path Copy() { return Folder.Data() / "kopije" / "2026-11-21_143005"; }

    std::string (*FormerClock)() = DatedCopies::CurrentTime;
};

TEST_F(LostLetters, AreInADatedCopyOfTheWholeCatalogue)
{
    for (const char* text : {"\xEF\xBB\xBFh\r\n1;\xD0\x96?\r\n", "\xEF\xBB\xBFh\r\n1;\x8A?\r\n"})
    {
        const Contents before = LoadWith(text);
        EXPECT_EQ(FilesIn(Copy()), before);
        EXPECT_EQ(ReadBytes(Folder.Data() / "db_kolegij.csv"), "h\r\n1;??\r\n");
        fs::remove_all(Folder.Data() / "kopije");
    }
}

TEST_F(LostLetters, AreNoneWhereEveryLetterHasItsByte)
{
    LoadWith("\xEF\xBB\xBFh\r\n1;\xC5\xBD?\r\n");
    LoadWith("h\r\n1;\x8A\x81?\r\n");
    EXPECT_FALSE(fs::exists(Folder.Data() / "kopije"));
}

TEST_F(LostLetters, ThatCannotBeKeptEndTheStartBeforeAnythingIsConverted)
{
    WriteBytes(Folder.Data() / "kopije", "a file in the folder's place");
    EXPECT_THROW(LoadWith("\xEF\xBB\xBFh\r\n1;\xD0\x96?\r\n"), FileError);
    EXPECT_EQ(ReadBytes(Folder.Data() / "db_kolegij.csv"), "\xEF\xBB\xBFh\r\n1;\xD0\x96?\r\n");
    EXPECT_EQ(ReadBytes(Folder.Data() / "db_studij.csv"), Marked["db_studij.csv"]);
}

TEST_F(LostLetters, AreKeptOnceAfterSeveralFailedConversions)
{
    const auto fail = [&]
    {
        const WatchedFiles watched;
        System::Files.Rename = [](const fs::path& from, const fs::path& to)
        {
            return to.extension() == ".csv" ? std::make_error_code(std::errc::permission_denied)
                                            : System::OwnFiles.Rename(from, to);
        };
        EXPECT_THROW(LoadWith("\xEF\xBB\xBFh\r\n1;\xD0\x96?\r\n"), FileError);
    };
    fail();
    fail();
    EXPECT_EQ(EntriesOf(Folder.Data() / "kopije"), std::vector<std::string>{"2026-11-21_143005"});
}

// The exports

struct Export
{
    const char* Name;
    void (*Write)(const std::string& path);
};

void PrintTo(const Export& tried, std::ostream* stream)
{
    *stream << tried.Name;
}

constexpr Export Exports[] = {
    {"Catalogue", [](const std::string& path) { ExportKolegijiToCSV(path); }},
    {"SemesterSums",
     [](const std::string& path) {
         WriteStatistika(path, {"Preddiplomski", "LOR", "Svi", "Svi"}, {{"1", "Obvezni", "2"}});
     }},
    {"AllLecturers",
     [](const std::string& path) {
         ExportAllLecturers(path, {"Svi", "Svi"});
     }},
    {"AllDepartments",
     [](const std::string& path) {
         ExportAllDepartments(path, {"Svi", "Svi"});
     }},
    {"CalculatorReport", [](const std::string& path) { WriteEctsReport(path, {}); }},
};

class ExportFailure : public WriteFailure, public testing::WithParamInterface<Export>
{
protected:
    void ExpectOldOrNew(const Contents& old)
    {
        SmallCatalogue().Use();
        const std::string path = Folder.PathOf("export.csv");
        GetParam().Write(path);
        const std::string written = ReadBytes(Folder.Path() / "export.csv");
        FailEachCall([&] { Restore(Folder.Path(), old); }, [&] { GetParam().Write(path); },
                     [&](const std::vector<FileOperation>& good, std::size_t place, const Fault& fault,
                         const std::optional<ReportedError>& reported)
                     {
                         if (!IsHindrance(good[place], fault.Then))
                         {
                             EXPECT_FALSE(reported.has_value());
                             return;
                         }
                         ASSERT_TRUE(reported.has_value());
                         EXPECT_TRUE(reported->Number == NumberOf(good[place].What, fault.Error) ||
                                     !IsHindrance(good[place], After::AllIsWell))
                             << reported->Number;
                         EXPECT_TRUE(reported->Description.ends_with(": " + path)) << reported->Description;
                         Contents left = FilesIn(Folder.Path());
                         std::erase_if(left, [](const auto& file) { return file.first.ends_with(".tmp"); });
                         const bool isReplaced = good[place].What == FileOperation::FlushFolder;
                         EXPECT_EQ(left, isReplaced ? Contents({{"export.csv", written}}) : old);
                         ExpectNoStray(Folder.Path(), fault.Then);
                         const WatchedFiles none;
                         GetParam().Write(path);
                         EXPECT_EQ(ReadBytes(Folder.Path() / "export.csv"), written) << "a second try";
                         EXPECT_TRUE(TemporaryFilesIn(Folder.Path()).empty())
                             << "which takes its stray along";
                     });
    }
};

TEST_P(ExportFailure, LeavesAnOlderFile)
{
    ExpectOldOrNew({{"export.csv", "older"}});
}

TEST_P(ExportFailure, LeavesNoFileWhereThereWasNone)
{
    ExpectOldOrNew({});
}

INSTANTIATE_TEST_SUITE_P(All, ExportFailure, testing::ValuesIn(Exports),
                         [](const auto& tried) { return std::string(tried.param.Name); });

} // namespace

// Every call on a file fails in its turn, for everything that the program writes: each file keeps its old
// content whole or has its new one whole, the error says which file, and the next start works.

#include "data/Errors.h"
#include "data/Files.h"
#include "data/modData.h"
#include "ects/EctsReport.h"
#include "support/Catalogue.h"
#include "support/FailingCalls.h"
#include "support/TestFolder.h"
#include "ui/department_stats/DepartmentStatistics.h"
#include "ui/lecturer_stats/LecturerStatistics.h"
#include "ui/main/CatalogueExport.h"
#include "ui/main/StatistikaExport.h"

#include <gtest/gtest.h>

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
using After = FailingCalls::After;

constexpr const char* TableFiles[] = {
    "db_zavod.csv",   "db_nastavnici.csv",    "db_studij.csv",           "db_smjer.csv",
    "db_kolegij.csv", "db_kolegij_smjer.csv", "db_kolegij_nastavnik.csv"};

/// A way for a call to fail.
struct Fault
{
    After Then;
    int OpenErrno;
};
constexpr Fault Faults[] = {
    {After::AllIsWell, EACCES},
#ifndef _WIN32 // The calls are the same ones there, and under an emulator each of them is slow.
    {After::AllIsWell, ENOSPC},
    {After::NothingIsGone, ENOSPC},
    {After::NothingWorks, EACCES},
#endif
};

/// The number and the path that an error names.
struct Told
{
    int Number;
    std::string Description;
};

std::optional<Told> ErrorOf(const std::function<void()>& action)
{
    try
    {
        action();
    }
    catch (const FileError& error)
    {
        return Told{error.Number(), error.Description()};
    }
    return std::nullopt;
}

/// The number of the error that a failed call ends in.
int NumberOf(FileCall call, int openErrno)
{
    switch (call)
    {
    case FileCall::Open:
    case FileCall::Replace:
        return openErrno == ENOSPC ? 61 : 70;
    case FileCall::Write:
        return 61;
    default:
        return 57;
    }
}

std::string FileName(const FileCallMade& call)
{
    return call.File.filename().string();
}

/// A call for the former content's copy, which is a kindness; the save goes on without it.
bool IsForTheCopy(const FileCallMade& call)
{
    return call.Reading || FileName(call).find(".csv.bak") != std::string::npos;
}

std::string Describe(std::size_t number, const Fault& fault, const FileCallMade& call)
{
    constexpr const char* kinds[] = {"open", "write", "flush", "close", "replace", "remove"};
    return "call " + std::to_string(number) + ", " + kinds[static_cast<std::size_t>(call.Kind)] + " " +
           FileName(call) + ", then " + std::to_string(static_cast<int>(fault.Then)) + ", errno " +
           std::to_string(fault.OpenErrno);
}

/// Runs an action with each of its calls failing in turn, in each way. `prepare` comes before each run,
/// `check` after it, with the calls as a good run makes them and the place of the failed one among them.
void FailEachCall(const std::function<void()>& prepare, const std::function<void()>& action,
                  const std::function<void(const std::vector<FileCallMade>&, std::size_t place, const Fault&,
                                           const std::optional<Told>&)>& check)
{
    prepare();
    std::vector<FileCallMade> good;
    {
        const FailingCalls none;
        action();
        good = none.Made();
    }
    ASSERT_FALSE(good.empty());
    for (const Fault& fault : Faults)
        for (std::size_t place = 0; place < good.size(); ++place)
        {
            SCOPED_TRACE(Describe(place + 1, fault, good[place]));
            prepare();
            std::optional<Told> told;
            {
                const FailingCalls failing(place + 1, fault.Then, fault.OpenErrno);
                told = ErrorOf(action);
            }
            check(good, place, fault, told);
            if (testing::Test::HasFailure())
                return; // one is enough to read
        }
}

/// The calls of a good run, one word each.
std::string CallsOf(const std::function<void()>& action)
{
    constexpr const char* words[] = {"open ", "write ", "flush ", "close ", "replace ", "remove "};
    const FailingCalls none;
    action();
    std::string calls;
    for (const FileCallMade& call : none.Made())
        calls += (call.Kind == FileCall::Open && call.Reading) ? "read "
                                                               : words[static_cast<std::size_t>(call.Kind)];
    return calls;
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

    /// Puts exactly these files into a folder.
    static void Restore(const fs::path& folder, const Contents& files)
    {
        for (const std::string& name : EntriesOf(folder))
            if (fs::is_regular_file(folder / name))
                fs::remove(folder / name);
        for (const auto& [name, content] : files)
            WriteBytes(folder / name, content);
    }

    /// What stays of a failed write beside a file: nothing, unless even removing fails.
    static void ExpectNoStray(const fs::path& folder, After then)
    {
        if (then == After::AllIsWell)
            EXPECT_TRUE(TemporaryFilesIn(folder).empty()) << testing::PrintToString(TemporaryFilesIn(folder));
        else
            EXPECT_LE(TemporaryFilesIn(folder).size(), 2U);
    }

    TestFolder Folder;
};

// The order of the calls

TEST_F(WriteFailure, AFileIsOnTheDiskBeforeItTakesTheOldOnesPlace)
{
    const std::string path = Folder.PathOf("file.csv");
    EXPECT_EQ(CallsOf([&] { ReplaceFile(path, "new"); }), "open write flush close replace ");
    EXPECT_EQ(CallsOf([&] { ReplaceFile(path, "newer"); }), "open write flush close replace ");
    EXPECT_EQ(CallsOf([&] { ReplaceFile(path, "newest", Former::Kept); }),
              "open write flush close read close open write flush close replace replace ");
}

// The save

/// The tables differ from each of the seven files, two of which have an older copy.
class SaveFailure : public WriteFailure
{
protected:
    SaveFailure()
    {
        SmallCatalogue().WriteTo(Folder.Data());
        for (const auto& [name, content] : DataFiles())
            WriteBytes(Folder.Data() / name, content + "\r\n"); // a blank line, which no save writes
        Old = DataFiles();
        Copies = {{"db_studij.csv.bak", "older"}, {"db_kolegij.csv.bak", "older"}};
        Before = Old;
        Before.insert(Copies.begin(), Copies.end());
        SmallCatalogue().Use();
        modData::SaveAllTables();
        for (const char* name : TableFiles)
            New[name] = ReadBytes(Folder.Data() / name);
    }

    /// Expects that the copy of a file's former content is whole: this one, the one before it, or none.
    void ExpectWholeCopy(const std::string& name)
    {
        const fs::path copy = Folder.Data() / (name + ".bak");
        const auto older = Copies.find(name + ".bak");
        const bool hadOlder = older != Copies.end();
        if (!fs::exists(copy))
        {
            EXPECT_FALSE(hadOlder) << "the older copy of " << name << " is lost";
            return;
        }
        const std::string content = ReadBytes(copy);
        EXPECT_TRUE(content == Old[name] || (hadOlder && content == older->second))
            << name << ": " << content;
    }

    /// Expects that the first `saved` files are new and the others old.
    void ExpectSaved(std::size_t saved)
    {
        for (std::size_t i = 0; i < std::size(TableFiles); ++i)
        {
            const std::string name = TableFiles[i];
            EXPECT_EQ(ReadBytes(Folder.Data() / name), i < saved ? New[name] : Old[name]) << name;
            ExpectWholeCopy(name);
        }
    }

    /// Starts and leaves again, with whatever lies in the folder.
    void ExpectNextStartWorks()
    {
        const FailingCalls none;
        ASSERT_NO_THROW(modData::LoadAllTables());
        EXPECT_EQ(modData::Kolegiji.RowCount(), SmallCatalogue().Kolegiji.size());
        EXPECT_EQ(modData::Zavodi.RowCount(), SmallCatalogue().Zavodi.size());
        ASSERT_NO_THROW(modData::SaveAllTables());
        ExpectSaved(std::size(TableFiles));
    }

    static std::size_t PlaceOfTable(const FileCallMade& call)
    {
        for (std::size_t i = 0; i < std::size(TableFiles); ++i)
            if (FileName(call).starts_with(TableFiles[i]))
                return i;
        return std::size(TableFiles);
    }

    Contents Old;
    Contents New;
    Contents Copies;
    Contents Before;
};

TEST_F(SaveFailure, LeavesTheFilesBeforeItNewAndTheOthersOld)
{
    const auto prepare = [this]
    {
        SmallCatalogue().Use();
        Restore(Folder.Data(), Before);
    };
    FailEachCall(prepare, modData::SaveAllTables,
                 [this](const std::vector<FileCallMade>& good, std::size_t place, const Fault& fault,
                        const std::optional<Told>& told)
                 {
                     const FileCallMade& failed = good[place];
                     const std::size_t table = PlaceOfTable(failed);
                     ASSERT_LT(table, std::size(TableFiles));
                     const bool hinders = !IsForTheCopy(failed) || fault.Then == After::NothingWorks;
                     ASSERT_EQ(told.has_value(), hinders);
                     if (hinders)
                     {
                         const FileCall telling = IsForTheCopy(failed) ? FileCall::Replace : failed.Kind;
                         EXPECT_EQ(told->Number, NumberOf(telling, fault.OpenErrno)) << told->Description;
                         EXPECT_TRUE(told->Description.ends_with(": " + Folder.DataPath(TableFiles[table])))
                             << told->Description;
                     }
                     ExpectSaved(hinders ? table : std::size(TableFiles));
                     ExpectNoStray(Folder.Data(), fault.Then);
                     ExpectNextStartWorks();
                 });
}

TEST_F(SaveFailure, OfEveryFileIsTried)
{
    Restore(Folder.Data(), Before);
    const FailingCalls none;
    modData::SaveAllTables();
    EXPECT_EQ(none.Made().size(), 12 * std::size(TableFiles));
}

TEST_F(SaveFailure, DoesNotChangeWhatIsInMemory)
{
    Restore(Folder.Data(), Before);
    const std::vector<std::string> before = LinesOf(modData::Kolegiji);
    {
        const FailingCalls failing(1, After::NothingWorks, ENOSPC);
        EXPECT_TRUE(ErrorOf(modData::SaveAllTables).has_value());
    }
    EXPECT_EQ(LinesOf(modData::Kolegiji), before);
    EXPECT_NO_THROW(modData::SaveAllTables()) << "a second try works";
    ExpectSaved(std::size(TableFiles));
}

TEST_F(SaveFailure, StraysOfOtherRunsAreInNobodysWay)
{
    for (const char* name : TableFiles)
    {
        WriteBytes(Folder.Data() / (std::string(name) + ".4711.tmp"), "half a l");
        WriteBytes(Folder.Data() / (std::string(name) + ".bak.4711.tmp"), "half a l");
        WriteBytes(TemporaryNameFor(Folder.Data() / name), "half a line of a process of the same number");
    }
    modData::Zavodi.Append({"3", "Treći", "T"});
    ASSERT_NO_THROW(modData::SaveAllTables());
    ASSERT_NO_THROW(modData::LoadAllTables());
    EXPECT_EQ(modData::Zavodi.RowCount(), SmallCatalogue().Zavodi.size() + 1);
    EXPECT_EQ(TemporaryFilesIn(Folder.Data()).size(), 2 * std::size(TableFiles)) << "its own are gone";
}

// The step that brings a file to windows-1250, and the load around it

class EncodingFailure : public SaveFailure
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

    /// A read that ends in a failing close has read all the same.
    static bool Hinders(const FileCallMade& call, After then)
    {
        return !(call.Reading && call.Kind == FileCall::Close) || then == After::NothingWorks;
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
        [&](const std::vector<FileCallMade>& good, std::size_t place, const Fault& fault,
            const std::optional<Told>& told)
        {
            const bool hinders = Hinders(good[place], fault.Then);
            ASSERT_EQ(told.has_value(), hinders);
            if (hinders)
            {
                EXPECT_TRUE(told->Description.ends_with(": " + Folder.DataPath(name)));
            }
            EXPECT_EQ(ReadBytes(Folder.Data() / name), hinders ? Marked[name] : Plain[name]);
            ExpectNoStray(Folder.Data(), fault.Then);
            const FailingCalls none;
            EXPECT_NO_THROW(modData::LoadZavodi());
            EXPECT_EQ(LinesOf(modData::Zavodi), (std::vector<std::string>{"1;Zavod za \u017Eito;\u0110"}));
        });
}

TEST_F(EncodingFailure, WhileTheTablesAreLoadedLeavesEachFileMarkedOrConverted)
{
    FailEachCall([&] { Restore(Folder.Data(), Marked); }, modData::LoadAllTables,
                 [&](const std::vector<FileCallMade>& good, std::size_t place, const Fault& fault,
                     const std::optional<Told>& told)
                 {
                     const std::size_t table = PlaceOfTable(good[place]);
                     ASSERT_LT(table, std::size(TableFiles));
                     const bool atTheVeryEnd = place + 1 == good.size(); // a read that has all it needs
                     const bool hinders = Hinders(good[place], fault.Then) && !atTheVeryEnd;
                     ASSERT_EQ(told.has_value(), hinders);
                     if (Hinders(good[place], After::AllIsWell))
                     {
                         const std::string path = Folder.DataPath(TableFiles[table]);
                         EXPECT_TRUE(told->Description.ends_with(": " + path)) << told->Description;
                         EXPECT_EQ(told->Number, NumberOf(good[place].Kind, fault.OpenErrno));
                     }
                     for (std::size_t i = 0; i < std::size(TableFiles); ++i)
                     {
                         const std::string content = ReadBytes(Folder.Data() / TableFiles[i]);
                         const std::string& plain = Plain[TableFiles[i]];
                         const bool converted = content == plain;
                         const bool marked = content == Marked[TableFiles[i]];
                         EXPECT_TRUE(i < table || !hinders ? converted : marked || (i == table && converted))
                             << TableFiles[i] << ": " << content;
                     }
                     ExpectNoStray(Folder.Data(), fault.Then);
                     const FailingCalls none;
                     EXPECT_NO_THROW(modData::LoadAllTables());
                     EXPECT_EQ(DataFiles()["db_zavod.csv"], Plain["db_zavod.csv"]);
                 });
}

TEST_F(EncodingFailure, WhileAMissingFileIsMadeLeavesNone)
{
    const fs::path file = Folder.Data() / "db_zavod.csv";
    const FailingCalls failing(1, After::AllIsWell, ENOSPC);
    fs::remove(file);
    const std::optional<Told> told =
        ErrorOf([&] { modData::NormalizeFileEncoding(Folder.DataPath("db_zavod.csv")); });
    ASSERT_TRUE(told.has_value());
    EXPECT_EQ(told->Number, 61);
    EXPECT_FALSE(fs::exists(file));
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
                     [&](const std::vector<FileCallMade>& good, std::size_t place, const Fault& fault,
                         const std::optional<Told>& told)
                     {
                         EXPECT_EQ(good.size(), 5U);
                         ASSERT_TRUE(told.has_value());
                         EXPECT_EQ(told->Number, NumberOf(good[place].Kind, fault.OpenErrno));
                         EXPECT_TRUE(told->Description.ends_with(": " + path)) << told->Description;
                         Contents left = FilesIn(Folder.Path());
                         std::erase_if(left, [](const auto& file) { return file.first.ends_with(".tmp"); });
                         EXPECT_EQ(left, old);
                         ExpectNoStray(Folder.Path(), fault.Then);
                         const FailingCalls none;
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

// The catalogue is saved whole or not at all, after any failure and any end of the program.

#include "data/CatalogueSave.h"
#include "data/DatedCopies.h"
#include "data/Errors.h"
#include "data/Files.h"
#include "data/modData.h"
#include "support/Catalogue.h"
#include "support/TestFolder.h"
#include "support/WatchedFiles.h"
#include "validation/modCSVValidator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <thread>

namespace fs = std::filesystem;

namespace
{

using Contents = std::map<std::string, std::string>;
constexpr fs::perms AnyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;

class CatalogueSaving : public testing::Test
{
protected:
    CatalogueSaving()
    {
        DatedCopies::CurrentTime = [] { return std::string("2026-11-21_143005"); };
        RenumberedCatalogue().WriteTo(Folder.Data());
        New = Tables(Folder.Data());
        SmallCatalogue().WriteTo(Folder.Data());
        Old = Tables(Folder.Data());
        RenumberedCatalogue().Use();
    }
    ~CatalogueSaving() override { DatedCopies::CurrentTime = FormerClock; }

    /// The tables' files in a folder, by name.
    static Contents Tables(const fs::path& folder)
    {
        Contents files;
        for (const modData::Table* table : modData::AllTables())
            if (const fs::path file = folder / table->Layout().FileName; fs::exists(file))
                files[std::string(table->Layout().FileName)] = ReadBytes(file);
        return files;
    }

    Contents OnDisk() const { return Tables(Folder.Data()); }
    fs::path Set() const { return Folder.Data() / "spremanje"; }
    fs::path Kept(const std::string& name) const { return Folder.Data() / "kopije" / name; }
    fs::path Copy() const { return Kept("2026-11-21_143005"); }

    /// Makes a folder with only the old catalogue, and the new catalogue in memory.
    void Prepare()
    {
        fs::remove_all(Folder.Data());
        fs::create_directory(Folder.Data());
        for (const auto& [name, content] : Old)
            WriteBytes(Folder.Data() / name, content);
        RenumberedCatalogue().Use();
    }

    /// Saves while an operation fails; true if that was reported.
    static bool SaveFails(std::size_t failing, const Fault& fault)
    {
        const WatchedFiles watched(failing, fault);
        try
        {
            modData::SaveAllTables();
            return false;
        }
        catch (const RuntimeError&)
        {
            return true;
        }
    }

    /// The operations of a save without failures.
    std::vector<FileOperation> GoodSave()
    {
        Prepare();
        const WatchedFiles watched;
        modData::SaveAllTables();
        return watched.Made();
    }

    /// The number of the operation that marks the set complete, from 1.
    static std::size_t MarkIn(const std::vector<FileOperation>& operations)
    {
        const auto mark = std::ranges::find_if(
            operations, [](const FileOperation& operation)
            { return operation.What == FileOperation::Rename && operation.NewName.filename() == "gotovo"; });
        EXPECT_NE(mark, operations.end());
        return static_cast<std::size_t>(mark - operations.begin()) + 1;
    }

    /// Starts the program; it must load one whole catalogue and leave nothing unfinished.
    void ExpectWholeAfterStart(bool mustBeNew)
    {
        {
            const WatchedFiles watched;
            ASSERT_NO_THROW(modData::LoadAllTables());
        }
        EXPECT_TRUE(modCSVValidator::ValidateAll());
        const bool isNew = OnDisk() == New;
        EXPECT_TRUE(isNew || OnDisk() == Old) << "a mixture";
        EXPECT_TRUE(isNew || !mustBeNew) << "the changes are lost";
        EXPECT_EQ(modData::Kolegiji.RowCount(),
                  (isNew ? RenumberedCatalogue() : SmallCatalogue()).Kolegiji.size());
        EXPECT_FALSE(fs::exists(Set()));
        EXPECT_TRUE(TemporaryFilesIn(Folder.Data()).empty());
    }

    /// Ends a save just after its set is marked complete.
    void LeaveCompleteSet()
    {
        const std::size_t mark = MarkIn(GoodSave());
        Prepare();
        SaveFails(mark + 1, {After::NothingWorks});
        ASSERT_EQ(OnDisk(), Old);
        ASSERT_TRUE(fs::exists(Set() / "gotovo"));
    }

    TestFolder Folder;
    Contents Old;
    Contents New;
    std::string (*FormerClock)() = DatedCopies::CurrentTime;
};

// The steps

TEST_F(CatalogueSaving, TakesItsStepsInOrderAndFlushesEach)
{
    Prepare();
    const WatchedFiles watched;
    modData::SaveAllTables();

    std::vector<std::string> expected = {"make folder spremanje"};
    const auto expectWritten = [&](const std::string& file)
    {
        for (const char* step : {"open ", "write ", "take access ", "flush "})
            expected.push_back(step + file);
    };
    const auto expect = [&](const std::vector<std::string>& steps)
    { expected.insert(expected.end(), steps.begin(), steps.end()); };
    for (const modData::Table* table : modData::AllTables())
        expectWritten("spremanje/" + std::string(table->Layout().FileName));
    expect({"flush folder spremanje", "flush folder ."});
    expectWritten("spremanje/gotovo.tmp");
    expect({"rename spremanje/gotovo.tmp to spremanje/gotovo", "flush folder spremanje"});

    expect({"make folder kopije", "flush folder .", "make folder kopije/2026-11-21_143005.dio"});
    for (const modData::Table* table : modData::AllTables())
        expectWritten("kopije/2026-11-21_143005.dio/" + std::string(table->Layout().FileName));
    expect({"flush folder kopije/2026-11-21_143005.dio",
            "rename kopije/2026-11-21_143005.dio to kopije/2026-11-21_143005", "flush folder kopije"});

    for (const char* name : {"db_kolegij.csv", "db_kolegij_smjer.csv", "db_kolegij_nastavnik.csv"})
    {
        const std::string file = name;
        expectWritten(file + ".N.tmp");
        expect({"rename " + file + ".N.tmp to " + file, "flush folder ."});
    }
    expect({"remove spremanje/gotovo", "flush folder spremanje"});
    for (const modData::Table* table : modData::AllTables())
        expect({"remove spremanje/" + std::string(table->Layout().FileName)});
    expect({"remove folder spremanje"});

    const std::vector<std::string> made = watched.Effects(Folder.Data());
    for (std::size_t i = 0; i < std::min(made.size(), expected.size()); ++i)
        ASSERT_EQ(made[i], expected[i]) << "step " << i;
    EXPECT_EQ(made.size(), expected.size());
}

TEST_F(CatalogueSaving, WaitsForTheLockBeforeAnythingElse)
{
    Prepare();
    const WatchedFiles watched;
    modData::SaveAllTables();
    const auto lock = std::ranges::find(watched.Made(), FileOperation::Lock, &FileOperation::What);
    ASSERT_NE(lock, watched.Made().end());
    EXPECT_EQ(lock->File, Folder.Data());
    EXPECT_TRUE(std::none_of(watched.Made().begin(), lock,
                             [&](const FileOperation& operation) { return operation.HasEffect; }));
}

TEST_F(CatalogueSaving, LeavesTheNewTablesAndACopyOfTheOldOnes)
{
    modData::SaveAllTables();
    EXPECT_EQ(OnDisk(), New);
    EXPECT_EQ(Tables(Copy()), Old);
    EXPECT_EQ(EntriesOf(Folder.Data()).size(), 8U) << "the tables and kopije";
    EXPECT_EQ(EntriesOf(Folder.Data() / "kopije").size(), 1U);
}

TEST_F(CatalogueSaving, WithoutChangesWritesEachFileByItselfAndKeepsNoCopy)
{
    SmallCatalogue().Use();
    const WatchedFiles watched;
    modData::SaveAllTables();
    std::vector<std::string> expected;
    for (const modData::Table* table : modData::AllTables())
    {
        const std::string file(table->Layout().FileName);
        const std::string temporary = file + ".N.tmp";
        for (const std::string& step :
             {"open " + temporary, "write " + temporary, "take access " + temporary, "flush " + temporary,
              "rename " + temporary + " to " + file, std::string("flush folder .")})
            expected.push_back(step);
    }
    EXPECT_EQ(watched.Effects(Folder.Data()), expected);
    EXPECT_EQ(EntriesOf(Folder.Data()).size(), 7U);
}

TEST_F(CatalogueSaving, ASecondSaveOfTheSameMakesNoSecondCopy)
{
    modData::SaveAllTables();
    modData::SaveAllTables();
    EXPECT_EQ(EntriesOf(Folder.Data() / "kopije").size(), 1U);
}

TEST_F(CatalogueSaving, ASaveOfOneTableReplacesItsOwnFile)
{
    modData::SaveKolegiji();
    Contents expected = Old;
    expected["db_kolegij.csv"] = New["db_kolegij.csv"];
    EXPECT_EQ(OnDisk(), expected);
    EXPECT_EQ(EntriesOf(Folder.Data()).size(), 7U);
}

TEST_F(CatalogueSaving, SavesIntoAFolderThatIsGone)
{
    fs::remove_all(Folder.Data());
    modData::SaveAllTables();
    EXPECT_EQ(OnDisk(), New);
    EXPECT_EQ(EntriesOf(Folder.Data()).size(), 7U) << "there was nothing to copy";
}

TEST_F(CatalogueSaving, WhereAFileIsMissingWritesASet)
{
    const std::string mark = "rename spremanje/gotovo.tmp to spremanje/gotovo";
    const auto marks = [&](const WatchedFiles& watched)
    { return std::ranges::count(watched.Effects(Folder.Data()), mark); };
    for (const std::string& name : EntriesOf(Folder.Data()))
    {
        Prepare();
        SmallCatalogue().Use();
        fs::remove(Folder.Data() / name);
        const WatchedFiles watched;
        modData::SaveAllTables();
        EXPECT_EQ(marks(watched), 1) << name;
    }
}

// Every operation

TEST_F(CatalogueSaving, TheProgramMayEndAfterAnyOperation)
{
    const std::vector<FileOperation> good = GoodSave();
    const std::size_t mark = MarkIn(good);
    for (std::size_t last = 0; last < good.size(); last += FailingStep(good.size()))
    {
        const Fault end = {After::NothingWorks};
        SCOPED_TRACE(Describe(last + 1, good[last], end));
        Prepare();
        SaveFails(last + 1, end);
        ExpectWholeAfterStart(last >= mark);
        if (OnDisk() == New)
        {
            EXPECT_EQ(Tables(Copy()), Old) << "no copy";
        }
        if (HasFailure())
            return; // one failure is enough
    }
}

TEST_F(CatalogueSaving, AnyOperationMayBeRefused)
{
    const std::vector<FileOperation> good = GoodSave();
    const std::size_t mark = MarkIn(good);
    for (const Fault& fault : Faults)
        for (std::size_t place = 0; place < good.size(); place += FailingStep(good.size()))
        {
            SCOPED_TRACE(Describe(place + 1, good[place], fault));
            Prepare();
            const bool isReported = SaveFails(place + 1, fault);
            EXPECT_TRUE(isReported || OnDisk() == New) << "neither an error nor the changes";
            const bool isMarked = fs::exists(Set() / "gotovo");
            if (isReported && !isMarked)
            {
                EXPECT_EQ(OnDisk(), place < mark ? Old : New) << "untouched before the mark, whole after it";
            }
            ExpectWholeAfterStart(place >= mark || isMarked || !isReported);
            if (HasFailure())
                return;
        }
}

TEST_F(CatalogueSaving, AnyOperationMayBeRefusedWhileAStartFinishes)
{
    LeaveCompleteSet();
    std::size_t count = 0;
    {
        const WatchedFiles watched;
        modData::LoadAllTables();
        count = watched.Made().size();
    }
    for (const Fault& fault : Faults)
        for (std::size_t place = 0; place < count; place += FailingStep(count))
        {
            SCOPED_TRACE(testing::Message() << "operation " << place + 1 << " of the start, then "
                                            << static_cast<int>(fault.Then));
            LeaveCompleteSet();
            SmallCatalogue().Use();
            {
                const WatchedFiles watched(place + 1, fault);
                try
                {
                    modData::LoadAllTables();
                    EXPECT_EQ(OnDisk(), New);
                }
                catch (const SaveNotFinished&)
                {
                    EXPECT_EQ(LinesOf(modData::Kolegiji).front(), "1;Uvod u lov;2;1;0;5;obvezni;1;1")
                        << "loaded all the same";
                }
                catch (const RuntimeError&)
                {
                }
            }
            ExpectWholeAfterStart(true);
            if (HasFailure())
                return;
        }
}

TEST_F(CatalogueSaving, AFailureBeforeTheMarkNamesTheFileAndLeavesNoSet)
{
    const std::vector<FileOperation> good = GoodSave();
    const auto write = std::ranges::find(good, FileOperation::Write, &FileOperation::What);
    Prepare();
    const WatchedFiles watched(static_cast<std::size_t>(write - good.begin()) + 1);
    try
    {
        modData::SaveAllTables();
        FAIL() << "no error";
    }
    catch (const FileError& error)
    {
        EXPECT_EQ(error.what(),
                  "Na disku nema dovoljno mjesta: " + PathIn(Folder.DataPath("spremanje"), "db_zavod.csv"));
    }
    EXPECT_EQ(OnDisk(), Old);
    EXPECT_EQ(EntriesOf(Folder.Data()).size(), 7U);
}

#ifndef _WIN32 // Windows has no read-only folders

TEST_F(CatalogueSaving, AReadOnlyFolderIsRefusedEvenToRoot)
{
    fs::permissions(Folder.Data(), AnyWrite, fs::perm_options::remove);
    EXPECT_THROW(modData::SaveAllTables(), FileError);
    fs::permissions(Folder.Data(), fs::perms::owner_write, fs::perm_options::add);
    EXPECT_EQ(OnDisk(), Old);
    EXPECT_EQ(EntriesOf(Folder.Data()).size(), 7U);
}

#endif

// A file that may not be replaced

class HeldFile : public CatalogueSaving
{
protected:
    void Hold(bool isHeld)
    {
        fs::permissions(File, AnyWrite, isHeld ? fs::perm_options::remove : fs::perm_options::add);
    }
    ~HeldFile() override
    {
        if (fs::exists(File))
            Hold(false);
    }

    /// The description of the SaveNotFinished that an action ends with.
    std::string NotFinished(void (*action)())
    {
        try
        {
            action();
        }
        catch (const SaveNotFinished& error)
        {
            EXPECT_EQ(error.Number(), 70);
            return error.what();
        }
        return "no error";
    }

    fs::path File = Folder.Data() / "db_kolegij_smjer.csv";
    std::string Report =
        "Pristup nije dopušten; datoteka je možda zaštićena od pisanja ili otvorena u drugom programu: " +
        Folder.DataPath("db_kolegij_smjer.csv") +
        "\r\n\r\nPromjene su sačuvane, ali još nisu upisane u sve datoteke kataloga. Ne uređujte te "
        "datoteke. Zatvorite druge programe koji ih koriste i ponovno pokrenite Varlostudije: spremanje će "
        "se dovršiti.";
};

TEST_F(HeldFile, IsReportedAndTheNextStartFinishes)
{
    Hold(true);
    EXPECT_EQ(NotFinished(modData::SaveAllTables), Report);
    EXPECT_EQ(OnDisk()["db_kolegij.csv"], New["db_kolegij.csv"]) << "replaced before it";
    EXPECT_EQ(OnDisk()["db_kolegij_smjer.csv"], Old["db_kolegij_smjer.csv"]);
    Hold(false);
    ExpectWholeAfterStart(true);
    EXPECT_EQ(Tables(Copy()), Old);
}

TEST_F(HeldFile, ThatIsStillHeldEndsTheStartWithNothingLoaded)
{
    Hold(true);
    EXPECT_EQ(NotFinished(modData::SaveAllTables), Report);
    SmallCatalogue().Use();
    EXPECT_EQ(NotFinished(modData::LoadAllTables), Report);
    EXPECT_EQ(modData::Kolegiji.RowCount(), SmallCatalogue().Kolegiji.size());
    Hold(false);
    ExpectWholeAfterStart(true);
}

TEST_F(HeldFile, ThatWasEditedMeanwhileIsKeptAsItIs)
{
    Hold(true);
    EXPECT_EQ(NotFinished(modData::SaveAllTables), Report);
    Hold(false);
    WriteBytes(File, "edited");
    ExpectWholeAfterStart(true);
    EXPECT_EQ(Tables(Copy()), Old);
    EXPECT_EQ(ReadBytes(Kept("2026-11-21_143005_2") / "db_kolegij_smjer.csv"), "edited");
    EXPECT_EQ(EntriesOf(Folder.Data() / "kopije").size(), 2U);
}

TEST_F(HeldFile, ThatWasEditedIsKeptOnceAfterSeveralFailedStarts)
{
    Hold(true);
    EXPECT_EQ(NotFinished(modData::SaveAllTables), Report);
    Hold(false);
    WriteBytes(File, "edited");
    Hold(true);
    EXPECT_EQ(NotFinished(modData::LoadAllTables), Report);
    EXPECT_EQ(NotFinished(modData::LoadAllTables), Report);
    EXPECT_EQ(EntriesOf(Folder.Data() / "kopije").size(), 2U);
}

TEST_F(HeldFile, WhoseEditCannotBeKeptIsNotReplaced)
{
    Hold(true);
    EXPECT_EQ(NotFinished(modData::SaveAllTables), Report);
    Hold(false);
    WriteBytes(File, "edited");
    {
        const WatchedFiles watched;
        System::Files.MakeFolder = [](const fs::path&)
        { return std::make_error_code(std::errc::no_space_on_device); };
        EXPECT_THROW(modData::LoadAllTables(), SaveNotFinished);
    }
    EXPECT_EQ(ReadBytes(File), "edited");
    ExpectWholeAfterStart(true);
    EXPECT_EQ(ReadBytes(Kept("2026-11-21_143005_2") / "db_kolegij_smjer.csv"), "edited");
}

// A set of another save

TEST_F(CatalogueSaving, FinishesACompleteSetBeforeItWritesItsOwn)
{
    LeaveCompleteSet();
    modData::Zavodi.Append({"3", "Treći", "T"});
    modData::SaveAllTables();
    EXPECT_EQ(Tables(Kept("2026-11-21_143005")), Old);
    EXPECT_EQ(Tables(Kept("2026-11-21_143005_2")), New) << "the set's catalogue was there for a moment";
    EXPECT_TRUE(OnDisk()["db_zavod.csv"].ends_with("3;Tre\xE6i;T\r\n"));
    EXPECT_FALSE(fs::exists(Set()));
}

TEST_F(HeldFile, OfACompleteSetIsNoReasonToLoseTheSet)
{
    Hold(true);
    EXPECT_EQ(NotFinished(modData::SaveAllTables), Report);
    modData::Zavodi.Append({"3", "Treći", "T"});
    EXPECT_EQ(NotFinished(modData::SaveAllTables), Report);
    const fs::path aside = Kept("2026-11-21_143005_2-nedovrseno");
    EXPECT_EQ(Tables(aside), New);
    EXPECT_TRUE(fs::exists(aside / "gotovo"));
    Hold(false);
    modData::LoadAllTables();
    EXPECT_EQ(modData::Zavodi.RowCount(), 3U) << "the last save wins";
    EXPECT_TRUE(fs::exists(aside)) << "and nothing removes the other";
}

TEST_F(CatalogueSaving, AnIncompleteSetIsRemovedAtAStartAndReplacedByASave)
{
    for (const bool saves : {false, true})
    {
        Prepare();
        fs::create_directory(Set());
        WriteBytes(Set() / "db_zavod.csv", "half");
        WriteBytes(Set() / "gotovo.tmp", "");
        saves ? modData::SaveAllTables() : modData::LoadAllTables();
        EXPECT_EQ(OnDisk(), saves ? New : Old);
        EXPECT_FALSE(fs::exists(Set()));
    }
}

TEST_F(CatalogueSaving, OtherFilesInTheSetsFolderStay)
{
    fs::create_directory(Set());
    WriteBytes(Set() / "note.txt", "mine");
    modData::SaveAllTables();
    modData::LoadAllTables();
    EXPECT_EQ(OnDisk(), New);
    EXPECT_EQ(EntriesOf(Set()), std::vector<std::string>{"note.txt"});
}

TEST_F(CatalogueSaving, AMarkThatNamesNoCopyStillCompletesTheSet)
{
    for (const char* name : {"", "../../elsewhere", "2026-11-21"})
    {
        LeaveCompleteSet();
        WriteBytes(Set() / "gotovo", name);
        ExpectWholeAfterStart(true);
        EXPECT_EQ(Tables(Copy()), Old);
    }
}

// What a program that was ended has left

TEST_F(CatalogueSaving, AStartRemovesOldTemporaryFilesAndNoOthers)
{
    SmallCatalogue().Use();
    for (const char* name : {"db_zavod.csv.4711.tmp", "db_kolegij.csv.1.tmp", "db_studij.csv.bak.12.tmp"})
        WriteBytes(Folder.Data() / name, "half a l");
    const std::vector<std::string> others = {
        "db_zavod.csv.tmp", "db_zavod.csv.x1.tmp", "db_zavod.csv..tmp", "db_zavod.csv.1.bak",
        "db_zavod.csv.bak", "db_other.csv.1.tmp",  "mine.1.tmp"};
    for (const std::string& name : others)
        WriteBytes(Folder.Data() / name, "kept");
    modData::LoadAllTables();
    for (const std::string& name : others)
        EXPECT_TRUE(fs::exists(Folder.Data() / name)) << name;
    EXPECT_EQ(EntriesOf(Folder.Data()).size(), 7 + others.size());
}

TEST_F(CatalogueSaving, AStartWithoutALockRemovesNothing)
{
    SmallCatalogue().Use();
    WriteBytes(Folder.Data() / "db_zavod.csv.4711.tmp", "another program's");
    fs::create_directory(Set());
    const WatchedFiles watched;
    System::Files.Lock = [](const fs::path&, LockKind, int, FileOperations::Handle&)
    { return std::make_error_code(std::errc::not_supported); };
    modData::LoadAllTables();
    EXPECT_TRUE(fs::exists(Folder.Data() / "db_zavod.csv.4711.tmp"));
    EXPECT_TRUE(fs::exists(Set()));
    RenumberedCatalogue().Use();
    modData::SaveAllTables();
    EXPECT_EQ(OnDisk(), New) << "a save goes on without one, too";
}

// Locks

class CatalogueLocks : public CatalogueSaving
{
protected:
    /// Holds the lock for saving on another thread while an action begins; returns the time that the action
    /// took.
    template<typename Action>
    std::chrono::milliseconds TimeWhileLocked(Action action)
    {
        using Clock = std::chrono::steady_clock;
        std::atomic<bool> isHeld = false;
        std::jthread other(
            [&]
            {
                const CatalogueLock saving(Folder.DataPath(""), LockKind::Saving);
                isHeld = saving.IsHeld();
                std::this_thread::sleep_for(std::chrono::milliseconds(300));
            });
        while (!isHeld)
            std::this_thread::yield();
        const Clock::time_point start = Clock::now();
        action();
        const auto taken = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start);
        other.join();
        return taken;
    }
};

TEST_F(CatalogueLocks, AStartAndASaveWaitForAnotherSave)
{
    EXPECT_GE(TimeWhileLocked(modData::LoadAllTables).count(), 200);
    EXPECT_GE(TimeWhileLocked(modData::SaveAllTables).count(), 200);
}

TEST_F(CatalogueLocks, OneThatIsNeverFreeIsAnErrorAfterTenSeconds)
{
    const WatchedFiles watched;
    System::Files.Lock = [](const fs::path&, LockKind, int milliseconds, FileOperations::Handle&)
    {
        EXPECT_EQ(milliseconds, 10'000);
        return std::make_error_code(std::errc::timed_out);
    };
    for (const auto action : {modData::LoadAllTables, modData::SaveAllTables})
        try
        {
            action();
            FAIL() << "no error";
        }
        catch (const FileError& error)
        {
            EXPECT_EQ(error.Number(), 70);
            EXPECT_EQ(error.what(),
                      "Katalog upravo čita ili sprema drugi primjerak programa: " + modData::GetDataFolder());
        }
    EXPECT_EQ(OnDisk(), Old);
}

TEST_F(CatalogueLocks, OfSavingTimesOut)
{
    const fs::path folder = Folder.Data();
    FileOperations::Handle lock = 0;
    ASSERT_FALSE(System::OwnFiles.Lock(folder, LockKind::Saving, 0, lock));
    std::jthread other(
        [&]
        {
            FileOperations::Handle second = 0;
            EXPECT_EQ(System::OwnFiles.Lock(folder, LockKind::Saving, 50, second), std::errc::timed_out);
        });
    other.join();
    System::OwnFiles.Unlock(lock);
    ASSERT_FALSE(System::OwnFiles.Lock(folder, LockKind::Saving, 0, lock)) << "free again";
    System::OwnFiles.Unlock(lock);
}

TEST_F(CatalogueLocks, OfRunningAreSharedAndSeen)
{
    const TestFolder other;
    EXPECT_FALSE(System::Files.IsLockedByRunning(other.Data()));
    auto first = std::make_unique<CatalogueLock>(ToText(other.Data()), LockKind::Running);
    auto second = std::make_unique<CatalogueLock>(ToText(other.Data()), LockKind::Running);
    EXPECT_TRUE(first->IsHeld() && second->IsHeld());
    EXPECT_TRUE(CatalogueLock(ToText(other.Data()), LockKind::Saving).IsHeld()) << "saving is another lock";
    first.reset();
    EXPECT_TRUE(System::Files.IsLockedByRunning(other.Data()));
    second.reset();
    EXPECT_FALSE(System::Files.IsLockedByRunning(other.Data()));
}

TEST_F(CatalogueLocks, OfRunningIsHeldFromTheLoadOn)
{
    modData::LoadAllTables();
    EXPECT_TRUE(System::Files.IsLockedByRunning(Folder.Data()));
    EXPECT_EQ(EntriesOf(Folder.Data()).size(), 7U) << "locks are no files";
}

// Changes that could not be saved

class UnsavedChanges : public CatalogueSaving
{
protected:
    UnsavedChanges() { modData::LoadAllTables(); }
};

TEST_F(UnsavedChanges, AreKeptBesideTheCatalogue)
{
    RenumberedCatalogue().Use();
    const modData::UnsavedChanges changes = modData::KeepUnsavedChanges();
    EXPECT_TRUE(changes.Exist);
    EXPECT_EQ(ToPath(changes.Folder), Kept("2026-11-21_143005-prekid"));
    EXPECT_EQ(Tables(Kept("2026-11-21_143005-prekid")), New);
    EXPECT_EQ(OnDisk(), Old);
    EXPECT_EQ(EntriesOf(Folder.Data() / "kopije").size(), 1U);
    EXPECT_EQ(ToPath(modData::KeepUnsavedChanges().Folder), Kept("2026-11-21_143005_2-prekid"));
}

TEST_F(UnsavedChanges, DoNotExistIfTheFilesReadAsTheTables)
{
    EXPECT_FALSE(modData::KeepUnsavedChanges().Exist);
    WriteBytes(Folder.Data() / "db_studij.csv", "header\r\r\n" + Old["db_studij.csv"].substr(25));
    modData::LoadAllTables();
    EXPECT_FALSE(modData::KeepUnsavedChanges().Exist) << "another header and a blank line are no change";
    EXPECT_FALSE(fs::exists(Folder.Data() / "kopije"));
}

TEST_F(UnsavedChanges, GoToTheSystemsTemporaryFolderWhereThereIsNoRoom)
{
    RenumberedCatalogue().Use();
    const WatchedFiles watched;
    static fs::path full;
    full = Folder.Data();
    System::Files.MakeFolder = [](const fs::path& path)
    {
        const bool isFull = path.native().starts_with(full.native());
        return isFull ? std::make_error_code(std::errc::no_space_on_device)
                      : System::OwnFiles.MakeFolder(path);
    };
    const modData::UnsavedChanges changes = modData::KeepUnsavedChanges();
    EXPECT_TRUE(changes.Exist);
    EXPECT_EQ(ToPath(changes.Folder), fs::temp_directory_path() / "Varlostudiji-2026-11-21_143005-prekid");
    EXPECT_EQ(Tables(ToPath(changes.Folder)), New);
    fs::remove_all(ToPath(changes.Folder));
    EXPECT_EQ(EntriesOf(Folder.Data()).size(), 7U);
}

TEST_F(UnsavedChanges, WithoutRoomAnywhereHaveNoFolder)
{
    RenumberedCatalogue().Use();
    const WatchedFiles watched;
    System::Files.Write = [](FileOperations::Handle, std::string_view)
    { return std::make_error_code(std::errc::no_space_on_device); };
    const modData::UnsavedChanges changes = modData::KeepUnsavedChanges();
    EXPECT_TRUE(changes.Exist);
    EXPECT_EQ(changes.Folder, "");
    EXPECT_FALSE(fs::exists(fs::temp_directory_path() / "Varlostudiji-2026-11-21_143005-prekid.dio"));
}

} // namespace

#include "data/Files.h"
#include "data/System.h"
#include "support/TeachingLoadWindows.h"

// What holds for both windows of teaching load.

namespace
{

using Texts = std::vector<std::string>;

template<typename Load>
class TeachingLoadWindows : public TeachingLoadWindowTest<Load>
{
};

using BothLoads = testing::Types<LecturersLoad, DepartmentsLoad>;
TYPED_TEST_SUITE(TeachingLoadWindows, BothLoads);

TYPED_TEST(TeachingLoadWindows, IsCentredOnTheScreenAndLeavesTheMainWindowUsable)
{
    this->Open();
    ExpectCentredOnScreen(this->Stat);
    EXPECT_TRUE(this->Stat->IsShown());
    EXPECT_TRUE(this->Main->IsEnabled());
    Choose(Find<wxChoice>(this->Main, "cboProgram"), "BEV");
    EXPECT_EQ(Find<ListView>(this->Main, "lvwKolegiji")->RowCount(), 1);
}

TYPED_TEST(TeachingLoadWindows, TheMainWindowsCloseBoxClosesItToo)
{
    this->Open();
    this->Main->Close();
    Settle();
    EXPECT_TRUE(wxTopLevelWindows.empty());
    EXPECT_EQ(TakeUncaughtError(), "");
}

// The export

TYPED_TEST(TeachingLoadWindows, AsksWhereToSave)
{
    this->Open();
    const SaveAnswers save(std::nullopt);
    const MessageAnswers answers;
    Press(this->Stat, "cmdExportAllStat");
    ASSERT_EQ(save.Shown().size(), 1U);
    const SaveDialogOptions& options = save.Shown().front();
    EXPECT_EQ(options.Title, TypeParam::DialogTitle);
    EXPECT_EQ(options.Filter, "CSV datoteke (*.csv)|*.csv|Sve datoteke (*.*)|*.*");
    EXPECT_EQ(options.FilterIndex, 1);
    EXPECT_EQ(options.DefaultExtension, "csv");
    EXPECT_EQ(options.InitialFolder, System::ProgramFolder());
    EXPECT_TRUE(std::filesystem::is_directory(ToPath(options.InitialFolder)));
    EXPECT_EQ(options.ProposedName, TypeParam::ExportName);
    EXPECT_TRUE(options.OverwritePrompt);
    EXPECT_TRUE(options.PathMustExist);
    EXPECT_TRUE(answers.Shown().empty()) << "cancelling is silent";
    EXPECT_EQ(this->FilesWritten(), Texts{});
}

TYPED_TEST(TeachingLoadWindows, AnEmptyNameWritesNothingAndSaysNothing)
{
    this->Open();
    const MessageAnswers answers;
    this->PressExport("");
    EXPECT_TRUE(answers.Shown().empty());
    EXPECT_EQ(TakeUncaughtError(), "");
    EXPECT_EQ(this->FilesWritten(), Texts{});
}

TYPED_TEST(TeachingLoadWindows, AddsTheEndingAndSaysWhereTheFileIs)
{
    this->Open();
    const TestFolder& folder = this->Folder;
    this->ExpectWritten(folder.PathOf("šć.CSV"), folder.PathOf("šć.CSV"));
    this->ExpectWritten(folder.PathOf("a.txt"), folder.PathOf("a.txt.csv"));
    this->ExpectWritten(folder.PathOf("b"), folder.PathOf("b.csv"));
    EXPECT_EQ(this->FilesWritten().size(), 3U);
    const std::string bytes = ReadBytes(folder.Path() / "b.csv");
    EXPECT_EQ(FileLines(bytes).size(), 1 + 16 * TypeParam::Count);
    EXPECT_EQ(ReadBytes(folder.Path() / u8"šć.CSV"), bytes);
    EXPECT_EQ(ReadBytes(folder.Path() / "a.txt.csv"), bytes);
}

TYPED_TEST(TeachingLoadWindows, AnErrorInWritingGoesUncaughtAndTheOlderFileStays)
{
    this->Open();
    const TestFolder& folder = this->Folder;
    const MessageAnswers answers;
    WriteBytes(folder.Path() / "older.csv", "older");
    {
        const ReadOnly marked(folder.Path() / "older.csv");
        this->PressExport(folder.PathOf("older.csv"));
        EXPECT_EQ(TakeUncaughtError(),
                  "70: Pristup nije dopušten; datoteka je možda zaštićena od pisanja ili otvorena u "
                  "drugom programu: " +
                      folder.PathOf("older.csv"));
    }
    this->PressExport(folder.PathOf("missing/z.csv"));
    EXPECT_EQ(TakeUncaughtError().substr(0, 4), "53: ");
    TypeParam::SpoilTables();
    this->PressExport(folder.PathOf("older.csv"));
    EXPECT_TRUE(TakeUncaughtError().starts_with(TypeParam::Error));
    EXPECT_TRUE(answers.Shown().empty()) << "neither of success nor of failure";
    EXPECT_EQ(ReadBytes(folder.Path() / "older.csv"), "older");
    EXPECT_EQ(this->FilesWritten(), Texts{"older.csv"});
}

TYPED_TEST(TeachingLoadWindows, TheExportOfTheDemoCatalogueIsTheExpectedFile)
{
    this->OpenDemo();
    this->ExpectWritten(this->Folder.PathOf("z.csv"), this->Folder.PathOf("z.csv"));
    EXPECT_EQ(ReadBytes(this->Folder.Path() / "z.csv"), ExpectedFile(TypeParam::ExportName));
}

} // namespace

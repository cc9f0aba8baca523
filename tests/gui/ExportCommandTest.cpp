// The handling of an export's errors of any type, and the file name that the Save dialog makes from a typed
// one.

#include "ui/controls/ExportCommand.h"
#include "data/Errors.h"
#include "support/Windows.h"

#include <wx/msgdlg.h>

#include <filesystem>
#include <new>
#include <stdexcept>

namespace
{

constexpr ExportTexts Trapped = {.DialogTitle = "Spremi",
                                 .Success = "Zapisano u:",
                                 .ErrorPrefix = "Greška: ",
                                 .MessageTitle = "Naslov",
                                 .ShowError = ShowWarning};
constexpr ExportTexts Untrapped = {.DialogTitle = "Spremi", .Success = "Zapisano."};

std::optional<std::string> ProposedName()
{
    return "ime.csv";
}

/// Throws an exception of a kind.
using Thrower = void (*)();

struct Case
{
    Thrower Throw;
    const char* Description;
};

const Case Cases[] = {
    {[] { throw FileError(std::make_error_code(std::errc::no_space_on_device), "d"); },
     "Na disku nema dovoljno mjesta: d"},
    {[] { throw std::runtime_error("neka greška"); }, "neka greška"},
    {[] { throw std::runtime_error("\xE8udna"); }, "udna"},
    {[] { throw 42; }, "Neočekivana greška."},
};

class ExportCommand : public testing::Test
{
protected:
    void Run(const ExportTexts& texts, Thrower inAsking, Thrower inWriting)
    {
        SaveDialogOptions dialog;
        const SaveAnswers save("d");
        RunExport(
            nullptr, dialog, texts,
            [inAsking]
            {
                if (inAsking != nullptr)
                    inAsking();
                return ProposedName();
            },
            [inWriting](const std::string&)
            {
                if (inWriting != nullptr)
                    inWriting();
            });
    }

    MessageAnswers Answers;
};

TEST_F(ExportCommand, TrappedReportsEveryExceptionOfTheWholeCommand)
{
    for (const Case& fault : Cases)
        for (const bool asking : {true, false})
        {
            EXPECT_NO_THROW(Run(Trapped, asking ? fault.Throw : nullptr, asking ? nullptr : fault.Throw));
            const MessageShown message = Answers.TakeOnly();
            EXPECT_TRUE(message.Text.starts_with("Greška: ")) << message.Text;
            EXPECT_TRUE(message.Text.ends_with(fault.Description)) << message.Text;
            EXPECT_EQ(message.Title, "Naslov");
            EXPECT_TRUE(message.Has(wxICON_EXCLAMATION | wxOK));
        }
}

TEST_F(ExportCommand, UntrappedLetsAnErrorInWritingThroughAndEndsSilentlyAtOneInAsking)
{
    for (const Case& fault : Cases)
    {
        EXPECT_ANY_THROW(Run(Untrapped, nullptr, fault.Throw));
        EXPECT_NO_THROW(Run(Untrapped, fault.Throw, nullptr));
        EXPECT_TRUE(Answers.Shown().empty());
    }
}

TEST_F(ExportCommand, SaysThatTheFileIsWritten)
{
    Run(Trapped, nullptr, nullptr);
    EXPECT_EQ(Answers.TakeOnly().Text, "Zapisano u:\r\nd");
}

TEST_F(ExportCommand, EndsBeforeTheDialogWithoutANameToPropose)
{
    SaveDialogOptions dialog;
    const SaveAnswers save("d");
    RunExport(
        nullptr, dialog, Trapped, []() -> std::optional<std::string> { return std::nullopt; },
        [](const std::string&) { ADD_FAILURE(); });
    EXPECT_TRUE(save.Shown().empty());
    EXPECT_TRUE(Answers.Shown().empty());
}

TEST(SaveDialogName, GetsCsvAtItsEndIfItIsMissing)
{
    EXPECT_EQ(WithCsvEnding("a.csv"), "a.csv");
    EXPECT_EQ(WithCsvEnding("a.CSV"), "a.CSV");
    EXPECT_EQ(WithCsvEnding("a.cSv"), "a.cSv");
    EXPECT_EQ(WithCsvEnding("a.csv.csv"), "a.csv.csv");
    EXPECT_EQ(WithCsvEnding(".csv"), ".csv");
    EXPECT_EQ(WithCsvEnding("a.txt"), "a.txt.csv");
    EXPECT_EQ(WithCsvEnding("a.csv "), "a.csv .csv");
    EXPECT_EQ(WithCsvEnding("acsv"), "acsv.csv");
    EXPECT_EQ(WithCsvEnding("a.csv.txt"), "a.csv.txt.csv");
    EXPECT_EQ(WithCsvEnding("a"), "a.csv");
    EXPECT_EQ(WithCsvEnding("a."), "a..csv");
    EXPECT_EQ(WithCsvEnding("csv"), "csv.csv");
    EXPECT_EQ(WithCsvEnding("čšž"), "čšž.csv");
    EXPECT_EQ(WithCsvEnding("mapa.csv/žć"), "mapa.csv/žć.csv");
}

} // namespace

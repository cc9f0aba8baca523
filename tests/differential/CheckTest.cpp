#include "check/Check.h"
#include "check/FileLines.h"
#include "check/Mend.h"
#include "check/Provjera.h"
#include "check/Report.h"
#include "data/Errors.h"
#include "data/modData.h"
#include "differential/RandomRun.h"
#include "differential/SpoiledFiles.h"
#include "support/TestFolder.h"
#include "validation/modCSVValidator.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>
#include <map>
#include <string>
#include <utility>
#include <vector>

// The check of a catalogue compared with the program itself, and the effect of mending on random files.
// VARLO_CATALOGUES is the number of random catalogues, VARLO_SEED the seed of the first.

namespace
{

/// Calls `test` with the files of each random catalogue.
template<typename Test>
void ForEachCatalogue(const Test& test)
{
    constexpr std::uint64_t few = 300;
    const std::uint64_t first = Setting("VARLO_SEED", 1);
    const std::uint64_t count = Setting("VARLO_CATALOGUES", few);
    for (std::uint64_t seed = first; seed < first + count; ++seed)
    {
        Chance chance(seed);
        const CatalogueFiles files = Spoiled(RandomFiles(chance), chance);
        test(files);
        if (testing::Test::HasFailure())
            FAIL() << "VARLO_SEED=" << seed << " VARLO_CATALOGUES=1, for these files:\n" << AsSource(files);
    }
}

CatalogueFiles FilesIn(const std::filesystem::path& folder)
{
    CatalogueFiles files;
    for (std::size_t i = 0; i < files.size(); ++i)
        files[i] = ReadBytes(folder / TableFiles[i]);
    return files;
}

/// The result of the program's start with the data folder: "valid", "invalid" or the error's number.
std::string StartOfProgram()
{
    try
    {
        modData::LoadAllTables();
        return modCSVValidator::ValidateAll() ? "valid" : "invalid";
    }
    catch (const RuntimeError& error)
    {
        return "error " + std::to_string(error.Number());
    }
}

struct Line
{
    std::string Text;
    std::string End;
};

std::vector<Line> LinesOf(std::string_view bytes)
{
    std::vector<Line> lines;
    Check::ForEachLine(bytes,
                       [&](const Check::FileLine& line) {
                           lines.push_back({std::string(line.Text), std::string(line.End)});
                       });
    return lines;
}

/// A field without its outer quotes, and with doubled quotes single.
std::string WithoutQuotes(const std::string& field)
{
    std::string text;
    bool isSecond = false;
    for (const char c : field.substr(1, field.size() - 2))
    {
        isSecond = c == '"' && !isSecond;
        if (c != '"' || isSecond)
            text += c;
    }
    return text;
}

void RemoveQuotes(std::string& line, std::size_t position)
{
    std::size_t begin = 0;
    for (; position > 0; --position)
        begin = line.find(';', begin) + 1;
    const std::size_t size = std::min(line.find(';', begin), line.size()) - begin;
    line.replace(begin, size, WithoutQuotes(line.substr(begin, size)));
}

/// A file after the reported changes.
std::string AsReported(std::string bytes, const std::vector<Check::Change>& changes,
                       const modData::TableLayout& layout)
{
    const auto is = [](const Check::Change& change, std::string_view text)
    { return change.Text.starts_with(text); };
    for (const Check::Change& change : changes)
        if (is(change, "zapis UTF-8"))
            bytes = modData::NormalizedContent(bytes.insert(0, modData::Utf8Mark));
        else if (is(change, "uklonjena je oznaka"))
            bytes.erase(0, modData::Utf8Mark.size());

    const bool isMarked = bytes.starts_with(modData::Utf8Mark);
    std::vector<Line> lines =
        LinesOf(std::string_view(bytes).substr(isMarked ? modData::Utf8Mark.size() : 0));
    std::vector<std::size_t> removed;
    std::size_t loneLFs = 0;
    for (auto change = changes.rbegin(); change != changes.rend(); ++change) // later fields of a line first
        if (is(*change, "uklonjen je redak"))
            removed.push_back(change->Place.Line);
        else if (is(*change, "uklonjeni su navodnici"))
            RemoveQuotes(lines[change->Place.Line - 1].Text,
                         static_cast<std::size_t>(std::ranges::find(layout.Columns, change->Place.Column) -
                                                  layout.Columns.begin()));
        else if (is(*change, "krajevi redaka"))
            loneLFs = std::stoull(change->Text.substr(change->Text.find(": ") + 2));

    std::string text = isMarked ? std::string(modData::Utf8Mark) : std::string();
    for (const std::size_t number : removed)
        lines[number - 1] = {};
    const bool everyLF = std::cmp_equal(std::ranges::count(lines, "\n", &Line::End), loneLFs);
    for (const Line& line : lines)
        text += line.Text + (everyLF && line.End == "\n" ? "\r\n" : line.End);
    return text;
}

} // namespace

TEST(RandomCheck, TheExitCodeIsOneExactlyWhenTheProgramFailsAndNothingIsChanged)
{
    const TestFolder folder;
    std::map<std::string, std::size_t> starts;
    ForEachCatalogue(
        [&](const CatalogueFiles& files)
        {
            WriteFiles(files, folder.Data());
            const std::vector<std::string> arguments = {folder.PathOf("Varlostudiji")};
            std::string output;
            const Check::ExitCode code =
                Check::Provjera(arguments, {[&](std::string_view text) { output += text; }, {}});
            EXPECT_TRUE(FilesIn(folder.Data()) == files) << "a file is changed";
            const std::string start = StartOfProgram();
            EXPECT_EQ(code, start == "valid" ? Check::Valid : Check::Invalid) << start << "\n" << output;
            ++starts[start];
        });
    for (const auto& [start, count] : starts)
        std::cout << start << ": " << count << std::endl;
    for (const char* start : {"valid", "invalid", "error 6", "error 9", "error 13", "error 62"})
        EXPECT_GT(starts[start], 0U) << start;
}

TEST(RandomCheck, MendingDoesWhatItReportsAndOnlyOnce)
{
    std::map<std::string, std::size_t> reported;
    ForEachCatalogue(
        [&](const CatalogueFiles& files)
        {
            for (std::size_t i = 0; i < files.size(); ++i)
            {
                const modData::TableLayout& layout = modData::AllTables()[i]->Layout();
                const Check::Mended mended = Check::Mend(files[i], layout);
                EXPECT_TRUE(Check::Mend(mended.Bytes, layout).Changes.empty()) << layout.FileName;
                EXPECT_TRUE(!mended.Changes.empty() || mended.Bytes == files[i]) << layout.FileName;
                for (const Check::Change& change : mended.Changes)
                    ++reported[change.Text.substr(0, 20)];
                for (const Check::Change& change : mended.Left)
                    ++reported["(left) " + change.Text.substr(0, 20)];
                // A LF that is left is part of a field; the report does not say of which.
                const bool someLeft = std::ranges::any_of(
                    mended.Left, [](const Check::Change& change)
                    { return change.Text.starts_with("LF") || change.Text.starts_with("navodnici"); });
                EXPECT_TRUE(someLeft || mended.Bytes == AsReported(files[i], mended.Changes, layout))
                    << layout.FileName;
            }
        });
    for (const auto& [text, count] : reported)
        std::cout << text << ": " << count << std::endl;
    EXPECT_GE(reported.size(), 8U);
}

TEST(RandomCheck, ARepairDoesWhatMendingReportsAndOnlyOnce)
{
    const HastyFiles hasty;
    const TestFolder folder;
    std::size_t repaired = 0;
    ForEachCatalogue(
        [&](const CatalogueFiles& files)
        {
            WriteFiles(files, folder.Data());
            CatalogueFiles mended;
            for (std::size_t i = 0; i < files.size(); ++i)
                mended[i] = Check::Mend(files[i], modData::AllTables()[i]->Layout()).Bytes;
            const std::vector<std::string> arguments = {"--popravi", folder.PathOf("Varlostudiji")};
            const auto run = [&] { return Check::Provjera(arguments, {[](std::string_view) {}, {}}); };
            run();
            EXPECT_TRUE(FilesIn(folder.Data()) == mended);
            repaired += mended == files ? 0 : 1;
            const std::vector<std::string> entries = EntriesOf(folder.Data());
            run();
            EXPECT_TRUE(FilesIn(folder.Data()) == mended);
            EXPECT_EQ(EntriesOf(folder.Data()), entries);
            std::filesystem::remove_all(folder.Data() / "kopije");
        });
    EXPECT_GT(repaired, 0U);
}

#include "differential/Comparison.h"
#include "differential/RandomRun.h"
#include "support/Catalogue.h"
#include "support/TeachingLoadChecks.h"
#include "support/TestFolder.h"

#include "data/FileOperations.h"
#include "data/System.h"
#include "data/modData.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <map>
#include <optional>
#include <string>
#include <system_error>

// The program and the plain reference get the same catalogues and the same questions. VARLO_CATALOGUES is the
// number of random catalogues, VARLO_SEED the seed of the first.

namespace
{

constexpr std::uint64_t FewCatalogues = 300; // for a run of all tests

/// The first difference for these files; the seed decides the random choices.
std::optional<Difference> DifferenceOf(const CatalogueFiles& files, std::uint64_t seed)
{
    const TestFolder folder;
    Chance chance(seed);
    return Comparison(folder, chance).Run(files);
}

/// The files without the lines that the difference does not need.
CatalogueFiles Smallest(CatalogueFiles files, std::uint64_t seed)
{
    for (std::string& file : files)
        for (std::size_t begin = 0; begin < file.size();)
        {
            const std::size_t end = std::min(file.find('\n', begin), file.size() - 1) + 1;
            const std::string whole = file;
            file.erase(begin, end - begin);
            if (DifferenceOf(files, seed))
                continue;
            file = whole;
            begin = end;
        }
    return files;
}

std::string Report(const CatalogueFiles& files, std::uint64_t seed)
{
    const CatalogueFiles smallest = Smallest(files, seed);
    const Difference difference = DifferenceOf(smallest, seed).value();
    return "VARLO_SEED=" + std::to_string(seed) + " VARLO_CATALOGUES=1, " + difference.Question +
           "\nprogram:\n" + difference.Program + "\nreference:\n" + difference.Reference +
           "\nfor these files:\n" + AsSource(smallest);
}

} // namespace

TEST(Differential, RandomCatalogues)
{
    const std::uint64_t first = Setting("VARLO_SEED", 1);
    const std::uint64_t count = Setting("VARLO_CATALOGUES", FewCatalogues);
    std::cout << count << " catalogues, VARLO_SEED=" << first << std::endl;

    const HastyFiles hasty;
    const TestFolder folder;
    std::map<std::string, std::size_t> answers;
    for (std::uint64_t seed = first; seed < first + count; ++seed)
    {
        if (seed > first && (seed - first) % 1000 == 0)
            std::cout << "VARLO_SEED=" << seed << " is next" << std::endl; // to find the place after a crash
        Chance making(seed);
        const CatalogueFiles files = RandomFiles(making);
        Chance asking(seed);
        Comparison comparison(folder, asking);
        if (comparison.Run(files))
            FAIL() << Report(files, seed);
        for (const auto& [kind, times] : comparison.Answers())
            answers[kind] += times;
    }

    for (const auto& [kind, times] : answers)
        std::cout << kind << ": " << times << std::endl;
    // The comparison is useful only if every kind of answer occurs.
    if (count < FewCatalogues)
        return;
    for (const char* kind : {"answer", "error 6", "error 9", "error 13", "error 62"})
        EXPECT_GT(answers[kind], 0U) << kind;
}

TEST(Differential, DemoCatalogue)
{
    const HastyFiles hasty;
    const TestFolder folder;
    CopyDemo(folder);
    CatalogueFiles files;
    for (std::size_t i = 0; i < files.size(); ++i)
        files[i] = ReadBytes(folder.Data() / TableFiles[i]);
    for (std::uint64_t seed = 1; seed <= 5; ++seed)
    {
        Chance asking(seed);
        if (Comparison(folder, asking).Run(files))
            FAIL() << Report(files, seed);
    }
}

TEST(Differential, ADifferenceIsNoticed)
{
    const TestFolder folder;
    SmallCatalogue().WriteTo(folder.Data());
    modData::LoadAllTables();
    const reference::Catalogue catalogue = reference::Load(modData::GetDataFolder());
    Chance chance(1);
    Comparison comparison(folder, chance);
    EXPECT_FALSE(comparison.Compare(catalogue));

    reference::Catalogue other = catalogue;
    other.KolegijNastavnici.Rows.back().Fields.back() = "2";
    EXPECT_TRUE(comparison.Compare(other));
}

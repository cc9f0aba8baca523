// A search by an index gives the same as reading the rows one by one, errors included.

#include "data/ColumnIndex.h"
#include "data/Errors.h"
#include "data/Table.h"
#include "data/modData.h"
#include "support/Catalogue.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace
{

constexpr std::size_t Column = KolegijSmjer::SmjerID;

/// The matches of a search, and the error that ends it, as text.
template<typename Search>
std::string Outcome(const Search& search)
{
    std::string found;
    try
    {
        search([&](const modData::Row& row) { found.append(row.Field(0)).append(" "); });
    }
    catch (const RuntimeError& error)
    {
        found += error.what();
    }
    return found;
}

/// Reads every row; stops after the first match if only that is wanted.
auto Scan(const modData::Table& table, std::int32_t number, Conversion conversion, bool stopAtMatch)
{
    return [=, &table](const auto& visit)
    {
        for (const modData::Row& row : table)
        {
            if (row.Number(Column, conversion) != number)
                continue;
            visit(row);
            if (stopAtMatch)
                return;
        }
    };
}

/// Rows whose second field is mostly a number, in one of its spellings; sometimes it is not, or is missing.
modData::Table RandomTable(std::mt19937& random)
{
    constexpr std::string_view values[] = {"0", "1",     "2",  "3", " 1 ", "01",          "2,0",
                                           "3", "+2.50", "-0", "",  "bad", "99999999999", "2000000000"};
    modData::Table table(modData::KolegijSmjerovi.Layout());
    const auto end = static_cast<std::uint32_t>(2 + random() % 8);
    for (std::uint32_t line = 2; line < end; ++line)
    {
        std::string text = std::to_string(line);
        if (random() % 16 != 0)
            text.append(";").append(values[random() % std::size(values)]);
        table.AppendLine(text, line);
    }
    return table;
}

TEST(ColumnIndex, FindsWhatReadingRowByRowFinds)
{
    std::mt19937 random(1);
    for (int round = 0; round < 3000; ++round)
    {
        const modData::Table table = RandomTable(random);
        for (const Conversion conversion : {Conversion::Strict, Conversion::Safe})
            for (const std::int32_t number : {-1, 0, 1, 2, 3, 4, 2000000000})
            {
                const auto first = [&](const auto& visit)
                {
                    if (const modData::Row* row = table.FindFirst(Column, number, conversion))
                        visit(*row);
                };
                const auto all = [&](const auto& visit)
                {
                    for (const modData::Row& row : table.Matching(Column, number, conversion))
                        visit(row);
                };
                ASSERT_EQ(Outcome(first), Outcome(Scan(table, number, conversion, true)));
                ASSERT_EQ(Outcome(all), Outcome(Scan(table, number, conversion, false)));
            }
    }
}

TEST(ColumnIndex, ASearchFollowsEveryChangeOfTheTable)
{
    modData::Table table(modData::KolegijSmjerovi.Layout());
    table.AppendLine("1;7", 2);
    EXPECT_EQ(table.FindPosition(Column, 7), 0U);
    EXPECT_EQ(table.FindPosition(Column, 8), std::nullopt);
    table.Append({"2", "8"});
    EXPECT_EQ(table.FindPosition(Column, 8), 1U);
    table.Replace(0, {"1", "9"});
    EXPECT_EQ(table.FindPosition(Column, 7), std::nullopt);
    table.RemoveMatches(Column, 9);
    EXPECT_EQ(table.FindPosition(Column, 8), 0U);
}

TEST(ColumnIndex, NegativeAndExtremeNumbersAreFoundAsOthersAre)
{
    constexpr std::int32_t smallest = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t largest = std::numeric_limits<std::int32_t>::max();
    const std::vector<std::int32_t> columns[] = {
        {-3, -1, -3, 0, 2},                 // a narrow range
        {smallest, largest, 0, smallest},   // the whole range
        {largest, largest - 1, largest},    // the ends alone
        {smallest + 1, smallest, smallest}, //
        {largest},
        {smallest},
        {-1},
    };
    for (const std::vector<std::int32_t>& numbers : columns)
    {
        const ColumnIndex index(numbers);
        for (const std::int32_t wanted :
             {smallest, smallest + 1, -4, -3, -2, -1, 0, 1, 2, 3, largest - 1, largest})
        {
            std::vector<std::uint32_t> expected;
            for (std::uint32_t i = 0; i < numbers.size(); ++i)
                if (numbers[i] == wanted)
                    expected.push_back(i);
            const auto found = index.Positions(wanted);
            EXPECT_EQ(std::vector<std::uint32_t>(found.begin(), found.end()), expected)
                << wanted << " in " << testing::PrintToString(numbers);
        }
    }
}

TEST(ColumnIndex, ATableIsSearchedForNegativeAndExtremeIDs)
{
    modData::Table table(modData::KolegijSmjerovi.Layout());
    table.AppendLine("1;-2147483648", 2);
    table.AppendLine("2;2147483647", 3);
    table.AppendLine("3;-5", 4);
    EXPECT_EQ(table.FindPosition(Column, -2147483647 - 1), 0U);
    EXPECT_EQ(table.FindPosition(Column, 2147483647), 1U);
    EXPECT_EQ(table.FindPosition(Column, -5), 2U);
    EXPECT_EQ(table.FindPosition(Column, 5), std::nullopt);
    EXPECT_EQ(table.FindPosition(Column, 2147483646), std::nullopt);
}

TEST(ColumnIndex, AnEmptyTableHoldsNothing)
{
    EXPECT_TRUE(ColumnIndex({}).Positions(0).empty());
}

} // namespace

// A search by an index gives the same as reading the rows one by one, errors included.

#include "data/Errors.h"
#include "data/Table.h"
#include "data/modData.h"
#include "support/Catalogue.h"

#include <gtest/gtest.h>

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

TEST(ColumnIndex, AnEmptyTableHoldsNothing)
{
    EXPECT_TRUE(ColumnIndex({}).Positions(0).empty());
}

} // namespace

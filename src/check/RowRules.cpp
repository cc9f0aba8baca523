#include "check/RowRules.h"

#include "check/Values.h"
#include "data/modData.h"
#include "text/Numbers.h"
#include "text/Text.h"

#include <algorithm>
#include <limits>
#include <span>
#include <unordered_set>
#include <vector>

namespace Check
{

namespace
{

using namespace modData;

constexpr std::size_t HourColumns[] = {Kolegij::P, Kolegij::S, Kolegij::V, Kolegij::ECTS};

// The columns that must hold numbers.
constexpr std::size_t ZavodNumbers[] = {Zavod::ID};
constexpr std::size_t NastavnikNumbers[] = {Nastavnik::ID, Nastavnik::ZavodID};
constexpr std::size_t StudijNumbers[] = {Studij::ID};
constexpr std::size_t SmjerNumbers[] = {Smjer::ID, Smjer::StudijID};
constexpr std::size_t KolegijNumbers[] = {Kolegij::ID,   Kolegij::P,        Kolegij::S,       Kolegij::V,
                                          Kolegij::ECTS, Kolegij::Semestar, Kolegij::StudijID};
constexpr std::size_t KolegijSmjerNumbers[] = {KolegijSmjer::KolegijID, KolegijSmjer::SmjerID};
constexpr std::size_t KolegijNastavnikNumbers[] = {KolegijNastavnik::KolegijID, KolegijNastavnik::NastavnikID,
                                                   KolegijNastavnik::Redoslijed};

/// The fields that the program needs in a row.
struct RowNeeds
{
    const modData::Table& Rows;
    std::size_t Fields; ///< With fewer fields, the validation or a window ends in an error.
    std::span<const std::size_t> Numbers;
};

const RowNeeds Needs[] = {
    {Zavodi, Zavod::Naziv + 1, ZavodNumbers},
    {Nastavnici, Nastavnik::ZavodID + 1, NastavnikNumbers},
    {Studiji, Studij::Razina + 1, StudijNumbers},
    {Smjerovi, Smjer::StudijID + 1, SmjerNumbers},
    {Kolegiji, Kolegij::StudijID + 1, KolegijNumbers},
    {KolegijSmjerovi, KolegijSmjer::SmjerID + 1, KolegijSmjerNumbers},
    {KolegijNastavnici, KolegijNastavnik::Redoslijed + 1, KolegijNastavnikNumbers},
};

std::string Counted(std::size_t count, std::size_t expected)
{
    return "polja: " + std::to_string(count) + " umjesto " + std::to_string(expected);
}

FieldPlace LinePlace(const modData::Row& row)
{
    FieldPlace place = row.Place(0);
    place.Column = {};
    return place;
}

bool IsBlank(const modData::Row& row)
{
    for (std::size_t i = 0; i < row.FieldCount(); ++i)
        if (!TrimBlanks(row.Field(i)).empty())
            return false;
    return true;
}

void FindFieldCount(const modData::Row& row, const RowNeeds& needs, Findings& findings)
{
    const std::size_t columns = needs.Rows.Layout().Columns.size();
    const std::size_t count = row.FieldCount();
    if (count > columns)
        findings.push_back({Group::Danger, LinePlace(row),
                            "redak ima previše " + Counted(count, columns) +
                                "; možda je u nazivu točka-zarez: " + InQuotes(row.Field(1))});
    else if (count < columns)
        findings.push_back({count < needs.Fields ? Group::Danger : Group::Note, row.Place(count),
                            "redak ima premalo " + Counted(count, columns)});
}

void FindUnreadNumbers(const modData::Row& row, const RowNeeds& needs, Findings& findings)
{
    for (const std::size_t column : needs.Numbers)
        if (column < row.FieldCount())
            try
            {
                row.Number(column);
            }
            catch (const RuntimeError& error)
            {
                findings.push_back({Group::Danger, error.Place(), Shown(error.Fault(), 120)});
            }
}

void FindInRow(const modData::Row& row, const RowNeeds& needs, Findings& findings)
{
    if (IsBlank(row)) // a row of separators; FileRules reports it
        return;
    FindFieldCount(row, needs, findings);
    if (row.Field(0).empty())
        findings.push_back({Group::Danger, row.Place(0),
                            "prvo je polje prazno: spremanje izostavlja točku-zarez iza njega, pa se "
                            "ostala polja pomaknu ulijevo"});
    FindUnreadNumbers(row, needs, findings);
}

/// Runs a rule over the rows of a table. A row that cannot be read is already reported.
template<typename Rule>
void ForEachReadable(const modData::Table& table, const Rule& rule)
{
    for (const modData::Row& row : table)
        try
        {
            rule(row);
        }
        catch (const RuntimeError&)
        {
        }
}

/// Calls `report` with each row whose key an earlier row has.
template<typename Key, typename Report>
void ForEachRepeated(const modData::Table& table, const Key& key, const Report& report)
{
    std::vector<std::int64_t> keys;
    keys.reserve(table.RowCount());
    ForEachReadable(table, [&](const modData::Row& row) { keys.push_back(key(row)); });
    std::ranges::sort(keys); // several times as fast as a set
    if (std::ranges::adjacent_find(keys) == keys.end())
        return;
    std::unordered_set<std::int64_t> seen;
    ForEachReadable(table,
                    [&](const modData::Row& row)
                    {
                        if (!seen.insert(key(row)).second)
                            report(row);
                    });
}

void FindRepeatedIDs(const modData::Table& table, Findings& findings)
{
    ForEachRepeated(
        table, [](const modData::Row& row) { return std::int64_t{row.Number(modData::IDColumn)}; },
        [&](const modData::Row& row)
        {
            findings.push_back({Group::Note, row.Place(modData::IDColumn),
                                "ID " + std::to_string(row.Number(modData::IDColumn)) +
                                    " ima i jedan od prethodnih redaka, a program uvijek uzima prvi"});
        });
}

void FindRepeatedLecturers(Findings& findings)
{
    using namespace KolegijNastavnik;
    ForEachRepeated(
        KolegijNastavnici,
        [](const modData::Row& row)
        { return (std::int64_t{row.Number(KolegijID)} << 32) ^ std::uint32_t(row.Number(NastavnikID)); },
        [&](const modData::Row& row)
        {
            findings.push_back({Group::Note, row.Place(NastavnikID),
                                "nastavnik " + std::to_string(row.Number(NastavnikID)) +
                                    " već je naveden uz kolegij " + std::to_string(row.Number(KolegijID)) +
                                    ", pa mu se taj kolegij broji dvaput"});
        });
}

void FindHours(const modData::Row& row, Findings& findings)
{
    for (const std::size_t column : HourColumns)
    {
        std::int32_t number = 0;
        if (ParseLong(row.Field(column), number) == NumberKind::Whole && number < 0)
            findings.push_back(
                {Group::Note, row.Place(column), "broj je manji od nule: " + InQuotes(row.Field(column))});
    }
}

void FindTip(const modData::Row& row, Findings& findings)
{
    const std::string_view tip = row.Field(Kolegij::Tip);
    if (!EqualsIgnoreCase(tip, "OBVEZNI") && !EqualsIgnoreCase(tip, "IZBORNI"))
        findings.push_back(
            {Group::Note, row.Place(Kolegij::Tip), "tip nije ni obvezni ni izborni: " + InQuotes(tip)});
}

void FindLastID(const modData::Row& row, Findings& findings)
{
    if (row.Number(Kolegij::ID) == std::numeric_limits<std::int32_t>::max())
        findings.push_back({Group::Danger, row.Place(Kolegij::ID),
                            "za novi kolegij više nema broja, pa bi dodavanje završilo greškom"});
}

void FindMissingLink(const modData::Row& row, const modData::Table& links, std::string_view text,
                     Findings& findings)
{
    static_assert(KolegijSmjer::KolegijID == std::size_t{KolegijNastavnik::KolegijID});
    if (links.FindFirst(KolegijSmjer::KolegijID, row.Number(Kolegij::ID)) == nullptr)
        findings.push_back(
            {Group::Note, LinePlace(row), std::string(text) + ": " + InQuotes(row.Field(Kolegij::Naziv))});
}

void FindInKolegij(const modData::Row& row, Findings& findings)
{
    FindHours(row, findings);
    FindTip(row, findings);
    FindLastID(row, findings);
    FindMissingLink(row, KolegijSmjerovi, "kolegij nema smjera", findings);
    FindMissingLink(row, KolegijNastavnici, "kolegij nema nositelja", findings);
}

void FindForeignSmjer(const modData::Row& link, Findings& findings)
{
    const modData::Row* kolegij = Kolegiji.FindFirst(Kolegij::ID, link.Number(KolegijSmjer::KolegijID));
    const modData::Row* smjer = Smjerovi.FindFirst(Smjer::ID, link.Number(KolegijSmjer::SmjerID));
    if (kolegij != nullptr && smjer != nullptr &&
        kolegij->Number(Kolegij::StudijID) != smjer->Number(Smjer::StudijID))
        findings.push_back({Group::Note, link.Place(KolegijSmjer::SmjerID),
                            "smjer " + InQuotes(smjer->Field(Smjer::Kratica)) +
                                " je s drugog studija nego kolegij " +
                                InQuotes(kolegij->Field(Kolegij::Naziv))});
}

} // namespace

void FindInRows(Findings& findings)
{
    for (const RowNeeds& needs : Needs)
        for (const modData::Row& row : needs.Rows)
            FindInRow(row, needs, findings);
    for (const modData::Table* table :
         {&Zavodi, &Studiji, &Smjerovi}) // the validation checks the other tables for repeated IDs
        FindRepeatedIDs(*table, findings);
    ForEachReadable(Kolegiji, [&](const modData::Row& row) { FindInKolegij(row, findings); });
    ForEachReadable(KolegijSmjerovi, [&](const modData::Row& row) { FindForeignSmjer(row, findings); });
    FindRepeatedLecturers(findings);
}

} // namespace Check

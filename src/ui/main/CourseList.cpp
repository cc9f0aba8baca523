#include "ui/main/CourseList.h"

#include "data/Lookups.h"
#include "data/Text.h"
#include "data/modData.h"
#include "ui/main/SearchTexts.h"

#include <array>
#include <utility>

namespace
{

// The columns 1 to 7 show these fields exactly as stored.
constexpr Kolegij::Column ShownFields[] = {Kolegij::Naziv, Kolegij::P,   Kolegij::S,       Kolegij::V,
                                           Kolegij::ECTS,  Kolegij::Tip, Kolegij::Semestar};

bool Passes(const Row& kolegij, const CourseFilter& filter, std::string_view search)
{
    return (filter.StudijID == 0 || kolegij.Number(Kolegij::StudijID) == filter.StudijID) &&
           (filter.Semestar == 0 || kolegij.Number(Kolegij::Semestar) == filter.Semestar) &&
           MatchesSearch(kolegij, search) &&
           (filter.SmjerID == 0 || KolegijHasSmjer(kolegij.Number(Kolegij::ID), filter.SmjerID));
}

void FillCourseRow(ListRow& row, const Row& kolegij)
{
    // The study comes first: of several faults in a row its own is told.
    const std::string studij = modData::GetStudijKratica(kolegij.Number(Kolegij::StudijID));
    row.clear();
    row.Add(kolegij.Field(Kolegij::ID));
    for (const Kolegij::Column column : ShownFields)
        row.Add(kolegij.Field(column));
    row.Add(studij);
    const std::int32_t id = kolegij.Number(Kolegij::ID);
    row.Add(GetSmjeroviForKolegijString(id));
    row.Add(GetNastavniciForKolegijString(id));
    row.SetColour(ElectiveColour(kolegij.Field(Kolegij::Tip)));
}

} // namespace

std::vector<ListRow> CourseRows(const CourseFilter& filter)
{
    const std::string search = SearchKey(filter.Search);
    std::vector<ListRow> rows;
    rows.reserve(modData::Kolegiji.RowCount());
    ListRow row; // filled anew for each course: its copies take no more memory than they need
    for (const Row& kolegij : modData::Kolegiji)
        if (Passes(kolegij, filter, search))
        {
            FillCourseRow(row, kolegij);
            rows.push_back(row);
        }
    return rows;
}

bool MatchesSearch(const Row& kolegij, std::string_view search)
{
    static SearchTexts texts;
    return search.empty() || texts.Of(kolegij).find(search) != std::string_view::npos;
}

std::string SearchKey(std::string_view typed)
{
    return UpperCase(TrimBlanks(typed));
}

bool KolegijHasSmjer(std::int32_t kolegijID, std::int32_t smjerID)
{
    return modData::KolegijSmjerovi.AnyMatch(
        KolegijSmjer::KolegijID, kolegijID,
        [&](const Row& link)
        { return modData::KolegijSmjerovi.NumberOf(link, KolegijSmjer::SmjerID) == smjerID; });
}

std::string GetSmjeroviForKolegijString(std::int32_t kolegijID)
{
    std::string joined;
    modData::KolegijSmjerovi.ForEachMatch(
        KolegijSmjer::KolegijID, kolegijID,
        [&](const Row& link)
        {
            const Row* smjer = modData::Smjerovi.FindFirst(
                Smjer::ID, modData::KolegijSmjerovi.NumberOf(link, KolegijSmjer::SmjerID));
            if (smjer != nullptr)
                AppendJoined(joined, ", ", smjer->Field(Smjer::Kratica));
        });
    return joined;
}

std::string GetNastavniciForKolegijString(std::int32_t kolegijID)
{
    std::string joined;
    std::string_view separator;
    for (const modData::PlacedNastavnik& placed : modData::GetNastavniciForKolegij(kolegijID))
        joined.append(std::exchange(separator, ", ")).append(placed.Nastavnik->Field(Nastavnik::PrezimeIme));
    return joined;
}

std::string GetNositelji123String(std::int32_t kolegijID)
{
    std::array<std::string, 3> names;
    modData::KolegijNastavnici.ForEachMatch(
        KolegijNastavnik::KolegijID, kolegijID,
        [&](const Row& link)
        {
            if (!IsWord(link.Field(KolegijNastavnik::Uloga), "NOSITELJ"))
                return;
            const std::int32_t redoslijed = link.Number(KolegijNastavnik::Redoslijed);
            if (redoslijed >= 1 && redoslijed <= 3)
                names[static_cast<std::size_t>(redoslijed - 1)] =
                    modData::GetNastavnikIme(link.Number(KolegijNastavnik::NastavnikID));
        });

    std::string joined;
    for (const std::string& name : names)
        if (!TrimBlanks(name).empty())
            AppendJoined(joined, " + ", name);
    return joined;
}

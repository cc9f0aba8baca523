#include "ui/main/SemesterStatistics.h"

#include "data/Errors.h"
#include "data/modData.h"
#include "statistics/TeachingLoad.h"
#include "text/Numbers.h"

namespace
{

TeachingLoad TeachingLoadOf(const modData::Row& kolegij)
{
    return {.P = ParseWholeOrZero(kolegij.Field(Kolegij::P)),
            .S = ParseWholeOrZero(kolegij.Field(Kolegij::S)),
            .V = ParseWholeOrZero(kolegij.Field(Kolegij::V)),
            .ECTS = ParseWholeOrZero(kolegij.Field(Kolegij::ECTS)),
            .Kolegija = 1};
}

} // namespace

std::vector<ListRow> StatistikaRows(const CourseFilter& filter, Search& search, std::string_view razina)
{
    const int last = modData::LastSemestar(razina);
    TeachingLoadSums sums;
    for (std::size_t position = 0; position < modData::Kolegiji.RowCount(); ++position)
    {
        const modData::Row& kolegij = modData::Kolegiji[position];
        const std::int32_t id = kolegij.Number(Kolegij::ID);
        const std::int32_t semestar = kolegij.Number(Kolegij::Semestar);
        if (!PassesStudijAndSemestar(kolegij, filter) || !search.Matches(position) || semestar < 1 ||
            semestar > last)
            continue;
        const std::optional<Tip> tip = TipOf(kolegij.Field(Kolegij::Tip), OtherTypes::CountAsElective);
        const std::int32_t weight = CountKolegijSmjerLinks(id, filter.SmjerID);
        if (tip && weight > 0)
            sums.Add(semestar, *tip, TeachingLoadOf(kolegij).Times(weight));
    }
    return TeachingLoadRows(sums, FlaggingStyle, {.Last = last, .Only = filter.Semestar});
}

std::int32_t CountKolegijSmjerLinks(std::int32_t kolegijID, std::int32_t smjerID)
{
    if (smjerID != 0)
        return KolegijHasSmjer(kolegijID, smjerID) ? 1 : 0;
    std::int32_t count = 0;
    for ([[maybe_unused]] const modData::Row& link :
         modData::KolegijSmjerovi.Matching(KolegijSmjer::KolegijID, kolegijID))
        ++count;
    return count;
}

std::int32_t ParseWholeOrZero(std::string_view text)
{
    std::int32_t value = 0;
    if (ParseLong(text, value) == NumberKind::TooLarge)
        throw OverflowError(text);
    return value;
}

#include "statistics/TaughtCourses.h"

#include "data/Lookups.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace
{

// Shown as stored.
constexpr Kolegij::Column ShownFields[] = {Kolegij::Naziv, Kolegij::P,   Kolegij::S,       Kolegij::V,
                                           Kolegij::ECTS,  Kolegij::Tip, Kolegij::Semestar};

} // namespace

ListRow TaughtCourseRow(const Row& kolegij, std::int32_t kolegijID, std::int32_t studijID)
{
    std::vector<std::string> texts;
    for (const Kolegij::Column column : ShownFields)
        texts.emplace_back(kolegij.Field(column));
    texts.push_back(modData::GetStudijKratica(studijID));
    texts.push_back(modData::GetNositeljiString(kolegijID));
    return UniformRow(std::move(texts), ElectiveColour(kolegij.Field(Kolegij::Tip)));
}

void CountCourse(LoadSums& sums, const Row& kolegij, const CountingRules& rules)
{
    const std::int32_t semestar = kolegij.Number(Kolegij::Semestar, rules.Semestar);
    if (semestar < 1 || semestar > MostSemesters)
        return;
    const std::optional<Tip> tip = TipOf(kolegij.Field(Kolegij::Tip), rules.Others);
    if (!tip)
        return;
    sums.Add(semestar, *tip,
             {.P = kolegij.Number(Kolegij::P, rules.Hours),
              .S = kolegij.Number(Kolegij::S, rules.Hours),
              .V = kolegij.Number(Kolegij::V, rules.Hours),
              .ECTS = kolegij.Number(Kolegij::ECTS, rules.Hours),
              .Kolegija = 1});
}

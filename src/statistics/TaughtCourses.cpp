#include "statistics/TaughtCourses.h"

#include "data/Lookups.h"

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
    return UniformRow(texts, ElectiveColour(kolegij.Field(Kolegij::Tip)));
}

std::optional<CourseLoad> CourseLoadOf(const Row& kolegij, const CountingRules& rules)
{
    const std::int32_t semestar = kolegij.Number(Kolegij::Semestar, rules.Semestar);
    if (semestar < 1 || semestar > MostSemesters)
        return std::nullopt;
    const std::optional<Tip> tip = TipOf(kolegij.Field(Kolegij::Tip), rules.Others);
    if (!tip)
        return std::nullopt;
    return CourseLoad{semestar,
                      *tip,
                      {.P = kolegij.Number(Kolegij::P, rules.Hours),
                       .S = kolegij.Number(Kolegij::S, rules.Hours),
                       .V = kolegij.Number(Kolegij::V, rules.Hours),
                       .ECTS = kolegij.Number(Kolegij::ECTS, rules.Hours),
                       .Kolegija = 1}};
}

void AddTo(LoadSums& sums, const std::optional<CourseLoad>& load)
{
    if (load)
        sums.Add(load->Semestar, load->Type, load->Adds);
}

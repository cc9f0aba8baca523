#include "statistics/TeachingLoad.h"

#include "data/CheckedNumbers.h"
#include "text/Text.h"

#include <iterator>
#include <string>
#include <utility>

namespace
{

constexpr std::int32_t FullSemesterEcts = 30;
constexpr std::size_t EctsColumn = 5;

struct NamedTip
{
    Tip Value;
    std::string_view Name;
};

constexpr NamedTip Types[] = {{Tip::Obvezni, "Obvezni"}, {Tip::Izborni, "Izborni"}};

constexpr std::string_view SemesterTexts[MaxSemesters] = {"1", "2", "3", "4", "5", "6"};

} // namespace

std::optional<Tip> TipOf(std::string_view text, OtherTypes others)
{
    if (EqualsIgnoreCase(text, "OBVEZNI"))
        return Tip::Obvezni;
    if (others == OtherTypes::CountAsElective || EqualsIgnoreCase(text, "IZBORNI"))
        return Tip::Izborni;
    return std::nullopt;
}

TeachingLoad& TeachingLoad::operator+=(const TeachingLoad& other)
{
    P = CheckedSum(P, other.P);
    S = CheckedSum(S, other.S);
    V = CheckedSum(V, other.V);
    ECTS = CheckedSum(ECTS, other.ECTS);
    Kolegija = CheckedSum(Kolegija, other.Kolegija);
    return *this;
}

TeachingLoad TeachingLoad::Times(std::int32_t weight) const
{
    return {CheckedProduct(P, weight), CheckedProduct(S, weight), CheckedProduct(V, weight),
            CheckedProduct(ECTS, weight), CheckedProduct(Kolegija, weight)};
}

void TeachingLoadSums::Add(std::int32_t semestar, Tip tip, const TeachingLoad& load)
{
    if (semestar >= 1 && semestar <= MaxSemesters)
        m_sums[static_cast<std::size_t>(semestar - 1)][static_cast<std::size_t>(tip)] += load;
}

const TeachingLoad& TeachingLoadSums::Of(int semestar, Tip tip) const
{
    return m_sums.at(static_cast<std::size_t>(semestar - 1))[static_cast<std::size_t>(tip)];
}

TeachingLoad TeachingLoadSums::Total(Tip tip, int last) const
{
    TeachingLoad total;
    for (int semestar = 1; semestar <= last; ++semestar)
        total += Of(semestar, tip);
    return total;
}

std::vector<TeachingLoadLine> TeachingLoadLines(const TeachingLoadSums& sums, const TeachingLoadStyle& style,
                                                SemesterRange range)
{
    std::vector<TeachingLoadLine> lines;
    lines.reserve((MaxSemesters + 1) * std::size(Types) + 1);
    for (int semestar = 1; semestar <= range.Last; ++semestar)
    {
        if (range.Only != 0 && semestar != range.Only)
            continue;
        const std::string_view text = SemesterTexts[semestar - 1];
        for (const auto& [tip, name] : Types)
        {
            const TeachingLoad& load = sums.Of(semestar, tip);
            lines.push_back({text, name, load, false, load.ECTS > FullSemesterEcts});
        }
    }

    TeachingLoad grandTotal;
    for (const auto& [tip, name] : Types)
    {
        const TeachingLoad total = sums.Total(tip, range.Last);
        lines.push_back({style.TypeTotal, name, total, true, false});
        grandTotal += total;
    }
    lines.push_back({style.GrandTotal, style.AllTypes, grandTotal, true, false});
    return lines;
}

std::vector<ListRow> TeachingLoadRows(const TeachingLoadSums& sums, const TeachingLoadStyle& style,
                                      SemesterRange range)
{
    std::vector<ListRow> rows;
    for (const TeachingLoadLine& line : TeachingLoadLines(sums, style, range))
    {
        std::vector<std::string> texts = {std::string(line.First), std::string(line.Second)};
        for (const std::int32_t number : line.Sums.Numbers())
            texts.push_back(std::to_string(number));
        rows.push_back(UniformRow(texts, TextColours::Black, line.IsTotal));
        if (style.FlagsOverfull && line.IsOverfull)
            rows.back()[EctsColumn].Colour = TextColours::Red;
    }
    return rows;
}

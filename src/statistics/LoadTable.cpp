#include "statistics/LoadTable.h"

#include "data/Numbers.h"
#include "data/Text.h"

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

ListRow LoadRow(std::string_view first, std::string_view second, const Load& load, bool bold)
{
    std::vector<std::string> texts = {std::string(first), std::string(second)};
    for (const std::int32_t number : {load.P, load.S, load.V, load.ECTS, load.Kolegija})
        texts.push_back(std::to_string(number));
    return UniformRow(std::move(texts), Black, bold);
}

} // namespace

std::optional<Tip> TipOf(std::string_view text, OtherTypes others)
{
    if (IsWord(text, "OBVEZNI"))
        return Tip::Obvezni;
    if (others == OtherTypes::CountAsElective || IsWord(text, "IZBORNI"))
        return Tip::Izborni;
    return std::nullopt;
}

Load& Load::operator+=(const Load& other)
{
    P = CheckedSum(P, other.P);
    S = CheckedSum(S, other.S);
    V = CheckedSum(V, other.V);
    ECTS = CheckedSum(ECTS, other.ECTS);
    Kolegija = CheckedSum(Kolegija, other.Kolegija);
    return *this;
}

Load Load::Times(std::int32_t weight) const
{
    return {CheckedProduct(P, weight), CheckedProduct(S, weight), CheckedProduct(V, weight),
            CheckedProduct(ECTS, weight), CheckedProduct(Kolegija, weight)};
}

void LoadSums::Add(std::int32_t semestar, Tip tip, const Load& load)
{
    if (semestar >= 1 && semestar <= MostSemesters)
        Sums[static_cast<std::size_t>(semestar - 1)][static_cast<std::size_t>(tip)] += load;
}

const Load& LoadSums::Of(int semestar, Tip tip) const
{
    return Sums.at(static_cast<std::size_t>(semestar - 1))[static_cast<std::size_t>(tip)];
}

Load LoadSums::Total(Tip tip, int last) const
{
    Load total;
    for (int semestar = 1; semestar <= last; ++semestar)
        total += Of(semestar, tip);
    return total;
}

std::vector<ListRow> LoadRows(const LoadSums& sums, const LoadTableStyle& style, SemesterRange range)
{
    std::vector<ListRow> rows;
    for (int semestar = 1; semestar <= range.Last; ++semestar)
    {
        if (range.Only != 0 && semestar != range.Only)
            continue;
        for (const auto& [tip, name] : Types)
        {
            const Load& load = sums.Of(semestar, tip);
            rows.push_back(LoadRow(std::to_string(semestar), name, load, false));
            if (style.FlagsOverfull && load.ECTS > FullSemesterEcts)
                rows.back()[EctsColumn].Colour = Red;
        }
    }

    Load grandTotal;
    for (const auto& [tip, name] : Types)
    {
        const Load total = sums.Total(tip, range.Last);
        rows.push_back(LoadRow(style.TypeTotal, name, total, true));
        grandTotal += total;
    }
    rows.push_back(LoadRow(style.GrandTotal, style.AllTypes, grandTotal, true));
    return rows;
}

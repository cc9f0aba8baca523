#include "data/TableChoices.h"

#include "data/modData.h"
#include "text/Text.h"

namespace
{

Choice ChoiceOf(const modData::Row& row, std::size_t textColumn)
{
    return {std::string(row.Field(textColumn)), row.Number(modData::IDColumn)};
}

} // namespace

std::vector<Choice> RazinaChoices()
{
    return {{std::string(modData::Preddiplomski)}, {std::string(modData::Diplomski)}};
}

std::vector<Choice> SemestarChoices(std::string_view razina)
{
    std::vector<Choice> choices;
    for (int semestar = 1; semestar <= modData::LastSemestar(razina); ++semestar)
        choices.push_back({std::to_string(semestar), semestar});
    return choices;
}

std::vector<Choice> StudijChoices(std::string_view razina, RazinaMatch match)
{
    const auto compared = [match](std::string_view text)
    { return match == RazinaMatch::Trimmed ? TrimBlanks(text) : text; };

    std::vector<Choice> choices;
    for (const modData::Row& studij : modData::Studiji)
        if (compared(studij.Field(Studij::Razina)) == compared(razina))
            choices.push_back(ChoiceOf(studij, Studij::Kratica));
    return choices;
}

std::vector<Choice> SmjerChoices(std::int32_t studijID)
{
    std::vector<Choice> choices;
    for (const modData::Row& smjer : modData::Smjerovi.Matching(Smjer::StudijID, studijID))
        choices.push_back(ChoiceOf(smjer, Smjer::Kratica));
    return choices;
}

std::vector<Choice> NastavnikChoices()
{
    std::vector<Choice> choices;
    for (const modData::Row& nastavnik : modData::Nastavnici)
        choices.push_back(ChoiceOf(nastavnik, Nastavnik::PrezimeIme));
    return choices;
}

std::vector<Choice> NamedNastavnikChoices()
{
    std::vector<Choice> choices;
    for (const modData::Row& nastavnik : modData::Nastavnici)
        if (!TrimBlanks(nastavnik.Field(Nastavnik::PrezimeIme)).empty())
            choices.push_back(ChoiceOf(nastavnik, Nastavnik::PrezimeIme));
    return choices;
}

std::vector<Choice> ZavodChoices()
{
    std::vector<Choice> choices;
    for (const modData::Row& zavod : modData::Zavodi)
        choices.push_back(
            {std::string(zavod.Field(Zavod::Naziv)), zavod.Number(Zavod::ID, Conversion::Safe)});
    return choices;
}

std::vector<Choice> WithSvi(std::vector<Choice> choices)
{
    choices.insert(choices.begin(), {std::string(Svi)});
    return choices;
}

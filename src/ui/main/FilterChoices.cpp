#include "ui/main/FilterChoices.h"

#include "data/modData.h"

namespace
{

int LastSemestar(std::string_view razina)
{
    if (razina == modData::Preddiplomski)
        return 6;
    return razina == modData::Diplomski ? 4 : 0;
}

} // namespace

std::vector<Choice> RazinaChoices()
{
    return {{std::string(modData::Preddiplomski)}, {std::string(modData::Diplomski)}};
}

std::vector<Choice> ProgramChoices(std::string_view razina)
{
    std::vector<Choice> choices;
    for (const Row& studij : modData::Studiji)
        if (studij.Field(Studij::Razina) == razina)
            choices.push_back({std::string(studij.Field(Studij::Kratica)), studij.Number(Studij::ID)});
    return choices;
}

std::vector<Choice> SmjerChoices(std::optional<std::int32_t> studijID)
{
    std::vector<Choice> choices = {{std::string(Svi)}};
    if (studijID)
        modData::Smjerovi.ForEachMatch(
            Smjer::StudijID, *studijID,
            [&](const Row& smjer) {
                choices.push_back({std::string(smjer.Field(Smjer::Kratica)), smjer.Number(Smjer::ID)});
            });
    return choices;
}

std::vector<Choice> SemestarChoices(std::string_view razina)
{
    std::vector<Choice> choices = {{std::string(Svi)}};
    for (int semestar = 1; semestar <= LastSemestar(razina); ++semestar)
        choices.push_back({std::to_string(semestar)});
    return choices;
}

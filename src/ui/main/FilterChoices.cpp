#include "ui/main/FilterChoices.h"

#include "data/modData.h"
#include "lists/TableChoices.h"

std::vector<Choice> SmjerFilterChoices(std::optional<std::int32_t> studijID)
{
    std::vector<Choice> choices = studijID ? SmjerChoices(*studijID) : std::vector<Choice>();
    choices.insert(choices.begin(), {std::string(Svi)});
    return choices;
}

std::vector<Choice> SemestarFilterChoices(std::string_view razina)
{
    std::vector<Choice> choices;
    if (razina == modData::Preddiplomski || razina == modData::Diplomski)
        choices = SemestarChoices(razina);
    choices.insert(choices.begin(), {std::string(Svi)});
    return choices;
}

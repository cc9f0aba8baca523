#include "ui/main/FilterChoices.h"

#include "data/TableChoices.h"
#include "data/modData.h"

std::vector<Choice> SmjerFilterChoices(std::optional<std::int32_t> studijID)
{
    return WithSvi(studijID ? SmjerChoices(*studijID) : std::vector<Choice>());
}

std::vector<Choice> SemestarFilterChoices(std::string_view razina)
{
    const bool isRazina = razina == modData::Preddiplomski || razina == modData::Diplomski;
    return WithSvi(isRazina ? SemestarChoices(razina) : std::vector<Choice>());
}

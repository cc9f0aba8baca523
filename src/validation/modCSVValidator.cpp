#include "validation/modCSVValidator.h"

#include "data/Numbers.h"
#include "data/Text.h"
#include "data/modData.h"

#include <string_view>

namespace modCSVValidator
{

namespace
{

constexpr std::int32_t FirstSemestar = 1;
constexpr std::int32_t LastSemestar = 6;
constexpr std::int32_t FirstRedoslijed = 1;
constexpr std::int32_t LastRedoslijed = 3;

/// True when a row before this one has its ID, which is in the first column and has been read already.
bool IsDuplicate(const Table& table, const Row& row, std::int32_t id)
{
    return table.FindPosition(0, id) < table.PositionOf(row);
}

/// "Table: column ne postoji › value", the value as it stands in the file.
std::string Missing(std::string_view what, std::string_view value)
{
    return std::string(what) + " ne postoji › " + std::string(value);
}

std::string Invalid(std::string_view what, std::string_view value, std::string_view where)
{
    return std::string(what) + " (" + std::string(value) + ") " + std::string(where);
}

} // namespace

bool ZavodExists(std::int32_t id)
{
    return modData::Zavodi.FindFirst(Zavod::ID, id) != nullptr;
}

bool NastavnikExists(std::int32_t id)
{
    return modData::Nastavnici.FindFirst(Nastavnik::ID, id) != nullptr;
}

bool StudijExists(std::int32_t id)
{
    return modData::Studiji.FindFirst(Studij::ID, id) != nullptr;
}

bool SmjerExists(std::int32_t id)
{
    return modData::Smjerovi.FindFirst(Smjer::ID, id) != nullptr;
}

bool KolegijExists(std::int32_t id)
{
    return modData::Kolegiji.FindFirst(Kolegij::ID, id) != nullptr;
}

void CheckNastavnici(Messages& messages)
{
    for (const Row& row : modData::Nastavnici)
    {
        const std::int32_t id = row.Number(Nastavnik::ID);
        if (IsDuplicate(modData::Nastavnici, row, id))
            messages.push_back("Nastavnici: dupli ID_nastavnik = " + std::to_string(id));
        if (TrimBlanks(row.Field(Nastavnik::PrezimeIme)).empty())
            messages.push_back("Nastavnici: prazno ime za ID " + std::to_string(id));
        if (!ZavodExists(row.Number(Nastavnik::ZavodID)))
            messages.push_back(Missing("Nastavnici: ID_zavod", row.Field(Nastavnik::ZavodID)));
    }
}

void CheckKolegiji(Messages& messages)
{
    for (const Row& row : modData::Kolegiji)
    {
        const std::int32_t id = row.Number(Kolegij::ID);
        if (IsDuplicate(modData::Kolegiji, row, id))
            messages.push_back("Kolegiji: dupli ID_kolegij = " + std::to_string(id));

        // The conversion comes first on purpose: a semester that is no number ends the check as an error,
        // not as a message.
        const std::int32_t semestar = row.Number(Kolegij::Semestar);
        if (!IsNumeric(row.Field(Kolegij::Semestar)) || semestar > LastSemestar || semestar < FirstSemestar)
            messages.push_back(Invalid("Kolegiji: neispravan semestar", row.Field(Kolegij::Semestar),
                                       "za ID " + std::to_string(id)));

        if (!StudijExists(row.Number(Kolegij::StudijID)))
            messages.push_back(Missing("Kolegiji: ID_studij", row.Field(Kolegij::StudijID)));
    }
}

void CheckKolegijNastavnici(Messages& messages)
{
    for (const Row& row : modData::KolegijNastavnici)
    {
        if (!KolegijExists(row.Number(KolegijNastavnik::KolegijID)))
            messages.push_back(
                Missing("KolegijNastavnik: ID_kolegij", row.Field(KolegijNastavnik::KolegijID)));
        if (!NastavnikExists(row.Number(KolegijNastavnik::NastavnikID)))
            messages.push_back(
                Missing("KolegijNastavnik: ID_nastavnik", row.Field(KolegijNastavnik::NastavnikID)));

        const std::int32_t redoslijed = row.Number(KolegijNastavnik::Redoslijed);
        if (redoslijed > LastRedoslijed || redoslijed < FirstRedoslijed)
            messages.push_back(Invalid("KolegijNastavnik: neispravan redoslijed",
                                       row.Field(KolegijNastavnik::Redoslijed),
                                       "za kolegij " + std::string(row.Field(KolegijNastavnik::KolegijID))));
    }
}

void CheckKolegijSmjerovi(Messages& messages)
{
    for (const Row& row : modData::KolegijSmjerovi)
    {
        if (!KolegijExists(row.Number(KolegijSmjer::KolegijID)))
            messages.push_back(Missing("KolegijSmjer: ID_kolegij", row.Field(KolegijSmjer::KolegijID)));
        if (!SmjerExists(row.Number(KolegijSmjer::SmjerID)))
            messages.push_back(Missing("KolegijSmjer: ID_smjer", row.Field(KolegijSmjer::SmjerID)));
    }
}

void CheckSmjerovi(Messages& messages)
{
    for (const Row& row : modData::Smjerovi)
        if (!StudijExists(row.Number(Smjer::StudijID)))
            messages.push_back(Missing("Smjerovi: ID_studij", row.Field(Smjer::StudijID)));
}

void CheckStudiji(Messages& messages)
{
    for (const Row& row : modData::Studiji)
    {
        const std::string_view razina = row.Field(Studij::Razina);
        if (razina != modData::Preddiplomski && razina != modData::Diplomski)
            messages.push_back("Studiji: neispravna razina › " + std::string(razina));
    }
}

Messages AllMessages()
{
    Messages messages;
    CheckNastavnici(messages);
    CheckKolegiji(messages);
    CheckKolegijNastavnici(messages);
    CheckKolegijSmjerovi(messages);
    CheckSmjerovi(messages);
    CheckStudiji(messages);
    return messages;
}

bool ValidateAll()
{
    return AllMessages().empty();
}

} // namespace modCSVValidator

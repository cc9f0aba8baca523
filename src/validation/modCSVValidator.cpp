#include "validation/modCSVValidator.h"

#include "data/modData.h"
#include "text/Numbers.h"
#include "text/Text.h"

#include <string_view>

namespace modCSVValidator
{

namespace
{

constexpr std::int32_t FirstSemestar = 1;
constexpr std::int32_t LastSemestar = 6;
constexpr std::int32_t FirstRedoslijed = 1;
constexpr std::int32_t LastRedoslijed = 3;

/// True if an earlier row of the table has this row's ID.
bool IsDuplicate(const modData::Table& table, const modData::Row& row, std::int32_t id)
{
    return table.FindFirst(modData::IDColumn, id) != &row;
}

/// True if a row's reference leads to a row of a table.
using Exists = bool (*)(std::int32_t id);

/// "Table: column ne postoji › value" if a reference leads to no row; the value is the text in the file.
void CheckReference(const modData::Row& row, std::size_t column, Exists exists, std::string_view what,
                    Messages& messages)
{
    if (!exists(row.Number(column)))
        messages.push_back(
            {std::string(what) + " ne postoji › " + std::string(row.Field(column)), row.Place(column)});
}

std::string Invalid(std::string_view what, std::string_view value, std::string_view where)
{
    return std::string(what) + " (" + std::string(value) + ") " + std::string(where);
}

void CheckNastavnik(const modData::Row& row, Messages& messages)
{
    const std::int32_t id = row.Number(Nastavnik::ID);
    if (IsDuplicate(modData::Nastavnici, row, id))
        messages.push_back(
            {"Nastavnici: dupli ID_nastavnik = " + std::to_string(id), row.Place(Nastavnik::ID)});
    if (TrimBlanks(row.Field(Nastavnik::PrezimeIme)).empty())
        messages.push_back(
            {"Nastavnici: prazno ime za ID " + std::to_string(id), row.Place(Nastavnik::PrezimeIme)});
    CheckReference(row, Nastavnik::ZavodID, ZavodExists, "Nastavnici: ID_zavod", messages);
}

void CheckKolegij(const modData::Row& row, Messages& messages)
{
    const std::int32_t id = row.Number(Kolegij::ID);
    if (IsDuplicate(modData::Kolegiji, row, id))
        messages.push_back({"Kolegiji: dupli ID_kolegij = " + std::to_string(id), row.Place(Kolegij::ID)});

    // The conversion comes first on purpose: a semester that is not a number is an error, not a message.
    const std::int32_t semestar = row.Number(Kolegij::Semestar);
    const std::string_view text = row.Field(Kolegij::Semestar);
    if (!IsNumeric(text) || semestar > LastSemestar || semestar < FirstSemestar)
        messages.push_back({Invalid("Kolegiji: neispravan semestar", text, "za ID " + std::to_string(id)),
                            row.Place(Kolegij::Semestar)});

    CheckReference(row, Kolegij::StudijID, StudijExists, "Kolegiji: ID_studij", messages);
}

void CheckKolegijNastavnik(const modData::Row& row, Messages& messages)
{
    using namespace KolegijNastavnik;
    CheckReference(row, KolegijID, KolegijExists, "KolegijNastavnik: ID_kolegij", messages);
    CheckReference(row, NastavnikID, NastavnikExists, "KolegijNastavnik: ID_nastavnik", messages);

    const std::int32_t redoslijed = row.Number(Redoslijed);
    if (redoslijed > LastRedoslijed || redoslijed < FirstRedoslijed)
        messages.push_back({Invalid("KolegijNastavnik: neispravan redoslijed", row.Field(Redoslijed),
                                    "za kolegij " + std::string(row.Field(KolegijID))),
                            row.Place(Redoslijed)});
}

void CheckKolegijSmjer(const modData::Row& row, Messages& messages)
{
    CheckReference(row, KolegijSmjer::KolegijID, KolegijExists, "KolegijSmjer: ID_kolegij", messages);
    CheckReference(row, KolegijSmjer::SmjerID, SmjerExists, "KolegijSmjer: ID_smjer", messages);
}

void CheckSmjer(const modData::Row& row, Messages& messages)
{
    CheckReference(row, Smjer::StudijID, StudijExists, "Smjerovi: ID_studij", messages);
}

void CheckStudij(const modData::Row& row, Messages& messages)
{
    const std::string_view razina = row.Field(Studij::Razina);
    if (razina != modData::Preddiplomski && razina != modData::Diplomski)
        messages.push_back(
            {"Studiji: neispravna razina › " + std::string(razina), row.Place(Studij::Razina)});
}

void CheckEach(const modData::Table& table, void (*checkRow)(const modData::Row&, Messages&),
               Messages& messages)
{
    for (const modData::Row& row : table)
        checkRow(row, messages);
}

} // namespace

const std::array<RowCheck, 6> RowChecks = {{
    {modData::Nastavnici, CheckNastavnik},
    {modData::Kolegiji, CheckKolegij},
    {modData::KolegijNastavnici, CheckKolegijNastavnik},
    {modData::KolegijSmjerovi, CheckKolegijSmjer},
    {modData::Smjerovi, CheckSmjer},
    {modData::Studiji, CheckStudij},
}};

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
    CheckEach(modData::Nastavnici, CheckNastavnik, messages);
}

void CheckKolegiji(Messages& messages)
{
    CheckEach(modData::Kolegiji, CheckKolegij, messages);
}

void CheckKolegijNastavnici(Messages& messages)
{
    CheckEach(modData::KolegijNastavnici, CheckKolegijNastavnik, messages);
}

void CheckKolegijSmjerovi(Messages& messages)
{
    CheckEach(modData::KolegijSmjerovi, CheckKolegijSmjer, messages);
}

void CheckSmjerovi(Messages& messages)
{
    CheckEach(modData::Smjerovi, CheckSmjer, messages);
}

void CheckStudiji(Messages& messages)
{
    CheckEach(modData::Studiji, CheckStudij, messages);
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

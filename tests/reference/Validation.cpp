#include "reference/Scan.h"

#include "data/modData.h"

#include <set>

// The checks.

namespace reference
{

namespace
{

using Messages = std::vector<std::string>;

void CheckReference(const TextTable& target, const TextTable& table, const TextRow& row, std::size_t column,
                    const std::string& what, Messages& messages)
{
    if (FirstWithID(target, Number(table, row, column)) == nullptr)
        messages.push_back(what + " ne postoji › " + Field(table, row, column));
}

void CheckNastavnici(const Catalogue& catalogue, Messages& messages)
{
    const TextTable& table = catalogue.Nastavnici;
    std::set<std::int32_t> seen;
    for (const TextRow& row : table.Rows)
    {
        const std::int32_t id = Number(table, row, Nastavnik::ID);
        if (!seen.insert(id).second)
            messages.push_back("Nastavnici: dupli ID_nastavnik = " + std::to_string(id));
        if (Trimmed(Field(table, row, Nastavnik::PrezimeIme)).empty())
            messages.push_back("Nastavnici: prazno ime za ID " + std::to_string(id));
        CheckReference(catalogue.Zavodi, table, row, Nastavnik::ZavodID, "Nastavnici: ID_zavod", messages);
    }
}

void CheckKolegiji(const Catalogue& catalogue, Messages& messages)
{
    const TextTable& table = catalogue.Kolegiji;
    std::set<std::int32_t> seen;
    for (const TextRow& row : table.Rows)
    {
        const std::int32_t id = Number(table, row, Kolegij::ID);
        if (!seen.insert(id).second)
            messages.push_back("Kolegiji: dupli ID_kolegij = " + std::to_string(id));
        const std::int32_t semestar = Number(table, row, Kolegij::Semestar);
        if (semestar >= 7 || semestar < 1)
            messages.push_back("Kolegiji: neispravan semestar (" + Field(table, row, Kolegij::Semestar) +
                               ") za ID " + std::to_string(id));
        CheckReference(catalogue.Studiji, table, row, Kolegij::StudijID, "Kolegiji: ID_studij", messages);
    }
}

void CheckKolegijNastavnici(const Catalogue& catalogue, Messages& messages)
{
    const TextTable& table = catalogue.KolegijNastavnici;
    for (const TextRow& row : table.Rows)
    {
        CheckReference(catalogue.Kolegiji, table, row, KolegijNastavnik::KolegijID,
                       "KolegijNastavnik: ID_kolegij", messages);
        CheckReference(catalogue.Nastavnici, table, row, KolegijNastavnik::NastavnikID,
                       "KolegijNastavnik: ID_nastavnik", messages);
        const std::int32_t redoslijed = Number(table, row, KolegijNastavnik::Redoslijed);
        if (redoslijed >= 4 || redoslijed < 1)
            messages.push_back("KolegijNastavnik: neispravan redoslijed (" +
                               Field(table, row, KolegijNastavnik::Redoslijed) + ") za kolegij " +
                               Field(table, row, KolegijNastavnik::KolegijID));
    }
}

void CheckKolegijSmjerovi(const Catalogue& catalogue, Messages& messages)
{
    const TextTable& table = catalogue.KolegijSmjerovi;
    for (const TextRow& row : table.Rows)
    {
        CheckReference(catalogue.Kolegiji, table, row, KolegijSmjer::KolegijID, "KolegijSmjer: ID_kolegij",
                       messages);
        CheckReference(catalogue.Smjerovi, table, row, KolegijSmjer::SmjerID, "KolegijSmjer: ID_smjer",
                       messages);
    }
}

void CheckStudiji(const Catalogue& catalogue, Messages& messages)
{
    for (const TextRow& row : catalogue.Studiji.Rows)
    {
        const std::string& razina = Field(catalogue.Studiji, row, Studij::Razina);
        if (razina != "Preddiplomski" && razina != "Diplomski")
            messages.push_back("Studiji: neispravna razina › " + razina);
    }
}

} // namespace

std::vector<std::string> Validate(const Catalogue& catalogue)
{
    Messages messages;
    CheckNastavnici(catalogue, messages);
    CheckKolegiji(catalogue, messages);
    CheckKolegijNastavnici(catalogue, messages);
    CheckKolegijSmjerovi(catalogue, messages);
    for (const TextRow& row : catalogue.Smjerovi.Rows)
        CheckReference(catalogue.Studiji, catalogue.Smjerovi, row, Smjer::StudijID, "Smjerovi: ID_studij",
                       messages);
    CheckStudiji(catalogue, messages);
    return messages;
}

} // namespace reference

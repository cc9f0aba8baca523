#include "ui/main/CourseDeletion.h"

#include "data/modData.h"

void DeleteKolegij(std::int32_t id)
{
    modData::Kolegiji.RemoveMatches(Kolegij::ID, id);
    modData::KolegijSmjerovi.RemoveMatches(KolegijSmjer::KolegijID, id);
    modData::KolegijNastavnici.RemoveMatches(KolegijNastavnik::KolegijID, id);
}

#include "data/Lookups.h"

#include "data/modData.h"
#include "text/Text.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace modData
{

namespace
{

std::string TextOf(const Table& table, std::int32_t id, std::size_t column)
{
    const Row* row = table.FindFirst(IDColumn, id);
    return row == nullptr ? std::string() : std::string(row->Field(column));
}

/// For reading all links.
constexpr std::size_t NoLimit = SIZE_MAX;

struct PlacedID
{
    std::int32_t NastavnikID;
    std::int32_t Redoslijed;
};

/// Smallest place first. The exchange sort is part of the rule: it decides the order of equal places.
template<typename Placed>
void OrderByRedoslijed(std::vector<Placed>& items)
{
    for (std::size_t i = 0; i + 1 < items.size(); ++i)
        for (std::size_t j = i + 1; j < items.size(); ++j)
            if (items[i].Redoslijed > items[j].Redoslijed)
                std::swap(items[i], items[j]);
}

std::vector<PlacedID> LinkedNastavnici(std::int32_t kolegijId, std::size_t most)
{
    std::vector<PlacedID> linked;
    for (const Row& link : KolegijNastavnici.Matching(KolegijNastavnik::KolegijID, kolegijId))
        if (linked.size() < most)
            linked.push_back(
                {link.Number(KolegijNastavnik::NastavnikID), link.Number(KolegijNastavnik::Redoslijed)});
    OrderByRedoslijed(linked);
    return linked;
}

} // namespace

std::string GetStudijKratica(std::int32_t id)
{
    return TextOf(Studiji, id, Studij::Kratica);
}

std::string GetStudijRazina(std::int32_t id)
{
    return TextOf(Studiji, id, Studij::Razina);
}

std::string GetSmjerKratica(std::int32_t id)
{
    return TextOf(Smjerovi, id, Smjer::Kratica);
}

std::string GetNastavnikIme(std::int32_t id)
{
    return TextOf(Nastavnici, id, Nastavnik::PrezimeIme);
}

std::string GetSmjeroviKraticeString(std::int32_t kolegijId)
{
    std::string joined;
    for (const Row& link : KolegijSmjerovi.Matching(KolegijSmjer::KolegijID, kolegijId))
    {
        const std::string kratica = GetSmjerKratica(link.Number(KolegijSmjer::SmjerID));
        if (const std::string_view shown = TrimBlanks(kratica); !shown.empty())
            AppendJoined(joined, ", ", shown);
    }
    return joined;
}

std::string GetNositeljiString(std::int32_t kolegijId)
{
    std::string joined;
    for (const PlacedID& nositelj : LinkedNastavnici(kolegijId, NoLimit))
        AppendJoined(joined, "; ", GetNastavnikIme(nositelj.NastavnikID));
    return joined;
}

void GetNositelji123(std::int32_t kolegijId, std::string& first, std::string& second, std::string& third)
{
    std::string* const names[] = {&first, &second, &third};
    for (std::string* name : names)
        name->clear();
    const std::vector<PlacedID> kept = LinkedNastavnici(kolegijId, std::size(names));
    for (std::size_t i = 0; i < std::min(kept.size(), std::size(names)); ++i)
        *names[i] = GetNastavnikIme(kept[i].NastavnikID);
}

std::vector<PlacedNastavnik> GetNastavniciForKolegij(std::int32_t kolegijId)
{
    constexpr std::size_t usualCount = 4;
    std::vector<PlacedNastavnik> found;
    found.reserve(usualCount);
    for (const Row& link : KolegijNastavnici.Matching(KolegijNastavnik::KolegijID, kolegijId))
        if (const Row* nastavnik =
                Nastavnici.FindFirst(Nastavnik::ID, link.Number(KolegijNastavnik::NastavnikID)))
            found.push_back({nastavnik, link.Number(KolegijNastavnik::Redoslijed)});
    OrderByRedoslijed(found);
    return found;
}

} // namespace modData

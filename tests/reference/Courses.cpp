#include "reference/Scan.h"

#include "data/modData.h"

#include <algorithm>
#include <array>
#include <utility>

// Names joined in one text, and the course list.

namespace reference
{

namespace
{

constexpr std::size_t NositeljSlots = 3;

template<typename Item>
void ExchangeSort(std::vector<Item>& items)
{
    for (std::size_t i = 0; i < items.size(); ++i)
        for (std::size_t j = i + 1; j < items.size(); ++j)
            if (items[i].Redoslijed > items[j].Redoslijed)
                std::swap(items[i], items[j]);
}

std::string NastavniciString(const Catalogue& catalogue, std::int32_t kolegijID)
{
    struct PlacedRow
    {
        const TextRow* Row;
        std::int32_t Redoslijed;
    };
    const TextTable& links = catalogue.KolegijNastavnici;
    std::vector<PlacedRow> found;
    for (const TextRow& link : links.Rows)
    {
        if (Number(links, link, KolegijNastavnik::KolegijID) != kolegijID)
            continue;
        const TextRow* nastavnik =
            FirstWithID(catalogue.Nastavnici, Number(links, link, KolegijNastavnik::NastavnikID));
        if (nastavnik != nullptr)
            found.push_back({nastavnik, Number(links, link, KolegijNastavnik::Redoslijed)});
    }
    ExchangeSort(found);

    std::string joined;
    for (std::size_t i = 0; i < found.size(); ++i)
    {
        if (i > 0)
            joined += ", ";
        joined += Field(catalogue.Nastavnici, *found[i].Row, Nastavnik::PrezimeIme);
    }
    return joined;
}

std::string SmjeroviString(const Catalogue& catalogue, std::int32_t kolegijID)
{
    const TextTable& links = catalogue.KolegijSmjerovi;
    std::string joined;
    for (const TextRow& link : links.Rows)
    {
        if (Number(links, link, KolegijSmjer::KolegijID) != kolegijID)
            continue;
        const TextRow* smjer = FirstWithID(catalogue.Smjerovi, Number(links, link, KolegijSmjer::SmjerID));
        if (smjer == nullptr)
            continue;
        if (!joined.empty())
            joined += ", ";
        joined += Field(catalogue.Smjerovi, *smjer, Smjer::Kratica);
    }
    return joined;
}

ListRow CourseRow(const Catalogue& catalogue, const TextRow& kolegij)
{
    const TextTable& kolegiji = catalogue.Kolegiji;
    const std::string studij =
        TextOfID(catalogue.Studiji, Number(kolegiji, kolegij, Kolegij::StudijID), Studij::Kratica);
    std::vector<std::string> texts;
    for (const Kolegij::Column column : {Kolegij::ID, Kolegij::Naziv, Kolegij::P, Kolegij::S, Kolegij::V,
                                         Kolegij::ECTS, Kolegij::Tip, Kolegij::Semestar})
        texts.push_back(Field(kolegiji, kolegij, column));
    texts.push_back(studij);
    const std::int32_t id = Number(kolegiji, kolegij, Kolegij::ID);
    texts.push_back(SmjeroviString(catalogue, id));
    texts.push_back(NastavniciString(catalogue, id));

    const TextColour colour =
        Reads(Field(kolegiji, kolegij, Kolegij::Tip), "IZBORNI") ? TextColours::Blue : TextColours::Black;
    ListRow row;
    for (const std::string& text : texts)
        row.push_back({text, colour, false});
    return row;
}

} // namespace

bool MatchesSearch(const Catalogue& catalogue, const TextRow& kolegij, const std::string& search)
{
    if (Trimmed(search).empty())
        return true;
    const TextTable& kolegiji = catalogue.Kolegiji;
    std::string haystack = " " + Field(kolegiji, kolegij, Kolegij::Naziv);
    haystack += " " + Field(kolegiji, kolegij, Kolegij::ECTS);
    haystack += " " + Field(kolegiji, kolegij, Kolegij::Tip);
    haystack += " " + NastavniciString(catalogue, Number(kolegiji, kolegij, Kolegij::ID));
    return InUpperCase(haystack).find(InUpperCase(Trimmed(search))) != std::string::npos;
}

bool HasSmjer(const Catalogue& catalogue, std::int32_t kolegijID, std::int32_t smjerID)
{
    const TextTable& links = catalogue.KolegijSmjerovi;
    for (const TextRow& link : links.Rows)
        if (Number(links, link, KolegijSmjer::KolegijID) == kolegijID &&
            Number(links, link, KolegijSmjer::SmjerID) == smjerID)
            return true;
    return false;
}

std::string GetSmjeroviKraticeString(const Catalogue& catalogue, std::int32_t kolegijID)
{
    const TextTable& links = catalogue.KolegijSmjerovi;
    std::string joined;
    for (const TextRow& link : links.Rows)
    {
        if (Number(links, link, KolegijSmjer::KolegijID) != kolegijID)
            continue;
        const std::string kratica =
            Trimmed(TextOfID(catalogue.Smjerovi, Number(links, link, KolegijSmjer::SmjerID), Smjer::Kratica));
        if (kratica.empty())
            continue;
        if (!joined.empty())
            joined += ", ";
        joined += kratica;
    }
    return joined;
}

std::vector<PlacedID> LinkedNastavnici(const Catalogue& catalogue, std::int32_t kolegijID, std::size_t most)
{
    const TextTable& links = catalogue.KolegijNastavnici;
    std::vector<PlacedID> linked;
    for (const TextRow& link : links.Rows)
        if (Number(links, link, KolegijNastavnik::KolegijID) == kolegijID && linked.size() < most)
            linked.push_back({Number(links, link, KolegijNastavnik::NastavnikID),
                              Number(links, link, KolegijNastavnik::Redoslijed)});
    ExchangeSort(linked);
    return linked;
}

std::string GetNositeljiString(const Catalogue& catalogue, std::int32_t kolegijID)
{
    std::string joined;
    for (const PlacedID& linked :
         LinkedNastavnici(catalogue, kolegijID, catalogue.KolegijNastavnici.Rows.size()))
    {
        const std::string ime = TextOfID(catalogue.Nastavnici, linked.NastavnikID, Nastavnik::PrezimeIme);
        if (!joined.empty())
            joined += "; ";
        joined += ime;
    }
    return joined;
}

std::string GetNositelji123String(const Catalogue& catalogue, std::int32_t kolegijID)
{
    const TextTable& links = catalogue.KolegijNastavnici;
    std::array<std::string, NositeljSlots> slots;
    for (const TextRow& link : links.Rows)
    {
        if (Number(links, link, KolegijNastavnik::KolegijID) != kolegijID ||
            !Reads(Field(links, link, KolegijNastavnik::Uloga), "NOSITELJ"))
            continue;
        const std::int32_t redoslijed = Number(links, link, KolegijNastavnik::Redoslijed);
        if (redoslijed >= 1 && redoslijed <= 3)
            slots[static_cast<std::size_t>(redoslijed) - 1] =
                TextOfID(catalogue.Nastavnici, Number(links, link, KolegijNastavnik::NastavnikID),
                         Nastavnik::PrezimeIme);
    }

    std::string joined;
    for (const std::string& slot : slots)
    {
        if (Trimmed(slot).empty())
            continue;
        if (!joined.empty())
            joined += " + ";
        joined += slot;
    }
    return joined;
}

std::vector<ListRow> CourseRows(const Catalogue& catalogue, const CourseFilter& filter)
{
    const TextTable& kolegiji = catalogue.Kolegiji;
    std::vector<ListRow> rows;
    for (const TextRow& kolegij : kolegiji.Rows)
    {
        if (filter.StudijID != 0 && Number(kolegiji, kolegij, Kolegij::StudijID) != filter.StudijID)
            continue;
        if (filter.Semestar != 0 && Number(kolegiji, kolegij, Kolegij::Semestar) != filter.Semestar)
            continue;
        if (!MatchesSearch(catalogue, kolegij, filter.Search))
            continue;
        if (filter.SmjerID != 0 &&
            !HasSmjer(catalogue, Number(kolegiji, kolegij, Kolegij::ID), filter.SmjerID))
            continue;
        rows.push_back(CourseRow(catalogue, kolegij));
    }
    return rows;
}

std::vector<ListRow> SortedRows(std::vector<ListRow> rows, std::size_t column, bool descending)
{
    std::ranges::stable_sort(rows,
                             [&](const ListRow& a, const ListRow& b)
                             {
                                 const std::string& textA = a[column].Text;
                                 const std::string& textB = b[column].Text;
                                 return descending ? StandsBefore(textB, textA) : StandsBefore(textA, textB);
                             });
    return rows;
}

} // namespace reference

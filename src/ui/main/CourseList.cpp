#include "ui/main/CourseList.h"

#include "data/CheckedNumbers.h"
#include "data/Errors.h"
#include "data/Lookups.h"
#include "data/modData.h"
#include "text/Numbers.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

namespace
{

// The list's first columns are a course's first fields, as stored. These three are looked up.
enum LookedUpColumn : std::size_t
{
    StudijColumn = Kolegij::Semestar + 1,
    SmjeroviColumn,
    NastavniciColumn,
};
static_assert(std::size(CourseListColumns) == NastavniciColumn + 1);

std::string CellText(const modData::Row& kolegij, std::size_t column)
{
    switch (column)
    {
    case StudijColumn:
        return modData::GetStudijKratica(kolegij.Number(Kolegij::StudijID));
    case SmjeroviColumn:
        return GetSmjeroviForKolegijString(kolegij.Number(Kolegij::ID));
    case NastavniciColumn:
        return GetNastavniciForKolegijString(kolegij.Number(Kolegij::ID));
    default:
        return std::string(kolegij.Field(column));
    }
}

/// Throws if a cell of the course cannot be shown. The study comes first: of several wrong cells, its error
/// is reported. A search has already read the lecturers. @throws DataError
void RequireCells(const modData::Row& kolegij, bool isSearched)
{
    static_cast<void>(CellText(kolegij, StudijColumn));
    static_cast<void>(CellText(kolegij, SmjeroviColumn));
    if (!isSearched)
        static_cast<void>(CellText(kolegij, NastavniciColumn));
}

/// Appends the text of GetNastavniciForKolegijString.
void AppendNastavnici(std::string& text, std::int32_t kolegijID)
{
    std::string_view separator;
    for (const modData::PlacedNastavnik& placed : modData::GetNastavniciForKolegij(kolegijID))
        text.append(std::exchange(separator, ", ")).append(placed.Nastavnik->Field(Nastavnik::PrezimeIme));
}

/// True if a course has this ID; false if its ID is not a number.
bool HasID(const modData::Row& kolegij, std::int32_t id)
{
    std::int32_t read = 0;
    return ParseLong(kolegij.Field(Kolegij::ID), read) == NumberKind::Whole && read == id;
}

} // namespace

Search::Search(std::string_view typed)
    : m_wanted(UpperCase(TrimBlanks(typed))),
      m_verdicts(modData::Kolegiji.RowCount())
{
}

bool Search::Matches(std::size_t position)
{
    std::optional<bool>& verdict = m_verdicts.at(position);
    if (!verdict)
        verdict = MatchesSearch(modData::Kolegiji[position], m_wanted);
    return *verdict;
}

bool MatchesSearch(const modData::Row& kolegij, std::string_view search)
{
    if (search.empty())
        return true;
    constexpr std::size_t usualLength = 128;
    std::string searched;
    searched.reserve(usualLength);
    for (const Kolegij::Column column : {Kolegij::Naziv, Kolegij::ECTS, Kolegij::Tip})
        searched.append(" ").append(kolegij.Field(column));
    AppendNastavnici(searched.append(" "), kolegij.Number(Kolegij::ID));
    MakeUpperCase(searched);
    return searched.find(search) != std::string::npos;
}

bool PassesStudijAndSemestar(const modData::Row& kolegij, const CourseFilter& filter)
{
    return (filter.StudijID == 0 || kolegij.Number(Kolegij::StudijID) == filter.StudijID) &&
           (filter.Semestar == 0 || kolegij.Number(Kolegij::Semestar) == filter.Semestar);
}

std::vector<std::uint32_t> CoursesThatPass(const CourseFilter& filter, Search& search)
{
    std::vector<std::uint32_t> passing;
    for (std::uint32_t position = 0; position < modData::Kolegiji.RowCount(); ++position)
    {
        const modData::Row& kolegij = modData::Kolegiji[position];
        if (!PassesStudijAndSemestar(kolegij, filter) || !search.Matches(position) ||
            (filter.SmjerID != 0 && !KolegijHasSmjer(kolegij.Number(Kolegij::ID), filter.SmjerID)))
            continue;
        RequireCells(kolegij, !search.MatchesAll());
        passing.push_back(position);
    }
    return passing;
}

CourseListModel::CourseListModel(std::vector<std::uint32_t> positions)
    : m_positions(std::move(positions)),
      m_tableRows(modData::Kolegiji.RowCount())
{
    m_ids.reserve(m_positions.size());
    for (const std::uint32_t position : m_positions)
        m_ids.emplace_back(modData::Kolegiji[position].Field(Kolegij::ID));
}

std::string CourseListModel::Text(std::size_t row, std::size_t column) const
{
    if (column == Kolegij::ID)
        return m_ids[row];
    try
    {
        const modData::Row* kolegij = CourseOf(row);
        return kolegij == nullptr ? std::string() : CellText(*kolegij, column);
    }
    catch (const DataError&)
    {
        return {}; // the refresh reports it
    }
}

CellStyle CourseListModel::Style(std::size_t row, std::size_t) const
{
    const modData::Row* kolegij = CourseOf(row);
    if (kolegij == nullptr || kolegij->FieldCount() <= Kolegij::Tip)
        return {};
    return {.Colour = ElectiveColour(kolegij->Field(Kolegij::Tip))};
}

CourseMark CourseListModel::MarkOf(std::size_t row) const
{
    CourseMark course = {ToLong(m_ids[row]), 0};
    const std::size_t end = std::min<std::size_t>(m_positions[row], modData::Kolegiji.RowCount());
    for (std::size_t position = 0; position < end; ++position)
        if (HasID(modData::Kolegiji[position], course.ID))
            ++course.Earlier;
    return course;
}

std::optional<std::size_t> CourseListModel::RowOf(const CourseMark& course) const
{
    std::size_t earlier = 0;
    for (std::uint32_t position = 0; position < modData::Kolegiji.RowCount(); ++position)
    {
        if (!HasID(modData::Kolegiji[position], course.ID) || earlier++ < course.Earlier)
            continue;
        const auto found = std::ranges::lower_bound(m_positions, position);
        if (found == m_positions.end() || *found != position)
            return std::nullopt;
        return static_cast<std::size_t>(found - m_positions.begin());
    }
    return std::nullopt;
}

const modData::Row* CourseListModel::CourseOf(std::size_t row) const
{
    return modData::Kolegiji.RowCount() == m_tableRows ? &modData::Kolegiji[m_positions[row]] : nullptr;
}

bool KolegijHasSmjer(std::int32_t kolegijID, std::int32_t smjerID)
{
    for (const modData::Row& link : modData::KolegijSmjerovi.Matching(KolegijSmjer::KolegijID, kolegijID))
        if (link.Number(KolegijSmjer::SmjerID) == smjerID)
            return true;
    return false;
}

std::string GetSmjeroviForKolegijString(std::int32_t kolegijID)
{
    std::string joined;
    for (const modData::Row& link : modData::KolegijSmjerovi.Matching(KolegijSmjer::KolegijID, kolegijID))
        if (const modData::Row* smjer =
                modData::Smjerovi.FindFirst(Smjer::ID, link.Number(KolegijSmjer::SmjerID)))
            AppendJoined(joined, ", ", smjer->Field(Smjer::Kratica));
    return joined;
}

std::string GetNastavniciForKolegijString(std::int32_t kolegijID)
{
    std::string joined;
    AppendNastavnici(joined, kolegijID);
    return joined;
}

std::string GetNositelji123String(std::int32_t kolegijID)
{
    std::array<std::string, 3> names;
    for (const modData::Row& link :
         modData::KolegijNastavnici.Matching(KolegijNastavnik::KolegijID, kolegijID))
    {
        if (!EqualsIgnoreCase(link.Field(KolegijNastavnik::Uloga), "NOSITELJ"))
            continue;
        const std::int32_t redoslijed = link.Number(KolegijNastavnik::Redoslijed);
        if (redoslijed >= 1 && redoslijed <= 3)
            names[static_cast<std::size_t>(redoslijed - 1)] =
                modData::GetNastavnikIme(link.Number(KolegijNastavnik::NastavnikID));
    }

    std::string joined;
    for (const std::string& name : names)
        if (!TrimBlanks(name).empty())
            AppendJoined(joined, " + ", name);
    return joined;
}

#include "ui/teaching_stats/TaughtCourses.h"

#include "data/Errors.h"
#include "data/Files.h"
#include "data/Lookups.h"
#include "data/modData.h"

#include <optional>
#include <string>

namespace
{

/// What a course adds to the sums.
struct CourseTeachingLoad
{
    std::int32_t Semestar;
    Tip Type;
    TeachingLoad Adds;
};

/// What a course adds to the sums; nothing if it does not count. @throws DataError
std::optional<CourseTeachingLoad> TeachingLoadOf(const modData::Row& kolegij,
                                                 const TeachingStatistic& statistic, Conversion hours)
{
    if (!statistic.Passes(kolegij))
        return std::nullopt;
    const std::int32_t semestar = kolegij.Number(Kolegij::Semestar, statistic.IDs);
    if (semestar < 1 || semestar > MaxSemesters)
        return std::nullopt;
    const std::optional<Tip> tip = TipOf(kolegij.Field(Kolegij::Tip), statistic.Others);
    if (!tip)
        return std::nullopt;
    return CourseTeachingLoad{semestar,
                              *tip,
                              {.P = kolegij.Number(Kolegij::P, hours),
                               .S = kolegij.Number(Kolegij::S, hours),
                               .V = kolegij.Number(Kolegij::V, hours),
                               .ECTS = kolegij.Number(Kolegij::ECTS, hours),
                               .Kolegija = 1}};
}

/// The sums of one lecturer or department; `teachingLoadOf` returns what the course at a position adds.
template<typename LoadOfPosition>
TeachingLoadSums SumsOf(const TeachingStatistic& statistic, std::int32_t id,
                        const LoadOfPosition& teachingLoadOf)
{
    TeachingLoadSums sums;
    statistic.ForEachTaughtCourse(id,
                                  [&](std::size_t position)
                                  {
                                      if (const std::optional<CourseTeachingLoad> load =
                                              teachingLoadOf(position))
                                          sums.Add(load->Semestar, load->Type, load->Adds);
                                  });
    return sums;
}

/// Each course's contribution to the exported sums, computed once and in table order: an export meets a
/// course once for each of its lecturers, and out of order.
class ExportedTeachingLoads
{
public:
    explicit ExportedTeachingLoads(const TeachingStatistic& statistic) : m_statistic(statistic)
    {
        m_teachingLoads.reserve(modData::Kolegiji.RowCount());
        try
        {
            for (const modData::Row& kolegij : modData::Kolegiji)
                m_teachingLoads.push_back(TeachingLoadOf(kolegij, statistic, statistic.ExportedHours));
        }
        catch (const DataError&)
        {
            // An error only if the export needs that course.
        }
    }

    std::optional<CourseTeachingLoad> operator()(std::size_t position) const
    {
        return position < m_teachingLoads.size()
                   ? m_teachingLoads[position]
                   : TeachingLoadOf(modData::Kolegiji[position], m_statistic, m_statistic.ExportedHours);
    }

private:
    const TeachingStatistic& m_statistic;
    std::vector<std::optional<CourseTeachingLoad>>
        m_teachingLoads; // by position, up to the first that cannot be read
};

ListRow TaughtCourseRow(const modData::Row& kolegij, Conversion conversion)
{
    std::vector<std::string> texts;
    for (std::size_t column = Kolegij::Naziv; column <= Kolegij::Semestar; ++column)
        texts.emplace_back(kolegij.Field(column));
    texts.push_back(modData::GetStudijKratica(kolegij.Number(Kolegij::StudijID, conversion)));
    texts.push_back(modData::GetNositeljiString(kolegij.Number(Kolegij::ID, conversion)));
    return UniformRow(texts, ElectiveColour(kolegij.Field(Kolegij::Tip)));
}

} // namespace

void ForEachCourseOfNastavnik(std::int32_t nastavnikID, Conversion conversion, const CourseVisitor& visit)
{
    const modData::Table& table = modData::KolegijNastavnici;
    const modData::Matches links = table.Matching(KolegijNastavnik::NastavnikID, nastavnikID, conversion);
    for (auto link = links.begin(); link != links.end(); ++link)
    {
        const std::int32_t kolegijID =
            table.NumberAt(link.Position(), KolegijNastavnik::KolegijID, conversion);
        const modData::Matches courses = modData::Kolegiji.Matching(Kolegij::ID, kolegijID, conversion);
        for (auto course = courses.begin(); course != courses.end(); ++course)
            visit(course.Position());
    }
}

std::vector<ListRow> TaughtCourseRows(const TeachingStatistic& statistic, std::int32_t id)
{
    std::vector<ListRow> rows;
    statistic.ForEachTaughtCourse(id,
                                  [&](std::size_t position)
                                  {
                                      const modData::Row& kolegij = modData::Kolegiji[position];
                                      if (statistic.Passes(kolegij))
                                          rows.push_back(TaughtCourseRow(kolegij, statistic.IDs));
                                  });
    return rows;
}

std::vector<ListRow> TeachingLoadRows(const TeachingStatistic& statistic, std::int32_t id)
{
    const auto teachingLoadOf = [&](std::size_t position)
    { return TeachingLoadOf(modData::Kolegiji[position], statistic, statistic.ShownHours); };
    return TeachingLoadRows(SumsOf(statistic, id, teachingLoadOf), statistic.Style);
}

void ExportTeachingLoad(const TeachingStatistic& statistic, std::string_view path)
{
    TextFile file;
    file.AddLine(std::string(statistic.OwnerTitle) + ";Semestar;Tip;P;S;V;ECTS;Broj kolegija");
    const ExportedTeachingLoads loads(statistic);
    std::string text;
    for (const modData::Row& owner : *statistic.Owners)
    {
        const std::string_view name = owner.Field(statistic.OwnerName);
        const TeachingLoadSums sums =
            SumsOf(statistic, owner.Number(modData::IDColumn, statistic.IDs), loads);
        for (const TeachingLoadLine& line : TeachingLoadLines(sums, statistic.Style))
        {
            text.assign(name).append(";").append(line.First).append(";").append(line.Second);
            for (const std::int32_t number : line.Sums.Numbers())
                text.append(";").append(std::to_string(number));
            file.AddLine(text);
        }
        file.AddLine("");
    }
    file.SaveAs(path);
}

#include "ui/lecturer_stats/LecturerStatistics.h"

#include "data/Files.h"
#include "data/modData.h"
#include "lists/Choice.h"
#include "statistics/LoadExport.h"
#include "statistics/TaughtCourses.h"

namespace
{

constexpr CountingRules ShownRules = {
    .Semestar = Conversion::Strict, .Hours = Conversion::Strict, .Others = OtherTypes::CountAsElective};
constexpr CountingRules ExportRules = {
    .Semestar = Conversion::Strict, .Hours = Conversion::Safe, .Others = OtherTypes::CountAsElective};

bool Passes(const Row& kolegij, const LecturerFilter& filter)
{
    const Row* studij = modData::Studiji.FindFirst(Studij::ID, kolegij.Number(Kolegij::StudijID));
    const std::string_view razina = studij == nullptr ? "" : studij->Field(Studij::Razina);
    const std::string_view kratica = studij == nullptr ? "" : studij->Field(Studij::Kratica);
    return (filter.Razina == Svi || filter.Razina == razina) &&
           (filter.Program == Svi || filter.Program == kratica);
}

/// What a course adds to the sums, nothing when it does not pass.
auto LoadRule(const LecturerFilter& filter, const CountingRules& rules)
{
    return [&filter, &rules](const Row& kolegij)
    { return Passes(kolegij, filter) ? CourseLoadOf(kolegij, rules) : std::nullopt; };
}

template<typename Rule>
LoadSums SumsOf(std::int32_t nastavnikID, const Rule& loadOf)
{
    LoadSums sums;
    ForEachTaughtCourse(nastavnikID, Conversion::Strict,
                        [&](const Row& kolegij) { AddTo(sums, loadOf(kolegij)); });
    return sums;
}

} // namespace

std::vector<ListRow> LecturerCourseRows(std::int32_t nastavnikID, const LecturerFilter& filter)
{
    std::vector<ListRow> rows;
    ForEachTaughtCourse(nastavnikID, Conversion::Strict,
                        [&](const Row& kolegij)
                        {
                            if (Passes(kolegij, filter))
                                rows.push_back(TaughtCourseRow(kolegij, kolegij.Number(Kolegij::ID),
                                                               kolegij.Number(Kolegij::StudijID)));
                        });
    return rows;
}

std::vector<ListRow> LecturerLoadRows(std::int32_t nastavnikID, const LecturerFilter& filter)
{
    return LoadRows(SumsOf(nastavnikID, LoadRule(filter, ShownRules)), FlaggingStyle);
}

void ExportAllLecturers(std::string_view path, const LecturerFilter& filter)
{
    TextFile file;
    AddLoadHeader(file, "Nastavnik");
    const CourseLoads loads(LoadRule(filter, ExportRules));
    for (const Row& nastavnik : modData::Nastavnici)
    {
        const std::string_view name = nastavnik.Field(Nastavnik::PrezimeIme);
        const LoadSums sums = SumsOf(nastavnik.Number(Nastavnik::ID), loads);
        AddLoadBlock(file, name, LoadLines(sums, FlaggingStyle));
    }
    file.SaveAs(path);
}

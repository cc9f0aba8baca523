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

template<typename Visit>
void ForEachPassingCourse(std::int32_t nastavnikID, const LecturerFilter& filter, const Visit& visit)
{
    ForEachTaughtCourse(nastavnikID, Conversion::Strict,
                        [&](const Row& kolegij)
                        {
                            if (Passes(kolegij, filter))
                                visit(kolegij);
                        });
}

std::vector<ListRow> LoadRowsOf(std::int32_t nastavnikID, const LecturerFilter& filter,
                                const CountingRules& rules)
{
    LoadSums sums;
    ForEachPassingCourse(nastavnikID, filter, [&](const Row& kolegij) { CountCourse(sums, kolegij, rules); });
    return LoadRows(sums, FlaggingStyle);
}

} // namespace

std::vector<ListRow> LecturerCourseRows(std::int32_t nastavnikID, const LecturerFilter& filter)
{
    std::vector<ListRow> rows;
    ForEachPassingCourse(nastavnikID, filter,
                         [&](const Row& kolegij)
                         {
                             rows.push_back(TaughtCourseRow(kolegij, kolegij.Number(Kolegij::ID),
                                                            kolegij.Number(Kolegij::StudijID)));
                         });
    return rows;
}

std::vector<ListRow> LecturerLoadRows(std::int32_t nastavnikID, const LecturerFilter& filter)
{
    return LoadRowsOf(nastavnikID, filter, ShownRules);
}

void ExportAllLecturers(std::string_view path, const LecturerFilter& filter)
{
    TextFile file;
    AddLoadHeader(file, "Nastavnik");
    for (const Row& nastavnik : modData::Nastavnici)
    {
        const std::string_view name = nastavnik.Field(Nastavnik::PrezimeIme);
        AddLoadBlock(file, name, LoadRowsOf(nastavnik.Number(Nastavnik::ID), filter, ExportRules));
    }
    file.SaveAs(path);
}

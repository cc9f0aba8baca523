#include "ui/department_stats/DepartmentStatistics.h"

#include "data/Files.h"
#include "data/modData.h"
#include "lists/Choice.h"
#include "statistics/LoadExport.h"
#include "statistics/TaughtCourses.h"

namespace
{

constexpr CountingRules SafeRules = {
    .Semestar = Conversion::Safe, .Hours = Conversion::Safe, .Others = OtherTypes::DoNotCount};

bool PassesRazina(std::int32_t studijID, std::string_view wanted)
{
    if (wanted == Svi)
        return true;
    const Row* studij = modData::Studiji.FindFirst(Studij::ID, studijID, Conversion::Safe);
    return studij != nullptr && studij->Field(Studij::Razina) == wanted;
}

bool Passes(const Row& kolegij, const DepartmentFilter& filter)
{
    return PassesSemestar(kolegij.Number(Kolegij::Semestar, Conversion::Safe), filter.Semestar) &&
           PassesRazina(kolegij.Number(Kolegij::StudijID, Conversion::Safe), filter.Razina);
}

/// Calls `visit` with each course of each of the department's lecturers.
template<typename Visit>
void ForEachCourse(std::int32_t zavodID, const Visit& visit)
{
    const auto visitTaught = [&](const Row& nastavnik)
    {
        ForEachTaughtCourse(modData::Nastavnici.NumberOf(nastavnik, Nastavnik::ID, Conversion::Safe),
                            Conversion::Safe, visit);
    };
    modData::Nastavnici.ForEachMatch(Nastavnik::ZavodID, zavodID, visitTaught, Conversion::Safe);
}

/// What a course adds to the sums, nothing when it does not pass.
auto LoadRule(const DepartmentFilter& filter)
{
    return [&filter](const Row& kolegij)
    { return Passes(kolegij, filter) ? CourseLoadOf(kolegij, SafeRules) : std::nullopt; };
}

template<typename Rule>
LoadSums SumsOf(std::int32_t zavodID, const Rule& loadOf)
{
    LoadSums sums;
    ForEachCourse(zavodID, [&](const Row& kolegij) { AddTo(sums, loadOf(kolegij)); });
    return sums;
}

} // namespace

std::vector<ListRow> DepartmentCourseRows(std::int32_t zavodID, const DepartmentFilter& filter)
{
    std::vector<ListRow> rows;
    ForEachCourse(zavodID,
                  [&](const Row& kolegij)
                  {
                      if (Passes(kolegij, filter))
                          rows.push_back(
                              TaughtCourseRow(kolegij, kolegij.Number(Kolegij::ID, Conversion::Safe),
                                              kolegij.Number(Kolegij::StudijID, Conversion::Safe)));
                  });
    return rows;
}

std::vector<ListRow> DepartmentLoadRows(std::int32_t zavodID, const DepartmentFilter& filter)
{
    return LoadRows(SumsOf(zavodID, LoadRule(filter)), PlainStyle);
}

void ExportAllDepartments(std::string_view path, const DepartmentFilter& filter)
{
    TextFile file;
    AddLoadHeader(file, "Zavod");
    const CourseLoads loads(LoadRule(filter));
    for (const Row& zavod : modData::Zavodi)
    {
        const std::string_view name = zavod.Field(Zavod::Naziv);
        const LoadSums sums = SumsOf(zavod.Number(Zavod::ID, Conversion::Safe), loads);
        AddLoadBlock(file, name, LoadLines(sums, PlainStyle));
    }
    file.SaveAs(path);
}

bool PassesSemestar(std::int32_t semestar, std::string_view wanted)
{
    if (wanted == Svi)
        return true;
    if (wanted == "Zimski")
        return semestar % 2 == 1;
    if (wanted == "Ljetni")
        return semestar % 2 == 0;
    return semestar == ToLongOrZero(wanted);
}

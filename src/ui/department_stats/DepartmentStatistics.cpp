#include "ui/department_stats/DepartmentStatistics.h"

#include "data/CheckedNumbers.h"
#include "data/Choice.h"
#include "data/modData.h"
#include "text/Numbers.h"
#include "ui/teaching_stats/TaughtCourses.h"

namespace
{

bool PassesRazina(std::int32_t studijID, std::string_view wanted)
{
    if (wanted == Svi)
        return true;
    const modData::Row* studij = modData::Studiji.FindFirst(Studij::ID, studijID, Conversion::Safe);
    return studij != nullptr && studij->Field(Studij::Razina) == wanted;
}

bool Passes(const modData::Row& kolegij, const DepartmentFilter& filter)
{
    return PassesSemestar(kolegij.Number(Kolegij::Semestar, Conversion::Safe), filter.Semestar) &&
           PassesRazina(kolegij.Number(Kolegij::StudijID, Conversion::Safe), filter.Razina);
}

/// Calls `visit` with each course of each of the department's lecturers.
void ForEachCourseOfZavod(std::int32_t zavodID, const CourseVisitor& visit)
{
    for (const modData::Row& nastavnik :
         modData::Nastavnici.Matching(Nastavnik::ZavodID, zavodID, Conversion::Safe))
        ForEachCourseOfNastavnik(nastavnik.Number(Nastavnik::ID, Conversion::Safe), Conversion::Safe, visit);
}

TeachingStatistic StatisticOf(const DepartmentFilter& filter)
{
    return {.Passes = [&filter](const modData::Row& kolegij) { return Passes(kolegij, filter); },
            .ForEachTaughtCourse = ForEachCourseOfZavod,
            .IDs = Conversion::Safe,
            .ShownHours = Conversion::Safe,
            .ExportedHours = Conversion::Safe,
            .Others = OtherTypes::DoNotCount,
            .Style = PlainStyle,
            .Owners = &modData::Zavodi,
            .OwnerName = Zavod::Naziv,
            .OwnerTitle = "Zavod"};
}

} // namespace

std::vector<ListRow> DepartmentCourseRows(std::int32_t zavodID, const DepartmentFilter& filter)
{
    return TaughtCourseRows(StatisticOf(filter), zavodID);
}

std::vector<ListRow> DepartmentTeachingLoadRows(std::int32_t zavodID, const DepartmentFilter& filter)
{
    return TeachingLoadRows(StatisticOf(filter), zavodID);
}

void ExportAllDepartments(std::string_view path, const DepartmentFilter& filter)
{
    ExportTeachingLoad(StatisticOf(filter), path);
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

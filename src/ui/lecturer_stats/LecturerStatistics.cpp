#include "ui/lecturer_stats/LecturerStatistics.h"

#include "data/Choice.h"
#include "data/modData.h"
#include "ui/teaching_stats/TaughtCourses.h"

namespace
{

bool Passes(const modData::Row& kolegij, const LecturerFilter& filter)
{
    const modData::Row* studij = modData::Studiji.FindFirst(Studij::ID, kolegij.Number(Kolegij::StudijID));
    const std::string_view razina = studij == nullptr ? "" : studij->Field(Studij::Razina);
    const std::string_view kratica = studij == nullptr ? "" : studij->Field(Studij::Kratica);
    return (filter.Razina == Svi || filter.Razina == razina) &&
           (filter.Program == Svi || filter.Program == kratica);
}

TeachingStatistic StatisticOf(const LecturerFilter& filter)
{
    return {.Passes = [&filter](const modData::Row& kolegij) { return Passes(kolegij, filter); },
            .ForEachTaughtCourse = [](std::int32_t nastavnikID, const CourseVisitor& visit)
            { ForEachCourseOfNastavnik(nastavnikID, Conversion::Strict, visit); },
            .IDs = Conversion::Strict,
            .ShownHours = Conversion::Strict,
            .ExportedHours = Conversion::Safe,
            .Others = OtherTypes::CountAsElective,
            .Style = FlaggingStyle,
            .Owners = &modData::Nastavnici,
            .OwnerName = Nastavnik::PrezimeIme,
            .OwnerTitle = "Nastavnik"};
}

} // namespace

std::vector<ListRow> LecturerCourseRows(std::int32_t nastavnikID, const LecturerFilter& filter)
{
    return TaughtCourseRows(StatisticOf(filter), nastavnikID);
}

std::vector<ListRow> LecturerTeachingLoadRows(std::int32_t nastavnikID, const LecturerFilter& filter)
{
    return TeachingLoadRows(StatisticOf(filter), nastavnikID);
}

void ExportAllLecturers(std::string_view path, const LecturerFilter& filter)
{
    ExportTeachingLoad(StatisticOf(filter), path);
}

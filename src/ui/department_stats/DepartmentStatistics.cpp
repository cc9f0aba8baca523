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

template<typename Visit>
void ForEachPassingCourse(std::int32_t zavodID, const DepartmentFilter& filter, const Visit& visit)
{
    const auto visitPassing = [&](const Row& kolegij)
    {
        if (PassesSemestar(kolegij.Number(Kolegij::Semestar, Conversion::Safe), filter.Semestar) &&
            PassesRazina(kolegij.Number(Kolegij::StudijID, Conversion::Safe), filter.Razina))
            visit(kolegij);
    };
    const auto visitTaught = [&](const Row& nastavnik) {
        ForEachTaughtCourse(nastavnik.Number(Nastavnik::ID, Conversion::Safe), Conversion::Safe,
                            visitPassing);
    };
    modData::Nastavnici.ForEachMatch(Nastavnik::ZavodID, zavodID, visitTaught, Conversion::Safe);
}

} // namespace

std::vector<ListRow> DepartmentCourseRows(std::int32_t zavodID, const DepartmentFilter& filter)
{
    std::vector<ListRow> rows;
    ForEachPassingCourse(zavodID, filter,
                         [&](const Row& kolegij)
                         {
                             rows.push_back(
                                 TaughtCourseRow(kolegij, kolegij.Number(Kolegij::ID, Conversion::Safe),
                                                 kolegij.Number(Kolegij::StudijID, Conversion::Safe)));
                         });
    return rows;
}

std::vector<ListRow> DepartmentLoadRows(std::int32_t zavodID, const DepartmentFilter& filter)
{
    LoadSums sums;
    ForEachPassingCourse(zavodID, filter, [&](const Row& kolegij) { CountCourse(sums, kolegij, SafeRules); });
    return LoadRows(sums, PlainStyle);
}

void ExportAllDepartments(std::string_view path, const DepartmentFilter& filter)
{
    TextFile file;
    AddLoadHeader(file, "Zavod");
    for (const Row& zavod : modData::Zavodi)
    {
        const std::string_view name = zavod.Field(Zavod::Naziv);
        AddLoadBlock(file, name, DepartmentLoadRows(zavod.Number(Zavod::ID, Conversion::Safe), filter));
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

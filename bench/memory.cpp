#include "data/Choice.h"
#include "data/Errors.h"
#include "ui/controls/ListModel.h"
#include "ui/department_stats/DepartmentStatistics.h"
#include "ui/lecturer_stats/LecturerStatistics.h"
#include "ui/main/CourseList.h"
#include "ui/main/SemesterStatistics.h"
#include "validation/modCSVValidator.h"

#include "data/modData.h"

#include <fstream>
#include <iostream>
#include <string>
#include <vector>

namespace
{

/// The peak memory of this process so far, in KiB.
long PeakMemory()
{
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;)
        if (long kilobytes = 0; word == "VmHWM:" && status >> kilobytes)
            return kilobytes;
    return 0;
}

/// Start-up, then every list and table of the program once, each kept for as long as it would be on the
/// screen.
void LoadAndRefresh()
{
    const std::string all(Svi);
    modData::LoadAllTables();
    modCSVValidator::ValidateAll();
    for (const CourseFilter& filter : {CourseFilter{}, CourseFilter{.Search = "a"}})
    {
        Search search(filter.Search);
        const CourseListModel courses(CoursesThatPass(filter, search));
        const std::vector<ListRow> statistics = StatistikaRows(filter, search, modData::Preddiplomski);
    }

    const std::int32_t lecturer = modData::Nastavnici[0].Number(Nastavnik::ID);
    const std::vector<ListRow> lecturerCourses = LecturerCourseRows(lecturer, {all, all});
    const std::vector<ListRow> lecturerLoad = LecturerTeachingLoadRows(lecturer, {all, all});
    const std::int32_t department = modData::Zavodi[0].Number(Zavod::ID);
    const std::vector<ListRow> departmentCourses = DepartmentCourseRows(department, {all, all});
    const std::vector<ListRow> departmentLoad = DepartmentTeachingLoadRows(department, {all, all});
}

} // namespace

/// memory [empty]: loads, validates and refreshes everything with the catalogue in LOCALAPPDATA, and prints
/// the process's peak memory in KiB; with "empty" it only prints.
int main(int count, char**)
{
    try
    {
        if (count == 1)
            LoadAndRefresh();
    }
    catch (const RuntimeError& error)
    {
        std::cerr << error.what() << '\n';
        return 1;
    }
    std::cout << PeakMemory() << '\n';
    return 0;
}

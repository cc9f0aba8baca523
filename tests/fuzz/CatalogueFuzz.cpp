#include "data/Files.h"
#include "data/TableChoices.h"
#include "data/modData.h"
#include "fuzz/Fuzz.h"
#include "support/Lists.h"
#include "support/TestFolder.h"
#include "ui/course_editor/CourseEntry.h"
#include "ui/department_stats/DepartmentStatistics.h"
#include "ui/lecturer_stats/LecturerStatistics.h"
#include "ui/main/CatalogueExport.h"
#include "ui/main/CourseDeletion.h"
#include "ui/main/CourseList.h"
#include "ui/main/SemesterStatistics.h"
#include "validation/modCSVValidator.h"

#include <array>

namespace
{

const std::array<modData::Table*, 7> Tables = modData::AllTables();

/// The separator of the files in an input; no text contains it.
constexpr char BetweenFiles = '\x01';

const std::vector<CourseFilter>& Filters()
{
    static const std::vector<CourseFilter> filters = {
        {}, {.StudijID = 1}, {.StudijID = 1, .SmjerID = 1, .Semestar = 1}, {.Search = "ž"}, {.SmjerID = 2}};
    return filters;
}

void RefreshEverything()
{
    Succeeds([] { modCSVValidator::AllMessages(); });
    for (const CourseFilter& filter : Filters())
    {
        Succeeds([&] { CourseRows(filter); });
        Succeeds([&] { StatistikaRows(filter, modData::Preddiplomski); });
        Succeeds([&] { StatistikaRows(filter, modData::Diplomski); });
    }
    for (const std::int32_t id : {0, 1, 2})
    {
        for (const char* razina : {"Svi", "Diplomski"})
        {
            Succeeds([&] { LecturerCourseRows(id, {razina, "Svi"}); });
            Succeeds([&] { LecturerTeachingLoadRows(id, {razina, "Svi"}); });
            Succeeds([&] { DepartmentCourseRows(id, {razina, "Svi"}); });
            Succeeds([&] { DepartmentTeachingLoadRows(id, {razina, "Zimski"}); });
        }
        Succeeds([&] { SmjerChoices(id); });
        Succeeds([&] { EntryOf(id); });
    }
    Succeeds([] { StudijChoices(modData::Preddiplomski, RazinaMatch::Trimmed); });
    Succeeds([] { NamedNastavnikChoices(); });
    Succeeds([] { ZavodChoices(); });
}

void ExportEverything(const TestFolder& folder)
{
    const std::string path = folder.PathOf("export.csv");
    Succeeds([&] { ExportKolegijiToCSV(path); });
    Succeeds([&] { ExportAllLecturers(path, {"Svi", "Svi"}); });
    Succeeds([&] { ExportAllDepartments(path, {"Svi", "Ljetni"}); });
}

/// Adds the first course again and deletes it. The program does not do that if it cannot number a course.
void EditCourse()
{
    Succeeds(
        []
        {
            const std::size_t before = modData::Kolegiji.RowCount();
            const std::int32_t id = modData::NextKolegijID();
            AddKolegij(EntryOf(1).value_or(CourseEntry()));
            Promise(modData::NextKolegijID() == id + 1, "a new course has the next ID");
            Promise(modData::Kolegiji.RowCount() == before + 1, "a new course is one row");
            DeleteKolegij(id);
            Promise(modData::Kolegiji.RowCount() == before, "deleting a new course leaves the others");
        });
}

std::array<std::string, Tables.size()> FileContents(const TestFolder& folder)
{
    std::array<std::string, Tables.size()> contents;
    for (std::size_t i = 0; i < Tables.size(); ++i)
        contents[i] = ReadBytes(folder.Data() / Tables[i]->Layout().FileName);
    return contents;
}

} // namespace

/// The input: the seven files of a catalogue with a byte 1 between them. The catalogue is loaded, validated,
/// shown, exported, edited, saved and reloaded.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const TestFolder folder;
    const std::vector<std::string_view> files = PartsOf(TextOf(data, size), BetweenFiles, Tables.size());
    for (std::size_t i = 0; i < Tables.size(); ++i)
        WriteBytes(folder.Data() / Tables[i]->Layout().FileName, files[i]);
    if (!Succeeds(modData::LoadAllTables))
        return 0;

    RefreshEverything();
    ExportEverything(folder);
    EditCourse();
    const auto saveAndLoad = []
    {
        modData::SaveAllTables();
        modData::LoadAllTables();
    };
    Promise(Succeeds(saveAndLoad), "what was loaded can be saved and loaded again");
    Promise(Succeeds(saveAndLoad), "and once more");
    const auto saved = FileContents(folder);
    Promise(Succeeds(modData::SaveAllTables) && FileContents(folder) == saved, "a save that changes nothing");
    return 0;
}

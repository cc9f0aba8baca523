#include "Cases.h"

#include "Floor.h"

#include "data/Files.h"
#include "data/Windows1250.h"
#include "support/Lists.h"
#include "ui/course_editor/CourseEntry.h"
#include "ui/main/CatalogueExport.h"
#include "ui/main/SemesterStatistics.h"
#include "validation/modCSVValidator.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <utility>

namespace
{

// The owners of the measured work.
constexpr std::string_view Ours = "ours";
constexpr std::string_view Reference = "reference";
constexpr std::string_view InSqlite = "sqlite";
constexpr std::string_view Floor = "floor";

void ForgetTables()
{
    for (modData::Table* table : modData::AllTables())
        *table = modData::Table(table->Layout());
}

void RequireValid(bool valid, std::string_view by)
{
    if (!valid)
        throw std::runtime_error("the generated catalogue is found invalid by " + std::string(by));
}

/// Replaces the first course by one with another title: its row and all its links change, so that a save has
/// something to do.
void EditFirstCourse(Bench& bench)
{
    const modData::Row& kolegij = modData::Kolegiji[0];
    const std::int32_t id = kolegij.Number(Kolegij::ID);
    CourseEntry entry = *EntryOf(id);
    entry.StudijID = kolegij.Number(Kolegij::StudijID);
    bench.Edited = !bench.Edited;
    entry.Naziv = bench.Edited ? "Jedan naziv" : "Drugi naziv";
    ReplaceKolegij(id, entry);
}

/// The main window's refresh of the course list, and the texts that the list then asks for: one screen.
void RefreshCourses(Bench& bench, const CourseFilter& filter, Search& search)
{
    constexpr std::size_t screen = 50;
    bench.Courses = std::make_unique<CourseListModel>(CoursesThatPass(filter, search));
    for (std::size_t row = 0; row < std::min(screen, bench.Courses->RowCount()); ++row)
        for (std::size_t column = 0; column < std::size(CourseListColumns); ++column)
            benchmark::DoNotOptimize(bench.Courses->Text(row, column));
}

template<const CourseFilter& filter>
void RefreshCourses(Bench& bench)
{
    Search search(filter.Search);
    RefreshCourses(bench, filter, search);
}

void KeyStroke(Bench& bench)
{
    Search search(FirstLetter.Search);
    RefreshCourses(bench, FirstLetter, search);
    bench.Statistics = StatistikaRows(FirstLetter, search, Level);
}

template<void (*Export)(Bench&)>
void RememberExport(Bench& bench)
{
    Export(bench);
    bench.Bytes = {ReadFile(bench.ExportPath())};
}

/// Writes the kept bytes of an export.
void WriteExport(Bench& bench)
{
    WriteFlushed(bench.ExportPath(), bench.Bytes.front());
}

void RememberTables(Bench& bench)
{
    bench.Bytes.clear();
    for (const std::string& path : bench.TablePaths())
        bench.Bytes.push_back(ReadFile(path));
}

/// Writes the kept bytes of the tables' files to another folder.
void WriteTables(Bench& bench)
{
    for (std::size_t i = 0; i < bench.Bytes.size(); ++i)
        WriteFlushed(bench.OtherFolder() + "/" + std::to_string(i), bench.Bytes[i]);
}

/// The part of loading that the floor does.
void DecodeTables(Bench& bench)
{
    for (const std::string& path : bench.TablePaths())
        benchmark::DoNotOptimize(FromWindows1250(ReadFile(path)));
}

constexpr Case AllCases[] = {
    {"load", Ours, [](Bench&) { modData::LoadAllTables(); }, [](Bench&) { ForgetTables(); }},
    {"load", Reference, [](Bench& bench) { bench.Loaded = reference::Load(bench.Place.DataFolder()); },
     [](Bench& bench) { bench.Loaded.reset(); }},
    {"load", InSqlite,
     [](Bench& bench) { bench.Imported = std::make_unique<SqliteCatalogue>(bench.Place.DataFolder()); },
     [](Bench& bench) { bench.Imported.reset(); }},
    {"load", Floor, [](Bench& bench) { benchmark::DoNotOptimize(ReadAndDecode(bench.TablePaths())); }},

    {"read and decode", Ours, DecodeTables},
    {"read and decode", Floor,
     [](Bench& bench) { benchmark::DoNotOptimize(ReadAndDecode(bench.TablePaths())); }},

    // The first validation after a load has no index yet.
    {"validate", Ours, [](Bench&) { RequireValid(modCSVValidator::ValidateAll(), Ours); },
     [](Bench&) { modData::LoadAllTables(); }},
    {"validate", Reference,
     [](Bench& bench) { RequireValid(reference::Validate(bench.Place.Plain()).empty(), Reference); }, nullptr,
     Clock::Processor, Growth::Product},
    {"validate", InSqlite, [](Bench& bench) { RequireValid(bench.InSqlite().IsValid(), InSqlite); }},

    {"load+validate", Ours,
     [](Bench&)
     {
         modData::LoadAllTables();
         RequireValid(modCSVValidator::ValidateAll(), Ours);
     },
     [](Bench&) { ForgetTables(); }},
    {"load+validate", Reference,
     [](Bench& bench)
     {
         bench.Loaded = reference::Load(bench.Place.DataFolder());
         RequireValid(reference::Validate(*bench.Loaded).empty(), Reference);
     },
     [](Bench& bench) { bench.Loaded.reset(); }, Clock::Processor, Growth::Product},
    {"load+validate", InSqlite,
     [](Bench& bench)
     {
         bench.Imported = std::make_unique<SqliteCatalogue>(bench.Place.DataFolder());
         RequireValid(bench.Imported->IsValid(), InSqlite);
     },
     [](Bench& bench) { bench.Imported.reset(); }},
    {"load+validate", Floor,
     [](Bench& bench) { benchmark::DoNotOptimize(ReadAndDecode(bench.TablePaths())); }},

    {"list refresh", Ours, RefreshCourses<NoFilter>},
    {"list refresh", Reference,
     [](Bench& bench) { bench.PlainRows = reference::CourseRows(bench.Place.Plain(), NoFilter); }, nullptr,
     Clock::Processor, Growth::Product},

    {"list refresh, search", Ours, RefreshCourses<Searching>},
    {"list refresh, search", Reference,
     [](Bench& bench) { bench.PlainRows = reference::CourseRows(bench.Place.Plain(), Searching); }, nullptr,
     Clock::Processor, Growth::Product},

    {"statistics refresh", Ours,
     [](Bench& bench)
     {
         Search search(NoFilter.Search);
         bench.Statistics = StatistikaRows(NoFilter, search, Level);
     }},
    {"statistics refresh", Reference,
     [](Bench& bench) { bench.Statistics = reference::StatistikaRows(bench.Place.Plain(), NoFilter, Level); },
     nullptr, Clock::Processor, Growth::Product},

    {"key stroke", Ours, KeyStroke},
    {"key stroke", Reference,
     [](Bench& bench)
     {
         bench.PlainRows = reference::CourseRows(bench.Place.Plain(), FirstLetter);
         bench.Statistics = reference::StatistikaRows(bench.Place.Plain(), FirstLetter, Level);
     },
     nullptr, Clock::Processor, Growth::Product},

    // The first one after an edit makes the indexes again.
    {"key stroke, edited", Ours, KeyStroke, EditFirstCourse},
    {"list refresh, edited", Ours, RefreshCourses<NoFilter>, EditFirstCourse},

    {"sort by a column", Ours,
     [](Bench& bench) { bench.Positions = SortedPositions(*bench.Courses, ByTitle); },
     RefreshCourses<NoFilter>},
    {"sort by a column", Reference,
     [](Bench& bench) {
         bench.PlainRows =
             reference::SortedRows(std::move(bench.PlainRows), ByTitle.Column, ByTitle.Descending);
     },
     [](Bench& bench)
     {
         RefreshCourses<NoFilter>(bench);
         bench.PlainRows = RowsOf(*bench.Courses, std::size(CourseListColumns));
     }},

    {"catalogue export", Ours, CatalogueExport},
    {"catalogue export", Reference,
     [](Bench& bench) { ReplaceFile(bench.ExportPath(), reference::ExportKolegiji(bench.Place.Plain())); },
     nullptr, Clock::Processor, Growth::Product},
    {"catalogue export", InSqlite, [](Bench& bench) { bench.InSqlite().ExportKolegiji(bench.ExportPath()); }},
    {"catalogue export", Floor, WriteExport, RememberExport<CatalogueExport>},

    {"all-lecturers export", Ours, LecturersExport},
    {"all-lecturers export", Reference,
     [](Bench& bench)
     { ReplaceFile(bench.ExportPath(), reference::ExportAllLecturers(bench.Place.Plain(), AllLecturers)); },
     nullptr, Clock::Processor, Growth::Product},
    {"all-lecturers export", InSqlite,
     [](Bench& bench) { bench.InSqlite().ExportAllLecturers(bench.ExportPath()); }},
    {"all-lecturers export", Floor, WriteExport, RememberExport<LecturersExport>},

    {"all-departments export", Ours, DepartmentsExport},
    {"all-departments export", Reference,
     [](Bench& bench) {
         ReplaceFile(bench.ExportPath(),
                     reference::ExportAllDepartments(bench.Place.Plain(), AllDepartments));
     },
     nullptr, Clock::Processor, Growth::Product},
    {"all-departments export", Floor, WriteExport, RememberExport<DepartmentsExport>},

    {"save", Ours, [](Bench&) { modData::SaveAllTables(); }, nullptr, Clock::Wall},
    {"save", Reference, [](Bench& bench) { reference::Save(bench.Place.Plain(), bench.OtherFolder()); },
     nullptr, Clock::Wall},
    {"save", Floor, WriteTables, RememberTables, Clock::Wall},
    // Three files change; their old contents are copied.
    {"save, course edited", Ours, [](Bench&) { modData::SaveAllTables(); }, EditFirstCourse, Clock::Wall},
    {"save, course edited", Floor, WriteTables, RememberTables, Clock::Wall},

    {"next ID", Ours, [](Bench&) { benchmark::DoNotOptimize(modData::NextKolegijID()); }},
    {"next ID", Reference,
     [](Bench& bench) { benchmark::DoNotOptimize(reference::NextKolegijID(bench.Place.Plain())); }},
    {"next ID", InSqlite, [](Bench& bench) { benchmark::DoNotOptimize(bench.InSqlite().NextKolegijID()); }},
};

} // namespace

std::span<const Case> Cases()
{
    return AllCases;
}

void CatalogueExport(Bench& bench)
{
    ExportKolegijiToCSV(bench.ExportPath());
}

void LecturersExport(Bench& bench)
{
    ExportAllLecturers(bench.ExportPath(), AllLecturers);
}

void DepartmentsExport(Bench& bench)
{
    ExportAllDepartments(bench.ExportPath(), AllDepartments);
}

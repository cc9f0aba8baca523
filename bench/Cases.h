#pragma once

#include "Sqlite.h"
#include "Workplace.h"

#include "data/Choice.h"
#include "data/System.h"
#include "ui/department_stats/DepartmentStatistics.h"
#include "ui/lecturer_stats/LecturerStatistics.h"
#include "ui/main/CourseList.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

// The measured cases: the program's work, and the same work by the yardsticks.

using Rows = std::vector<ListRow>;

inline constexpr std::string_view Level = modData::Preddiplomski;

inline const CourseFilter NoFilter = {};
inline const CourseFilter Searching = {.Search = "matematike"};
// The first letter typed is in nearly every course, which gives the longest list of a search.
inline const CourseFilter FirstLetter = {.Search = "a"};
inline const LecturerFilter AllLecturers = {std::string(Svi), std::string(Svi)};
inline const DepartmentFilter AllDepartments = {std::string(Svi), std::string(Svi)};
inline constexpr ListOrder ByTitle = {.Column = 1, .Descending = false};

/// The data of a measurement: the catalogue of one size, and the results of earlier work.
struct Bench
{
    Bench(const CatalogueSize& size, const std::filesystem::path& folder) : Place(size, folder) {}

    SqliteCatalogue& InSqlite()
    {
        if (!Sqlite)
            Sqlite = std::make_unique<SqliteCatalogue>(Place.DataFolder());
        return *Sqlite;
    }

    std::vector<std::string> TablePaths() const
    {
        std::vector<std::string> paths;
        for (const modData::Table* table : modData::AllTables())
            paths.push_back(Place.DataFolder() + "/" + std::string(table->Layout().FileName));
        return paths;
    }

    /// The file for exports, in memory if possible: the making of the file is compared, and only saving
    /// includes the wait for the disk.
    std::string ExportPath() const
    {
        const std::filesystem::path memory = "/dev/shm";
        const std::string name = "varlostudiji-" + std::to_string(System::ProcessId()) + ".csv";
        return std::filesystem::is_directory(memory) ? (memory / name).string() : Place.PathOf(name);
    }

    /// A folder for tables that are not loaded again.
    std::string OtherFolder() const
    {
        std::string folder = Place.PathOf("other");
        std::filesystem::create_directories(folder);
        return folder;
    }

    Workplace Place;
    std::unique_ptr<SqliteCatalogue> Sqlite;

    // Kept from one refresh to the next, as the windows do: the next refresh destroys it.
    std::unique_ptr<const CourseListModel> Courses;
    Rows Statistics;
    Rows PlainRows;
    std::unique_ptr<SqliteCatalogue> Imported;
    std::optional<reference::Catalogue> Loaded;
    std::vector<std::string> Bytes; // written by the floor
    std::vector<std::size_t> Positions;
    bool Edited = false;
};

/// How the time of a case grows with the size of the catalogue.
enum class Growth
{
    Linear,
    Product, ///< With the product of two tables: takes minutes beyond university size.
};

/// The time that counts.
enum class Clock
{
    Processor, ///< Processor time: without other programs' work on a busy machine.
    Wall,      ///< Wall clock time, for a case that waits for the disk.
};

struct Case
{
    std::string_view Name;
    std::string_view By; ///< "ours", or the yardstick.
    void (*Work)(Bench&);
    void (*Prepare)(Bench&) = nullptr; ///< Runs before each measurement; does not count.
    Clock Counted = Clock::Processor;
    Growth Grows = Growth::Linear;
};

/// All cases of all yardsticks.
std::span<const Case> Cases();

/// Checks that the yardsticks give the same answers as the program, in every byte and cell.
/// @throws std::runtime_error if one does not
void RequireSameAsReference(Bench& bench);
void RequireSameAsSqlite(Bench& bench);

// The exports to the export file, without filters.

void CatalogueExport(Bench& bench);
void LecturersExport(Bench& bench);
void DepartmentsExport(Bench& bench);

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

// What is measured: for each case the program's work, and the same work done by the yardsticks.

using Rows = std::vector<ListRow>;

inline constexpr std::string_view Level = modData::Preddiplomski;

inline const CourseFilter NoFilter = {};
inline const CourseFilter Searching = {.Search = "matematike"};
// The first letter typed is in nearly every course: the longest list that a search can give.
inline const CourseFilter FirstLetter = {.Search = "a"};
inline const LecturerFilter AllLecturers = {std::string(Svi), std::string(Svi)};
inline const DepartmentFilter AllDepartments = {std::string(Svi), std::string(Svi)};
inline constexpr ListOrder ByTitle = {.Column = 1, .Descending = false};

/// What a measurement works on: the catalogue of one size, and what the work before it left behind.
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

    /// The file that exports go to. Where it can be, it is in memory: what is compared is how it is made, and
    /// the wait for the disk belongs to saving.
    std::string ExportPath() const
    {
        const std::filesystem::path memory = "/dev/shm";
        const std::string name = "varlostudiji-" + std::to_string(System::ProcessId()) + ".csv";
        return std::filesystem::is_directory(memory) ? (memory / name).string() : Place.PathOf(name);
    }

    /// A folder for tables that are not to be loaded again.
    std::string OtherFolder() const
    {
        std::string folder = Place.PathOf("other");
        std::filesystem::create_directories(folder);
        return folder;
    }

    Workplace Place;
    std::unique_ptr<SqliteCatalogue> Sqlite;

    // Kept from one refresh to the next as the windows keep it: its end belongs to the next refresh.
    std::unique_ptr<const CourseListModel> Courses;
    Rows Statistics;
    Rows PlainRows;
    std::unique_ptr<SqliteCatalogue> Imported;
    std::optional<reference::Catalogue> Loaded;
    std::vector<std::string> Bytes; // to be written by the floor
    std::vector<std::size_t> Positions;
    bool Edited = false;
};

/// How the time of a case grows with the catalogue.
enum class Growth
{
    Linear,
    Product, ///< With the product of two tables: beyond a university one time takes minutes.
};

/// What of the time is counted.
enum class Clock
{
    Processor, ///< The processor time: on a busy machine it does not hold what the others took.
    Wall,      ///< All of it: a case that is to wait for the disk.
};

struct Case
{
    std::string_view Name;
    std::string_view By; ///< "ours", or the yardstick.
    void (*Work)(Bench&);
    void (*Prepare)(Bench&) = nullptr; ///< Before each time, not counted.
    Clock Counted = Clock::Processor;
    Growth Grows = Growth::Linear;
};

/// All cases of all yardsticks.
std::span<const Case> Cases();

/// Makes sure that the yardsticks give the program's answers, byte for byte and cell for cell.
/// @throws std::runtime_error when one does not
void RequireSameAsReference(Bench& bench);
void RequireSameAsSqlite(Bench& bench);

// The exports to the export file, with no filter.

void CatalogueExport(Bench& bench);
void LecturersExport(Bench& bench);
void DepartmentsExport(Bench& bench);

#pragma once

#include "ui/course_editor/CourseEntry.h"
#include "ui/department_stats/DepartmentStatistics.h"
#include "ui/lecturer_stats/LecturerStatistics.h"
#include "ui/main/CourseList.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <random>
#include <string>
#include <string_view>

/// Random numbers that are the same on every system for the same seed.
class Chance
{
public:
    explicit Chance(std::uint64_t seed) : m_engine(seed) {}

    /// A number from 0 to `count` - 1.
    std::size_t Below(std::size_t count) { return static_cast<std::size_t>(m_engine() % count); }

    /// A number from `least` to `most`.
    int Between(int least, int most)
    {
        return least + static_cast<int>(Below(static_cast<std::size_t>(most - least) + 1));
    }

    /// True in `share` of a thousand cases.
    bool PerMille(std::size_t share) { return Below(1000) < share; }

    template<typename Item, std::size_t Count>
    const Item& OneOf(const Item (&items)[Count])
    {
        return items[Below(Count)];
    }

private:
    std::mt19937_64 m_engine;
};

/// The names of the seven files, in the order in which they are loaded.
inline constexpr std::array<std::string_view, 7> TableFiles = {
    "db_zavod.csv",         "db_nastavnici.csv",        "db_studij.csv", "db_smjer.csv", "db_kolegij.csv",
    "db_kolegij_smjer.csv", "db_kolegij_nastavnik.csv",
};

/// The bytes of the seven files.
using CatalogueFiles = std::array<std::string, TableFiles.size()>;

/// A small random catalogue: a quarter are clean, the others have faults of a few kinds, rare or frequent.
CatalogueFiles RandomFiles(Chance& chance);

/// Writes the files into a folder.
void WriteFiles(const CatalogueFiles& files, const std::filesystem::path& folder);

/// The files as lines of C++ for a test: a name and the bytes of each.
std::string AsSource(const CatalogueFiles& files);

/// An ID that is probably in such a catalogue, but may be 0 or unknown.
std::int32_t RandomID(Chance& chance);

CourseFilter RandomCourseFilter(Chance& chance);
LecturerFilter RandomLecturerFilter(Chance& chance);
DepartmentFilter RandomDepartmentFilter(Chance& chance);

/// A level's text, mostly a valid one.
std::string RandomRazina(Chance& chance);

/// A course in the form that the editor passes on.
CourseEntry RandomEntry(Chance& chance);

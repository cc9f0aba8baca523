#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// The course editor's data, its checks, and the change of the tables.

inline constexpr std::size_t NositeljPlaces = 3;

/// A course as the editor's controls show it; texts are UTF-8, as typed.
struct CourseEntry
{
    std::string Naziv;
    std::string P;
    std::string S;
    std::string V;
    std::string ECTS;
    std::string Tip;
    std::string Semestar; ///< Empty if none is selected.
    std::int32_t StudijID = 0;
    std::vector<std::int32_t> SmjerIDs;
    std::array<std::optional<std::int32_t>, NositeljPlaces> NastavnikIDs; ///< By place; index 0 is place 1.
};

/// A control of the editor, to say where an error is.
enum class EntryField
{
    Naziv,
    P,
    S,
    V,
    ECTS,
    Semestar,
    Tip,
    Smjerovi,
    Nastavnik1,
    Nastavnik2,
    Nastavnik3,
};

/// What is wrong with an entry, and in which control.
struct ValidationError
{
    EntryField Field;
    std::string Message;
};

/// The first error of an entry, in the order of the checks; nothing if the entry may be saved.
std::optional<ValidationError> CheckEntry(const CourseEntry& entry);

/// Adds an entry as a new course; its links go to the end of their tables. The entry has passed CheckEntry.
/// @throws DataError for a course ID in the table that cannot be read
void AddKolegij(const CourseEntry& entry);

/// Replaces a course by an entry, in its place, or appends it if there is no such course. Its old links are
/// removed and the new ones go to the end of their tables. The entry has passed CheckEntry. @throws as
/// AddKolegij
void ReplaceKolegij(std::int32_t id, const CourseEntry& entry);

/// A course from the tables as the editor shows it; nothing if there is none with the ID. If several links
/// have the same place, the last one counts whose lecturer the editor offers. Places outside 1 to 3 are
/// ignored.
/// @throws DataError for a row of the course that cannot be read
std::optional<CourseEntry> EntryOf(std::int32_t kolegijID);

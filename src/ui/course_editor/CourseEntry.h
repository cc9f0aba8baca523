#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

// What the course editor takes in, the checks it makes, and how a course gets into the tables.

inline constexpr std::size_t NositeljPlaces = 3;

/// A course as the editor's controls hold it, texts as typed or shown (UTF-8).
struct CourseEntry
{
    std::string Naziv;
    std::string P;
    std::string S;
    std::string V;
    std::string ECTS;
    std::string Tip;
    std::string Semestar; ///< Empty when none is selected.
    std::int32_t StudijID = 0;
    std::vector<std::int32_t> SmjerIDs;
    std::array<std::optional<std::int32_t>, NositeljPlaces> NastavnikIDs; ///< By place, from the first.
};

/// A control of the editor that an entry may be wrong in.
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

/// What is wrong with an entry, and where.
struct ValidationError
{
    EntryField Field;
    std::string Message;
};

/// The first thing that is wrong with an entry, in the order of the checks; nothing when it may be saved.
std::optional<ValidationError> CheckEntry(const CourseEntry& entry);

/// Adds an entry that has passed its checks as a new course, with its links behind all others.
/// @throws DataError for a course ID in the table that cannot be read
void AddKolegij(const CourseEntry& entry);

/// Puts an entry that has passed its checks in the place of a course and makes its links anew; behind all
/// others when there is no such course. @throws as AddKolegij
void ReplaceKolegij(std::int32_t id, const CourseEntry& entry);

/// A course from the tables as the editor shows it; nothing when there is none with the ID. Of several links
/// to one place the last counts whose lecturer the editor offers; a place outside 1 to 3 has no list.
/// @throws DataError for a row of the course that cannot be read
std::optional<CourseEntry> EntryOf(std::int32_t kolegijID);

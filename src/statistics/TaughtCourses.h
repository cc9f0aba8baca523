#pragma once

#include "data/Numbers.h"
#include "data/Table.h"
#include "data/modData.h"
#include "lists/ListRow.h"
#include "statistics/LoadTable.h"

#include <cstdint>

// What the statistics of lecturers and of departments share: who teaches what, the rows of their course
// lists, and how a course is counted.

/// The columns of both course lists, in the order of TaughtCourseRow's cells.
inline constexpr ListColumn TaughtCourseColumns[] = {
    {"Kolegij", 2200}, {"P", 500},   {"S", 500},      {"V", 500},          {"ECTS", 700},
    {"Tip", 1200},     {"Sem", 600}, {"Studij", 800}, {"Nositelji", 2500},
};

/// A course in one of these lists; an elective's row is blue. The study and the course are given as the
/// caller converts them. @throws TypeMismatch, Overflow, SubscriptOutOfRange for a row that the names need
ListRow TaughtCourseRow(const Row& kolegij, std::int32_t kolegijID, std::int32_t studijID);

/// How a course is counted.
struct CountingRules
{
    Conversion Semestar;
    Conversion Hours; ///< Of hours and credits.
    OtherTypes Others;
};

/// Adds a course to the sums; one outside the semesters 1 to 6 is left out.
/// @throws Overflow; TypeMismatch where a conversion is strict; SubscriptOutOfRange
void CountCourse(LoadSums& sums, const Row& kolegij, const CountingRules& rules);

/// Calls `visit` with each course that a lecturer is linked to, once per link, in the order of the links,
/// whatever the role. @throws TypeMismatch, Overflow where the conversion is strict; SubscriptOutOfRange
template<typename Visit>
void ForEachTaughtCourse(std::int32_t nastavnikID, Conversion conversion, const Visit& visit)
{
    const auto visitLinked = [&](const Row& link)
    {
        const std::int32_t kolegijID = link.Number(KolegijNastavnik::KolegijID, conversion);
        modData::Kolegiji.ForEachMatch(Kolegij::ID, kolegijID, visit, conversion);
    };
    modData::KolegijNastavnici.ForEachMatch(KolegijNastavnik::NastavnikID, nastavnikID, visitLinked,
                                            conversion);
}

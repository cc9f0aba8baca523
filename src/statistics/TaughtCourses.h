#pragma once

#include "data/Numbers.h"
#include "data/Table.h"
#include "data/modData.h"
#include "lists/ListRow.h"
#include "statistics/LoadTable.h"

#include <cstdint>
#include <optional>
#include <vector>

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

/// What a course adds to the sums.
struct CourseLoad
{
    std::int32_t Semestar;
    Tip Type;
    Load Adds;
};

/// What a course adds to the sums; nothing outside the semesters 1 to 6.
/// @throws TypeMismatch, Overflow where a conversion is strict; SubscriptOutOfRange
std::optional<CourseLoad> CourseLoadOf(const Row& kolegij, const CountingRules& rules);

/// Keeps what courses add to the sums while an export is made: each comes once for every lecturer of it, and
/// reading its numbers anew each time would be half of the export's work.
class CourseLoads
{
public:
    CourseLoads() : Known(modData::Kolegiji.RowCount()) {}

    /// Adds what `workOut` gives for a row of the program's courses, if anything; it is asked but once.
    /// @throws Overflow, and as `workOut`
    template<typename WorkOut>
    void AddTo(LoadSums& sums, const Row& kolegij, const WorkOut& workOut)
    {
        std::optional<std::optional<CourseLoad>>& known = Known.at(modData::Kolegiji.PositionOf(kolegij));
        if (!known)
            known = workOut(kolegij);
        if (const std::optional<CourseLoad>& load = *known)
            sums.Add(load->Semestar, load->Type, load->Adds);
    }

private:
    std::vector<std::optional<std::optional<CourseLoad>>> Known; // by the course's position
};

/// Calls `visit` with each course that a lecturer is linked to, once per link, in the order of the links,
/// whatever the role. @throws TypeMismatch, Overflow where the conversion is strict; SubscriptOutOfRange
template<typename Visit>
void ForEachTaughtCourse(std::int32_t nastavnikID, Conversion conversion, const Visit& visit)
{
    const auto visitLinked = [&](const Row& link)
    {
        const std::int32_t kolegijID =
            modData::KolegijNastavnici.NumberOf(link, KolegijNastavnik::KolegijID, conversion);
        modData::Kolegiji.ForEachMatch(Kolegij::ID, kolegijID, visit, conversion);
    };
    modData::KolegijNastavnici.ForEachMatch(KolegijNastavnik::NastavnikID, nastavnikID, visitLinked,
                                            conversion);
}

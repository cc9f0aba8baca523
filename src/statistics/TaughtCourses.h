#pragma once

#include "data/Errors.h"
#include "data/Numbers.h"
#include "data/Table.h"
#include "data/modData.h"
#include "lists/ListRow.h"
#include "statistics/LoadTable.h"

#include <cstdint>
#include <optional>
#include <utility>
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

/// Adds what a course adds to the sums, if anything. @throws Overflow
void AddTo(LoadSums& sums, const std::optional<CourseLoad>& load);

/// A rule for what a course adds to the sums, worked out beforehand for all of the program's courses: an
/// export meets each course once for every lecturer of it, and out of order.
template<typename Rule>
class CourseLoads
{
public:
    /// Goes through the courses in table order, up to the first that the rule throws for.
    explicit CourseLoads(Rule rule) : LoadOf(std::move(rule))
    {
        Known.reserve(modData::Kolegiji.RowCount());
        try
        {
            for (const Row& kolegij : modData::Kolegiji)
                Known.push_back(LoadOf(kolegij));
        }
        catch (const RuntimeError&)
        {
            // It is no error before the export comes to that course, which it may never do.
        }
    }

    /// What a row of the program's courses adds. @throws as the rule
    std::optional<CourseLoad> operator()(const Row& kolegij) const
    {
        const std::size_t position = modData::Kolegiji.PositionOf(kolegij);
        return position < Known.size() ? Known[position] : LoadOf(kolegij);
    }

private:
    Rule LoadOf;
    std::vector<std::optional<CourseLoad>> Known; // by the course's position
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

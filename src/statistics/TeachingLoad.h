#pragma once

#include "ui/controls/ListModel.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

// The table of teaching load, which every statistic shows: weekly hours, credits and number of courses per
// semester and type, with totals per type and a grand total.

/// A course's type, as the table counts it.
enum class Tip : std::uint8_t
{
    Obvezni,
    Izborni,
};

/// How a course counts whose type is neither "obvezni" nor "izborni".
enum class OtherTypes
{
    CountAsElective,
    DoNotCount,
};

/// The type that a text counts as; nothing if it does not count.
std::optional<Tip> TipOf(std::string_view text, OtherTypes others);

/// One cell of the sums. All numbers are 32-bit signed and checked.
struct TeachingLoad
{
    std::int32_t P = 0;
    std::int32_t S = 0;
    std::int32_t V = 0;
    std::int32_t ECTS = 0;
    std::int32_t Kolegija = 0; ///< How many courses.

    /// Adds another load field by field. @throws OverflowError
    TeachingLoad& operator+=(const TeachingLoad& other);

    /// The load multiplied by `weight`. @throws OverflowError
    TeachingLoad Times(std::int32_t weight) const;

    /// The five numbers in the order of the table's columns.
    std::array<std::int32_t, 5> Numbers() const { return {P, S, V, ECTS, Kolegija}; }
};

inline constexpr int MaxSemesters = 6;

/// The sums per semester and type.
class TeachingLoadSums
{
public:
    /// Adds a course's load. A semester outside 1 to 6 is ignored. @throws OverflowError
    void Add(std::int32_t semestar, Tip tip, const TeachingLoad& load);

    /// The sums of a semester from 1 to 6.
    const TeachingLoad& Of(int semestar, Tip tip) const;

    /// The sums of a type over the semesters 1 to `last`. @throws OverflowError
    TeachingLoad Total(Tip tip, int last) const;

private:
    std::array<std::array<TeachingLoad, 2>, MaxSemesters> m_sums;
};

/// How a window names its totals, and whether it marks a semester and type with more than 30 ECTS.
struct TeachingLoadStyle
{
    std::string_view TypeTotal;  ///< First cell of the rows of both types.
    std::string_view GrandTotal; ///< First cell of the last row.
    std::string_view AllTypes;   ///< Second cell of the last row.
    bool FlagsOverfull;
};

inline constexpr TeachingLoadStyle FlaggingStyle = {"UKUPNO", "TOTAL", "Sve", true};
inline constexpr TeachingLoadStyle PlainStyle = {"Ukupno", "Ukupno", "Total", false};

/// The semesters that have rows: 1 to `Last`, or `Only` one of them. The totals always cover 1 to `Last`.
struct SemesterRange
{
    int Last = MaxSemesters;
    int Only = 0; ///< 0 for all.
};

/// One row of the table, as values.
struct TeachingLoadLine
{
    std::string_view First;  ///< The semester, or the name of the total.
    std::string_view Second; ///< The type.
    TeachingLoad Sums;
    bool IsTotal;
    bool IsOverfull; ///< More than 30 ECTS for one type in one semester.
};

/// The table's lines, in the order of TeachingLoadRows. @throws OverflowError
std::vector<TeachingLoadLine> TeachingLoadLines(const TeachingLoadSums& sums, const TeachingLoadStyle& style,
                                                SemesterRange range = {});

/// The table's rows: per semester the compulsory and the elective sums, then three bold rows of totals.
/// Cells: semester, type, P, S, V, ECTS, number of courses; the ECTS of an overfull row are red.
/// @throws OverflowError
std::vector<ListRow> TeachingLoadRows(const TeachingLoadSums& sums, const TeachingLoadStyle& style,
                                      SemesterRange range = {});

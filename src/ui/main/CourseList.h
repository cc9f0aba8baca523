#pragma once

#include "data/Table.h"
#include "ui/controls/ListModel.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The course list: which courses pass the filters, and what their rows say. Unless it says otherwise,
// everything here throws DataError.

/// The columns: the course's fields as stored up to the semester, then what is looked up.
inline constexpr ListColumn CourseListColumns[] = {
    {"ID", 800},      {"Kolegij", 3000},  {"P", 500},           {"S", 500},
    {"V", 500},       {"ECTS", 700},      {"Tip", 1200},        {"Sem", 700},
    {"Studij", 1200}, {"Smjerovi", 2000}, {"Nastavnici", 2500},
};

/// What the filter boxes and the search box say; 0, or a search text of blanks only, means "all".
struct CourseFilter
{
    std::int32_t StudijID = 0;
    std::int32_t SmjerID = 0;
    std::int32_t Semestar = 0;
    std::string Search = {};
};

/// The search of one refresh: it decides each course once, for the list and for the sums.
class Search
{
public:
    /// `typed` is the text of the search box.
    explicit Search(std::string_view typed);

    /// True when there is no text to search for.
    bool MatchesAll() const { return m_wanted.empty(); }

    /// Whether the course at a position of the program's table matches.
    bool Matches(std::size_t position);

private:
    std::string m_wanted;                        // trimmed, in upper case
    std::vector<std::optional<bool>> m_verdicts; // by position
};

/// The search rule: a course matches when the text occurs in its title, credits, type or lecturers, upper and
/// lower case alike. `search` is trimmed and in upper case already; an empty one matches every course.
bool MatchesSearch(const modData::Row& kolegij, std::string_view search);

/// Whether a course passes the boxes of study and semester. The direction is up to the caller: the list asks
/// for a link, the sums count the links.
bool PassesBoxes(const modData::Row& kolegij, const CourseFilter& filter);

/// The positions of the courses that pass the filter. Throws also for a number that a course's row needs: an
/// error ends the refresh, never the painting.
std::vector<std::uint32_t> CoursesThatPass(const CourseFilter& filter, Search& search);

/// A course whatever becomes of the rows before and after it: its ID, and how many courses with the same ID
/// come before it in the table.
struct CourseMark
{
    std::int32_t ID;
    std::size_t Earlier;
};

/// The rows of these courses, each cell made from the tables when it is asked for; electives are blue. Once
/// the table has another number of courses the rows are blank, until the next refresh makes a new model. Only
/// the ID is kept: the window's commands know the selected course by it.
class CourseListModel : public ListModel
{
public:
    explicit CourseListModel(std::vector<std::uint32_t> positions);

    std::size_t RowCount() const override { return m_positions.size(); }
    std::string Text(std::size_t row, std::size_t column) const override;
    CellStyle Style(std::size_t row, std::size_t column) const override;

    /// The course of a row. Courses may have been added or changed since the model was made, not deleted.
    CourseMark MarkOf(std::size_t row) const;

    /// The row of a course of the table; none when it is not among these.
    std::optional<std::size_t> RowOf(const CourseMark& course) const;

private:
    const modData::Row* CourseOf(std::size_t row) const;

    std::vector<std::uint32_t> m_positions;
    std::vector<std::string> m_ids;
    std::size_t m_tableRows; // when the model was made
};

/// True when a course is linked to a direction.
bool KolegijHasSmjer(std::int32_t kolegijID, std::int32_t smjerID);

/// The short names of a course's directions in link order, joined with ", "; links to unknown ones left out.
std::string GetSmjeroviForKolegijString(std::int32_t kolegijID);

/// The names of a course's lecturers by place, joined with ", ".
std::string GetNastavniciForKolegijString(std::int32_t kolegijID);

/// The names of a course's holders in places 1 to 3, joined with " + "; empty places left out.
std::string GetNositelji123String(std::int32_t kolegijID);

#pragma once

#include "data/Table.h"
#include "ui/controls/ListModel.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The course list: the courses that pass the filters, and the texts of their rows. Unless stated otherwise,
// everything here throws DataError.

/// The columns: first the course's fields as stored, up to the semester, then three that are looked up.
inline constexpr ListColumn CourseListColumns[] = {
    {"ID", 800},      {"Kolegij", 3000},  {"P", 500},           {"S", 500},
    {"V", 500},       {"ECTS", 700},      {"Tip", 1200},        {"Sem", 700},
    {"Studij", 1200}, {"Smjerovi", 2000}, {"Nastavnici", 2500},
};

/// The values of the filter boxes and the search box; 0, or a blank search text, means "all". The level is
/// not among them: the box of programs offers only its studies.
struct CourseFilter
{
    std::int32_t StudijID = 0;
    std::int32_t SmjerID = 0;
    std::int32_t Semestar = 0;
    std::string Search = {};
};

/// The search of one refresh. Decides each course once, for the list and for the sums.
class Search
{
public:
    /// `typed` is the text of the search box.
    explicit Search(std::string_view typed);

    /// True if there is no text to search for.
    bool MatchesAll() const { return m_wanted.empty(); }

    /// True if the course at a position of the program's table matches.
    bool Matches(std::size_t position);

private:
    std::string m_wanted;                        // trimmed, in upper case
    std::vector<std::optional<bool>> m_verdicts; // by position
};

/// The search rule: a course matches if its title, credits, type or lecturers contain the text, in upper or
/// lower case. `search` is already trimmed and in upper case; an empty one matches every course.
bool MatchesSearch(const modData::Row& kolegij, std::string_view search);

/// True if a course passes the boxes of study and semester. The caller applies the direction: the list asks
/// for a link to it, the sums count the links.
bool PassesStudijAndSemestar(const modData::Row& kolegij, const CourseFilter& filter);

/// The positions of the courses that pass the filter. Throws also for a number that the cells of these
/// courses need: an error must end the refresh, never the painting.
std::vector<std::uint32_t> CoursesThatPass(const CourseFilter& filter, Search& search);

/// Identifies a course even after rows before or after it change: its ID, and the number of courses with the
/// same ID before it in the table.
struct CourseMark
{
    std::int32_t ID;
    std::size_t Earlier;
};

/// The rows of these courses. Each cell is made from the tables when the list asks for it; electives are
/// blue. After a course is added or deleted the cells are blank until the next refresh makes a new model.
/// Only the ID stays: by it the window's commands know the selected course.
class CourseListModel : public ListModel
{
public:
    explicit CourseListModel(std::vector<std::uint32_t> positions);

    std::size_t RowCount() const override { return m_positions.size(); }
    std::string Text(std::size_t row, std::size_t column) const override;
    CellStyle Style(std::size_t row, std::size_t column) const override;

    /// The course of a row. Since the model was made, courses may have been added or changed, but not
    /// deleted.
    CourseMark MarkOf(std::size_t row) const;

    /// The row of a course; nothing if the model does not have it.
    std::optional<std::size_t> RowOf(const CourseMark& course) const;

private:
    const modData::Row* CourseOf(std::size_t row) const;

    std::vector<std::uint32_t> m_positions;
    std::vector<std::string> m_ids;
    std::size_t m_tableRows; // when the model was made
};

/// True if a course is linked to a direction.
bool KolegijHasSmjer(std::int32_t kolegijID, std::int32_t smjerID);

/// The short names of a course's directions in link order, joined with ", ". Unknown directions are left out.
std::string GetSmjeroviForKolegijString(std::int32_t kolegijID);

/// The names of a course's lecturers by place, joined with ", ".
std::string GetNastavniciForKolegijString(std::int32_t kolegijID);

/// The names of a course's holders in places 1 to 3, joined with " + ". Empty places are left out.
std::string GetNositelji123String(std::int32_t kolegijID);

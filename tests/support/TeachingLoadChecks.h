#pragma once

#include "support/Catalogue.h"
#include "support/TestFolder.h"
#include "ui/controls/ListModel.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// What the tests of teaching load share: a catalogue, and rows and files as lines.

/// The small catalogue with these courses alone, whose IDs count from 1. Each is linked once to Ana (lecturer
/// 1, of department 1).
inline Catalogue CoursesOfAna(Catalogue::Lines kolegiji)
{
    static constexpr std::array<std::string_view, 8> links = {
        "1;1;Nositelj;1", "2;1;Nositelj;1", "3;1;Nositelj;1", "4;1;Nositelj;1",
        "5;1;Nositelj;1", "6;1;Nositelj;1", "7;1;Nositelj;1", "8;1;Nositelj;1"};
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji = std::move(kolegiji);
    catalogue.KolegijSmjerovi = {};
    catalogue.KolegijNastavnici = {links.begin(), links.begin() + catalogue.Kolegiji.size()};
    return catalogue;
}

/// The rows of a list as lines, the cells joined by ";".
inline std::vector<std::string> LinesOfRows(const std::vector<ListRow>& rows)
{
    std::vector<std::string> lines;
    for (const ListRow& row : rows)
    {
        std::string line = row.empty() ? std::string() : row.front().Text;
        for (std::size_t i = 1; i < row.size(); ++i)
            line.append(";").append(row[i].Text);
        lines.push_back(line);
    }
    return lines;
}

/// The lines of a table of sums that count a course.
inline std::vector<std::string> LinesThatCount(std::vector<std::string> lines)
{
    std::erase_if(lines, [](const std::string& line) { return line.ends_with(";0"); });
    return lines;
}

/// The first cell of each such line.
inline std::vector<std::string> FirstCells(std::vector<std::string> lines)
{
    for (std::string& line : lines)
        line.resize(std::min(line.find(';'), line.size()));
    return lines;
}

/// The lines of a file's content without their ends; text after the last CR LF is a line too.
inline std::vector<std::string> FileLines(std::string_view content)
{
    std::vector<std::string> lines;
    while (!content.empty())
    {
        const std::size_t end = content.find("\r\n");
        lines.emplace_back(content.substr(0, end));
        content = end == std::string_view::npos ? std::string_view() : content.substr(end + 2);
    }
    return lines;
}

/// While it lives, a file is read-only.
class ReadOnly
{
public:
    explicit ReadOnly(std::filesystem::path file) : m_file(std::move(file))
    {
        std::filesystem::permissions(m_file, Write, std::filesystem::perm_options::remove);
    }
    ~ReadOnly()
    {
        std::error_code ignored;
        std::filesystem::permissions(m_file, Write, std::filesystem::perm_options::add, ignored);
    }
    ReadOnly(const ReadOnly&) = delete;
    ReadOnly& operator=(const ReadOnly&) = delete;

private:
    static constexpr std::filesystem::perms Write = std::filesystem::perms::owner_write |
                                                    std::filesystem::perms::group_write |
                                                    std::filesystem::perms::others_write;
    std::filesystem::path m_file;
};

#include "check/Report.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <utility>

namespace Check
{

namespace
{

struct GroupWords
{
    Group Is;
    std::string_view Heading;
    std::string_view Meaning;
};

constexpr GroupWords Groups[] = {
    {Group::Error, "Greške", "s njima se program ne može pokrenuti ili ne može spremiti promjene"},
    {Group::Danger, "Opasno", "iduće bi spremanje to izgubilo ili pokvarilo, ili bi program završio greškom"},
    {Group::Note, "Napomene", "možda je tako i zamišljeno"},
};

/// The same fault may be in every row; only this many rows are shown.
constexpr std::size_t RowsOfOneColumn = 20;

struct Rest
{
    std::size_t Count = 0;
    std::size_t LastLine = 0;
};

std::string LinesOf(const Findings& findings, Group group)
{
    std::map<std::pair<std::string_view, std::string_view>, Rest> columns;
    std::string text;
    for (const Finding& finding : findings)
    {
        if (finding.In != group)
            continue;
        Rest& column = columns[{finding.Place.FileName, finding.Place.Column}];
        if (++column.Count <= RowsOfOneColumn)
            text += "  " + LineOf(finding.Place, finding.Text) + "\n";
        column.LastLine = finding.Place.Line;
    }
    for (const auto& [name, column] : columns)
        if (column.Count > RowsOfOneColumn)
            text += "  " +
                    LineOf({name.first, 0, name.second},
                           "i još ovoliko: " + std::to_string(column.Count - RowsOfOneColumn) +
                               ", zadnji put u retku " + std::to_string(column.LastLine)) +
                    "\n";
    return text;
}

} // namespace

std::string LineOf(const FieldPlace& place, std::string_view text)
{
    std::string line(place.FileName);
    if (place.Line > 0)
        line += ", redak " + std::to_string(place.Line);
    if (!place.Column.empty())
        line.append(", ").append(place.Column);
    return line.append(": ").append(text);
}

std::string ReportOf(const Findings& findings)
{
    std::string report;
    for (const GroupWords& words : Groups)
    {
        const auto count = std::ranges::count(findings, words.Is, &Finding::In);
        report.append(words.Heading).append(": ");
        if (count == 0)
            report += "nema\n";
        else
            report.append(std::to_string(count)).append(" (").append(words.Meaning).append(")\n") +=
                LinesOf(findings, words.Is);
    }
    return report;
}

} // namespace Check

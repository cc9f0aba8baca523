#include "check/Check.h"

#include "check/FileLines.h"
#include "check/FileRules.h"
#include "check/RowRules.h"
#include "check/Values.h"
#include "data/CatalogueOnDisk.h"
#include "data/FileOperations.h"
#include "data/Files.h"
#include "data/modData.h"
#include "validation/modCSVValidator.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <set>
#include <tuple>
#include <utility>

namespace Check
{

namespace
{

FileContent ReadContent(const std::string& folder, std::string_view name)
{
    const std::string path = PathIn(folder, name);
    FileContent content;
    try
    {
        if (TypeOf(path) != FileType::Missing)
            content.Bytes = ReadFile(path);
        if (!content.Bytes || content.Bytes->empty() || content.Bytes == modData::Utf8Mark)
            // The program's start creates a missing file empty, and then fails on it.
            content.Failure = InputPastEnd(path);
    }
    catch (const FileError& error)
    {
        content.Failure = error;
    }
    return content;
}

/// The text of a validation message; a field's value in it may be of any length.
std::string RuleText(std::string_view text)
{
    constexpr std::size_t maxCharacters = 250;
    return Shown(text, maxCharacters);
}

std::string ErrorText(const RuntimeError& error)
{
    return RuleText("Greška " + std::to_string(error.Number()) + ": " + std::string(error.Fault()));
}

/// The sort key of a finding: file, line, column.
using Position = std::tuple<std::size_t, std::size_t, std::size_t>;

template<typename Range, typename Value, typename Projection = std::identity>
std::size_t IndexIn(const Range& range, const Value& value, Projection projection = {})
{
    return static_cast<std::size_t>(std::ranges::find(range, value, projection) - std::ranges::begin(range));
}

Position PositionOf(const Finding& finding)
{
    const auto tables = modData::AllTables();
    const std::size_t file = IndexIn(tables, finding.Place.FileName,
                                     [](const modData::Table* table) { return table->Layout().FileName; });
    return {file, finding.Place.Line, IndexIn(tables[file]->Layout().Columns, finding.Place.Column)};
}

/// Runs the validation over every row, and goes on after a row that ends in an error.
void Validate(Findings& findings)
{
    for (const modCSVValidator::RowCheck& check : modCSVValidator::RowChecks)
        for (const modData::Row& row : check.Rows)
        {
            modCSVValidator::Messages messages;
            try
            {
                check.Check(row, messages);
            }
            catch (const RuntimeError& error)
            {
                findings.push_back({Group::Error, error.Place(), ErrorText(error)});
            }
            for (const modCSVValidator::Message& message : messages)
                findings.push_back({Group::Error, message.Place, RuleText(message.Text)});
        }
}

/// Leaves out repeated findings: an error that many rows cause at one place, and every danger or note at the
/// place of an error. The errors must come first.
void RemoveRepeated(Findings& findings)
{
    std::set<std::pair<Position, std::string>> errors;
    std::set<Position> places;
    std::erase_if(findings,
                  [&](const Finding& finding)
                  {
                      if (finding.In != Group::Error)
                          return places.contains(PositionOf(finding));
                      places.insert(PositionOf(finding));
                      return !errors.emplace(PositionOf(finding), finding.Text).second;
                  });
}

/// The findings of the loaded tables' rows, at the lines that an editor shows.
Findings FindInTables(const Contents& contents)
{
    Findings findings;
    Validate(findings); // first, for RemoveRepeated
    FindInRows(findings);
    const auto tables = modData::AllTables();
    std::vector<EditorLines> lines;
    for (std::size_t i = 0; i < contents.size(); ++i)
        lines.emplace_back(*contents[i].Bytes, tables[i]->Layout());
    for (Finding& finding : findings)
        finding.Place = lines[std::get<0>(PositionOf(finding))].Shown(finding.Place);
    RemoveRepeated(findings);
    return findings;
}

} // namespace

Contents ReadContents(const std::string& folder)
{
    std::vector<FileOperations::Path> names;
    RequireDone(System::Files.List(ToPath(folder), names), folder);
    Contents contents;
    const auto tables = modData::AllTables();
    for (std::size_t i = 0; i < contents.size(); ++i)
        contents[i] = ReadContent(folder, tables[i]->Layout().FileName);
    return contents;
}

Findings FindingsOf(const Contents& contents)
{
    Findings findings;
    const auto tables = modData::AllTables();
    for (std::size_t i = 0; i < contents.size(); ++i)
    {
        const std::string_view bytes = contents[i].Bytes ? *contents[i].Bytes : std::string_view();
        const modData::TableLayout& layout = tables[i]->Layout();
        if (contents[i].Failure)
            findings.push_back({Group::Error, {layout.FileName, 0, {}}, ErrorText(*contents[i].Failure)});
        else
            FindInFile(bytes, layout, findings);
        *tables[i] = modData::ParseTable(modData::NormalizedContent(std::string(bytes)), layout);
    }
    // Without one of the tables most references to it would be reported.
    if (std::ranges::none_of(contents,
                             [](const FileContent& content) { return content.Failure.has_value(); }))
        std::ranges::move(FindInTables(contents), std::back_inserter(findings));
    std::ranges::stable_sort(findings, {}, PositionOf);
    return findings;
}

bool HasErrors(const Findings& findings)
{
    return std::ranges::any_of(findings, [](const Finding& finding) { return finding.In == Group::Error; });
}

} // namespace Check

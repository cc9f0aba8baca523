#include "differential/Comparison.h"

#include "data/Lookups.h"
#include "data/modData.h"
#include "differential/AnswerText.h"
#include "support/Catalogue.h"
#include "support/Lists.h"
#include "support/TestFolder.h"
#include "ui/main/CatalogueExport.h"
#include "ui/main/CourseDeletion.h"
#include "ui/main/SemesterStatistics.h"
#include "validation/modCSVValidator.h"

#include <vector>

namespace
{

/// Every row of every table as stored.
std::vector<std::string> ProgramRows()
{
    std::vector<std::string> lines;
    for (const modData::Table* table : modData::AllTables())
        for (const std::string& line : LinesOf(*table))
            lines.push_back(std::string(table->Layout().FileName) + ": " + line);
    return lines;
}

std::vector<std::string> ReferenceRows(const reference::Catalogue& catalogue)
{
    std::vector<std::string> lines;
    for (const reference::TextTable* table : catalogue.All())
        for (const reference::TextRow& row : table->Rows)
        {
            std::string line = std::string(table->Fixed->FileName) + ": " + row.Fields.front();
            for (std::size_t i = 1; i < row.Fields.size(); ++i)
                line += ";" + row.Fields[i];
            lines.push_back(line);
        }
    return lines;
}

std::vector<std::string> ProgramMessages()
{
    std::vector<std::string> texts;
    for (const modCSVValidator::Message& message : modCSVValidator::AllMessages())
        texts.push_back(message.Text);
    return texts;
}

std::vector<ListRow> SortedAsShown(const std::vector<ListRow>& rows, ListOrder order)
{
    std::vector<ListRow> sorted;
    for (const std::size_t position : SortedPositions(KeptRows(rows), order))
        sorted.push_back(rows[position]);
    return sorted;
}

std::vector<std::vector<std::string>> Texts(const std::vector<ListRow>& rows)
{
    std::vector<std::vector<std::string>> texts;
    for (const ListRow& row : rows)
    {
        texts.emplace_back();
        for (const ListCell& cell : row)
            texts.back().push_back(cell.Text);
    }
    return texts;
}

} // namespace

/// True if both answers are the same; otherwise keeps the difference.
template<typename Program, typename Plain>
bool Comparison::Ask(const std::string& question, const Program& program, const Plain& plain)
{
    const std::string ofReference = AnswerOf(plain); // first: the program may change what it reads
    const std::string ofProgram = AnswerOf(program);
    const bool isError = ofReference.starts_with("error ");
    ++m_counts[isError ? ofReference.substr(0, ofReference.find(':')) : "answer"];
    if (ofProgram == ofReference)
        return true;
    m_found = Difference{question, ofProgram, ofReference};
    return false;
}

std::optional<Difference> Comparison::Run(const CatalogueFiles& files)
{
    m_found.reset();
    reference::Catalogue catalogue;
    if (!LoadBoth(files, catalogue))
        return m_found;
    bool alike = CompareAll(catalogue);
    for (int edits = m_dice.Between(0, 3); alike && edits > 0; --edits)
        alike = EditBoth(catalogue) && CompareTables(catalogue) && CompareAll(catalogue);
    if (alike && CompareSaved(catalogue))
        CompareMainWindow(catalogue); // with the reloaded tables
    return m_found;
}

std::optional<Difference> Comparison::Compare(const reference::Catalogue& catalogue)
{
    m_found.reset();
    if (CompareTables(catalogue))
        CompareAll(catalogue);
    return m_found;
}

/// True if both sides have loaded the files with the same result, and not with an error.
bool Comparison::LoadBoth(const CatalogueFiles& files, reference::Catalogue& catalogue)
{
    WriteFiles(files, m_folder.Data());
    bool loaded = false;
    const auto loadPlain = [&]
    {
        catalogue = reference::Load(modData::GetDataFolder());
        loaded = true;
        return 0;
    };
    const auto loadProgram = []
    {
        modData::LoadAllTables();
        return 0;
    };
    if (!Ask("LoadAllTables", loadProgram, loadPlain) || !loaded)
        return false;
    for (std::size_t i = 0; i < files.size(); ++i)
        if (!Ask(
                "the bytes of " + std::string(TableFiles[i]) + " after loading",
                [&] { return Bytes{ReadBytes(m_folder.Data() / TableFiles[i])}; },
                [&] { return Bytes{reference::Normalized(files[i])}; }))
            return false;
    return CompareTables(catalogue);
}

bool Comparison::CompareTables(const reference::Catalogue& catalogue)
{
    return Ask("the rows of all tables", ProgramRows, [&] { return ReferenceRows(catalogue); });
}

bool Comparison::CompareAll(const reference::Catalogue& catalogue)
{
    return Ask("AllMessages()", ProgramMessages, [&] { return reference::Validate(catalogue); }) &&
           Ask(
               "ValidateAll()", [] { return std::int32_t{modCSVValidator::ValidateAll()}; },
               [&] { return std::int32_t{reference::Validate(catalogue).empty()}; }) &&
           Ask("NextKolegijID()", modData::NextKolegijID,
               [&] { return reference::NextKolegijID(catalogue); }) &&
           CompareLookups(catalogue) && CompareMainWindow(catalogue) && CompareLoad(catalogue) &&
           CompareExports(catalogue);
}

bool Comparison::CompareLookups(const reference::Catalogue& catalogue)
{
    const std::int32_t id = RandomID(m_dice);
    const std::string argument = "(" + std::to_string(id) + ")";
    return Ask(
               "GetSmjeroviKraticeString" + argument, [&] { return modData::GetSmjeroviKraticeString(id); },
               [&] { return reference::GetSmjeroviKraticeString(catalogue, id); }) &&
           Ask(
               "GetNositeljiString" + argument, [&] { return modData::GetNositeljiString(id); },
               [&] { return reference::GetNositeljiString(catalogue, id); }) &&
           Ask(
               "GetNositelji123String" + argument, [&] { return GetNositelji123String(id); },
               [&] { return reference::GetNositelji123String(catalogue, id); });
}

bool Comparison::CompareMainWindow(const reference::Catalogue& catalogue)
{
    if (!CompareLists({}, "Preddiplomski", catalogue))
        return false;
    for (int i = 0; i < 4; ++i)
        if (!CompareLists(RandomCourseFilter(m_dice), RandomRazina(m_dice), catalogue))
            return false;
    return true;
}

bool Comparison::CompareLists(const CourseFilter& filter, const std::string& razina,
                              const reference::Catalogue& catalogue)
{
    constexpr std::size_t courseColumns = 11;
    constexpr std::size_t sumColumns = 7;
    const bool descending = m_dice.PerMille(500);
    const std::size_t courseColumn = m_dice.Below(courseColumns);
    const std::size_t sumColumn = m_dice.Below(sumColumns);
    const auto courses = [&] { return CourseRows(filter); };
    const auto plainCourses = [&] { return reference::CourseRows(catalogue, filter); };
    const auto sums = [&] { return StatistikaRows(filter, razina); };
    const auto plainSums = [&] { return reference::StatistikaRows(catalogue, filter, razina); };
    // As the window does: with one search.
    const auto both = [&]
    {
        Search search(filter.Search);
        const CourseListModel model(CoursesThatPass(filter, search));
        std::string shown = Shown(RowsOf(model, courseColumns));
        return shown += Shown(StatistikaRows(filter, search, razina));
    };
    const auto plainBoth = [&]
    {
        std::string shown = Shown(plainCourses());
        return shown += Shown(plainSums());
    };
    const std::string order = (descending ? " descending by " : " by ") + std::to_string(courseColumn) + "/" +
                              std::to_string(sumColumn);
    return Ask("CourseRows" + Shown(filter), courses, plainCourses) &&
           Ask(
               "CourseRows" + Shown(filter) + order,
               [&] {
                   return SortedAsShown(courses(), {courseColumn, descending});
               },
               [&] { return reference::SortedRows(plainCourses(), courseColumn, descending); }) &&
           Ask("StatistikaRows" + Shown(filter) + razina, sums, plainSums) &&
           Ask(
               "StatistikaRows" + Shown(filter) + razina + order,
               [&] {
                   return SortedAsShown(sums(), {sumColumn, descending});
               },
               [&] { return reference::SortedRows(plainSums(), sumColumn, descending); }) &&
           Ask("a refresh" + Shown(filter) + razina, both, plainBoth);
}

bool Comparison::CompareLoad(const reference::Catalogue& catalogue)
{
    constexpr int people = 4;
    for (int i = 0; i < people; ++i)
        if (!CompareLoadOf(RandomID(m_dice), catalogue))
            return false;
    return true;
}

bool Comparison::CompareLoadOf(std::int32_t id, const reference::Catalogue& catalogue)
{
    const LecturerFilter ofLecturer = RandomLecturerFilter(m_dice);
    const DepartmentFilter ofDepartment = RandomDepartmentFilter(m_dice);
    const std::string argument = " of " + std::to_string(id);
    return Ask(
               "LecturerCourseRows" + Shown(ofLecturer) + argument,
               [&] { return LecturerCourseRows(id, ofLecturer); },
               [&] { return reference::LecturerCourseRows(catalogue, id, ofLecturer); }) &&
           Ask(
               "LecturerTeachingLoadRows" + Shown(ofLecturer) + argument,
               [&] { return LecturerTeachingLoadRows(id, ofLecturer); },
               [&] { return reference::LecturerTeachingLoadRows(catalogue, id, ofLecturer); }) &&
           Ask(
               "DepartmentCourseRows" + Shown(ofDepartment) + argument,
               [&] { return DepartmentCourseRows(id, ofDepartment); },
               [&] { return reference::DepartmentCourseRows(catalogue, id, ofDepartment); }) &&
           Ask(
               "DepartmentTeachingLoadRows" + Shown(ofDepartment) + argument,
               [&] { return DepartmentTeachingLoadRows(id, ofDepartment); },
               [&] { return reference::DepartmentTeachingLoadRows(catalogue, id, ofDepartment); });
}

bool Comparison::CompareExports(const reference::Catalogue& catalogue)
{
    const LecturerFilter ofLecturers = RandomLecturerFilter(m_dice);
    const DepartmentFilter ofDepartments = RandomDepartmentFilter(m_dice);
    const CourseFilter ofSums = RandomCourseFilter(m_dice);
    const std::string razina = RandomRazina(m_dice);
    constexpr std::string_view shown[] = {"LOR", "a,b", "\"Q\"", "a\rb", "a\nb", ";", "", "\r\n,\"", "š漢"};
    const StatistikaFilters boxes = {razina, std::string(m_dice.OneOf(shown)),
                                     std::string(m_dice.OneOf(shown)), std::string(m_dice.OneOf(shown))};

    // The bytes of an exported file.
    const auto exported = [&](const auto& write)
    {
        const std::filesystem::path file = m_folder.Path() / "export.csv";
        std::error_code ignored;
        std::filesystem::remove(file, ignored);
        write(m_folder.PathOf("export.csv"));
        return Bytes{ReadBytes(file)};
    };
    return Ask(
               "ExportKolegijiToCSV", [&] { return exported(ExportKolegijiToCSV); },
               [&] { return Bytes{reference::ExportKolegiji(catalogue)}; }) &&
           Ask(
               "ExportAllLecturers" + Shown(ofLecturers),
               [&]
               { return exported([&](const std::string& path) { ExportAllLecturers(path, ofLecturers); }); },
               [&] { return Bytes{reference::ExportAllLecturers(catalogue, ofLecturers)}; }) &&
           Ask(
               "ExportAllDepartments" + Shown(ofDepartments),
               [&] {
                   return exported([&](const std::string& path)
                                   { ExportAllDepartments(path, ofDepartments); });
               },
               [&] { return Bytes{reference::ExportAllDepartments(catalogue, ofDepartments)}; }) &&
           Ask(
               "WriteStatistika" + Shown(ofSums) + razina,
               [&]
               {
                   return exported([&](const std::string& path)
                                   { WriteStatistika(path, boxes, Texts(StatistikaRows(ofSums, razina))); });
               },
               [&] {
                   return Bytes{reference::ExportStatistika(
                       boxes, reference::StatistikaRows(catalogue, ofSums, razina))};
               });
}

/// Saves and reloads; the catalogue becomes the loaded one.
bool Comparison::CompareSaved(reference::Catalogue& catalogue)
{
    modData::SaveAllTables();
    const std::array<std::string, TableFiles.size()> saved = reference::SavedFiles(catalogue);
    for (std::size_t i = 0; i < saved.size(); ++i)
        if (!Ask(
                "the bytes of " + std::string(TableFiles[i]) + " after saving",
                [&] { return Bytes{ReadBytes(m_folder.Data() / TableFiles[i])}; },
                [&] { return Bytes{saved[i]}; }))
            return false;
    return LoadBoth(saved, catalogue);
}

bool Comparison::EditBoth(reference::Catalogue& catalogue)
{
    const CourseEntry entry = RandomEntry(m_dice);
    const std::int32_t id = RandomID(m_dice);
    const auto done = [](const auto& edit)
    {
        return [&edit]
        {
            edit();
            return 0;
        };
    };
    switch (m_dice.Below(3))
    {
    case 0:
    {
        const auto add = [&] { AddKolegij(entry); };
        const auto addPlain = [&] { reference::AddKolegij(catalogue, entry); };
        return Ask("AddKolegij", done(add), done(addPlain));
    }
    case 1:
    {
        const auto replace = [&] { ReplaceKolegij(id, entry); };
        const auto replacePlain = [&] { reference::ReplaceKolegij(catalogue, id, entry); };
        return Ask("ReplaceKolegij(" + std::to_string(id) + ")", done(replace), done(replacePlain));
    }
    default:
    {
        const auto remove = [&] { DeleteKolegij(id); };
        const auto removePlain = [&] { reference::DeleteKolegij(catalogue, id); };
        return Ask("DeleteKolegij(" + std::to_string(id) + ")", done(remove), done(removePlain));
    }
    }
}

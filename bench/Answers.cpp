#include "Cases.h"

#include "data/Files.h"
#include "support/Lists.h"

#include <algorithm>
#include <stdexcept>

namespace
{

void Require(bool same, const Bench& bench, std::string_view what)
{
    if (!same)
        throw std::runtime_error("different answers: " + std::string(what) + ", " +
                                 std::string(bench.Place.Size().Name));
}

bool SameRows(const Rows& a, const Rows& b)
{
    const auto sameCell = [](const ListCell& x, const ListCell& y)
    { return x.Text == y.Text && x.Colour == y.Colour && x.Bold == y.Bold; };
    return std::ranges::equal(
        a, b, [&](const ListRow& x, const ListRow& y) { return std::ranges::equal(x, y, sameCell); });
}

Rows Sorted(const Rows& rows)
{
    Rows sorted;
    for (const std::size_t position : SortedPositions(KeptRows(rows), ByTitle))
        sorted.push_back(rows[position]);
    return sorted;
}

std::string ExportedBytes(Bench& bench, void (*exportAll)(Bench&))
{
    exportAll(bench);
    return ReadFile(bench.ExportPath());
}

} // namespace

void RequireSameAsReference(Bench& bench)
{
    const reference::Catalogue& plain = bench.Place.Plain();
    Require(reference::Validate(plain).empty(), bench, "validate");
    for (const CourseFilter& filter : {NoFilter, Searching, FirstLetter})
    {
        const Rows rows = reference::CourseRows(plain, filter);
        Require(SameRows(CourseRows(filter), rows), bench, "list refresh");
        Require(SameRows(Sorted(rows), reference::SortedRows(rows, ByTitle.Column, ByTitle.Descending)),
                bench, "sort by a column");
        Require(SameRows(StatistikaRows(filter, Level), reference::StatistikaRows(plain, filter, Level)),
                bench, "statistics refresh");
    }
    Require(ExportedBytes(bench, CatalogueExport) == reference::ExportKolegiji(plain), bench,
            "catalogue export");
    Require(ExportedBytes(bench, LecturersExport) == reference::ExportAllLecturers(plain, AllLecturers),
            bench, "all-lecturers export");
    Require(ExportedBytes(bench, DepartmentsExport) == reference::ExportAllDepartments(plain, AllDepartments),
            bench, "all-departments export");
    Require(modData::NextKolegijID() == reference::NextKolegijID(plain), bench, "next ID");

    modData::SaveAllTables();
    const std::vector<std::string> paths = bench.TablePaths();
    const auto saved = reference::SavedFiles(plain);
    Require(std::ranges::equal(paths, saved, {}, [](const std::string& path) { return ReadFile(path); }),
            bench, "save");
}

void RequireSameAsSqlite(Bench& bench)
{
    SqliteCatalogue& sqlite = bench.InSqlite();
    Require(sqlite.IsValid(), bench, "validate in SQLite");
    Require(sqlite.NextKolegijID() == modData::NextKolegijID(), bench, "next ID in SQLite");

    const std::string path = bench.ExportPath();
    const std::string lecturers = ExportedBytes(bench, LecturersExport);
    sqlite.ExportAllLecturers(path);
    Require(ReadFile(path) == lecturers, bench, "all-lecturers export in SQLite");
    const std::string catalogue = ExportedBytes(bench, CatalogueExport);
    sqlite.ExportKolegiji(path);
    Require(ReadFile(path) == catalogue, bench, "catalogue export in SQLite");
}

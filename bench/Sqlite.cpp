#include "Sqlite.h"

#include "data/Files.h"
#include "data/System.h"
#include "data/Windows1250.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <stdexcept>
#include <utility>
#include <vector>

namespace
{

/// A table of the database: its file, its columns, and which of them are numbers ("n") and texts ("t").
struct Imported
{
    std::string_view FileName;
    std::string_view Create;
    std::string_view Insert;
    std::string_view ColumnTypes;
};

constexpr Imported Tables[] = {
    {"db_zavod.csv", "CREATE TABLE zavod (id INTEGER, naziv TEXT, kratica TEXT)",
     "INSERT INTO zavod VALUES (?,?,?)", "ntt"},
    {"db_nastavnici.csv",
     "CREATE TABLE nastavnik (id INTEGER, prezime_ime TEXT, titula TEXT, zavod_id INTEGER)",
     "INSERT INTO nastavnik VALUES (?,?,?,?)", "nttn"},
    {"db_studij.csv", "CREATE TABLE studij (id INTEGER, naziv TEXT, kratica TEXT, razina TEXT)",
     "INSERT INTO studij VALUES (?,?,?,?)", "nttt"},
    {"db_smjer.csv",
     "CREATE TABLE smjer (id INTEGER, naziv TEXT, kratica TEXT, studij_id INTEGER, razina TEXT)",
     "INSERT INTO smjer VALUES (?,?,?,?,?)", "nttnt"},
    {"db_kolegij.csv",
     "CREATE TABLE kolegij (id INTEGER, naziv TEXT, p INTEGER, s INTEGER, v INTEGER, ects INTEGER, tip TEXT, "
     "semestar INTEGER, studij_id INTEGER)",
     "INSERT INTO kolegij VALUES (?,?,?,?,?,?,?,?,?)", "ntnnnntnn"},
    {"db_kolegij_smjer.csv", "CREATE TABLE kolegij_smjer (kolegij_id INTEGER, smjer_id INTEGER)",
     "INSERT INTO kolegij_smjer VALUES (?,?)", "nn"},
    {"db_kolegij_nastavnik.csv",
     "CREATE TABLE kolegij_nastavnik (kolegij_id INTEGER, nastavnik_id INTEGER, uloga TEXT, "
     "redoslijed INTEGER)",
     "INSERT INTO kolegij_nastavnik VALUES (?,?,?,?)", "nntn"},
};

constexpr std::string_view Settings = "PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; "
                                      "PRAGMA locking_mode = EXCLUSIVE; PRAGMA temp_store = MEMORY;";

constexpr std::string_view Indexes =
    "CREATE INDEX zavod_id ON zavod (id);"
    "CREATE INDEX nastavnik_id ON nastavnik (id);"
    "CREATE INDEX studij_id ON studij (id);"
    "CREATE INDEX smjer_id ON smjer (id);"
    "CREATE INDEX kolegij_id ON kolegij (id);"
    "CREATE INDEX ks_kolegij ON kolegij_smjer (kolegij_id);"
    "CREATE INDEX kn_kolegij ON kolegij_nastavnik (kolegij_id);"
    "CREATE INDEX kn_nastavnik ON kolegij_nastavnik (nastavnik_id, kolegij_id);";

// A query for each of the program's checks; it counts the rows that fail.
constexpr std::string_view Checks[] = {
    "SELECT COUNT(*) FROM (SELECT 1 FROM nastavnik GROUP BY id HAVING COUNT(*) > 1)",
    "SELECT COUNT(*) FROM nastavnik WHERE TRIM(prezime_ime) = ''",
    "SELECT COUNT(*) FROM nastavnik n WHERE NOT EXISTS (SELECT 1 FROM zavod z WHERE z.id = n.zavod_id)",
    "SELECT COUNT(*) FROM (SELECT 1 FROM kolegij GROUP BY id HAVING COUNT(*) > 1)",
    "SELECT COUNT(*) FROM kolegij WHERE semestar NOT BETWEEN 1 AND 6",
    "SELECT COUNT(*) FROM kolegij k WHERE NOT EXISTS (SELECT 1 FROM studij s WHERE s.id = k.studij_id)",
    "SELECT COUNT(*) FROM kolegij_nastavnik l WHERE NOT EXISTS "
    "(SELECT 1 FROM kolegij k WHERE k.id = l.kolegij_id)",
    "SELECT COUNT(*) FROM kolegij_nastavnik l WHERE NOT EXISTS "
    "(SELECT 1 FROM nastavnik n WHERE n.id = l.nastavnik_id)",
    "SELECT COUNT(*) FROM kolegij_nastavnik WHERE redoslijed NOT BETWEEN 1 AND 3",
    "SELECT COUNT(*) FROM kolegij_smjer l WHERE NOT EXISTS "
    "(SELECT 1 FROM kolegij k WHERE k.id = l.kolegij_id)",
    "SELECT COUNT(*) FROM kolegij_smjer l WHERE NOT EXISTS (SELECT 1 FROM smjer s WHERE s.id = l.smjer_id)",
    "SELECT COUNT(*) FROM smjer d WHERE NOT EXISTS (SELECT 1 FROM studij s WHERE s.id = d.studij_id)",
    "SELECT COUNT(*) FROM studij WHERE razina NOT IN ('Preddiplomski', 'Diplomski')",
};

// One row per lecturer, semester and type with courses; a lecturer without courses has one row without a
// semester.
constexpr std::string_view LecturerSums =
    "SELECT n.rowid, n.prezime_ime, k.semestar, UPPER(TRIM(k.tip)) <> 'OBVEZNI' AS izborni, "
    "SUM(k.p), SUM(k.s), SUM(k.v), SUM(k.ects), COUNT(k.id) "
    "FROM nastavnik n LEFT JOIN kolegij_nastavnik l ON l.nastavnik_id = n.id "
    "LEFT JOIN kolegij k ON k.id = l.kolegij_id AND k.semestar BETWEEN 1 AND 6 "
    "GROUP BY n.rowid, k.semestar, izborni ORDER BY n.rowid";

constexpr std::string_view CatalogueRows =
    "SELECT k.id, k.naziv, k.p, k.s, k.v, k.ects, k.tip, k.semestar, s.kratica, s.razina "
    "FROM kolegij k LEFT JOIN studij s ON s.id = k.studij_id ORDER BY k.rowid";
constexpr std::string_view FirstLecturers =
    "SELECT n.prezime_ime FROM (SELECT rowid AS place, nastavnik_id, redoslijed FROM kolegij_nastavnik "
    "WHERE kolegij_id = ? ORDER BY rowid LIMIT 3) l JOIN nastavnik n ON n.id = l.nastavnik_id "
    "ORDER BY l.redoslijed, l.place";
constexpr std::string_view Directions =
    "SELECT TRIM(s.kratica) FROM kolegij_smjer l JOIN smjer s ON s.id = l.smjer_id "
    "WHERE l.kolegij_id = ? ORDER BY l.rowid";

std::string_view Text(sqlite3_stmt* statement, int column)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
    return text == nullptr
               ? std::string_view()
               : std::string_view(text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column)));
}

std::string_view TakeUntil(std::string_view& text, std::string_view end)
{
    const std::size_t at = std::min(text.find(end), text.size());
    const std::string_view taken = text.substr(0, at);
    text.remove_prefix(std::min(at + end.size(), text.size()));
    return taken;
}

void Bind(sqlite3_stmt* statement, int place, char type, std::string_view field)
{
    if (type == 't')
    {
        sqlite3_bind_text(statement, place, field.data(), static_cast<int>(field.size()), SQLITE_STATIC);
        return;
    }
    std::int64_t number = 0;
    std::from_chars(field.data(), field.data() + field.size(), number);
    sqlite3_bind_int64(statement, place, number);
}

using Sums = std::array<std::int64_t, 5>; // P, S, V, ECTS, courses

/// The table of one lecturer: by semester, then by type.
struct LecturerTable
{
    std::string Name;
    std::array<std::array<Sums, 2>, 6> Semesters = {};
};

void AddLecturer(TextFile& file, const LecturerTable& table)
{
    const auto addLine = [&](const std::string& words, const Sums& sums)
    {
        std::string line = table.Name + words;
        for (const std::int64_t sum : sums)
            line.append(";").append(std::to_string(sum));
        file.AddLine(line);
    };
    const auto addTo = [](Sums& total, const Sums& sums)
    { std::ranges::transform(total, sums, total.begin(), std::plus<>()); };

    std::array<Sums, 2> totals = {};
    for (std::size_t i = 0; i < table.Semesters.size(); ++i)
    {
        const std::string semester = std::to_string(i + 1);
        addLine(";" + semester + ";Obvezni", table.Semesters[i][0]);
        addLine(";" + semester + ";Izborni", table.Semesters[i][1]);
        addTo(totals[0], table.Semesters[i][0]);
        addTo(totals[1], table.Semesters[i][1]);
    }
    addLine(";UKUPNO;Obvezni", totals[0]);
    addLine(";UKUPNO;Izborni", totals[1]);
    addTo(totals[0], totals[1]);
    addLine(";TOTAL;Sve", totals[0]);
    file.AddLine("");
}

} // namespace

void SqliteCatalogue::CloseDatabase::operator()(sqlite3* database) const
{
    sqlite3_close(database);
}

void SqliteCatalogue::Finalize::operator()(sqlite3_stmt* statement) const
{
    sqlite3_finalize(statement);
}

void SqliteCatalogue::Configure()
{
    sqlite3_config(SQLITE_CONFIG_SINGLETHREAD);
    sqlite3_config(SQLITE_CONFIG_MEMSTATUS, 0);
}

SqliteCatalogue::SqliteCatalogue(const std::string& dataFolder)
{
    sqlite3* database = nullptr;
    const int opened = sqlite3_open_v2(
        ":memory:", &database, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
    m_database.reset(database);
    if (opened != SQLITE_OK)
        throw std::runtime_error("SQLite opens no database");

    Run(Settings);
    Run("BEGIN");
    for (const Imported& table : Tables)
    {
        Run(table.Create);
        Import(dataFolder + std::string(System::PathSeparator) + std::string(table.FileName), table.Insert,
               table.ColumnTypes);
    }
    Run(Indexes);
    Run("COMMIT");
}

bool SqliteCatalogue::IsValid()
{
    return std::ranges::all_of(Checks, [this](std::string_view check) { return FirstNumber(check) == 0; });
}

std::int32_t SqliteCatalogue::NextKolegijID()
{
    return static_cast<std::int32_t>(FirstNumber("SELECT COALESCE(MAX(id), 0) + 1 FROM kolegij"));
}

void SqliteCatalogue::ExportAllLecturers(const std::string& path)
{
    TextFile file;
    file.AddLine("Nastavnik;Semestar;Tip;P;S;V;ECTS;Broj kolegija");
    const Statement rows = Prepare(LecturerSums);
    LecturerTable table;
    std::int64_t lecturer = 0;
    while (sqlite3_step(rows.get()) == SQLITE_ROW)
    {
        if (const std::int64_t next = sqlite3_column_int64(rows.get(), 0); next != lecturer)
        {
            if (lecturer != 0)
                AddLecturer(file, table);
            lecturer = next;
            table = {.Name = std::string(Text(rows.get(), 1))};
        }
        const int semestar = sqlite3_column_int(rows.get(), 2);
        if (semestar == 0)
            continue;
        const auto tip = static_cast<std::size_t>(sqlite3_column_int(rows.get(), 3));
        for (int i = 0; i < 5; ++i)
            table.Semesters[static_cast<std::size_t>(semestar - 1)][tip][static_cast<std::size_t>(i)] =
                sqlite3_column_int64(rows.get(), 4 + i);
    }
    if (lecturer != 0)
        AddLecturer(file, table);
    file.SaveAs(path);
}

void SqliteCatalogue::ExportKolegiji(const std::string& path)
{
    TextFile file;
    file.AddLine(
        "ID_kolegij;Nositelj1;Nositelj2;Nositelj3;Kolegij;P;S;V;ECTS;Smjer;O_I;Program;Semestar;P_D");
    const Statement courses = Prepare(CatalogueRows);
    const Statement lecturers = Prepare(FirstLecturers);
    const Statement directions = Prepare(Directions);
    std::string line;
    const auto add = [&](int column) { line.append(";").append(Text(courses.get(), column)); };
    while (sqlite3_step(courses.get()) == SQLITE_ROW)
    {
        const std::int64_t id = sqlite3_column_int64(courses.get(), 0);
        line = Text(courses.get(), 0);

        sqlite3_bind_int64(lecturers.get(), 1, id);
        for (int i = 0; i < 3; ++i)
        {
            line += ';';
            if (sqlite3_step(lecturers.get()) == SQLITE_ROW)
                line += Text(lecturers.get(), 0);
        }
        sqlite3_reset(lecturers.get());

        for (int column = 1; column <= 5; ++column)
            add(column);

        sqlite3_bind_int64(directions.get(), 1, id);
        std::string_view separator = ";";
        while (sqlite3_step(directions.get()) == SQLITE_ROW)
            line.append(std::exchange(separator, ", ")).append(Text(directions.get(), 0));
        if (separator == ";")
            line += ';';
        sqlite3_reset(directions.get());

        for (const int column : {6, 8, 7, 9})
            add(column);
        file.AddLine(line);
    }
    file.SaveAs(path);
}

void SqliteCatalogue::Run(std::string_view sql)
{
    if (sqlite3_exec(m_database.get(), std::string(sql).c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(m_database.get()));
}

SqliteCatalogue::Statement SqliteCatalogue::Prepare(std::string_view sql)
{
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(m_database.get(), sql.data(), static_cast<int>(sql.size()), &statement, nullptr) !=
        SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(m_database.get()));
    return Statement(statement);
}

std::int64_t SqliteCatalogue::FirstNumber(std::string_view sql)
{
    const Statement statement = Prepare(sql);
    if (sqlite3_step(statement.get()) != SQLITE_ROW)
        throw std::runtime_error(sqlite3_errmsg(m_database.get()));
    return sqlite3_column_int64(statement.get(), 0);
}

void SqliteCatalogue::Import(const std::string& path, std::string_view insert, std::string_view columnTypes)
{
    const std::string content = FromWindows1250(ReadFile(path));
    const Statement statement = Prepare(insert);
    std::string_view rest = content;
    TakeUntil(rest, "\r\n"); // the header
    while (!rest.empty())
    {
        std::string_view line = TakeUntil(rest, "\r\n");
        int place = 0;
        for (const char type : columnTypes)
            Bind(statement.get(), ++place, type, TakeUntil(line, ";"));
        if (sqlite3_step(statement.get()) != SQLITE_DONE)
            throw std::runtime_error(sqlite3_errmsg(m_database.get()));
        sqlite3_reset(statement.get());
    }
}

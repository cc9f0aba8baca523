#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

/// The same catalogue in SQLite: a database in memory, texts in UTF-8, numbers as numbers, an index on every
/// identifier and reference. As in the program, identifiers may repeat and the order of the rows matters.
class SqliteCatalogue
{
public:
    /// Turns off what one thread does not need; call it once, before the first catalogue.
    static void Configure();

    /// Imports the seven files of a data folder: prepared inserts in one transaction, then the indexes.
    explicit SqliteCatalogue(const std::string& dataFolder);

    /// True if the queries for the program's checks find nothing.
    bool IsValid();

    std::int32_t NextKolegijID();

    /// Writes the program's export of all lecturers for the filters "Svi": grouped sums; the lines are made
    /// and written in the same way as the program's.
    void ExportAllLecturers(const std::string& path);

    /// Writes the program's export of the catalogue.
    void ExportKolegiji(const std::string& path);

private:
    struct CloseDatabase
    {
        void operator()(sqlite3* database) const;
    };
    struct Finalize
    {
        void operator()(sqlite3_stmt* statement) const;
    };
    using Statement = std::unique_ptr<sqlite3_stmt, Finalize>;

    void Run(std::string_view sql);
    Statement Prepare(std::string_view sql);
    std::int64_t FirstNumber(std::string_view sql);
    void Import(const std::string& path, std::string_view insert, std::string_view columnTypes);

    std::unique_ptr<sqlite3, CloseDatabase> m_database;
};

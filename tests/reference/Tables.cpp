#include "reference/Scan.h"

#include "data/CheckedNumbers.h"
#include "data/Errors.h"
#include "data/Files.h"
#include "data/System.h"
#include "data/Windows1250.h"
#include "data/modData.h"

#include <algorithm>
#include <limits>
#include <utility>

// The tables: loading, saving, edits.

namespace reference
{

namespace
{

constexpr std::string_view ZavodColumns[] = {"ID", "Naziv", "Kratica"};
constexpr std::string_view NastavnikColumns[] = {"ID", "PrezimeIme", "Titula", "ZavodID"};
constexpr std::string_view StudijColumns[] = {"ID", "Naziv", "Kratica", "Razina"};
constexpr std::string_view SmjerColumns[] = {"ID", "Naziv", "Kratica", "StudijID", "Razina"};
constexpr std::string_view KolegijColumns[] = {"ID",   "Naziv", "P",        "S",       "V",
                                               "ECTS", "Tip",   "Semestar", "StudijID"};
constexpr std::string_view KolegijSmjerColumns[] = {"KolegijID", "SmjerID"};
constexpr std::string_view KolegijNastavnikColumns[] = {"KolegijID", "NastavnikID", "Uloga", "Redoslijed"};

constexpr Layout ZavodLayout = {"db_zavod.csv", ZavodColumns};
constexpr Layout NastavnikLayout = {"db_nastavnici.csv", NastavnikColumns};
constexpr Layout StudijLayout = {"db_studij.csv", StudijColumns};
constexpr Layout SmjerLayout = {"db_smjer.csv", SmjerColumns};
constexpr Layout KolegijLayout = {"db_kolegij.csv", KolegijColumns};
constexpr Layout KolegijSmjerLayout = {"db_kolegij_smjer.csv", KolegijSmjerColumns};
constexpr Layout KolegijNastavnikLayout = {"db_kolegij_nastavnik.csv", KolegijNastavnikColumns};

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";

std::string PathOf(std::string_view folder, const TextTable& table)
{
    return std::string(folder).append(System::PathSeparator).append(table.Fixed->FileName);
}

/// The lines of a text; CR LF or CR ends a line, and the last line may have no end.
std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    std::string line;
    for (std::size_t i = 0; i < text.size(); ++i)
    {
        if (text[i] != '\r')
        {
            line += text[i];
            continue;
        }
        lines.push_back(line);
        line.clear();
        if (i + 1 < text.size() && text[i + 1] == '\n')
            ++i;
    }
    if (!line.empty())
        lines.push_back(line);
    return lines;
}

std::vector<std::string> Split(const std::string& line)
{
    std::vector<std::string> fields(1);
    for (const char c : line)
    {
        if (c == ';')
            fields.emplace_back();
        else
            fields.back() += c;
    }
    return fields;
}

void LoadTable(TextTable& table, std::string_view folder)
{
    const std::string path = PathOf(folder, table);
    const std::string text = FromWindows1250(Normalized(ReadFile(path)));
    if (text.empty())
        throw InputPastEnd(path);
    const std::vector<std::string> lines = Lines(text);
    for (std::size_t i = 1; i < lines.size(); ++i)
        if (!Trimmed(lines[i]).empty())
            table.Rows.push_back({Split(lines[i]), i + 1});
}

std::string SavedLine(const TextRow& row)
{
    std::string line;
    for (const std::string& field : row.Fields)
    {
        if (!line.empty())
            line += ';';
        line += field;
    }
    return line;
}

std::string SavedFile(const TextTable& table)
{
    std::string text;
    for (const std::string_view column : table.Fixed->Columns)
        text.append(text.empty() ? "" : ";").append(column);
    text += "\r\n";
    for (const TextRow& row : table.Rows)
        text += SavedLine(row) + "\r\n";
    return ToWindows1250(text);
}

/// Removes the rows with the number in the first field; none if one of them cannot be compared.
void RemoveRows(TextTable& table, std::int32_t id)
{
    std::vector<TextRow> kept;
    for (std::size_t i = table.Rows.size(); i-- > 0;)
        if (Number(table, table.Rows[i], 0) != id)
            kept.insert(kept.begin(), table.Rows[i]);
    table.Rows = kept;
}

std::vector<std::string> KolegijFields(std::int32_t id, const CourseEntry& entry)
{
    return {std::to_string(id),
            Trimmed(entry.Naziv),
            std::to_string(ToLong(entry.P)),
            std::to_string(ToLong(entry.S)),
            std::to_string(ToLong(entry.V)),
            std::to_string(ToLong(entry.ECTS)),
            entry.Tip,
            entry.Semestar,
            std::to_string(entry.StudijID)};
}

void AddLinks(Catalogue& catalogue, std::int32_t id, const CourseEntry& entry)
{
    for (const std::int32_t smjerID : entry.SmjerIDs)
        catalogue.KolegijSmjerovi.Rows.push_back({{std::to_string(id), std::to_string(smjerID)}});
    for (std::size_t i = 0; i < entry.NastavnikIDs.size(); ++i)
        if (entry.NastavnikIDs[i])
            catalogue.KolegijNastavnici.Rows.push_back(
                {{std::to_string(id), std::to_string(*entry.NastavnikIDs[i]), "Nositelj",
                  std::to_string(i + 1)}});
}

} // namespace

Catalogue::Catalogue()
    : Zavodi{&ZavodLayout},
      Nastavnici{&NastavnikLayout},
      Studiji{&StudijLayout},
      Smjerovi{&SmjerLayout},
      Kolegiji{&KolegijLayout},
      KolegijSmjerovi{&KolegijSmjerLayout},
      KolegijNastavnici{&KolegijNastavnikLayout}
{
}

std::array<TextTable*, 7> Catalogue::All()
{
    return {&Zavodi, &Nastavnici, &Studiji, &Smjerovi, &Kolegiji, &KolegijSmjerovi, &KolegijNastavnici};
}

std::array<const TextTable*, 7> Catalogue::All() const
{
    return {&Zavodi, &Nastavnici, &Studiji, &Smjerovi, &Kolegiji, &KolegijSmjerovi, &KolegijNastavnici};
}

Catalogue Load(std::string_view folder)
{
    Catalogue catalogue;
    for (TextTable* table : catalogue.All())
        LoadTable(*table, folder);
    return catalogue;
}

std::string Normalized(std::string_view bytes)
{
    if (!bytes.starts_with(Utf8Mark))
        return std::string(bytes);
    return ToWindows1250(bytes.substr(Utf8Mark.size()));
}

std::array<std::string, 7> SavedFiles(const Catalogue& catalogue)
{
    std::array<std::string, 7> files;
    const auto tables = catalogue.All();
    for (std::size_t i = 0; i < tables.size(); ++i)
        files[i] = SavedFile(*tables[i]);
    return files;
}

void Save(const Catalogue& catalogue, std::string_view folder)
{
    for (const TextTable* table : catalogue.All())
        ReplaceFile(PathOf(folder, *table), SavedFile(*table));
}

std::int32_t NextKolegijID(const Catalogue& catalogue)
{
    std::int32_t largest = 0;
    for (const TextRow& row : catalogue.Kolegiji.Rows)
        largest = std::max(largest, Number(catalogue.Kolegiji, row, Kolegij::ID));
    if (largest == std::numeric_limits<std::int32_t>::max())
        throw OverflowError();
    return largest + 1;
}

void AddKolegij(Catalogue& catalogue, const CourseEntry& entry)
{
    const std::int32_t id = NextKolegijID(catalogue);
    catalogue.Kolegiji.Rows.push_back({KolegijFields(id, entry)});
    AddLinks(catalogue, id, entry);
}

void ReplaceKolegij(Catalogue& catalogue, std::int32_t id, const CourseEntry& entry)
{
    TextTable& kolegiji = catalogue.Kolegiji;
    std::size_t position = 0;
    while (position < kolegiji.Rows.size() && Number(kolegiji, kolegiji.Rows[position], Kolegij::ID) != id)
        ++position;
    if (position == kolegiji.Rows.size())
        kolegiji.Rows.emplace_back();
    kolegiji.Rows[position] = {KolegijFields(id, entry)};
    RemoveRows(catalogue.KolegijSmjerovi, id);
    RemoveRows(catalogue.KolegijNastavnici, id);
    AddLinks(catalogue, id, entry);
}

void DeleteKolegij(Catalogue& catalogue, std::int32_t id)
{
    RemoveRows(catalogue.Kolegiji, id);
    RemoveRows(catalogue.KolegijSmjerovi, id);
    RemoveRows(catalogue.KolegijNastavnici, id);
}

} // namespace reference

#include "reference/Scan.h"

#include "data/Windows1250.h"
#include "data/modData.h"

#include <array>

// The files for a spreadsheet.

namespace reference
{

namespace
{

std::string LoadHeader(const std::string& firstColumn)
{
    return firstColumn + ";Semestar;Tip;P;S;V;ECTS;Broj kolegija\r\n";
}

std::string LoadBlock(const std::string& name, const std::vector<ListRow>& rows)
{
    std::string text;
    for (const ListRow& row : rows)
    {
        text += name;
        for (const ListCell& cell : row)
            text += ";" + cell.Text;
        text += "\r\n";
    }
    return text + "\r\n";
}

std::string CsvQuoted(const std::string& text)
{
    std::string doubled;
    bool needsQuotes = false;
    for (const char c : text)
    {
        doubled += c;
        if (c == '"')
            doubled += c;
        if (c == ',' || c == '"' || c == '\r' || c == '\n')
            needsQuotes = true;
    }
    return needsQuotes ? "\"" + doubled + "\"" : text;
}

std::string ExportLine(const Catalogue& catalogue, const TextRow& kolegij)
{
    const TextTable& kolegiji = catalogue.Kolegiji;
    const std::int32_t id = Number(kolegiji, kolegij, Kolegij::ID);
    const std::int32_t studijID = Number(kolegiji, kolegij, Kolegij::StudijID);

    std::array<std::string, 3> names;
    const std::vector<PlacedID> linked = LinkedNastavnici(catalogue, id, names.size());
    for (std::size_t i = 0; i < linked.size(); ++i)
        names[i] = TextOfID(catalogue.Nastavnici, linked[i].NastavnikID, Nastavnik::PrezimeIme);

    std::string line = Field(kolegiji, kolegij, Kolegij::ID);
    for (const std::string& name : names)
        line += ";" + name;
    for (const Kolegij::Column column : {Kolegij::Naziv, Kolegij::P, Kolegij::S, Kolegij::V, Kolegij::ECTS})
        line += ";" + Field(kolegiji, kolegij, column);
    line += ";" + GetSmjeroviKraticeString(catalogue, id);
    line += ";" + Field(kolegiji, kolegij, Kolegij::Tip);
    line += ";" + TextOfID(catalogue.Studiji, studijID, Studij::Kratica);
    line += ";" + Field(kolegiji, kolegij, Kolegij::Semestar);
    line += ";" + TextOfID(catalogue.Studiji, studijID, Studij::Razina);
    return line;
}

} // namespace

std::string ExportKolegiji(const Catalogue& catalogue)
{
    std::string text = "ID_kolegij;Nositelj1;Nositelj2;Nositelj3;Kolegij;P;S;V;ECTS;Smjer;O_I;Program;"
                       "Semestar;P_D\r\n";
    for (const TextRow& kolegij : catalogue.Kolegiji.Rows)
        text += ExportLine(catalogue, kolegij) + "\r\n";
    return ToWindows1250(text);
}

std::string ExportStatistika(const StatistikaFilters& filters, const std::vector<ListRow>& rows)
{
    std::string text = "sep=;\r\n";
    text += "Razina;" + CsvQuoted(filters.Razina) + "\r\n";
    text += "Program;" + CsvQuoted(filters.Program) + "\r\n";
    text += "Smjer;" + CsvQuoted(filters.Smjer) + "\r\n";
    text += "Semestar;" + CsvQuoted(filters.Semestar) + "\r\n";
    text += "\r\nSemestar;Tip;P;S;V;ECTS;Kolegija\r\n";
    for (const ListRow& row : rows)
    {
        for (std::size_t i = 0; i < row.size(); ++i)
            text.append(i == 0 ? "" : ";").append(CsvQuoted(row[i].Text));
        text += "\r\n";
    }
    return ToWindows1250(text);
}

std::string ExportAllLecturers(const Catalogue& catalogue, const LecturerFilter& filter)
{
    const TextTable& nastavnici = catalogue.Nastavnici;
    std::string text = LoadHeader("Nastavnik");
    for (const TextRow& nastavnik : nastavnici.Rows)
    {
        const std::string& ime = Field(nastavnici, nastavnik, Nastavnik::PrezimeIme);
        const std::int32_t id = Number(nastavnici, nastavnik, Nastavnik::ID);
        text += LoadBlock(ime, LecturerExportRows(catalogue, id, filter));
    }
    return ToWindows1250(text);
}

std::string ExportAllDepartments(const Catalogue& catalogue, const DepartmentFilter& filter)
{
    const TextTable& zavodi = catalogue.Zavodi;
    std::string text = LoadHeader("Zavod");
    for (const TextRow& zavod : zavodi.Rows)
    {
        const std::string& naziv = Field(zavodi, zavod, Zavod::Naziv);
        const std::int32_t id = SafeNumber(zavodi, zavod, Zavod::ID);
        text += LoadBlock(naziv, DepartmentTeachingLoadRows(catalogue, id, filter));
    }
    return ToWindows1250(text);
}

} // namespace reference

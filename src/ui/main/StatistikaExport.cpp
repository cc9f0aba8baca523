#include "ui/main/StatistikaExport.h"

#include "data/Files.h"
#include "text/Text.h"

#include <algorithm>

void WriteStatistika(std::string_view path, const StatistikaFilters& filters,
                     const std::vector<std::vector<std::string>>& rows)
{
    TextFile file;
    file.AddLine("sep=;");
    file.AddLine("Razina;" + CsvQuote(filters.Razina));
    file.AddLine("Program;" + CsvQuote(filters.Program));
    file.AddLine("Smjer;" + CsvQuote(filters.Smjer));
    file.AddLine("Semestar;" + CsvQuote(filters.Semestar));
    file.AddLine("");
    file.AddLine("Semestar;Tip;P;S;V;ECTS;Kolegija");
    for (const std::vector<std::string>& row : rows)
    {
        std::vector<std::string> quoted(row.size());
        std::ranges::transform(row, quoted.begin(), CsvQuote);
        file.AddLine(Joined(quoted, ";"));
    }
    file.SaveAs(path);
}

std::string StatistikaFileName(const StatistikaFilters& filters)
{
    std::string name = "statistika";
    for (const std::string& part : {filters.Razina, filters.Program, filters.Smjer, filters.Semestar})
        name.append("_").append(SanitizeFileNamePart(part));
    return name + ".csv";
}

std::string CsvQuote(std::string_view text)
{
    return QuotedIfAny(text, ",\"\r\n");
}

std::string SanitizeFileNamePart(std::string_view text)
{
    std::string part(TrimBlanks(text));
    std::ranges::replace_if(
        part, [](char c) { return ForbiddenInFileNames.find(c) != std::string_view::npos; }, '_');
    return part;
}

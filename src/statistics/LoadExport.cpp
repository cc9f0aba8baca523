#include "statistics/LoadExport.h"

#include "data/Files.h"
#include "data/Text.h"

void AddLoadHeader(TextFile& file, std::string_view firstColumn)
{
    file.AddLine(std::string(firstColumn) + ";Semestar;Tip;P;S;V;ECTS;Broj kolegija");
}

void AddLoadBlock(TextFile& file, std::string_view name, const std::vector<ListRow>& rows)
{
    for (const ListRow& row : rows)
    {
        std::string line(name);
        for (const ListCell& cell : row)
            line.append(";").append(cell.Text);
        file.AddLine(line);
    }
    file.AddLine("");
}

std::string WithCsvEnding(std::string path)
{
    constexpr std::string_view ending = ".CSV";
    if (path.size() < ending.size() || UpperCase(path.substr(path.size() - ending.size())) != ending)
        path += ".csv";
    return path;
}

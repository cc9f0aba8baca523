#include "statistics/LoadExport.h"

#include "data/Files.h"

void AddLoadHeader(TextFile& file, std::string_view firstColumn)
{
    file.AddLine(std::string(firstColumn) + ";Semestar;Tip;P;S;V;ECTS;Broj kolegija");
}

void AddLoadBlock(TextFile& file, std::string_view name, const std::vector<LoadLine>& lines)
{
    std::string text;
    for (const LoadLine& line : lines)
    {
        text.assign(name).append(";").append(line.First).append(";").append(line.Second);
        for (const std::int32_t number : line.Sums.Numbers())
            text.append(";").append(std::to_string(number));
        file.AddLine(text);
    }
    file.AddLine("");
}

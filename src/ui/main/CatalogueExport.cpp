#include "ui/main/CatalogueExport.h"

#include "data/Files.h"
#include "data/Lookups.h"
#include "data/modData.h"
#include "text/Text.h"

#include <string>
#include <vector>

namespace
{

constexpr std::string_view Header =
    "ID_kolegij;Nositelj1;Nositelj2;Nositelj3;Kolegij;P;S;V;ECTS;Smjer;O_I;Program;Semestar;P_D";

std::string ExportLine(const modData::Row& kolegij)
{
    const std::int32_t id = kolegij.Number(Kolegij::ID);
    const std::int32_t studijID = kolegij.Number(Kolegij::StudijID);
    const auto stored = [&](Kolegij::Column column) { return std::string(kolegij.Field(column)); };

    std::string first;
    std::string second;
    std::string third;
    modData::GetNositelji123(id, first, second, third);
    return Joined({stored(Kolegij::ID), first, second, third, stored(Kolegij::Naziv), stored(Kolegij::P),
                   stored(Kolegij::S), stored(Kolegij::V), stored(Kolegij::ECTS),
                   modData::GetSmjeroviKraticeString(id), stored(Kolegij::Tip),
                   modData::GetStudijKratica(studijID), stored(Kolegij::Semestar),
                   modData::GetStudijRazina(studijID)},
                  ";");
}

} // namespace

void ExportKolegijiToCSV(std::string_view path)
{
    TextFile file;
    file.AddLine(Header);
    for (const modData::Row& kolegij : modData::Kolegiji)
        file.AddLine(ExportLine(kolegij));
    file.SaveAs(path);
}

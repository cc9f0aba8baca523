#include "support/Catalogue.h"

#include "data/Windows1250.h"
#include "data/modData.h"
#include "support/TestFolder.h"

#include <utility>

namespace
{

std::vector<std::pair<modData::Table*, const Catalogue::Lines*>> Parts(const Catalogue& catalogue)
{
    return {
        {&modData::Zavodi, &catalogue.Zavodi},
        {&modData::Nastavnici, &catalogue.Nastavnici},
        {&modData::Studiji, &catalogue.Studiji},
        {&modData::Smjerovi, &catalogue.Smjerovi},
        {&modData::Kolegiji, &catalogue.Kolegiji},
        {&modData::KolegijSmjerovi, &catalogue.KolegijSmjerovi},
        {&modData::KolegijNastavnici, &catalogue.KolegijNastavnici},
    };
}

} // namespace

void Catalogue::Use() const
{
    for (const auto& [table, lines] : Parts(*this))
    {
        modData::Table filled(table->Layout());
        std::uint32_t lineNumber = 1;
        for (const std::string_view line : *lines)
            filled.AppendLine(line, ++lineNumber);
        *table = std::move(filled);
    }
}

void Catalogue::WriteTo(const std::filesystem::path& dataFolder) const
{
    for (const auto& [table, lines] : Parts(*this))
    {
        std::string content = table->Layout().Header() + "\r\n";
        for (const std::string_view line : *lines)
            content.append(line).append("\r\n");
        WriteBytes(dataFolder / table->Layout().FileName, ToWindows1250(content));
    }
}

Catalogue SmallCatalogue()
{
    return {
        .Zavodi = {"1;Zavod za povijest;POV", "2;Zavod za kemiju;KEM"},
        .Nastavnici = {"1;Anić Ana;prof. dr. sc.;1", "2;Šarić Žarko;;2", "3;Đurić Ćiro;doc. dr. sc.;1"},
        .Studiji = {"1;Lovstvo;LOR;Preddiplomski", "2;Bevanda;BEV;Preddiplomski", "3;Lovstvo;LOR;Diplomski"},
        .Smjerovi = {"1;Opći;OPC;1;Preddiplomski", "2;Posebni;POS;1;Preddiplomski",
                     "3;Bevski;BVS;2;Preddiplomski", "4;Diplomski smjer;DIP;3;Diplomski"},
        .Kolegiji = {"1;Uvod u lov;2;1;0;5;obvezni;1;1", "2;Žičani alati;1;1;1;4;izborni;2;1",
                     "3;Bevska kultura;2;0;2;6;obvezni;1;2", "4;Napredni lov;3;0;1;10;obvezni;1;3",
                     "5;Kolegij bez smjera;1;0;0;2;izborni;3;1"},
        .KolegijSmjerovi = {"1;1", "1;2", "2;2", "3;3", "4;4"},
        .KolegijNastavnici = {"1;1;Nositelj;1", "1;3;Nositelj;2", "2;2;Nositelj;1", "3;2;Nositelj;1",
                              "4;3;Nositelj;1", "5;1;Nositelj;1"},
    };
}

Catalogue RenumberedCatalogue()
{
    Catalogue catalogue = SmallCatalogue();
    catalogue.Kolegiji = {"11;Uvod u lov;2;1;0;5;obvezni;1;1", "12;Žičani alati;1;1;1;4;izborni;2;1",
                          "13;Bevska kultura;2;0;2;6;obvezni;1;2", "14;Napredni lov;3;0;1;10;obvezni;1;3"};
    catalogue.KolegijSmjerovi = {"11;1", "11;2", "12;2", "13;3", "14;4"};
    catalogue.KolegijNastavnici = {"11;1;Nositelj;1", "11;3;Nositelj;2", "12;2;Nositelj;1", "13;2;Nositelj;1",
                                   "14;3;Nositelj;1"};
    return catalogue;
}

std::vector<std::string> LinesOf(const modData::Table& table)
{
    std::vector<std::string> lines;
    for (const modData::Row& row : table)
    {
        std::string line(row.Field(0));
        for (std::size_t i = 1; i < row.FieldCount(); ++i)
            line.append(";").append(row.Field(i));
        lines.push_back(line);
    }
    return lines;
}

#pragma once

#include "data/Table.h"

#include <cstdint>
#include <string>
#include <vector>

/// Lookups of names by identifier, and the joined lists of one course. The first row with an identifier
/// counts. Everything here throws DataError for a row before it that cannot be read.
namespace modData
{

// Empty if no row has the ID.

std::string GetStudijKratica(std::int32_t id);
std::string GetStudijRazina(std::int32_t id);
std::string GetSmjerKratica(std::int32_t id);
std::string GetNastavnikIme(std::int32_t id);

/// A lecturer of a course with the place (`Redoslijed`) that the link gives.
struct PlacedNastavnik
{
    const Row* Nastavnik; // in the table
    std::int32_t Redoslijed;
};

/// The short names of a course's directions in link order, joined with ", ". Unknown directions and blank
/// names are left out.
std::string GetSmjeroviKraticeString(std::int32_t kolegijId);

/// The names of a course's lecturers by place, joined with "; ". An unknown lecturer after a known one leaves
/// a separator.
std::string GetNositeljiString(std::int32_t kolegijId);

/// The names of a course's first three linked lecturers in table order, sorted by place; empty if there are
/// fewer.
void GetNositelji123(std::int32_t kolegijId, std::string& first, std::string& second, std::string& third);

/// A course's lecturers of any role, by place. Links to unknown lecturers are left out.
std::vector<PlacedNastavnik> GetNastavniciForKolegij(std::int32_t kolegijId);

} // namespace modData

#pragma once

#include "data/Table.h"

#include <cstdint>
#include <string>
#include <vector>

/// Names instead of identifiers, and the joined lists of one course. Every search reads its table from the
/// first row and the first match wins; each throws DataError for a row on the way that cannot be read.
namespace modData
{

// Empty when no row has the ID.

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

/// The short names of a course's directions in link order, joined with ", "; unknown and blank ones left out.
std::string GetSmjeroviKraticeString(std::int32_t kolegijId);

/// The names of a course's lecturers by place, joined with "; ". An unknown one behind a known one leaves its
/// separator.
std::string GetNositeljiString(std::int32_t kolegijId);

/// The names of a course's holders 1 to 3: its first three links in table order, by place; empty where none.
void GetNositelji123(std::int32_t kolegijId, std::string& first, std::string& second, std::string& third);

/// A course's lecturers by place, whatever their role; links to unknown lecturers are left out.
std::vector<PlacedNastavnik> GetNastavniciForKolegij(std::int32_t kolegijId);

} // namespace modData

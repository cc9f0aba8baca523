#pragma once

#include "data/Table.h"

#include <filesystem>
#include <string_view>
#include <vector>

/// The rows of the seven tables for a test, each row as a line of its file (UTF-8): "5;Anić Ana;dr. sc.;1".
struct Catalogue
{
    using Lines = std::vector<std::string_view>;

    Lines Zavodi;
    Lines Nastavnici;
    Lines Studiji;
    Lines Smjerovi;
    Lines Kolegiji;
    Lines KolegijSmjerovi;
    Lines KolegijNastavnici;

    /// Makes these rows the program's tables; the header counts as line 1.
    void Use() const;

    /// Writes these rows as the seven files of a data folder.
    void WriteTo(const std::filesystem::path& dataFolder) const;
};

/// A small valid catalogue: two departments, three lecturers, the studies "LOR" on both levels and "BEV" on
/// the lower one, directions and five courses.
Catalogue SmallCatalogue();

/// The small catalogue with other IDs for all courses. Courses, direction links and lecturer links of the two
/// catalogues never fit together: a mixture fails validation.
Catalogue RenumberedCatalogue();

/// The rows of a table as lines, the fields joined by ";".
std::vector<std::string> LinesOf(const modData::Table& table);

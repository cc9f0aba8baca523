#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <string_view>

/// The number of rows of each table of a catalogue.
struct CatalogueSize
{
    std::string_view Name;
    int Zavodi;
    int Nastavnici;
    int Studiji;
    int Smjerovi;
    int Kolegiji;
    int KolegijSmjerovi;
    int KolegijNastavnici;
};

inline constexpr CatalogueSize Faculty = {"faculty", 3, 60, 2, 7, 300, 600, 900};
inline constexpr CatalogueSize University = {"university", 100, 2'000, 60, 240, 10'000, 20'000, 30'000};
inline constexpr CatalogueSize Country = {"country", 1'000, 20'000, 600, 2'400, 100'000, 200'000, 300'000};

inline constexpr std::array CatalogueSizes = {Faculty, University, Country};

/// The seed that the benchmarks use.
inline constexpr std::uint64_t UsualSeed = 20'260'309;

/// Writes the seven files of a valid catalogue with invented names into an existing folder. The same seed
/// gives the same bytes on every system. @throws FileError
void GenerateCatalogue(const CatalogueSize& size, std::uint64_t seed, const std::filesystem::path& folder);

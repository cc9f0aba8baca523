#pragma once

#include "data/Choice.h"

#include <cstdint>
#include <string_view>
#include <vector>

// The entries that boxes and lists offer. Those from the tables are in table order. Everything here throws
// DataError.

/// The two levels of study.
std::vector<Choice> RazinaChoices();

/// The semesters of a level, with their numbers: 1 to 4 for "Diplomski", 1 to 6 for any other.
std::vector<Choice> SemestarChoices(std::string_view razina);

/// How a level's text is compared with a study's.
enum class RazinaMatch
{
    Exact,
    Trimmed, ///< Blanks around either text do not count.
};

/// The studies of a level, by short name, with their IDs.
std::vector<Choice> StudijChoices(std::string_view razina, RazinaMatch match);

/// The directions of a study, by short name, with their IDs.
std::vector<Choice> SmjerChoices(std::int32_t studijID);

/// The lecturers, with their IDs.
std::vector<Choice> NastavnikChoices();

/// The lecturers whose name is not blank, with their IDs.
std::vector<Choice> NamedNastavnikChoices();

/// The departments, with their IDs; an ID that is not a number counts as 0.
std::vector<Choice> ZavodChoices();

/// The entries with "Svi" before them.
std::vector<Choice> WithSvi(std::vector<Choice> choices);

#pragma once

#include "lists/Choice.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

// What the filter boxes of the main window offer.

/// The entry of a filter box that switches the filter off.
inline constexpr std::string_view Svi = "Svi";

std::vector<Choice> RazinaChoices();

/// The studies of a level (exact text), by short name, with their IDs. @throws TypeMismatch and its kin for
/// an ID
std::vector<Choice> ProgramChoices(std::string_view razina);

/// "Svi", then the directions of a study with their IDs; "Svi" alone when no study is chosen.
/// @throws TypeMismatch and its kin for an ID
std::vector<Choice> SmjerChoices(std::optional<std::int32_t> studijID);

/// "Svi", then the semesters of a level.
std::vector<Choice> SemestarChoices(std::string_view razina);

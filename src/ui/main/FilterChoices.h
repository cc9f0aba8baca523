#pragma once

#include "data/Choice.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

// What the filter boxes of the main window offer.

/// "Svi", then the directions of a study with their IDs; "Svi" alone when no study is chosen.
/// @throws DataError for an ID that cannot be read
std::vector<Choice> SmjerFilterChoices(std::optional<std::int32_t> studijID);

/// "Svi", then the semesters of a level.
std::vector<Choice> SemestarFilterChoices(std::string_view razina);

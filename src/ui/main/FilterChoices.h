#pragma once

#include "data/Choice.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

// The entries of the main window's filter boxes.

/// "Svi", then the directions of a study with their IDs; only "Svi" without a study.
std::vector<Choice> SmjerFilterChoices(std::optional<std::int32_t> studijID);

/// "Svi", then the semesters of a level.
std::vector<Choice> SemestarFilterChoices(std::string_view razina);

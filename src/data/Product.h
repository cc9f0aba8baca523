#pragma once

#include <string_view>

/// What the program calls itself, everywhere.
inline constexpr std::string_view ProductName = "Varlostudiji";
inline constexpr std::string_view ProductVersion = VARLO_VERSION; ///< "1.0." and the release's date.

#pragma once

#include <string_view>

/// The program's name and version, wherever it shows them.
inline constexpr std::string_view ProductName = "Varlostudiji";
inline constexpr std::string_view ProductVersion = VARLO_VERSION; ///< "1.0." and the release's date.

#pragma once

#include <cstdint>

/// A colour of text as wxColour takes it: 0xBBGGRR.
using TextColour = std::uint32_t;

namespace TextColours
{
inline constexpr TextColour Black = 0x000000;
inline constexpr TextColour Red = 0x0000FF;
inline constexpr TextColour Blue = 0xFF0000;
} // namespace TextColours

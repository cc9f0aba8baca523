#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// An entry of a combo box or list box: its text (UTF-8) and the number that goes with it, mostly an ID.
struct Choice
{
    std::string Text;
    std::int32_t Data = 0;
};

/// The entry that switches a filter off ("All").
inline constexpr std::string_view Svi = "Svi";

#pragma once

#include "text/Text.h"

#include <string>
#include <string_view>

namespace Check
{

/// A value as the report shows it, in quotes.
inline std::string InQuotes(std::string_view value)
{
    return "\"" + Shown(value) + "\"";
}

} // namespace Check

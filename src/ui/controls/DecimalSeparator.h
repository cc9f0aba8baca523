#pragma once

#include <string>

/// What the user's system writes before the decimals of a number (UTF-8): the regional setting under Windows,
/// the locale's elsewhere.
std::string SystemDecimalSeparator();

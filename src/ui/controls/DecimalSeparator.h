#pragma once

#include <string>

/// The decimal separator of the user's system (UTF-8): the regional setting on Windows, the locale's
/// elsewhere.
std::string SystemDecimalSeparator();

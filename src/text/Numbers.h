#pragma once

#include <cstdint>
#include <string_view>

/// How a text reads as a whole number.
enum class NumberKind
{
    Whole,      ///< A number that fits 32 bits signed.
    NotNumeric, ///< No number at all.
    TooLarge,   ///< A number outside 32 bits signed.
};

/// Reads a text as a whole number, halves rounded to even; `value` is set only for `Whole`.
/// A number is: blanks around it, an optional sign, digits with at most one "." or "," as the decimal
/// separator, at least one digit. No locale changes this.
NumberKind ParseLong(std::string_view text, std::int32_t& value);

/// True when the text is a number, whatever its size.
bool IsNumeric(std::string_view text);

/// Safe conversion: 0 for a text that is not numeric or does not fit.
std::int32_t ToLongOrZero(std::string_view text);

#pragma once

#include <cstdint>
#include <string_view>

/// The result of reading a text as a whole number.
enum class NumberKind
{
    Whole,      ///< It fits 32 bits signed.
    NotNumeric, ///< It is not a number.
    TooLarge,   ///< It is a number that does not fit.
};

/// Reads a text as a whole number; halves are rounded to even. `value` is set only for `Whole`.
/// A number is: blanks around it, an optional sign, digits with at most one "." or "," as the decimal
/// separator, at least one digit. The locale does not matter.
NumberKind ParseLong(std::string_view text, std::int32_t& value);

/// True if the text is a number of any size.
bool IsNumeric(std::string_view text);

/// Safe conversion: 0 for a text that is not numeric or does not fit.
std::int32_t ToLongOrZero(std::string_view text);

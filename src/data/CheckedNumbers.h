#pragma once

#include <cstdint>
#include <string_view>

/// The text as a whole number. @throws TypeMismatch if it is not numeric, OverflowError if it does not fit 32
/// bits signed
std::int32_t ToLong(std::string_view text);

/// How a stored number is converted where it is used.
enum class Conversion
{
    Strict, ///< A text that is not a whole number is an error.
    Safe,   ///< Such a text counts as 0.
};

/// The sum. @throws OverflowError if it does not fit 32 bits signed
std::int32_t CheckedSum(std::int32_t a, std::int32_t b);

/// The product. @throws OverflowError if it does not fit 32 bits signed
std::int32_t CheckedProduct(std::int32_t a, std::int32_t b);

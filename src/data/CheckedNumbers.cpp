#include "data/CheckedNumbers.h"

#include "data/Errors.h"
#include "text/Numbers.h"

std::int32_t ToLong(std::string_view text)
{
    std::int32_t value = 0;
    switch (ParseLong(text, value))
    {
    case NumberKind::NotNumeric:
        throw TypeMismatch(text);
    case NumberKind::TooLarge:
        throw OverflowError(text);
    case NumberKind::Whole:
        break;
    }
    return value;
}

std::int32_t CheckedSum(std::int32_t a, std::int32_t b)
{
    std::int32_t sum = 0;
    if (__builtin_add_overflow(a, b, &sum))
        throw OverflowError();
    return sum;
}

std::int32_t CheckedProduct(std::int32_t a, std::int32_t b)
{
    std::int32_t product = 0;
    if (__builtin_mul_overflow(a, b, &product))
        throw OverflowError();
    return product;
}

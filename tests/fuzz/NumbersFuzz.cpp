#include "data/CheckedNumbers.h"
#include "ects/FieldNumbers.h"
#include "fuzz/Fuzz.h"
#include "text/Numbers.h"

#include <cmath>
#include <string>

namespace
{

void CheckWhole(std::string_view text)
{
    std::int32_t value = 0;
    const NumberKind reading = ParseLong(text, value);
    Promise(IsNumeric(text) == (reading != NumberKind::NotNumeric), "numeric is what can be read");
    Promise(ToLongOrZero(text) == (reading == NumberKind::Whole ? value : 0),
            "safe conversion reads the same");

    std::int32_t strict = 0;
    const bool converted = Succeeds([&] { strict = ToLong(text); });
    Promise(converted == (reading == NumberKind::Whole), "strict conversion succeeds for whole numbers");
    Promise(!converted || strict == value, "strict conversion reads the same");
    if (reading != NumberKind::Whole)
        return;
    Promise(ToLong(" " + std::to_string(value) + " ") == value, "a number reads as it is written");
    Promise(ToLong(std::string(text) + " ") == value, "blanks around a number mean nothing");
}

void CheckField(std::string_view text, std::string_view separator)
{
    const double value = ReadNumber(text, separator);
    Promise(std::isfinite(value), "a field reads as a finite number");
    for (const std::string_view pattern : {OneDecimal, TwoDecimals})
    {
        const std::string shown = FormatFixed(value, pattern, separator);
        Promise(std::isfinite(ReadNumber(shown, separator)), "what is shown can be read");
        // 15 digits of a value count, so a value of this size has six decimals.
        Promise(std::abs(value) > 1e9 || std::abs(ReadNumber(shown, separator) - value) <= 0.050001,
                "what is shown is the number, rounded");
    }
}

} // namespace

/// The input: a field's text, read as a whole number and as a figure of the calculator.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text = TextOf(data, size);
    CheckWhole(text);
    CheckField(text, ",");
    CheckField(text, ".");
    return 0;
}

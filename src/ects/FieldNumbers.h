#pragma once

#include <string>
#include <string_view>

// Numbers in the calculator's fields: texts in the user's own format.

/// The patterns of a figure with one decimal and with two.
inline constexpr std::string_view OneDecimal = "0.0";
inline constexpr std::string_view TwoDecimals = "0.00";

/// The value of a field's text; blanks around it are ignored. ".", "," and the user's own separator all
/// separate the decimals; nothing separates thousands. 0 for a text that is not a number, or too large.
double ReadNumber(std::string_view text, std::string_view separator);

/// The text of a value, with the decimals of the pattern and the given separator; halves are rounded away
/// from zero. A value that is not finite shows as zero, which is what its text would be read as.
std::string FormatFixed(double value, std::string_view pattern, std::string_view separator);

/// Adds about ten figures at most. The sum is rounded to the digits that are certain for its largest figure:
/// 1000.3 - 1000.25 is 0.05, not a little less.
class HoursSum
{
public:
    void Add(double figure);
    double Value() const;

private:
    double m_total = 0;
    double m_largest = 0; ///< The largest magnitude of a figure or of an intermediate sum.
};

#pragma once

#include <string>
#include <string_view>

// Numbers as the calculator's fields hold them: text in the user's own form.

/// How a figure is shown: with one decimal or with two.
inline constexpr std::string_view OneDecimal = "0.0";
inline constexpr std::string_view TwoDecimals = "0.00";

/// The value of a field's text, blanks around it ignored. ".", "," and the user's own separator all stand
/// before the decimals; nothing separates thousands. 0 for a text that is no number, or one too large.
double ReadNumber(std::string_view text, std::string_view separator);

/// The text of a value with as many decimals as the pattern has, halves rounded away from zero, and the
/// separator before them. A value that is not finite shows as zero, as it would read.
std::string FormatFixed(double value, std::string_view pattern, std::string_view separator);

/// Adds up to ten or so figures. The sum is rounded to the digits that its largest figure leaves certain:
/// 1000.3 - 1000.25 is 0.05, and not a little less.
class HoursSum
{
public:
    void Add(double figure);
    double Value() const;

private:
    double m_total = 0;
    double m_largest = 0; ///< The largest magnitude of a figure, or of the sum on the way.
};

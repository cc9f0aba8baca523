#include "ects/FieldNumbers.h"

#include "text/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>

namespace
{

void ReplaceAll(std::string& text, std::string_view what, std::string_view with)
{
    for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + with.size()))
        text.replace(at, what.size(), with);
}

// The number of digits that are free of binary rounding noise: 1.15 is 1.149999999999999911 in binary, and
// 100.1 - 100.05 leaves 0.0499999999999972. A value is first rounded to these digits, so that a half is a
// half again. Each addition may cost half a unit of the sixteenth digit, so a sum has one digit less.
constexpr int TrueDigits = 15;
constexpr int TrueDigitsOfSum = 14;
constexpr int MaxDecimals = 12;

int WholeDigits(double magnitude)
{
    return magnitude < 1 ? 1 : static_cast<int>(std::floor(std::log10(magnitude))) + 1;
}

/// The value as a decimal text with a point.
std::string ToDecimals(double magnitude, int decimals)
{
    std::array<char, std::numeric_limits<double>::max_exponent10 + 20> buffer;
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                       std::chars_format::fixed, decimals);
    return {buffer.data(), written.ptr};
}

/// Adds one to the last digit.
void RoundUp(std::string& decimal)
{
    for (std::size_t i = decimal.size(); i-- > 0;)
    {
        if (decimal[i] == '.')
            continue;
        if (decimal[i] != '9')
        {
            ++decimal[i];
            return;
        }
        decimal[i] = '0';
    }
    decimal.insert(decimal.begin(), '1');
}

} // namespace

double ReadNumber(std::string_view text, std::string_view separator)
{
    std::string number(TrimBlanks(text));
    if (!separator.empty())
        ReplaceAll(number, separator, ".");
    std::ranges::replace(number, ',', '.');

    std::string_view digits = number;
    if (digits.starts_with('+'))
        digits.remove_prefix(1);
    // The conversion would also accept words such as "inf", and a second sign.
    if (digits.find_first_not_of("0123456789.eE+-") != std::string_view::npos ||
        (digits.size() < number.size() && digits.starts_with('-')))
        return 0;

    double value = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return error == std::errc() && end == digits.data() + digits.size() ? value : 0;
}

std::string FormatFixed(double value, std::string_view pattern, std::string_view separator)
{
    if (!std::isfinite(value))
        value = 0;
    const std::size_t shown = pattern.size() - pattern.find('.') - 1;
    const double magnitude = std::fabs(value);
    const int trueDecimals =
        std::clamp(TrueDigits - WholeDigits(magnitude), static_cast<int>(shown) + 1, MaxDecimals);
    std::string text = ToDecimals(magnitude, trueDecimals);

    const std::size_t kept = text.find('.') + 1 + shown;
    const bool up = text[kept] >= '5';
    text.resize(kept);
    if (up)
        RoundUp(text);
    if (value < 0 && text.find_first_not_of("0.") != std::string::npos)
        text.insert(text.begin(), '-');
    ReplaceAll(text, ".", separator);
    return text;
}

void HoursSum::Add(double figure)
{
    m_total += figure;
    m_largest = std::max({m_largest, std::fabs(figure), std::fabs(m_total)});
}

double HoursSum::Value() const
{
    if (!std::isfinite(m_total))
        return m_total;
    const int decimals = std::max(TrueDigitsOfSum - WholeDigits(m_largest), 0);
    return std::copysign(ReadNumber(ToDecimals(std::fabs(m_total), decimals), "."), m_total);
}

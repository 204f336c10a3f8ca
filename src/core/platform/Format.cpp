#include "Format.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace quillet {

namespace {

// Adds one to the decimal digit string (all digits), growing it on a carry out of the first digit.
void incrementDigits(std::string& digits)
{
    for (auto it = digits.rbegin(); it != digits.rend(); ++it) {
        if (*it != '9') {
            ++*it;
            return;
        }
        *it = '0';
    }
    digits.insert(digits.begin(), '1');
}

} // namespace

std::string formatFixed(double value, int decimals)
{
    if (!std::isfinite(value))
        return "0";
    const bool negative = std::signbit(value);
    const double magnitude = std::fabs(value);

    // 15 significant digits as d.dddddddddddddde±x.
    std::array<char, 64> buffer{};
    auto [end, ec] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude,
                                   std::chars_format::scientific, 14);
    if (ec != std::errc{})
        return "0";
    const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    const auto ePos = text.find('e');
    std::string mantissa;
    for (char c : text.substr(0, ePos)) {
        if (c != '.')
            mantissa += c;
    }
    int exponent = 0;
    std::from_chars(text.data() + ePos + 1 + (text[ePos + 1] == '+' ? 1 : 0), text.data() + text.size(),
                    exponent);

    // The digits are d1 d2 ... d15 with the decimal point after d(exponent+1). Keep the digits up to
    // the requested decimal and round on the next one, half away from zero.
    const int keep = exponent + 1 + decimals;
    std::string digits;
    if (keep <= 0) {
        // Everything lies below the last shown decimal: rounds to 0 or to one unit of it.
        digits = (keep == 0 && mantissa[0] >= '5') ? "1" : "0";
    } else {
        digits = mantissa.substr(0, static_cast<std::size_t>(std::min<int>(keep, 15)));
        digits.append(static_cast<std::size_t>(std::max(0, keep - 15)), '0');
        if (keep < 15 && mantissa[static_cast<std::size_t>(keep)] >= '5')
            incrementDigits(digits);
    }

    // digits now hold the value times 10^decimals as a whole number.
    if (static_cast<int>(digits.size()) <= decimals)
        digits.insert(0, static_cast<std::size_t>(decimals) - digits.size() + 1, '0');
    std::string out = digits.substr(0, digits.size() - static_cast<std::size_t>(decimals));
    const auto first = out.find_first_not_of('0');
    out = first == std::string::npos ? "0" : out.substr(first);
    if (decimals > 0)
        out += "." + digits.substr(digits.size() - static_cast<std::size_t>(decimals));
    if (negative && digits.find_first_not_of('0') != std::string::npos)
        out.insert(0, "-");
    return out;
}

std::string format0(double value)
{
    return formatFixed(value, 0);
}

std::string format1(double value)
{
    return formatFixed(value, 1);
}

double roundHalfEven(double value, int decimals)
{
    if (!std::isfinite(value))
        return value;
    const double scale = std::pow(10.0, decimals);
    const double scaled = value * scale;
    if (!std::isfinite(scaled))
        return value;
    double rounded = std::nearbyint(scaled); // the default rounding mode sends halves to even
    if (rounded == 0)
        rounded = 0; // no negative zero
    return rounded / scale;
}

namespace {

template <class T>
std::string shortestOf(T value)
{
    if (!std::isfinite(value))
        return "0";
    if (value == 0)
        return "0";
    std::array<char, 400> buffer{};
    auto [end, ec] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed);
    if (ec != std::errc{})
        return "0";
    return std::string(buffer.data(), end);
}

} // namespace

std::string shortestNumber(float value)
{
    return shortestOf(value);
}

std::string shortestNumber(double value)
{
    return shortestOf(value);
}

double val(std::string_view text)
{
    // Gather the leading number's characters, skipping blanks wherever they stand.
    std::string number;
    std::size_t i = 0;
    const auto skipBlanks = [&] {
        while (i < text.size() && (text[i] == ' ' || text[i] == '\t' || text[i] == '\n' || text[i] == '\r'))
            ++i;
    };
    const auto takeDigits = [&] {
        bool any = false;
        for (skipBlanks(); i < text.size() && text[i] >= '0' && text[i] <= '9'; skipBlanks()) {
            number += text[i++];
            any = true;
        }
        return any;
    };

    skipBlanks();
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
        if (text[i] == '-')
            number += '-';
        ++i;
    }
    bool anyDigit = takeDigits();
    if (i < text.size() && text[i] == '.') {
        ++i;
        number += '.';
        anyDigit = takeDigits() || anyDigit;
    }
    if (!anyDigit)
        return 0;
    skipBlanks();
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E' || text[i] == 'd' || text[i] == 'D')) {
        std::string exponent = "e";
        std::size_t j = i + 1;
        while (j < text.size() && text[j] == ' ')
            ++j;
        if (j < text.size() && (text[j] == '+' || text[j] == '-'))
            exponent += text[j++];
        std::size_t digitsStart = exponent.size();
        while (j < text.size() && ((text[j] >= '0' && text[j] <= '9') || text[j] == ' ')) {
            if (text[j] != ' ')
                exponent += text[j];
            ++j;
        }
        if (exponent.size() > digitsStart)
            number += exponent;
    }

    double result = 0;
    if (number[0] == '-' && number.size() > 1 && number[1] == '.')
        number.insert(1, "0"); // from_chars wants a digit before the point
    else if (number[0] == '.')
        number.insert(0, "0");
    auto [ptr, ec] = std::from_chars(number.data(), number.data() + number.size(), result);
    if (ec != std::errc{} || !std::isfinite(result))
        return 0;
    return result;
}

bool parseNumber(std::string_view text, double& out)
{
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return false;
    const auto last = text.find_last_not_of(" \t");
    std::string_view core = text.substr(first, last - first + 1);
    if (!core.empty() && core.front() == '+')
        core.remove_prefix(1);
    double value = 0;
    auto [ptr, ec] = std::from_chars(core.data(), core.data() + core.size(), value);
    if (ec != std::errc{} || ptr != core.data() + core.size() || !std::isfinite(value))
        return false;
    out = value;
    return true;
}

} // namespace quillet

#pragma once

#include <string>
#include <string_view>

namespace quillet {

// The number formats "0" and "0.0": halves go away from zero, no thousands separator, a point as the
// decimal separator whatever the locale. A value is first taken to 15 significant digits, so 1.15
// shows as 1.2 the way a user reads it. A result that rounds to zero carries no minus sign.
std::string format0(double value);
std::string format1(double value);
std::string formatFixed(double value, int decimals);

// Rounds to the given number of decimals with halves to the even neighbour.
double roundHalfEven(double value, int decimals = 0);

// The shortest plain decimal text that reads back as the same single-precision value ("13.5", "-2",
// "0.1"), never in exponent form.
std::string shortestNumber(float value);
std::string shortestNumber(double value);

// The value of the longest leading number of a text: blanks anywhere are ignored, an optional sign,
// digits with an optional decimal point, an optional exponent. Text that does not begin with a number
// is 0, and so is a number too large to hold: "85 kg" is 85, "abc" and "" are 0.
double val(std::string_view text);

// Reads a whole field as a number: surrounding blanks allowed, nothing else. False when the field is
// not a finite number.
bool parseNumber(std::string_view text, double& out);

} // namespace quillet

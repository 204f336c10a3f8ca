#include "PresetDraws.h"

#include <algorithm>
#include <cmath>

namespace quillet {

namespace {

constexpr int kSeatDrawAttempts = 10000;
constexpr float kLightestPassenger = 54;
constexpr float kPassengerSpread = 188;

} // namespace

float drawPassengerWeight(RandomSource& random)
{
    const float weight = static_cast<float>(kLightestPassenger + kPassengerSpread * random.next());
    // A draw just below 1 must not round up onto the upper bound.
    return std::min(weight, std::nextafter(kLightestPassenger + kPassengerSpread, 0.0f));
}

int drawSeat(RandomSource& random, int first, int count, const std::function<bool(int seat)>& fits)
{
    for (int attempt = 0; attempt < kSeatDrawAttempts; ++attempt) {
        const int seat = static_cast<int>(count * random.next() + first);
        if (fits(seat))
            return seat;
    }
    for (int seat = first; seat < first + count; ++seat) {
        if (fits(seat))
            return seat;
    }
    return -1;
}

} // namespace quillet

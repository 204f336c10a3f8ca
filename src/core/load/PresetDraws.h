#pragma once

#include "platform/Random.h"

#include <functional>

namespace quillet {

// The draws every preset makes from the program's one generator.

// A passenger's weight: 54 lb plus up to 188 lb.
float drawPassengerWeight(RandomSource& random);

// Draws seats as first + Int(count * draw) until one that `fits` comes up. A broken generator must
// not hang the window: after 10000 fruitless draws the first fitting seat from first to
// first + count - 1 is taken in station order. -1 when none fits.
int drawSeat(RandomSource& random, int first, int count, const std::function<bool(int seat)>& fits);

} // namespace quillet

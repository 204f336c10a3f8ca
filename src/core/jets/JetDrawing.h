#pragma once

#include "load/DeckMapping.h"
#include "load/LoadState.h"

#include <initializer_list>

namespace quillet {

// Seat stations from the previous class's end up to `end` (exclusive) are square boxes `width` feet
// wide, centred on their station.
struct SeatClass {
    int end = 0;
    double width = 0;
};

// The persons of a cabin, stations 0 to nstations - 1: a seat box per class, then a crew circle of
// radius 0.75 ft for every station past the last class.
void seatsAndCrew(DeckPen& pen, const LoadState& state, std::initializer_list<SeatClass> classes);

} // namespace quillet

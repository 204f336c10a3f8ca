#pragma once

#include "load/LoadState.h"

#include <initializer_list>
#include <string_view>

namespace quillet {

// The counts a jet set-up writes.
struct JetCounts {
    int maxpax = 0;
    int cfgstations = 0;
    int seats1 = 0;
    int seats2 = 0;
    int seats3 = 0;
    int nstations = 0;
    int ncargo = 0;
    int nlower = 0;
    int ncrew = 0;
};

// The limits a jet set-up writes, in lb.
struct JetLimits {
    float maxtakeoff = 0;
    float maxlanding = 0;
    float emptyweight = 0;
    float maxfuel = 0;
    float maxzerofuel = 0;
};

void setLimits(LoadState& state, const JetLimits& limits);

// Writes the counts and starts the load at 0.
void setCounts(LoadState& state, const JetCounts& counts);

// A row of seats from station `first` on, one per letter at the given y, all at x, named
// "Passenger " with the row number (in whole numbers, halves away from zero) and the letter.
void seatRow(LoadState& state, int first, double row, double x, std::string_view letters,
             std::initializer_list<double> ys);

// One person station.
void station(LoadState& state, int index, std::string_view name, double x, double y);

// One cargo station with its maximum load and no overload.
void cargo(LoadState& state, int index, std::string_view name, double x, double y, float maximum);

} // namespace quillet

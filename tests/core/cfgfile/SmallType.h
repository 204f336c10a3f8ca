#pragma once

#include "load/LoadState.h"

namespace quillet {

// The Beech 1900D's limits, which the small type and other small test aircraft share.
inline void setBeechLimits(StationHeader& s)
{
    s.maxtakeoff = 16950;
    s.maxlanding = 16500;
    s.emptyweight = 10615;
    s.maxzerofuel = 15000;
    s.maxfuel = 3578;
}

// A small regional type as its set-up leaves it: two pilots, one passenger and one hold, all empty.
inline void setUpSmallType(LoadState& s)
{
    s.cfgstations = 4;
    setBeechLimits(s);
    s.nstations = 3;
    s.ncargo = 1;
    s.nlower = 1;
    s.ncrew = 2;
    s.seats2 = 1;
    const char* names[] = {"Pilot", "Co-pilot", "Passenger 1", "Cargo"};
    const float xs[] = {13.5f, 13.5f, 5.25f, -17};
    const float ys[] = {-2, 2, -1.1f, 0};
    for (int i = 0; i < 4; ++i) {
        s.stationname[i] = names[i];
        s.stationx[i] = xs[i];
        s.stationy[i] = ys[i];
    }
}

} // namespace quillet

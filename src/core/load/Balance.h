#pragma once

#include "LoadState.h"

#include <span>

namespace quillet {

// Where the loaded aircraft's centre of gravity lies, in feet from the empty aircraft's (x forward,
// y to the right), and the band either side of 0 within which it counts as in balance: 2 % of the
// span of the station positions on each axis.
struct CentreOfGravity {
    double x = 0;
    double y = 0;
    double bandX = 0;
    double bandY = 0;
    // The position within the band: -100 at its forward (x = +bandX) or left (y = -bandY) edge, +100 at
    // its aft or right edge, 0 on the reference point. Outside the band the figure passes ±100.
    double percentX = 0;
    double percentY = 0;
    bool inBalance = true;
    // The span of the station positions, which always includes the reference point.
    double maxX = 0;
    double minX = 0;
    double maxY = 0;
    double minY = 0;
};

// The share of the station span the centre of gravity may stray from the reference point.
inline constexpr double kBalanceTolerance = 0.02;

// The centre of gravity of the load in the state, as the weight summary shows it: every marker entry
// counts, loaded or not, so positions another type left behind still widen the span.
CentreOfGravity centreOfGravity(const LoadState& state);

// The same with other weights on the state's stations: `weights` holds one weight per marker entry
// (kMarkerCapacity of them).
CentreOfGravity centreOfGravity(const LoadState& state, std::span<const float> weights);

} // namespace quillet

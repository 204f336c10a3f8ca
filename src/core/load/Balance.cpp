#include "Balance.h"

#include <algorithm>
#include <cmath>

namespace quillet {

namespace {

// Where within the band a centre lies, -100 to +100, with `forwardSign` telling which edge is -100.
double percentOf(double cg, double band, double sign)
{
    if (band > 0)
        return sign * 100 * cg / band;
    return cg == 0 ? 0 : sign * (cg > 0 ? 100.0 : -100.0) * 2;
}

} // namespace

CentreOfGravity centreOfGravity(const LoadState& state, std::span<const float> weights)
{
    // The empty aircraft counts with its weight at the reference point, and 0.01 lb keeps the division
    // defined. The extremes start at 0, so the span always includes the reference point.
    double sx = 0;
    double sy = 0;
    double weight = state.emptyweight + 0.01;
    double maxX = 0;
    double minX = 0;
    double maxY = 0;
    double minY = 0;
    const int entries = std::min(static_cast<int>(weights.size()), kMarkerCapacity);
    for (int i = 0; i < entries; ++i) {
        const double x = state.stationx[i];
        const double y = state.stationy[i];
        const double w = weights[static_cast<std::size_t>(i)];
        sx += x * w;
        sy += y * w;
        weight += w;
        maxX = std::max(maxX, x);
        minX = std::min(minX, x);
        maxY = std::max(maxY, y);
        minY = std::min(minY, y);
    }

    CentreOfGravity cg;
    cg.x = sx / weight;
    cg.y = sy / weight;
    cg.bandX = kBalanceTolerance * (maxX - minX);
    cg.bandY = kBalanceTolerance * (maxY - minY);
    // Forward is positive in feet but lies at the -100 edge.
    cg.percentX = percentOf(cg.x, cg.bandX, -1);
    cg.percentY = percentOf(cg.y, cg.bandY, 1);
    cg.inBalance = !(std::fabs(cg.x) > cg.bandX || std::fabs(cg.y) > cg.bandY);
    cg.maxX = maxX;
    cg.minX = minX;
    cg.maxY = maxY;
    cg.minY = minY;
    return cg;
}

CentreOfGravity centreOfGravity(const LoadState& state)
{
    return centreOfGravity(state, std::span<const float>(state.stationweight.data(), kMarkerCapacity));
}

} // namespace quillet

#include "JetDrawing.h"

#include <algorithm>

namespace quillet {

void seatsAndCrew(DeckPen& pen, const LoadState& state, std::initializer_list<SeatClass> classes)
{
    constexpr double kCrewRadius = 0.75;
    const int persons = std::clamp(state.nstations, 0, kStationCapacity);
    for (int i = 0; i < persons; ++i) {
        const FeetPoint at{state.stationx[i], state.stationy[i]};
        const auto seat =
            std::find_if(classes.begin(), classes.end(), [i](const SeatClass& c) { return i < c.end; });
        if (seat != classes.end())
            pen.centredBox(at, seat->width, seat->width);
        else
            pen.circle(at, kCrewRadius);
    }
}

} // namespace quillet

#include "JetDecks.h"

#include <algorithm>

namespace quillet::jetDecks {

namespace {

constexpr double kFreighterCrewRadius = 0.7;
constexpr int kLength = 2;
constexpr int kWidth = 3;

} // namespace

void personMarks(DeckPen& pen, const LoadState& state, std::initializer_list<SeatClass> classes,
                 double crewRadius)
{
    const int persons = std::clamp(state.nstations, 0, kStationCapacity);
    for (int i = 0; i < persons; ++i) {
        const FeetPoint at{state.stationx[i], state.stationy[i]};
        const auto seat =
            std::find_if(classes.begin(), classes.end(), [i](const SeatClass& c) { return i < c.end; });
        if (seat != classes.end())
            pen.centredBox(at, seat->side, seat->side);
        else
            pen.circle(at, crewRadius);
    }
}

void freighterSeats(DeckPen& pen, const LoadState& state, std::string_view)
{
    for (int i = 0; i < state.nstations; ++i)
        pen.circle({state.stationx[i], state.stationy[i]}, kFreighterCrewRadius);
    // Boxes exist only for the first stations; a hand-edited station file may claim more containers.
    const int containersEnd = std::min(state.nstations + state.ncargo - state.nlower, kContainerBoxCapacity);
    for (int i = std::max(state.nstations, 0); i < containersEnd; ++i) {
        const auto& box = state.containerbox[i];
        pen.centredBox({state.stationx[i], state.stationy[i]}, box[kLength], box[kWidth]);
    }
}

void setContainerBox(LoadState& state, int index, double length, double width)
{
    state.containerbox[index][kLength] = static_cast<float>(length);
    state.containerbox[index][kWidth] = static_cast<float>(width);
}

} // namespace quillet::jetDecks

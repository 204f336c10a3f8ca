#include "FreighterDeck.h"

#include <algorithm>

namespace quillet::freighterDeck {

namespace {

constexpr double kCrewRadius = 0.7;
constexpr int kLength = 2;
constexpr int kWidth = 3;

} // namespace

void seats(DeckPen& pen, const LoadState& state, std::string_view)
{
    for (int i = 0; i < state.nstations; ++i)
        pen.circle({state.stationx[i], state.stationy[i]}, kCrewRadius);
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

} // namespace quillet::freighterDeck

#pragma once

#include "load/DeckMapping.h"
#include "load/LoadState.h"

#include <string_view>

namespace quillet::freighterDeck {

// The persons and main-deck containers of the jet freighters that carry their container sizes in
// `containerbox`: a circle per crew station, then each main-deck container as a box of its length
// and width centred on the station. The holds belong to the lower deck.
void seats(DeckPen& pen, const LoadState& state, std::string_view type);

// Writes a main-deck container's length along the fuselage and its width across, in feet.
void setContainerBox(LoadState& state, int index, double length, double width);

} // namespace quillet::freighterDeck

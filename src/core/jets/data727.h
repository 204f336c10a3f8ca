#pragma once

#include "load/DeckMapping.h"
#include "load/LoadState.h"

#include <string_view>

namespace quillet::data727 {

// The B727-212ADV: 147 seats in rows 1 to 28, six crew, two holds.
void setUpB727_212ADV(LoadState& state, int& deckscale);

// Its drawings; the cabin fittings belong to the main deck here.
void mainDeck(DeckPen& pen, const LoadState& state, std::string_view type);
void seats(DeckPen& pen, const LoadState& state, std::string_view type);
void lowerDeck(DeckPen& pen, const LoadState& state, std::string_view type);

} // namespace quillet::data727

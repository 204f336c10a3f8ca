#pragma once

#include "load/DeckMapping.h"
#include "load/LoadState.h"

#include <string_view>

namespace quillet::DataDC9 {

// The DC-9-30F: three crew, ten main-deck containers and two holds. Its persons and containers are
// drawn by jetDecks::freighterSeats.
void setUpDC9_30F(LoadState& state, int& deckscale);

// The main deck carries the cabin fittings too.
void mainDeck(DeckPen& pen, const LoadState& state, std::string_view type);
void lowerDeck(DeckPen& pen, const LoadState& state, std::string_view type);

} // namespace quillet::DataDC9

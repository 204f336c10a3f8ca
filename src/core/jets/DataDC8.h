#pragma once

#include "load/DeckMapping.h"
#include "load/LoadState.h"

#include <string_view>

namespace quillet::DataDC8 {

// The DC-8-71F: three crew, eighteen main-deck containers and two holds. Its persons and containers
// are drawn by jetDecks::freighterSeats.
void setUpDC8_71F(LoadState& state, int& deckscale);

// The outline runs past the right edge of the picture; the canvas clips it.
void mainDeck(DeckPen& pen, const LoadState& state, std::string_view type);
void lowerDeck(DeckPen& pen, const LoadState& state, std::string_view type);

} // namespace quillet::DataDC8

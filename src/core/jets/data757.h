#pragma once

#include "load/DeckMapping.h"
#include "load/LoadState.h"

#include <string_view>

namespace quillet::data757 {

// The B757-200: 184 seats in rows 1 to 34 (no row 25), ten crew, two holds.
void setUpB757_200(LoadState& state, int& deckscale);
// The B757-200F: two pilots, fifteen main-deck containers, two holds.
void setUpB757_200F(LoadState& state, int& deckscale);

// The fuselage and the lower deck are the same on both types.
void mainDeck(DeckPen& pen, const LoadState& state, std::string_view type);
void lowerDeck(DeckPen& pen, const LoadState& state, std::string_view type);
// The B757-200's seats, crew and cabin fittings.
void seats(DeckPen& pen, const LoadState& state, std::string_view type);
// The B757-200F's main-deck containers and pilots.
void containers(DeckPen& pen, const LoadState& state, std::string_view type);

} // namespace quillet::data757

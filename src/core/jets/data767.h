#pragma once

#include "load/DeckMapping.h"
#include "load/LoadState.h"

#include <string_view>

namespace quillet::data767 {

// The B767-300ER: 261 seats in rows 1 to 39, eight crew, 30 lower-deck containers and the bulk hold.
void setUpB767_300ER(LoadState& state, int& deckscale);

void mainDeck(DeckPen& pen, const LoadState& state, std::string_view type);
void seats(DeckPen& pen, const LoadState& state, std::string_view type);
void lowerDeck(DeckPen& pen, const LoadState& state, std::string_view type);

} // namespace quillet::data767

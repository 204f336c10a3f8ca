#pragma once

#include "load/DeckMapping.h"
#include "load/LoadState.h"

#include <string_view>

namespace quillet::MD90 {

// The MD-90-30: 158 seats in rows 1 to 34, six crew, three holds.
void setUpMD90_30(LoadState& state, int& deckscale);

// The main deck carries the cabin fittings too.
void mainDeck(DeckPen& pen, const LoadState& state, std::string_view type);
void seats(DeckPen& pen, const LoadState& state, std::string_view type);
void lowerDeck(DeckPen& pen, const LoadState& state, std::string_view type);

} // namespace quillet::MD90

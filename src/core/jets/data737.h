#pragma once

#include "load/DeckMapping.h"
#include "load/LoadState.h"

#include <string_view>

namespace quillet::data737 {

// The B737-300: 128 seats in rows 1 to 22, six crew, two holds.
void setUpB737_300(LoadState& state, int& deckscale);
// The B737-200ADV: 102 seats in rows 1 to 19 (row 1 only D and F), six crew, two holds.
void setUpB737_200ADV(LoadState& state, int& deckscale);

// The drawings of both B737 types; they branch on the type string.
void mainDeck(DeckPen& pen, const LoadState& state, std::string_view type);
void seats(DeckPen& pen, const LoadState& state, std::string_view type);
void lowerDeck(DeckPen& pen, const LoadState& state, std::string_view type);

} // namespace quillet::data737

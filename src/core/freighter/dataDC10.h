#pragma once

#include "load/DeckMapping.h"
#include "platform/Canvas.h"

namespace quillet::dataDC10 {

// The fixed parts of the DC-10-30F's deck picture.

// The main deck's fuselage and cockpit windows, both sides, in black.
void mainDeckOutline(DeckPen& pen);
// The five crew seat rings and the two bulkheads behind the flight deck. Leaves the fill transparent.
void flightDeck(DeckPen& pen);
// "Main Deck" and "Lower Deck" in bold, "Forward" and "Aft" beside the two lower holds, all at 10 points.
void headings(Canvas& picture);

} // namespace quillet::dataDC10

#pragma once

#include "load/DeckMapping.h"
#include "load/LoadState.h"

#include <optional>
#include <span>
#include <string_view>

namespace quillet {

// Where a jet type's decks are drawn, in feet: the main deck around (x0, y0), the lower deck's
// outlines around (x0, lowerOrigin), and the lower-deck cargo stations on the row lowerRow.
struct JetDeckOrigins {
    double x0 = 0;
    double y0 = 0;
    double lowerOrigin = 0;
    double lowerRow = 0;
};

// What every jet type module gives the jet load form for each of its types: a set-up routine that
// writes the type's limits, counts and station table into the load state and sets the drawing scale,
// and three routines that draw the main deck (heading, outline, cockpit windows), the persons (and
// main-deck containers) with the cabin fittings, and the lower deck (heading, holds, their labels).
// The drawing routines see the type string, so that one module can draw several types.
struct JetType {
    std::string_view type;   // the type string of the aircraft list
    std::string_view module; // the module that holds its data and drawings
    void (*setUp)(LoadState& state, int& deckscale);
    JetDeckOrigins origins;
    void (*mainDeck)(DeckPen& pen, const LoadState& state, std::string_view type);
    void (*seats)(DeckPen& pen, const LoadState& state, std::string_view type);
    void (*lowerDeck)(DeckPen& pen, const LoadState& state, std::string_view type);
    // How many cargo stations, counted from the first, lie on the lower deck; nothing when they are
    // the last `nlower` ones.
    std::optional<int> lowerCargoFirst;
    // The freighter whose deck runs past the picture checks its cargo while drawing.
    bool checksCargoWhileDrawing = false;
};

// The jet types whose data this version has, in the order the jet form tries them.
std::span<const JetType> jetTypes();

// The jet type with exactly this type string, or nullptr.
const JetType* findJetType(std::string_view type);

} // namespace quillet

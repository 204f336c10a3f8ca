#pragma once

#include "load/DeckMapping.h"
#include "load/LoadState.h"

#include <initializer_list>
#include <string_view>

// Deck pieces that several jet type modules draw alike.
namespace quillet::jetDecks {

// The seats of one cabin class: the stations below `end` not taken by an earlier class, each drawn as
// a square of `side` feet centred on the station.
struct SeatClass {
    int end;
    double side;
};

// One mark per person station: a square per seat by its class, and a circle of `crewRadius` feet for
// every station after the last class (the crew).
void personMarks(DeckPen& pen, const LoadState& state, std::initializer_list<SeatClass> classes,
                 double crewRadius);

// The persons and main-deck containers of the jet freighters that keep their container sizes in
// `containerbox`: a circle per crew station, then each main-deck container as a box of its length
// and width centred on the station. The holds belong to the lower deck.
void freighterSeats(DeckPen& pen, const LoadState& state, std::string_view type);

// Writes a main-deck container's length along the fuselage and its width across, in feet.
void setContainerBox(LoadState& state, int index, double length, double width);

} // namespace quillet::jetDecks

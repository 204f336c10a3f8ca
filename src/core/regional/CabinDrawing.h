#pragma once

#include "RegionalType.h"
#include "platform/Canvas.h"

#include <string_view>
#include <vector>

namespace quillet {

// What a cabin top view shows, as the areas of the picture (in twips) where each part is drawn: a seat
// as a square on its area's centre, a hold or bay as an outline filling its area, with its name.
struct CabinPlan {
    struct Compartment {
        TwipsRect area;
        std::string_view name;
    };
    std::vector<TwipsRect> crewSeats;
    std::vector<TwipsRect> passengerSeats;
    std::vector<Compartment> holds;
};

// The plan of a regional type's cabin: every seat under its hot spot, every hold and bay on its
// marker, so that every hot spot sits on what it stands for and a loaded hold's hatching fills it.
CabinPlan cabinPlan(const RegionalType& type);

// Draws a cabin top view in black on white, nose to the left: the fuselage outline with its
// cockpit, one outline per seat and the holds. The fuselage is sized to hold everything the plan
// places.
void drawCabinView(Canvas& picture, const CabinPlan& plan);
void drawCabinView(Canvas& picture, const RegionalType& type);

} // namespace quillet

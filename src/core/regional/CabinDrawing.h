#pragma once

#include "RegionalType.h"
#include "platform/Canvas.h"

namespace quillet {

// Draws the cabin top view of a regional type in black on white, nose to the left: the fuselage
// outline with its cockpit, one outline per seat and the holds. Seats and holds are laid where the
// type's hot spots are, so every hot spot sits on what it stands for.
void drawCabinView(Canvas& picture, const RegionalType& type);

} // namespace quillet

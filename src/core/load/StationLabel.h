#pragma once

#include "platform/Canvas.h"

#include <limits>
#include <string>
#include <string_view>

namespace quillet {

// The text of a loaded station's information label: a blank, the name, a blank, the weight in whole
// pounds and " lb." (" Passenger 1A 170 lb.").
std::string stationLabelText(std::string_view name, float weight);

// Where an information label goes beside its station: `gap` twips right of the station's point, or
// as far left of it when the label would end past `rightLimit`.
struct LabelPlacement {
    double gap = 0;
    double rightLimit = std::numeric_limits<double>::infinity();
    // Whether a label ending exactly at the limit opens to the left too.
    bool leftAtLimit = false;
};

// The font size of information labels, in points.
inline constexpr double kStationLabelPoints = 8;

// Draws an information label in plain text of that size: a white box of the text's size, outlined
// black, its left edge placed as above and its middle on the station's row, and the text in it. Leaves
// the fill transparent with green as its colour. Returns the left edge.
double drawStationLabel(Canvas& canvas, std::string_view text, double stationX, double stationY,
                        const LabelPlacement& placement);

// A loaded seat's mark: a disc of the given radius, outlined black and filled solid green. Leaves the
// fill solid green.
void drawLoadedDot(Canvas& canvas, double x, double y, double radius);

} // namespace quillet

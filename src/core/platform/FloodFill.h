#pragma once

#include "Canvas.h"

#include <functional>
#include <vector>

namespace quillet {

// The pixels reached from (x, y) through horizontal and vertical neighbours without crossing a
// border pixel, as a width*height mask in rows. Empty when the start is a border pixel.
std::vector<bool> floodRegion(int width, int height, int x, int y,
                              const std::function<bool(int, int)>& isBorder);

// Whether a pixel of an area filled with the given style takes the fill colour; the diagonal
// cross is the 8-pixel hatch of the old toolkit, anchored at the picture's origin.
bool takesFill(FillStyle style, int x, int y);

} // namespace quillet

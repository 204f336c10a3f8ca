#pragma once

#include "Canvas.h"
#include "Rgb.h"

#include <string>

namespace quillet {

// One drawing operation with the state it was drawn in: in twips as a recording canvas keeps it, in
// device pixels as the Qt canvas holds one back.
struct DrawOp {
    enum class Kind { Clear, Line, Box, Circle, FloodFill, Text };

    Kind kind = Kind::Clear;
    double x1 = 0;
    double y1 = 0;
    double x2 = 0;
    double y2 = 0;
    double radius = 0;
    Rgb colour;
    FillStyle fillStyle = FillStyle::Transparent;
    Rgb fillColor;
    Rgb foreColor;
    std::string text;
    double fontSize = 0;
    bool bold = false;

    bool operator==(const DrawOp&) const = default;
};

} // namespace quillet

#pragma once

#include "platform/RecordingCanvas.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

namespace quillet {

// Twips to the hundredth, rounded in integers so that every platform writes the same digits.
inline std::string twips(double value)
{
    const long long hundredths = std::llround(value * 100);
    char text[32];
    std::snprintf(text, sizeof text, "%s%lld.%02lld", hundredths < 0 ? "-" : "", std::llabs(hundredths) / 100,
                  std::llabs(hundredths) % 100);
    return text;
}

inline std::string colour(Rgb c)
{
    char text[8];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", c.r, c.g, c.b);
    return text;
}

// Every operation a line, the same digits on every platform.
inline std::string describe(const std::vector<DrawOp>& ops)
{
    static const char* const fills[] = {"solid", "transparent", "cross"};
    std::ostringstream out;
    for (const DrawOp& op : ops) {
        const std::string fill =
            std::string(fills[static_cast<int>(op.fillStyle)]) + " " + colour(op.fillColor);
        switch (op.kind) {
        case DrawOp::Kind::Clear:
            out << "clear\n";
            break;
        case DrawOp::Kind::Line:
            out << "line " << twips(op.x1) << " " << twips(op.y1) << " " << twips(op.x2) << " "
                << twips(op.y2) << " " << colour(op.colour) << "\n";
            break;
        case DrawOp::Kind::Box:
            out << "box " << twips(op.x1) << " " << twips(op.y1) << " " << twips(op.x2) << " " << twips(op.y2)
                << " " << colour(op.colour) << " " << fill << "\n";
            break;
        case DrawOp::Kind::Circle:
            out << "circle " << twips(op.x1) << " " << twips(op.y1) << " r " << twips(op.radius) << " "
                << colour(op.colour) << " " << fill << "\n";
            break;
        case DrawOp::Kind::FloodFill:
            out << "flood fill pixel " << op.x1 << " " << op.y1 << " up to " << colour(op.colour) << " "
                << fill << "\n";
            break;
        case DrawOp::Kind::Text:
            out << "text " << twips(op.x1) << " " << twips(op.y1) << " \"" << op.text << "\" " << op.fontSize
                << (op.bold ? " bold " : " ") << colour(op.foreColor) << "\n";
            break;
        }
    }
    return out.str();
}

} // namespace quillet

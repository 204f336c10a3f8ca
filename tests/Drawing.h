#pragma once

#include "platform/RecordingCanvas.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace quillet {

// Whether one of the recorded lines starts or ends within `tolerance` twips of the point.
inline bool lineEndsNear(const std::vector<DrawOp>& lines, double x, double y, double tolerance)
{
    const auto near = [&](double px, double py) {
        return std::fabs(px - x) < tolerance && std::fabs(py - y) < tolerance;
    };
    return std::any_of(lines.begin(), lines.end(),
                       [&](const DrawOp& op) { return near(op.x1, op.y1) || near(op.x2, op.y2); });
}

} // namespace quillet

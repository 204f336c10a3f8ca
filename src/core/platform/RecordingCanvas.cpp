#include "RecordingCanvas.h"

#include <algorithm>
#include <cmath>

namespace quillet {

RecordingCanvas::RecordingCanvas(double widthTwips, double heightTwips)
    : Canvas(static_cast<int>(std::lround(widthTwips / kTwipsPerPixel)),
             static_cast<int>(std::lround(heightTwips / kTwipsPerPixel)))
{
}

std::vector<DrawOp> RecordingCanvas::ops(DrawOp::Kind kind) const
{
    std::vector<DrawOp> found;
    std::copy_if(m_ops.begin(), m_ops.end(), std::back_inserter(found),
                 [kind](const DrawOp& op) { return op.kind == kind; });
    return found;
}

DrawOp& RecordingCanvas::record(DrawOp::Kind kind)
{
    DrawOp& op = m_ops.emplace_back();
    op.kind = kind;
    op.fillStyle = fillStyle();
    op.fillColor = fillColor();
    op.foreColor = foreColor();
    op.fontSize = fontSize();
    op.bold = fontBold();
    return op;
}

void RecordingCanvas::doClear()
{
    record(DrawOp::Kind::Clear);
}

void RecordingCanvas::doKeepAsBackground()
{
    m_background = std::move(m_ops);
    m_ops.clear();
}

void RecordingCanvas::doLine(double x1, double y1, double x2, double y2, Rgb colour)
{
    DrawOp& op = record(DrawOp::Kind::Line);
    op.x1 = x1 * kTwipsPerPixel;
    op.y1 = y1 * kTwipsPerPixel;
    op.x2 = x2 * kTwipsPerPixel;
    op.y2 = y2 * kTwipsPerPixel;
    op.colour = colour;
}

void RecordingCanvas::doBox(double x1, double y1, double x2, double y2, Rgb outline)
{
    doLine(x1, y1, x2, y2, outline);
    m_ops.back().kind = DrawOp::Kind::Box;
}

void RecordingCanvas::doCircle(double cx, double cy, double radius, Rgb outline)
{
    DrawOp& op = record(DrawOp::Kind::Circle);
    op.x1 = cx * kTwipsPerPixel;
    op.y1 = cy * kTwipsPerPixel;
    op.radius = radius * kTwipsPerPixel;
    op.colour = outline;
}

void RecordingCanvas::doFloodFill(int px, int py)
{
    DrawOp& op = record(DrawOp::Kind::FloodFill);
    op.x1 = px;
    op.y1 = py;
    op.colour = foreColor();
}

void RecordingCanvas::doText(double x, double y, std::string_view text)
{
    DrawOp& op = record(DrawOp::Kind::Text);
    op.x1 = x * kTwipsPerPixel;
    op.y1 = y * kTwipsPerPixel;
    op.colour = foreColor();
    op.text = std::string(text);
}

double RecordingCanvas::textWidthPixels(std::string_view text)
{
    // About the advance of Arial at the given size on a 96 dpi screen.
    return static_cast<double>(text.size()) * fontSize() * 0.75;
}

double RecordingCanvas::textHeightPixels(std::string_view)
{
    return std::ceil(fontSize() * 96.0 / 72.0 * 1.15);
}

} // namespace quillet

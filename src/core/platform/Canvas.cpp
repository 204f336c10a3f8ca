#include "Canvas.h"

namespace quillet {

void Canvas::clear()
{
    m_currentX = 0;
    m_currentY = 0;
    doClear();
}

void Canvas::line(double x1, double y1, double x2, double y2, Rgb colour)
{
    doLine(toPixels(x1), toPixels(y1), toPixels(x2), toPixels(y2), colour);
}

void Canvas::box(double x1, double y1, double x2, double y2, Rgb outline)
{
    doBox(toPixels(x1), toPixels(y1), toPixels(x2), toPixels(y2), outline);
}

void Canvas::circle(double cx, double cy, double radius, Rgb outline)
{
    doCircle(toPixels(cx), toPixels(cy), toPixels(radius), outline);
}

void Canvas::floodFill(int px, int py)
{
    if (px < 0 || py < 0 || px >= m_widthPixels || py >= m_heightPixels)
        return;
    doFloodFill(px, py);
}

void Canvas::print(std::string_view text)
{
    doText(toPixels(m_currentX), toPixels(m_currentY), text);
    m_currentY += textHeight(text);
    m_currentX = 0;
}

double Canvas::textWidth(std::string_view text)
{
    return textWidthPixels(text) * unit();
}

double Canvas::textHeight(std::string_view text)
{
    return textHeightPixels(text) * unit();
}

void Canvas::setFont(double sizePoints, bool bold)
{
    m_fontSize = sizePoints;
    m_fontBold = bold;
    fontChanged();
}

void Canvas::setCurrentPoint(double x, double y)
{
    m_currentX = x;
    m_currentY = y;
}

void Canvas::setScaleMode(ScaleMode mode)
{
    if (mode == m_scaleMode)
        return;
    // The text position keeps its place on the picture.
    const double factor = mode == ScaleMode::Pixels ? 1.0 / kTwipsPerPixel : kTwipsPerPixel;
    m_currentX *= factor;
    m_currentY *= factor;
    m_scaleMode = mode;
    scaleModeChanged();
}

} // namespace quillet

#include "DeckMapping.h"

#include "platform/Format.h"

#include <algorithm>
#include <vector>

namespace quillet {

int DeckMapping::stationX(double x) const
{
    return static_cast<int>(roundHalfEven(toX(x)));
}

int DeckMapping::stationY(double y) const
{
    return static_cast<int>(roundHalfEven(toY(y)));
}

std::int16_t toMarker(int twips)
{
    return static_cast<std::int16_t>(std::clamp(twips, -32768, 32767));
}

void DeckPen::line(FeetPoint from, FeetPoint to)
{
    m_canvas.line(m_map.toX(from.x), m_map.toY(from.y), m_map.toX(to.x), m_map.toY(to.y), kBlack);
}

void DeckPen::polyline(std::span<const FeetPoint> points)
{
    for (std::size_t i = 1; i < points.size(); ++i)
        line(points[i - 1], points[i]);
}

void DeckPen::bothSides(std::span<const FeetPoint> points)
{
    polyline(points);
    std::vector<FeetPoint> mirrored(points.begin(), points.end());
    for (FeetPoint& point : mirrored)
        point.y = -point.y;
    polyline(mirrored);
}

void DeckPen::closed(std::span<const FeetPoint> points)
{
    polyline(points);
    if (points.size() > 2)
        line(points.back(), points.front());
}

void DeckPen::box(FeetPoint topLeft, double width, double height)
{
    const double left = m_map.toX(topLeft.x);
    const double top = m_map.toY(topLeft.y);
    m_canvas.box(left, top, left + width * m_map.scale, top + height * m_map.scale, kBlack);
}

void DeckPen::centredBox(FeetPoint centre, double length, double width)
{
    box({centre.x + length / 2, centre.y + width / 2}, length, width);
}

void DeckPen::circle(FeetPoint centre, double radius)
{
    m_canvas.circle(m_map.toX(centre.x), m_map.toY(centre.y), radius * m_map.scale, kBlack);
}

void DeckPen::text(std::string_view text, FeetPoint topLeft, bool bold)
{
    m_canvas.setFont(m_canvas.fontSize(), bold);
    m_canvas.setCurrentPoint(m_map.toX(topLeft.x), m_map.toY(topLeft.y));
    m_canvas.print(text);
}

void DeckPen::textEndingAt(std::string_view text, double x)
{
    m_canvas.setFont(m_canvas.fontSize(), false);
    m_canvas.setCurrentPoint(m_map.toX(x) - m_canvas.textWidth(text),
                             m_map.y0 * m_map.scale - m_canvas.textHeight("T") / 2);
    m_canvas.print(text);
}

void DeckPen::textStartingAt(std::string_view text, double x)
{
    m_canvas.setFont(m_canvas.fontSize(), false);
    m_canvas.setCurrentPoint(m_map.toX(x), m_map.y0 * m_map.scale - m_canvas.textHeight("T") / 2);
    m_canvas.print(text);
}

} // namespace quillet

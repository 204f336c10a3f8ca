#pragma once

#include "platform/Canvas.h"

#include <cstdint>
#include <initializer_list>
#include <span>
#include <string_view>

namespace quillet {

// A point of the aircraft in feet: x along the fuselage (forward positive), y across it (right
// positive).
struct FeetPoint {
    double x = 0;
    double y = 0;
};

// Maps aircraft points onto a deck picture in twips with the nose to the left and the left side at
// the bottom: (x, y) lands at ((x0 - x) * scale, (y0 - y) * scale).
struct DeckMapping {
    double x0 = 0;
    double y0 = 0;
    double scale = 0; // twips per foot

    double toX(double x) const { return (x0 - x) * scale; }
    double toY(double y) const { return (y0 - y) * scale; }
    // A drawn position of a station, rounded to whole twips with halves to the even neighbour.
    int stationX(double x) const;
    int stationY(double y) const;
};

// A drawn position as the marker arrays (stationpx, stationpy) hold it: 16 bits, clamped.
std::int16_t toMarker(int twips);

// Draws aircraft geometry in feet through a mapping, in black.
class DeckPen {
public:
    DeckPen(Canvas& canvas, DeckMapping mapping) : m_canvas(canvas), m_map(mapping) {}

    Canvas& canvas() const { return m_canvas; }
    const DeckMapping& mapping() const { return m_map; }

    void line(FeetPoint from, FeetPoint to);
    // Joins the points in order; a closed outline repeats its first point at the end.
    void polyline(std::span<const FeetPoint> points);
    void polyline(std::initializer_list<FeetPoint> points)
    {
        polyline(std::span(points.begin(), points.size()));
    }
    // The same polyline on both sides of the centre line: as given, then with every y negated.
    void bothSides(std::span<const FeetPoint> points);
    void bothSides(std::initializer_list<FeetPoint> points)
    {
        bothSides(std::span(points.begin(), points.size()));
    }
    // A closed polygon: the points joined in order and back to the first.
    void closed(std::span<const FeetPoint> points);
    void closed(std::initializer_list<FeetPoint> points) { closed(std::span(points.begin(), points.size())); }
    // A box with its picture top-left corner at the aircraft point, sizes in feet.
    void box(FeetPoint topLeft, double width, double height);
    // A box of the given length (along the fuselage) and width centred on an aircraft point.
    void centredBox(FeetPoint centre, double length, double width);
    void circle(FeetPoint centre, double radius);
    // Text with its top-left corner at the aircraft point, in the given weight.
    void text(std::string_view text, FeetPoint topLeft, bool bold);
    // A deck heading: bold, top-left corner at the aircraft point.
    void heading(std::string_view text, FeetPoint topLeft) { this->text(text, topLeft, true); }
    // Plain text that ends (or starts) at an aircraft x, centred on the row y0 of the mapping by the
    // height of a capital.
    void textEndingAt(std::string_view text, double x);
    void textStartingAt(std::string_view text, double x);

private:
    Canvas& m_canvas;
    DeckMapping m_map;
};

} // namespace quillet

#include "CabinDrawing.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace quillet {

namespace {

// Free border around the fuselage: two pixels, as the picture box's own border covers the outermost.
constexpr double kEdge = 30;
constexpr double kBodyPadding = 45; // fuselage wall beyond the outermost hot spots
constexpr double kInset = 30;       // a seat outline inside its hot spot
constexpr double kSeatSide = 210;
constexpr double kDoorWidth = 240;
constexpr double kAftOfStations = 60; // the tail cone begins just behind the last hold
constexpr double kShortestTail = 300;
constexpr int kNoseSegments = 16;

// Where the fuselage lies on the picture, from the stations the type places on it. The x values
// run from the nose at the left to the tail at the right.
struct Fuselage {
    double noseTip = 0;
    double noseEnd = 0; // where the fuselage reaches its full width, at the pilots' seats
    double top = 0;     // the walls
    double bottom = 0;
    double bulkhead = 0; // the wall between cockpit and cabin
    double bodyEnd = 0;  // where the tail cone begins
    double tailEnd = 0;

    double centre() const { return (top + bottom) / 2; }
    double halfWidth() const { return (bottom - top) / 2; }
    // Half the fuselage's width at x: an elliptic nose, then straight walls.
    double halfWidthAt(double x) const
    {
        if (x >= noseEnd)
            return halfWidth();
        const double t = std::clamp((x - noseTip) / (noseEnd - noseTip), 0.0, 1.0);
        return halfWidth() * std::sqrt(1 - (1 - t) * (1 - t));
    }
};

Fuselage fuselageOf(const CabinPlan& plan, double width, double height)
{
    double top = height;
    double bottom = 0;
    double right = 0;
    const auto extend = [&](const TwipsRect& area) {
        top = std::min<double>(top, area.top);
        bottom = std::max<double>(bottom, area.bottom());
        right = std::max<double>(right, area.right());
    };
    double crewLeft = width;
    double crewRight = 0;
    for (const TwipsRect& seat : plan.crewSeats) {
        extend(seat);
        crewLeft = std::min<double>(crewLeft, seat.left);
        crewRight = std::max<double>(crewRight, seat.right());
    }
    double cabinStart = width;
    for (const TwipsRect& seat : plan.passengerSeats) {
        extend(seat);
        cabinStart = std::min<double>(cabinStart, seat.left);
    }
    for (const CabinPlan::Compartment& hold : plan.holds)
        extend(hold.area);

    Fuselage body;
    body.noseTip = 2 * kEdge;
    body.noseEnd = std::max(crewLeft, body.noseTip + 1);
    body.top = std::max(top - kBodyPadding, kEdge);
    body.bottom = std::min(bottom + kBodyPadding, height - kEdge);
    body.bulkhead = (crewRight + cabinStart) / 2;
    body.tailEnd = width - kEdge;
    body.bodyEnd = std::min(right + kAftOfStations, body.tailEnd - kShortestTail);
    return body;
}

struct Outline {
    double left, top, right, bottom;
};

Outline insideWalls(Outline outline, const Fuselage& body)
{
    outline.top = std::max(outline.top, body.top + kInset);
    outline.bottom = std::min(outline.bottom, body.bottom - kInset);
    return outline;
}

// A hold's outline runs along the edge pixels of its area.
Outline holdOutline(const TwipsRect& area, const Fuselage& body)
{
    const double left = area.left;
    const double top = area.top;
    return insideWalls({left, top, left + area.width - kTwipsPerPixel, top + area.height - kTwipsPerPixel}, body);
}

// A seat is a square on its hot spot's centre, at most kSeatSide across: a few hot spots overlap
// (the EMB-120's last row), their seats must not.
Outline seatOutline(const TwipsRect& hotSpot, const Fuselage& body)
{
    const double half =
        std::min({hotSpot.width / 2.0 - kInset, hotSpot.height / 2.0 - kInset, kSeatSide / 2});
    const double cx = hotSpot.centreX();
    const double cy = hotSpot.centreY();
    return insideWalls({cx - half, cy - half, cx + half, cy + half}, body);
}

void drawFuselage(Canvas& picture, const Fuselage& body)
{
    const double cy = body.centre();
    // Nose: both sides of the ellipse from the tip to the full width.
    double lastX = body.noseTip;
    double lastHalf = 0;
    for (int i = 1; i <= kNoseSegments; ++i) {
        const double x = body.noseTip + (body.noseEnd - body.noseTip) * i / kNoseSegments;
        const double half = body.halfWidthAt(x);
        picture.line(lastX, cy - lastHalf, x, cy - half, kBlack);
        picture.line(lastX, cy + lastHalf, x, cy + half, kBlack);
        lastX = x;
        lastHalf = half;
    }
    // Walls, and the tail cone as far as the picture shows it.
    picture.line(body.noseEnd, body.top, body.bodyEnd, body.top, kBlack);
    picture.line(body.noseEnd, body.bottom, body.bodyEnd, body.bottom, kBlack);
    const double tailHalf = body.halfWidth() * 0.35;
    picture.line(body.bodyEnd, body.top, body.tailEnd, cy - tailHalf, kBlack);
    picture.line(body.bodyEnd, body.bottom, body.tailEnd, cy + tailHalf, kBlack);
    picture.line(body.tailEnd, cy - tailHalf, body.tailEnd, cy + tailHalf, kBlack);
}

void drawCockpit(Canvas& picture, const Fuselage& body)
{
    const double cy = body.centre();
    // Windscreen just ahead of the pilots: flat centre panes between two side panes.
    const double x = body.noseEnd - 90;
    const double front = x - 120;
    const double side = 0.8 * body.halfWidthAt(x);
    const double pane = 0.3 * body.halfWidth();
    picture.line(x, cy - side, front, cy - pane, kBlack);
    picture.line(front, cy - pane, front, cy + pane, kBlack);
    picture.line(front, cy + pane, x, cy + side, kBlack);
    // The wall behind the pilots, with its door on the centre line.
    picture.line(body.bulkhead, body.top, body.bulkhead, cy - kDoorWidth / 2, kBlack);
    picture.line(body.bulkhead, cy + kDoorWidth / 2, body.bulkhead, body.bottom, kBlack);
}

void drawSeats(Canvas& picture, const std::vector<TwipsRect>& seats, const Fuselage& body)
{
    for (const TwipsRect& area : seats) {
        const Outline seat = seatOutline(area, body);
        picture.box(seat.left, seat.top, seat.right, seat.bottom, kBlack);
        // The backrest, on the aft side: everybody faces the nose.
        const double back = seat.right - std::max(45.0, (seat.right - seat.left) / 4);
        picture.line(back, seat.top, back, seat.bottom, kBlack);
    }
}

// The compartment's name in its middle, in the largest small font that fits; none in a bay too
// narrow for it.
void nameCompartment(Canvas& picture, const Outline& hold, std::string_view name)
{
    for (double points : {8.0, 7.0, 6.0}) {
        picture.setFont(points, false);
        const double textWidth = picture.textWidth(name);
        if (textWidth > hold.right - hold.left - 2 * kInset)
            continue;
        const double textHeight = picture.textHeight(name);
        picture.setCurrentPoint((hold.left + hold.right - textWidth) / 2,
                                (hold.top + hold.bottom - textHeight) / 2);
        picture.print(name);
        return;
    }
}

void drawHolds(Canvas& picture, const CabinPlan& plan, const Fuselage& body)
{
    for (const CabinPlan::Compartment& compartment : plan.holds) {
        const Outline hold = holdOutline(compartment.area, body);
        picture.box(hold.left, hold.top, hold.right, hold.bottom, kBlack);
        nameCompartment(picture, hold, compartment.name);
    }
}

} // namespace

CabinPlan cabinPlan(const RegionalType& type)
{
    const auto& stations = type.stations;
    CabinPlan plan;
    for (int crew : type.roles.crew)
        plan.crewSeats.push_back(stations[static_cast<std::size_t>(crew)].location);
    for (int seat = type.roles.firstPassenger; seat <= type.roles.lastPassenger; ++seat)
        plan.passengerSeats.push_back(stations[static_cast<std::size_t>(seat)].location);
    // Holds and bays are the stations marked with a hatched box. Each is drawn where its marker lies,
    // so that the marker's hatching fills it when it is loaded; its hot spot lies over most of it.
    for (const StationRow& row : stations) {
        if (row.marker.kind == MarkerKind::HatchedBox)
            plan.holds.push_back({row.marker.rect, row.name});
    }
    return plan;
}

void drawCabinView(Canvas& picture, const CabinPlan& plan)
{
    const double width = picture.scaleWidth();
    const double height = picture.scaleHeight();
    const Fuselage body = fuselageOf(plan, width, height);

    picture.clear();
    picture.setFillStyle(FillStyle::Solid);
    picture.setFillColor(kWhite);
    picture.box(0, 0, width - 1, height - 1, kWhite);
    picture.setFillStyle(FillStyle::Transparent);
    picture.setForeColor(kBlack);

    drawFuselage(picture, body);
    drawCockpit(picture, body);
    drawSeats(picture, plan.crewSeats, body);
    drawSeats(picture, plan.passengerSeats, body);
    drawHolds(picture, plan, body);
}

void drawCabinView(Canvas& picture, const RegionalType& type)
{
    drawCabinView(picture, cabinPlan(type));
}

} // namespace quillet

#pragma once

#include "jets/JetSetUp.h"
#include "jets/JetType.h"
#include "platform/RecordingCanvas.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <initializer_list>
#include <string_view>
#include <utility>
#include <vector>

namespace quillet {

// The type's set-up, checked against its published limits, counts and drawing scale.
inline LoadState expectSetUp(std::string_view type, const JetLimits& limits, const JetCounts& counts,
                             int scale)
{
    LoadState state;
    int deckscale = 0;
    findJetType(type)->setUp(state, deckscale);
    EXPECT_EQ(deckscale, scale);
    EXPECT_FLOAT_EQ(state.maxtakeoff, limits.maxtakeoff);
    EXPECT_FLOAT_EQ(state.maxlanding, limits.maxlanding);
    EXPECT_FLOAT_EQ(state.emptyweight, limits.emptyweight);
    EXPECT_FLOAT_EQ(state.maxfuel, limits.maxfuel);
    EXPECT_FLOAT_EQ(state.maxzerofuel, limits.maxzerofuel);
    EXPECT_EQ(state.maxpax, counts.maxpax);
    EXPECT_EQ(state.cfgstations, counts.cfgstations);
    EXPECT_EQ(state.seats1, counts.seats1);
    EXPECT_EQ(state.seats2, counts.seats2);
    EXPECT_EQ(state.seats3, counts.seats3);
    EXPECT_EQ(state.nstations, counts.nstations);
    EXPECT_EQ(state.ncargo, counts.ncargo);
    EXPECT_EQ(state.nlower, counts.nlower);
    EXPECT_EQ(state.ncrew, counts.ncrew);
    EXPECT_EQ(state.loadweight, 0);
    return state;
}

// A station as the type's published table gives it; a maximum of 0 for persons.
struct TableStation {
    int index;
    std::string_view name;
    double x;
    double y;
    float maximum = 0;
};

inline void expectStations(const LoadState& state, std::initializer_list<TableStation> stations)
{
    for (const TableStation& station : stations) {
        EXPECT_EQ(state.stationname[station.index], station.name) << station.index;
        EXPECT_NEAR(state.stationx[station.index], station.x, 1e-4) << station.index;
        EXPECT_NEAR(state.stationy[station.index], station.y, 1e-6) << station.index;
        EXPECT_EQ(state.stationmax[station.index], station.maximum) << station.index;
    }
}

// One jet type's three deck routines, each drawn on a canvas of its own around the type's origins.
struct DeckDrawing {
    explicit DeckDrawing(std::string_view typeString) : jet(*findJetType(typeString))
    {
        jet.setUp(state, scale);
        DeckPen mainPen(mainDeck, mainMap());
        jet.mainDeck(mainPen, state, jet.type);
        DeckPen seatPen(seats, mainMap());
        jet.seats(seatPen, state, jet.type);
        DeckPen lowerPen(lowerDeck, {jet.origins.x0, jet.origins.lowerOrigin, double(scale)});
        jet.lowerDeck(lowerPen, state, jet.type);
    }

    DeckMapping mainMap() const { return {jet.origins.x0, jet.origins.y0, double(scale)}; }

    // How many lines of the main deck begin or end at this point of the centre line: the outline's
    // two halves meet at its nose and its tail.
    int centreLineEnds(double x) const
    {
        const DeckMapping map = mainMap();
        const auto at = [&](double px, double py) {
            return std::fabs(px - map.toX(x)) < 1e-6 && std::fabs(py - map.toY(0)) < 1e-6;
        };
        int ends = 0;
        for (const DrawOp& op : mainDeck.ops(DrawOp::Kind::Line))
            ends += at(op.x1, op.y1) + at(op.x2, op.y2);
        return ends;
    }

    const JetType& jet;
    LoadState state;
    int scale = 0;
    RecordingCanvas mainDeck{9500, 2100};
    RecordingCanvas seats{9500, 2100};
    RecordingCanvas lowerDeck{9500, 2100};
};

// Where the deck texts stand, in twips: the top-left corners of the two headings, and the edge of
// "Forward" and "Aft" at the given x (their right edges when `ending`, else their left edges), both
// centred on the lower deck's centre line.
struct DeckTexts {
    double mainX, mainY, lowerX, lowerY;
    double forwardEdge, aftEdge;
    bool ending;
};

inline void expectTexts(DeckDrawing& deck, const DeckTexts& expected)
{
    const auto main = deck.mainDeck.ops(DrawOp::Kind::Text);
    ASSERT_EQ(main.size(), 1u);
    EXPECT_EQ(main[0].text, "Main Deck");
    EXPECT_TRUE(main[0].bold);
    EXPECT_NEAR(main[0].x1, expected.mainX, 1e-6);
    EXPECT_NEAR(main[0].y1, expected.mainY, 1e-6);

    RecordingCanvas& canvas = deck.lowerDeck;
    const auto lower = canvas.ops(DrawOp::Kind::Text);
    ASSERT_EQ(lower.size(), 3u);
    EXPECT_EQ(lower[0].text, "Lower Deck");
    EXPECT_TRUE(lower[0].bold);
    EXPECT_NEAR(lower[0].x1, expected.lowerX, 1e-6);
    EXPECT_NEAR(lower[0].y1, expected.lowerY, 1e-6);
    const double centreLine = deck.jet.origins.lowerOrigin * deck.scale - canvas.textHeight("T") / 2;
    for (const auto& [label, edge] :
         {std::pair{lower[1], expected.forwardEdge}, std::pair{lower[2], expected.aftEdge}}) {
        EXPECT_FALSE(label.bold);
        EXPECT_NEAR(label.x1 + (expected.ending ? canvas.textWidth(label.text) : 0), edge, 1e-6)
            << label.text;
        EXPECT_NEAR(label.y1, centreLine, 1e-6) << label.text;
    }
    EXPECT_EQ(lower[1].text, "Forward");
    EXPECT_EQ(lower[2].text, "Aft");
}

// Every seat box and crew circle lies inside the cabin: aft of the nose, forward of the tail and
// within the fuselage's half width, all in feet.
inline void expectPersonsInside(const DeckDrawing& deck, double nose, double tail, double halfWidth)
{
    const DeckMapping map = deck.mainMap();
    const auto inside = [&](double left, double top, double right, double bottom) {
        return left > map.toX(nose) && right < map.toX(tail) && top > map.toY(halfWidth) &&
               bottom < map.toY(-halfWidth);
    };
    for (const DrawOp& box : deck.seats.ops(DrawOp::Kind::Box))
        EXPECT_TRUE(inside(box.x1, box.y1, box.x2, box.y2)) << box.x1 << ", " << box.y1;
    for (const DrawOp& circle : deck.seats.ops(DrawOp::Kind::Circle))
        EXPECT_TRUE(inside(circle.x1 - circle.radius, circle.y1 - circle.radius, circle.x1 + circle.radius,
                           circle.y1 + circle.radius))
            << circle.x1 << ", " << circle.y1;
}

// The widths in feet of the seat boxes, station by station.
inline std::vector<double> seatWidths(const DeckDrawing& deck)
{
    std::vector<double> widths;
    for (const DrawOp& box : deck.seats.ops(DrawOp::Kind::Box))
        widths.push_back(std::round((box.x2 - box.x1) / deck.scale * 1000) / 1000);
    return widths;
}

} // namespace quillet

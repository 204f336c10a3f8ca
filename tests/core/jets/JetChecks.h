#pragma once

#include "jets/JetSetUp.h"
#include "jets/JetType.h"
#include "platform/RecordingCanvas.h"

#include <cmath>
#include <cstddef>
#include <gtest/gtest.h>
#include <initializer_list>
#include <limits>
#include <string_view>
#include <tuple>

namespace quillet {

// A text drawn on a deck picture, where the drawing puts it; kAnywhere leaves a coordinate unchecked.
struct DrawnText {
    std::string_view text;
    double x;
    double y;
};
inline constexpr double kAnywhere = std::numeric_limits<double>::quiet_NaN();

// The texts of the picture, in the order they were drawn.
inline void expectTexts(const RecordingCanvas& canvas, std::initializer_list<DrawnText> expected)
{
    const auto texts = canvas.ops(DrawOp::Kind::Text);
    ASSERT_EQ(texts.size(), expected.size());
    const DrawOp* drawn = texts.data();
    for (const DrawnText& text : expected) {
        EXPECT_EQ(drawn->text, text.text);
        if (!std::isnan(text.x)) {
            EXPECT_DOUBLE_EQ(drawn->x1, text.x) << text.text;
        }
        if (!std::isnan(text.y)) {
            EXPECT_DOUBLE_EQ(drawn->y1, text.y) << text.text;
        }
        ++drawn;
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

    // How many main-deck lines begin or end on the centre line at this x, in feet.
    int centreLineEnds(double x) const
    {
        const DeckMapping map = mainMap();
        const auto at = [&](double twipsX, double twipsY) {
            return std::fabs(twipsX - map.toX(x)) < 1e-6 && std::fabs(twipsY - map.toY(0)) < 1e-6;
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
// "Forward" and "Aft" (their right edges when `ending`, else their left edges), both centred on the
// lower deck's centre line.
struct DeckTexts {
    double mainX, mainY, lowerX, lowerY, forwardEdge, aftEdge;
    bool ending;
};

// The fuselage in feet: the x of its nose and tail on the centre line, and its half width.
struct Fuselage {
    double nose, tail, halfWidth;
};

// The deck texts stand where they should; the outline's two halves meet at the nose and at the tail;
// every seat box, container and crew circle lies inside the fuselage.
inline void expectFuselage(DeckDrawing& deck, const DeckTexts& texts, const Fuselage& body)
{
    const auto main = deck.mainDeck.ops(DrawOp::Kind::Text);
    const auto lower = deck.lowerDeck.ops(DrawOp::Kind::Text);
    ASSERT_EQ(main.size(), 1u);
    ASSERT_EQ(lower.size(), 3u);
    EXPECT_EQ(std::tuple(main[0].text, main[0].bold, main[0].x1, main[0].y1),
              std::tuple("Main Deck", true, texts.mainX, texts.mainY));
    EXPECT_EQ(std::tuple(lower[0].text, lower[0].bold, lower[0].x1, lower[0].y1),
              std::tuple("Lower Deck", true, texts.lowerX, texts.lowerY));
    const double centreLine = deck.jet.origins.lowerOrigin * deck.scale - deck.lowerDeck.textHeight("T") / 2;
    for (const auto& [label, text, edge] :
         {std::tuple(lower[1], "Forward", texts.forwardEdge), std::tuple(lower[2], "Aft", texts.aftEdge)}) {
        EXPECT_EQ(label.text, text);
        EXPECT_NEAR(label.x1 + (texts.ending ? deck.lowerDeck.textWidth(text) : 0), edge, 1e-6) << text;
        EXPECT_NEAR(label.y1, centreLine, 1e-6) << text;
    }

    EXPECT_EQ(deck.centreLineEnds(body.nose), 2);
    EXPECT_EQ(deck.centreLineEnds(body.tail), 2);

    const DeckMapping map = deck.mainMap();
    for (const DrawOp& op : deck.seats.ops()) {
        if (op.kind != DrawOp::Kind::Box && op.kind != DrawOp::Kind::Circle)
            continue;
        const bool circle = op.kind == DrawOp::Kind::Circle;
        const double left = circle ? op.x1 - op.radius : op.x1;
        const double top = circle ? op.y1 - op.radius : op.y1;
        const double right = circle ? op.x1 + op.radius : op.x2;
        const double bottom = circle ? op.y1 + op.radius : op.y2;
        EXPECT_TRUE(left > map.toX(body.nose) && right < map.toX(body.tail) &&
                    top > map.toY(body.halfWidth) && bottom < map.toY(-body.halfWidth))
            << left << ", " << top;
    }
}

// The cabin as drawn: one square box per seat, wider for the first `firstClass` seats, and a circle of
// 0.75 ft per crew member.
inline void expectCabin(const DeckDrawing& deck, std::size_t seats, std::size_t firstClass, double firstWidth,
                        double economyWidth, std::size_t crew)
{
    const auto boxes = deck.seats.ops(DrawOp::Kind::Box);
    ASSERT_EQ(boxes.size(), seats);
    for (std::size_t i = 0; i < seats; ++i) {
        const double width = (i < firstClass ? firstWidth : economyWidth) * deck.scale;
        EXPECT_NEAR(boxes[i].x2 - boxes[i].x1, width, 1e-6) << i;
        EXPECT_NEAR(boxes[i].y2 - boxes[i].y1, width, 1e-6) << i;
    }
    const auto circles = deck.seats.ops(DrawOp::Kind::Circle);
    EXPECT_EQ(circles.size(), crew);
    for (const DrawOp& circle : circles)
        EXPECT_NEAR(circle.radius, 0.75 * deck.scale, 1e-6);
}

} // namespace quillet

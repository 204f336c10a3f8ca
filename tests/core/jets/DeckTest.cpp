#include "load/DeckMapping.h"
#include "load/StationLabel.h"
#include "platform/RecordingCanvas.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

TEST(DeckMapping, PutsTheNoseLeftAndTheLeftSideDownWithHalvesToEven)
{
    const DeckMapping map{68, 8, 70};
    EXPECT_DOUBLE_EQ(map.toX(24.5), 3045);
    EXPECT_DOUBLE_EQ(map.toY(-4.2), 854);
    EXPECT_EQ(map.stationX(-23.25), 6388); // 6387.5
    EXPECT_EQ(map.stationX(-23.2499), 6387);
    const DeckMapping freighter{96.875, 13, 52};
    EXPECT_EQ(freighter.stationX(70), 1398); // 1397.5
}

TEST(DeckPen, BoxesHangFromTheirTopLeftCornerAndCentredBoxesFromTheirMiddle)
{
    RecordingCanvas canvas(9500, 2100);
    DeckPen pen(canvas, {68, 8, 70});
    pen.box({25.4, -3.3}, 1.8, 1.8);
    pen.centredBox({10, 2}, 10, 4);
    const auto boxes = canvas.ops(DrawOp::Kind::Box);
    ASSERT_EQ(boxes.size(), 2u);
    EXPECT_NEAR(boxes[0].x1, 2982, 1e-9);
    EXPECT_NEAR(boxes[0].y1, 791, 1e-9);
    EXPECT_NEAR(boxes[0].x2, 3108, 1e-9);
    EXPECT_NEAR(boxes[0].y2, 917, 1e-9);
    EXPECT_NEAR(boxes[1].x1, 3710, 1e-9);
    EXPECT_NEAR(boxes[1].y1, 280, 1e-9);
    EXPECT_NEAR(boxes[1].x2, 4410, 1e-9);
    EXPECT_NEAR(boxes[1].y2, 560, 1e-9);
}

TEST(DeckPen, BothSidesDrawsTheMirrorImageToo)
{
    RecordingCanvas canvas(9500, 2100);
    DeckPen pen(canvas, {0, 10, 10});
    pen.bothSides({{0, 1}, {-1, 2}});
    const auto lines = canvas.ops(DrawOp::Kind::Line);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_DOUBLE_EQ(lines[0].y1, 90);
    EXPECT_DOUBLE_EQ(lines[1].y1, 110);
    EXPECT_DOUBLE_EQ(lines[1].y2, 120);
}

TEST(StationLabel, OpensRightOfItsStationUnlessItWouldPassTheLimit)
{
    RecordingCanvas canvas(9500, 2100);
    const std::string text = stationLabelText("Container 12", 3499.5f);
    EXPECT_EQ(text, " Container 12 3500 lb.");
    canvas.setFont(kStationLabelPoints, false);
    const double width = canvas.textWidth(text);

    EXPECT_DOUBLE_EQ(drawStationLabel(canvas, text, 1000, 500, {100}), 1100);
    // Exactly at the limit it stays right, unless the form opens such labels to the left.
    const double station = 9435 - 100 - width;
    EXPECT_DOUBLE_EQ(drawStationLabel(canvas, text, station, 500, {100, 9435, false}), station + 100);
    EXPECT_DOUBLE_EQ(drawStationLabel(canvas, text, station, 500, {100, 9435, true}), station - 100 - width);
    EXPECT_DOUBLE_EQ(drawStationLabel(canvas, text, station + 1, 500, {100, 9435, false}),
                     station + 1 - 100 - width);

    const DrawOp box = canvas.ops(DrawOp::Kind::Box).front();
    EXPECT_EQ(box.fillStyle, FillStyle::Solid);
    EXPECT_EQ(box.fillColor, kWhite);
    EXPECT_EQ(box.colour, kBlack);
    EXPECT_EQ(canvas.fillStyle(), FillStyle::Transparent);
    EXPECT_EQ(canvas.fillColor(), kGreen);
    EXPECT_DOUBLE_EQ(box.x2 - box.x1, width);
    EXPECT_DOUBLE_EQ(box.y1, 500 - canvas.textHeight(text) / 2);
    const DrawOp print = canvas.ops(DrawOp::Kind::Text).front();
    EXPECT_EQ(print.text, text);
    EXPECT_DOUBLE_EQ(print.x1, box.x1);
    EXPECT_DOUBLE_EQ(print.y1, box.y1);
}

} // namespace
} // namespace quillet

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

#include "platform/FloodFill.h"
#include "platform/RecordingCanvas.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

TEST(Canvas, TwipsAndPixels)
{
    RecordingCanvas picture(2295, 375);
    EXPECT_EQ(picture.scaleWidth(), 2295);
    EXPECT_EQ(picture.scaleHeight(), 375);
    picture.setScaleMode(ScaleMode::Pixels);
    EXPECT_EQ(picture.scaleWidth(), 153);
    EXPECT_EQ(picture.scaleHeight(), 25);
    picture.line(0, 0, 10, 10, kBlack);
    EXPECT_EQ(picture.ops().back().x2, 150) << "recorded in twips whatever the scale mode";
}

TEST(Canvas, PrintMovesToTheNextLine)
{
    RecordingCanvas picture(3000, 3000);
    picture.setFont(10, true);
    picture.setForeColor(kRed);
    picture.setCurrentPoint(300, 450);
    picture.print("Main Deck");
    const DrawOp text = picture.ops().back();
    EXPECT_EQ(text.kind, DrawOp::Kind::Text);
    EXPECT_EQ(text.text, "Main Deck");
    EXPECT_EQ(text.x1, 300);
    EXPECT_EQ(text.y1, 450);
    EXPECT_EQ(text.colour, kRed);
    EXPECT_TRUE(text.bold);
    EXPECT_EQ(picture.currentX(), 0);
    EXPECT_EQ(picture.currentY(), 450 + picture.textHeight("Main Deck"));
}

TEST(Canvas, ShapesCarryTheFillStateTheyWereDrawnWith)
{
    RecordingCanvas picture(1500, 1500);
    picture.setFillStyle(FillStyle::DiagonalCross);
    picture.setFillColor(kGreen);
    picture.box(10, 20, 300, 400, kBlack);
    picture.setFillStyle(FillStyle::Solid);
    picture.circle(750, 750, 45, kBlack);
    const auto boxes = picture.ops(DrawOp::Kind::Box);
    const auto circles = picture.ops(DrawOp::Kind::Circle);
    ASSERT_EQ(boxes.size(), 1u);
    ASSERT_EQ(circles.size(), 1u);
    EXPECT_EQ(boxes[0].fillStyle, FillStyle::DiagonalCross);
    EXPECT_EQ(boxes[0].fillColor, kGreen);
    EXPECT_EQ(circles[0].fillStyle, FillStyle::Solid);
    EXPECT_DOUBLE_EQ(circles[0].radius, 45);
}

TEST(Canvas, FloodFillOutsideThePictureDoesNothing)
{
    RecordingCanvas picture(150, 150); // 10 x 10 pixels
    picture.floodFill(-1, 3);
    picture.floodFill(10, 3);
    EXPECT_TRUE(picture.ops().empty());
    picture.floodFill(9, 9);
    EXPECT_EQ(picture.ops().size(), 1u);
}

// The region a fill from (x, y) takes in a 7 x 5 grid whose '#' pixels are the border, drawn as
// '*' for a filled pixel; an empty region fills nothing.
std::string filled(int x, int y)
{
    const char* const grid[] = {".......", ".#####.", ".#...#.", ".#####.", "......."};
    const auto mask = floodRegion(7, 5, x, y, [&](int px, int py) { return grid[py][px] == '#'; });
    std::string out;
    for (std::size_t i = 0; i < mask.size(); ++i)
        out += std::string(i % 7 == 0 && i > 0 ? "/" : "") + (mask[i] ? '*' : grid[i / 7][i % 7]);
    return out;
}

TEST(FloodFill, FillsTheRegionUpToTheBorderAndNeverThroughIt)
{
    EXPECT_EQ(filled(3, 2), "......./.#####./.#***#./.#####./.......");
    EXPECT_EQ(filled(0, 0), "*******/*#####*/*#...#*/*#####*/*******");
    EXPECT_EQ(filled(1, 1), "") << "starting on the border";
}

TEST(FloodFill, DiagonalCrossHatch)
{
    EXPECT_TRUE(takesFill(FillStyle::DiagonalCross, 0, 0));
    EXPECT_TRUE(takesFill(FillStyle::DiagonalCross, 3, 5));
    EXPECT_TRUE(takesFill(FillStyle::DiagonalCross, 4, 4));
    EXPECT_FALSE(takesFill(FillStyle::DiagonalCross, 1, 0));
    EXPECT_TRUE(takesFill(FillStyle::Solid, 1, 0));
    EXPECT_FALSE(takesFill(FillStyle::Transparent, 0, 0));
}

} // namespace
} // namespace quillet

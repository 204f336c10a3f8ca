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

// What a print or a shape records (position, font, colour, fill) is pinned by the deck golden files.
TEST(Canvas, PrintMovesToTheNextLine)
{
    RecordingCanvas picture(3000, 3000);
    picture.setCurrentPoint(300, 450);
    picture.print("Main Deck");
    EXPECT_EQ(picture.currentX(), 0);
    EXPECT_EQ(picture.currentY(), 450 + picture.textHeight("Main Deck"));
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

} // namespace
} // namespace quillet

#include "GuiFixture.h"

namespace quillet {
namespace {

QRgb at(QtCanvas& canvas, int x, int y)
{
    return canvas.image().pixel(x, y) & 0xFFFFFF;
}

constexpr QRgb kWhitePixel = 0xFFFFFF;
constexpr QRgb kBlackPixel = 0x000000;

TEST(QtCanvas, DrawsInTwipsFifteenToThePixelAndClearGoesBackToTheKeptBackground)
{
    QtCanvas canvas(1500, 750); // 100 x 50 pixels
    EXPECT_EQ(canvas.image().size(), QSize(100, 50));
    canvas.line(0, 150, 1485, 150, kBlack);
    canvas.keepAsBackground();
    canvas.setFillStyle(FillStyle::Solid);
    canvas.setFillColor(kGreen);
    canvas.circle(750, 150, 150, kGreen);
    EXPECT_EQ(at(canvas, 50, 10), kGreenPixel);

    canvas.clear();
    EXPECT_EQ(at(canvas, 50, 10), kBlackPixel) << "the background line, not the circle drawn over it";
    EXPECT_EQ(at(canvas, 50, 12), kWhitePixel);
    canvas.circle(750, 150, 150, kGreen);
    canvas.clear();
    EXPECT_EQ(at(canvas, 50, 12), kWhitePixel) << "drawing after a clear leaves the background as kept";
}

// A deck-like drawing: a hold hatched by a flood fill, seats, a caption in a font of its own.
void drawDeck(QtCanvas& canvas, bool holdLoaded, bool marked)
{
    canvas.clear();
    canvas.setFont(12, true);
    canvas.setCurrentPoint(150, 150);
    canvas.print("Deck");
    canvas.setFont(8.25, false);
    canvas.setFillStyle(FillStyle::Transparent);
    canvas.box(150, 450, 900, 1200, kBlack);
    canvas.setFillStyle(FillStyle::Solid);
    canvas.setFillColor(kGreen);
    canvas.circle(1200, 600, 120, kBlack);
    if (holdLoaded) {
        canvas.setForeColor(kBlack);
        canvas.setFillStyle(FillStyle::DiagonalCross);
        canvas.setFillColor(kRed);
        canvas.floodFill(30, 50);
    }
    canvas.setFillStyle(FillStyle::Transparent);
    if (marked)
        canvas.markRepeated();
}

TEST(QtCanvas, ARepeatedDrawingComesBackAsIfDrawnAfresh)
{
    QtCanvas marked(1500, 1500, {255, 255, 255}, 2.0);
    QtCanvas plain(1500, 1500, {255, 255, 255}, 2.0);
    // Kept and put back, changed, read half-drawn, and a label drawn over the repeated part with
    // the state the drawing left.
    for (const bool loaded : {false, false, true, true, false, true}) {
        drawDeck(marked, loaded, true);
        drawDeck(plain, loaded, false);
        for (QtCanvas* canvas : {&marked, &plain}) {
            canvas->setCurrentPoint(450, 1275);
            canvas->print(loaded ? "Hold 2000 lb." : "Hold empty");
        }
        ASSERT_EQ(marked.image(), plain.image()) << "hold loaded: " << loaded;
    }
    marked.clear();
    plain.clear();
    marked.box(150, 150, 300, 300, kBlack);
    plain.box(150, 150, 300, 300, kBlack);
    EXPECT_EQ(marked.image(), plain.image()) << "read before the drawing is marked";
    EXPECT_EQ(at(marked, 20, 20), kBlackPixel) << "the box's corner, at twice the pixels";
}

// A solid fill is the ratio-two test's; a hatch leaves its gaps and stops at the fore colour too.
TEST(QtCanvas, AHatchLeavesItsGapsAndStopsAtTheForeColour)
{
    QtCanvas canvas(1500, 1500);
    canvas.box(900, 900, 1350, 1350, kBlack); // pixels 60..90
    canvas.setForeColor(kBlack);
    canvas.setFillStyle(FillStyle::DiagonalCross);
    canvas.setFillColor(kRed);
    canvas.floodFill(75, 75);
    EXPECT_EQ(at(canvas, 72, 72), kRedPixel); // on the hatch: (x - y) % 8 == 0
    EXPECT_EQ(at(canvas, 73, 72), kWhitePixel);
    EXPECT_EQ(at(canvas, 60, 68), kBlackPixel) << "the border keeps its colour";
    EXPECT_EQ(at(canvas, 50, 50), kWhitePixel) << "nothing leaks outside";
}

TEST(QtCanvas, FilledShapesAndText)
{
    QtCanvas canvas(1500, 1500);
    canvas.setFillStyle(FillStyle::Solid);
    canvas.setFillColor(kBlue);
    canvas.circle(750, 750, 300, kBlue);
    EXPECT_EQ(at(canvas, 50, 50), 0x0000FFu);
    EXPECT_EQ(at(canvas, 50, 75), kWhitePixel);

    canvas.setFont(10, true);
    const double width = canvas.textWidth("Main Deck");
    EXPECT_GT(width, 600);
    EXPECT_LT(width, 1200);
    EXPECT_GT(canvas.textHeight("T"), 150);
    canvas.setScaleMode(ScaleMode::Pixels);
    EXPECT_NEAR(canvas.textWidth("Main Deck"), width / 15, 1e-9);
}

// On a screen at 200 % the image has four pixels to each of the picture's: lines stay one image
// pixel wide, while positions, fill seeds and text measures keep their meaning in twips.
TEST(QtCanvas, AtPixelRatioTwoLinesStayThinAndTwipsKeepTheirMeaning)
{
    QtCanvas canvas(1500, 1500, {255, 255, 255}, 2.0);
    EXPECT_EQ(canvas.image().size(), QSize(200, 200));
    EXPECT_EQ(canvas.image().devicePixelRatio(), 2.0);
    EXPECT_EQ(canvas.scaleWidth(), 1500);

    canvas.line(150, 300, 1350, 300, kBlack); // picture row 20
    EXPECT_EQ(at(canvas, 100, 40), kBlackPixel);
    EXPECT_EQ(at(canvas, 100, 39), kWhitePixel);
    EXPECT_EQ(at(canvas, 100, 41), kWhitePixel);

    canvas.box(150, 450, 750, 750, kBlack); // picture pixels 10..50 by 30..50
    canvas.setForeColor(kBlack);
    canvas.setFillStyle(FillStyle::Solid);
    canvas.setFillColor(kGreen);
    canvas.floodFill(30, 40);
    EXPECT_EQ(at(canvas, 21, 61), kGreenPixel);
    EXPECT_EQ(at(canvas, 99, 99), kGreenPixel);
    EXPECT_EQ(at(canvas, 20, 60), kBlackPixel) << "a one-pixel outline holds the fill";
    EXPECT_EQ(at(canvas, 21, 59), kWhitePixel) << "nothing leaks";

    QtCanvas single(1500, 1500);
    canvas.setFont(10, true);
    single.setFont(10, true);
    EXPECT_EQ(canvas.textWidth("Main Deck"), single.textWidth("Main Deck"));
}

} // namespace
} // namespace quillet

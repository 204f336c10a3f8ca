#include "GuiFixture.h"
#include "jets/Boeing.h"

#include <cmath>
#include <string>
#include <vector>

namespace quillet {
namespace {

// A stretch of a deck in feet: from x forward to x aft, y within half a width of the centre line.
struct FeetRect {
    double forward;
    double aft;
    double halfWidth = 4; // a hold's
};

// One type's published geometry: where its decks are drawn (the main-deck origin, the lower deck's
// centre line, twips per foot), its fuselage, its two holds, and the x of a point on the cabin's
// centre line clear of seats, containers and fittings.
struct DeckCase {
    const char* type;
    struct {
        double x0, y0, lowerOrigin, scale;
    } at;
    FeetRect fuselage, forwardHold, aftHold;
    double cabinX = 0;
};

const DeckCase kCases[] = {
    {"B737-200ADV", {68, 8, 21, 70}, {43.435, -39.683, 5.9}, {23.5, 9}, {-10, -31}},
    {"B757-200", {85, 10, 24, 60}, {77.19, -68.175, 5.85}, {62, 18}, {-18, -56}},
    {"B757-200F", {85, 10, 24, 60}, {77.19, -68.175, 5.85}, {62, 18}, {-18, -56}, 60},
    {"B727-212ADV", {76.5, 8, 21, 70}, {60.075, -48.735, 5.8}, {31, 11}, {-10, -35}},
};

QRect pixels(const DeckCase& deck, const FeetRect& area, double originY)
{
    const auto px = [&](double feet) { return static_cast<int>(std::lround(feet * deck.at.scale / 15)); };
    return QRect(QPoint(px(deck.at.x0 - area.forward), px(originY - area.halfWidth)),
                 QPoint(px(deck.at.x0 - area.aft), px(originY + area.halfWidth)));
}

// The pixels of one colour inside a rectangle (with one pixel to spare around it where `spare`).
int count(const QImage& image, QRgb colour, QRect area, bool spare = false)
{
    area = area.adjusted(-spare, -spare, spare, spare) & image.rect();
    int found = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x)
            found += (image.pixel(x, y) & 0xFFFFFF) == colour;
    }
    return found;
}

using JetDecksGui = GuiFixture;

// Each type opens on the jet form; its loaded holds are hatched inside the hold outlines on the lower
// deck only, and its fuselage outline is closed: a fill from the cabin floor stays inside it.
TEST_F(JetDecksGui, EachTypeOpensWithClosedOutlinesAndHatchesOnlyItsHolds)
{
    std::vector<std::string> types;
    for (const DeckCase& deck : kCases)
        types.emplace_back(deck.type);
    startWith(types, "[WEIGHT_AND_BALANCE]\r\nmax_number_of_stations = 0\r\n");
    for (int n = 0; n < static_cast<int>(std::size(kCases)); ++n) {
        const DeckCase& deck = kCases[n];
        SCOPED_TRACE(deck.type);
        QMainWindow* window = adjust(n);
        ASSERT_NE(window, nullptr);
        EXPECT_TRUE(window->isVisible());
        EXPECT_EQ(shownTitle(window), deck.type);

        auto& form = static_cast<Boeing&>(*app->forms().existing("Boeing"));
        LoadState& state = app->session().state;
        const int aftHold = state.nstations + state.ncargo - 1;
        state.stationweight[aftHold - 1] = 1000;
        state.stationweight[aftHold] = 1000;
        form.redraw();
        const auto image = [&] { return find<PictureBox>(window, "Picture1")->canvas()->image(); };
        const QRect forward = pixels(deck, deck.forwardHold, deck.at.lowerOrigin);
        const QRect aft = pixels(deck, deck.aftHold, deck.at.lowerOrigin);
        const QRect fuselage = pixels(deck, deck.fuselage, deck.at.y0);
        EXPECT_GT(count(image(), kGreenPixel, forward), 100);
        EXPECT_GT(count(image(), kGreenPixel, aft), 100);
        EXPECT_EQ(count(image(), kGreenPixel, forward, true) + count(image(), kGreenPixel, aft, true),
                  count(image(), kGreenPixel, image().rect()))
            << "hatching outside the holds";

        Canvas& picture = form.Picture1();
        picture.setFillStyle(FillStyle::Solid);
        picture.setFillColor(kRed);
        const QPoint cabin = pixels(deck, {deck.cabinX, deck.cabinX, 0}, deck.at.y0).topLeft();
        picture.floodFill(cabin.x(), cabin.y());
        EXPECT_GT(count(image(), kRedPixel, fuselage), 1000);
        EXPECT_EQ(count(image(), kRedPixel, fuselage, true), count(image(), kRedPixel, image().rect()))
            << "the fill leaks out of the fuselage";

        window->close();
        QApplication::processEvents();
    }
}

} // namespace
} // namespace quillet

#include "JetChecks.h"
#include "TypeName.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace quillet {
namespace {

// A type's deck drawing as its published drawing gives it: where the texts stand, the fuselage, and
// the cabin (seats, how many of them first class and how wide, crew circles).
struct DeckCase {
    const char* type;
    DeckTexts texts;
    Fuselage body;
    std::size_t seats = 0, firstClass = 0;
    double firstWidth = 0, economyWidth = 0;
    std::size_t crew = 0;
};

class JetDeck : public ::testing::TestWithParam<DeckCase> {};

TEST_P(JetDeck, TextsFuselageAndCabinStandWhereTheDrawingPutsThem)
{
    const DeckCase& c = GetParam();
    DeckDrawing deck(c.type);
    expectFuselage(deck, c.texts, c.body);
    if (c.seats > 0)
        expectCabin(deck, c.seats, c.firstClass, c.firstWidth, c.economyWidth, c.crew);
}

INSTANTIATE_TEST_SUITE_P(
    Airliners, JetDeck,
    ::testing::Values(
        DeckCase{
            "B737-300", {560, 210, 560, 1120, 2800, 5320, true}, {48.035, -42.183, 5.9}, 128, 8, 1.8, 1.5, 6},
        DeckCase{"B737-200ADV",
                 {560, 210, 560, 1120, 2800, 5320, true},
                 {43.435, -39.683, 5.9},
                 102,
                 14,
                 1.8,
                 1.5,
                 6},
        DeckCase{"B727-212ADV",
                 {105, 210, 105, 1120, 4655, 7945, false},
                 {60.075, -48.735, 5.8},
                 147,
                 12,
                 1.8,
                 1.5,
                 6},
        DeckCase{"B757-200",
                 {180, 60, 180, 1020, 4140, 8580, false},
                 {77.19, -68.175, 5.85},
                 184,
                 26,
                 2.0,
                 1.5,
                 10},
        // The freighter shares the airliner's fuselage; its containers are checked below.
        DeckCase{"B757-200F", {180, 60, 180, 1020, 4140, 8580, false}, {77.19, -68.175, 5.85}}),
    [](const auto& info) { return testNameOf(info.param.type); });

bool lineStartsAt(const RecordingCanvas& canvas, double x, double y)
{
    const auto lines = canvas.ops(DrawOp::Kind::Line);
    return std::any_of(lines.begin(), lines.end(), [&](const DrawOp& op) {
        return std::fabs(op.x1 - x) < 1e-6 && std::fabs(op.y1 - y) < 1e-6;
    });
}

TEST(JetDeckDetails, SeatBoxesWindowsBulkheadsAndContainersOfEachType)
{
    // A B737-300 economy seat's box hangs 0.75 ft forward and outboard of its station (3C: 18.083, -1.5).
    const auto boxes = DeckDrawing("B737-300").seats.ops(DrawOp::Kind::Box);
    EXPECT_NEAR(boxes[10].x1, (68 - 18.083 - 0.75) * 70, 0.01);
    EXPECT_NEAR(boxes[10].y1, (8 + 1.5 - 0.75) * 70, 0.01);

    // The B737-200ADV draws the B737-300's first window 4.14 ft further aft, from (36.81, 2.11).
    const DeckDrawing b737("B737-200ADV");
    EXPECT_TRUE(lineStartsAt(b737.mainDeck, (68 - 36.81) * 70, (8 - 2.11) * 70));
    EXPECT_TRUE(lineStartsAt(b737.mainDeck, (68 - 36.81) * 70, (8 + 2.11) * 70));

    // The B727's aft pressure bulkhead (-46, 5.6) to (-46, -5.6) belongs to the fuselage, not the seats.
    const DeckDrawing b727("B727-212ADV");
    const auto lines = b727.mainDeck.ops(DrawOp::Kind::Line);
    EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [](const DrawOp& op) {
        return std::fabs(op.x1 - 122.5 * 70) < 1e-6 && std::fabs(op.y1 - 2.4 * 70) < 1e-6 &&
               std::fabs(op.y2 - 13.6 * 70) < 1e-6;
    }));
    EXPECT_TRUE(b727.seats.ops(DrawOp::Kind::Line).empty());

    // The B757-200F's containers: 7.333 by 10.417 ft, centred on stations 94 inches apart from x = 51.
    const DeckDrawing b757f("B757-200F");
    const auto containers = b757f.seats.ops(DrawOp::Kind::Box);
    ASSERT_EQ(containers.size(), 15u);
    for (int n = 0; n < 15; ++n) {
        EXPECT_NEAR((containers[n].x1 + containers[n].x2) / 2, (85 - (51 - n * 94.0 / 12)) * 60, 1e-3) << n;
        EXPECT_NEAR((containers[n].y1 + containers[n].y2) / 2, 600, 1e-3) << n;
        EXPECT_NEAR(containers[n].x2 - containers[n].x1, 7.333 * 60, 1e-3) << n;
        EXPECT_NEAR(containers[n].y2 - containers[n].y1, 10.417 * 60, 1e-3) << n;
    }
    const auto pilots = b757f.seats.ops(DrawOp::Kind::Circle);
    ASSERT_EQ(pilots.size(), 2u);
    EXPECT_NEAR(pilots[0].x1, (85 - 68) * 60, 1e-6);
    EXPECT_NEAR(pilots[0].y1, (10 + 2) * 60, 1e-6);
    EXPECT_NEAR(pilots[0].radius, 45, 1e-6);
}

} // namespace
} // namespace quillet

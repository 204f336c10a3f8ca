#include "jets/MD90.h"

#include "JetChecks.h"
#include "JetRig.h"

#include <gtest/gtest.h>
#include <set>

namespace quillet {
namespace {

constexpr int kForwardHold = 164;
constexpr int kCentreHold = 165;
constexpr int kAftHold = 166;

TEST(JetMD90_30, TheThreeHoldsLieOnTheLowerDeckAndAreDrawnWithTheirLabels)
{
    JetRig rig;
    Boeing& form = rig.open("MD-90-30");
    LoadState& state = rig.session.state;
    // (93.5 - 46) * 60 and 26 * 60.
    EXPECT_EQ(state.stationpx[kForwardHold], 2850);
    EXPECT_EQ(state.stationpy[kForwardHold], 1560);
    EXPECT_EQ(state.stationpx[kAftHold], 7200);
    EXPECT_EQ(state.stationpy[kAftHold], 1560);

    rig.prompt.answer("5169");
    rig.picture().forget();
    form.Picture1_MouseDown(Boeing::kLeftButton, 0, 7200, 1560);
    ASSERT_EQ(rig.prompt.asked().size(), 1u);
    EXPECT_EQ(rig.prompt.asked()[0].prompt, "Lower Deck Cargo Aft weight in lbs");
    EXPECT_EQ(state.stationmsg[kAftHold], " Zone Overload");
    const auto fills = rig.picture().ops(DrawOp::Kind::FloodFill);
    ASSERT_EQ(fills.size(), 1u);
    EXPECT_EQ(fills[0].fillColor, kRed);
    EXPECT_EQ(fills[0].x1, 480);
    EXPECT_EQ(fills[0].y1, 104);

    expectTexts(rig.picture(), {{"Main Deck", 90, 90},
                                {"Lower Deck", kAnywhere, 1260},
                                {"Forward", 1410, kAnywhere},
                                {"Centre", 5310, kAnywhere},
                                {"Aft", 8130, kAnywhere}});
    // Twelve 1.8 ft seats, 146 of 1.4 ft, six crew circles of 0.7 ft.
    const auto boxes = rig.picture().ops(DrawOp::Kind::Box);
    ASSERT_EQ(boxes.size(), 158u);
    EXPECT_NEAR(boxes[11].x2 - boxes[11].x1, 108, 1e-9);
    EXPECT_NEAR(boxes[12].x2 - boxes[12].x1, 84, 1e-9);
    const auto circles = rig.picture().ops(DrawOp::Kind::Circle);
    ASSERT_EQ(circles.size(), 6u);
    EXPECT_DOUBLE_EQ(circles[0].radius, 42);
}

} // namespace
} // namespace quillet

#include "JetChecks.h"
#include "JetRig.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

TEST(JetB757, BothTypesShareTheFuselageAndTheLowerDeck)
{
    for (const char* type : {"B757-200", "B757-200F"}) {
        SCOPED_TRACE(type);
        DeckDrawing deck(type);
        expectFuselage(deck, {180, 60, 180, 1020, 4140, 8580, false}, {77.19, -68.175, 5.85});
    }
    expectCabin(DeckDrawing("B757-200"), 184, 26, 2.0, 1.5, 10);
}

TEST(JetB757_200F, DrawsEachContainerAsABoxCentredOnItsStation)
{
    DeckDrawing deck("B757-200F");
    const auto boxes = deck.seats.ops(DrawOp::Kind::Box);
    ASSERT_EQ(boxes.size(), 15u);
    for (int n = 0; n < 15; ++n) {
        const double x = (85 - (51 - n * 94.0 / 12)) * 60;
        EXPECT_NEAR((boxes[n].x1 + boxes[n].x2) / 2, x, 1e-3) << n;
        EXPECT_NEAR((boxes[n].y1 + boxes[n].y2) / 2, 600, 1e-3) << n;
        EXPECT_NEAR(boxes[n].x2 - boxes[n].x1, 7.333 * 60, 1e-3) << n;
        EXPECT_NEAR(boxes[n].y2 - boxes[n].y1, 10.417 * 60, 1e-3) << n;
    }
    const auto pilots = deck.seats.ops(DrawOp::Kind::Circle);
    ASSERT_EQ(pilots.size(), 2u);
    EXPECT_NEAR(pilots[0].x1, (85 - 68) * 60, 1e-6);
    EXPECT_NEAR(pilots[0].y1, (10 + 2) * 60, 1e-6);
    EXPECT_NEAR(pilots[0].radius, 45, 1e-6);
}

TEST(JetB757_200, EmptyAircraftKeepsTheTenCrew)
{
    JetRig rig;
    Boeing& form = rig.open("B757-200");
    LoadState& state = rig.session.state;
    for (int i = 0; i < 196; ++i)
        state.stationweight[i] = 100;
    form.mnuempty_Click();
    for (int i = 0; i < 196; ++i)
        ASSERT_EQ(state.stationweight[i], i >= 184 && i <= 193 ? 100 : 0) << i;
    EXPECT_EQ(form.labels.lblpass.text, "Passengers  0 / 184");
}

TEST(JetB757_200F, CountsContainersAndSeatsNobody)
{
    JetRig rig;
    Boeing& form = rig.open("B757-200F");
    LoadState& state = rig.session.state;
    EXPECT_EQ(form.labels.lblpass.text, "Containers  0 / 15");
    state.stationweight[0] = 190;
    state.stationweight[1] = 180;

    form.mnuheav_Click();
    EXPECT_EQ(state.stationweight[0], 190);
    EXPECT_EQ(state.stationweight[1], 180);
    for (int i = 2; i < 19; ++i)
        EXPECT_GE(state.stationweight[i], state.stationmax[i] * 0.5f) << i;
    EXPECT_EQ(state.npax, 0);
    EXPECT_EQ(form.labels.lblpass.text, "Containers  15 / 15");

    // The holds are never counted as containers.
    form.mnuempty_Click();
    state.stationweight[2] = 500;
    state.stationweight[17] = 500;
    state.stationweight[18] = 500;
    form.runSummary();
    EXPECT_EQ(form.labels.lblpass.text, "Containers  1 / 15");
}

} // namespace
} // namespace quillet

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

// The golden station file checks the whole table; these are what it does not hold, and the rows a
// user could take for mistakes.
TEST(JetMD90_30, SetUpWritesSeatsCrewAndHolds)
{
    LoadState state;
    int deckscale = 0;
    MD90::setUpMD90_30(state, deckscale);
    EXPECT_EQ(deckscale, 60);
    EXPECT_EQ(state.maxpax, 158);

    // First cabin: rows 1 to 3 with A, C, D, F, the D seat outboard of F.
    EXPECT_EQ(state.stationname[0], "Passenger 1A");
    EXPECT_EQ(state.stationname[3], "Passenger 1F");
    EXPECT_EQ(state.stationname[11], "Passenger 3F");
    EXPECT_FLOAT_EQ(state.stationy[2], 4.1f);
    EXPECT_FLOAT_EQ(state.stationy[3], 2.0f);
    EXPECT_EQ(state.stationname[12], "Passenger 4A");

    // Rows 29 to 31 hold D and E only; in rows 32 to 34 D and E sit 1.8 ft forward of A, B and C.
    EXPECT_EQ(state.stationname[137], "Passenger 29D");
    EXPECT_EQ(state.stationname[142], "Passenger 31E");
    EXPECT_EQ(state.stationname[143], "Passenger 32A");
    EXPECT_NEAR(state.stationx[146] - state.stationx[145], 1.8, 1e-5);

    // Every seat and hold has a name of its own.
    std::set<std::string> names;
    for (int i = 0; i < 167; ++i) {
        if (i < 158 || i >= kForwardHold)
            names.insert(state.stationname[i]);
    }
    EXPECT_EQ(names.size(), 161u);
    for (const char* absent : {"Passenger 29A", "Passenger 30B", "Passenger 31C", "Passenger 1B"})
        EXPECT_EQ(names.count(absent), 0u) << absent;

    EXPECT_EQ(state.stationmax[kForwardHold], 2002);
    EXPECT_EQ(state.stationmax[kCentreHold], 5168);
    EXPECT_EQ(state.stationmax[kAftHold], 5168);
}

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

TEST(JetMD90_30, SavesThePersonsAsOneStationAndEachHold)
{
    JetRig rig;
    Boeing& form = rig.open("MD-90-30");
    rig.session.state.stationweight[kCentreHold] = 3000;
    form.mnusave_Click();
    const std::string cfg = rig.dir.read("sim/aircraft/md_90_30/aircraft.cfg");
    EXPECT_NE(cfg.find("// MD-90-30 configuration two class 158 passangers.\r\n"), std::string::npos) << cfg;
    EXPECT_NE(cfg.find("max_number_of_stations = 4\r\n"
                       "station_load.0 = 0, 0.0, 0.0, 0.0 // All Personel (Crew + Passengers)\r\n"
                       "station_load.1 = 0, 46.0, 0.0, 0.0 // Lower Deck Cargo Forward\r\n"
                       "station_load.2 = 3000, 20.0, 0.0, 0.0 // Lower Deck Cargo Centre\r\n"
                       "station_load.3 = 0, -26.5, 0.0, 0.0 // Lower Deck Cargo Aft\r\n"
                       " \r\n"),
              std::string::npos)
        << cfg;
}

} // namespace
} // namespace quillet

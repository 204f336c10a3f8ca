#include "jets/MD90.h"

#include "JetRig.h"
#include "TypeTable.h"

#include <gtest/gtest.h>
#include <set>

namespace quillet {
namespace {

constexpr int kForwardHold = 164;
constexpr int kCentreHold = 165;
constexpr int kAftHold = 166;

TEST(JetMD90_30, SetUpWritesTheTypeTable)
{
    LoadState state;
    int deckscale = 0;
    MD90::setUpMD90_30(state, deckscale);
    expectTable(state, deckscale,
                {.maxtakeoff = 156000,
                 .maxlanding = 142000,
                 .emptyweight = 88171,
                 .maxfuel = 39128,
                 .maxzerofuel = 130000,
                 .maxpax = 158,
                 .cfgstations = 4,
                 .seats1 = 0,
                 .seats2 = 12,
                 .seats3 = 146,
                 .nstations = 164,
                 .ncargo = 3,
                 .nlower = 3,
                 .ncrew = 6,
                 .deckscale = 60});

    expectStations(state, {
                              // First cabin: A, C, D, F with D outboard.
                              {0, "Passenger 1A", 55.8, -4.1},
                              {1, "Passenger 1C", 55.8, -2.0},
                              {2, "Passenger 1D", 55.8, 4.1},
                              {3, "Passenger 1F", 55.8, 2.0},
                              {11, "Passenger 3F", 49.8, 2.0},
                              {12, "Passenger 4A", 45, -4.2},
                              {14, "Passenger 4C", 45, -0.86},
                              {17, "Passenger 5A", 42.4, -4.2},
                              {136, "Passenger 28E", -17.4, 4.2},
                              // Rows 29 to 31: D and E only.
                              {137, "Passenger 29D", -21.4, 2.5},
                              {138, "Passenger 29E", -21.4, 4.2},
                              {142, "Passenger 31E", -26.8, 4.2},
                              // Rows 32 to 34: D and E 1.8 ft forward of A, B and C.
                              {143, "Passenger 32A", -31.4, -4.2},
                              {145, "Passenger 32C", -31.4, -0.86},
                              {146, "Passenger 32D", -29.6, 2.5},
                              {157, "Passenger 34E", -34.8, 4.2},
                              {158, "Pilot", 67.8, -1.6},
                              {159, "Co-Pilot", 67.8, 1.6},
                              {160, "Crew", 64, -1.8},
                              {161, "Crew", 64, -3.2},
                              {162, "Crew", -40.5, -0.9},
                              {163, "Crew", -40.5, 0.9},
                              {kForwardHold, "Lower Deck Cargo Forward", 46, 0},
                              {kCentreHold, "Lower Deck Cargo Centre", 20, 0},
                              {kAftHold, "Lower Deck Cargo Aft", -26.5, 0},
                          });
    EXPECT_EQ(state.stationmax[kForwardHold], 2002);
    EXPECT_EQ(state.stationmax[kCentreHold], 5168);
    EXPECT_EQ(state.stationmax[kAftHold], 5168);

    // Every seat and hold has a name of its own; rows 29 to 31 have no A, B or C.
    std::set<std::string> names;
    for (int i = 0; i < 167; ++i) {
        if (i < 158 || i >= kForwardHold)
            names.insert(state.stationname[i]);
    }
    EXPECT_EQ(names.size(), 161u);
    for (const char* absent :
         {"Passenger 29A", "Passenger 30B", "Passenger 31C", "Passenger 1B", "Passenger 3E"})
        EXPECT_EQ(names.count(absent), 0u) << absent;
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

    const auto texts = rig.picture().ops(DrawOp::Kind::Text);
    ASSERT_EQ(texts.size(), 5u);
    EXPECT_EQ(texts[0].text, "Main Deck");
    EXPECT_DOUBLE_EQ(texts[0].x1, 90);
    EXPECT_DOUBLE_EQ(texts[0].y1, 90);
    EXPECT_EQ(texts[1].text, "Lower Deck");
    EXPECT_DOUBLE_EQ(texts[1].y1, 1260);
    const std::pair<const char*, double> labels[] = {{"Forward", 1410}, {"Centre", 5310}, {"Aft", 8130}};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(texts[2 + i].text, labels[i].first);
        EXPECT_DOUBLE_EQ(texts[2 + i].x1, labels[i].second);
    }
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
    const std::string cfg = rig.dir.read("sim/aircraft/md90_30/aircraft.cfg");
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

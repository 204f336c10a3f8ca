#include "JetChecks.h"
#include "JetRig.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace quillet {
namespace {

TEST(JetB737_200ADV, SetUpWritesTheTypeTable)
{
    // Counts in the table's order: maxpax, cfgstations, seats1 to 3, nstations, ncargo, nlower, ncrew.
    const LoadState state = expectSetUp("B737-200ADV", {119500, 105000, 63100, 34570, 95000},
                                        {108, 3, 14, 0, 88, 108, 2, 2, 6}, 70);
    // Row 1 has only D and F; the next pass of first class is row 2, whose third seat is 2D.
    expectStations(state, {{0, "Passenger 1D", 23.7, 2},
                           {1, "Passenger 1F", 23.7, 4.2},
                           {4, "Passenger 2D", 20.5, 2},
                           {13, "Passenger 4F", 14.16, 4.2},
                           {91, "Passenger 17F", -24.5, 4.5},
                           {101, "Passenger 19E", -30.2, 4.4},
                           {102, "Pilot", 35, -2},
                           {103, "Co-Pilot", 35, 2},
                           {107, "Crew", -35, -4},
                           {108, "Lower Deck Cargo Forward", 16.25, 0, 2002},
                           {109, "Lower Deck Cargo Aft", -20.5, 0, 5168}});
}

TEST(JetB737_200ADV, DrawsItsShorterFuselageAndCabin)
{
    DeckDrawing deck("B737-200ADV");
    expectFuselage(deck, {560, 210, 560, 1120, 2800, 5320, true}, {43.435, -39.683, 5.9});
    expectCabin(deck, 102, 14, 1.8, 1.5, 6);
    // The B737-300's first window moved 4.14 ft aft begins at (36.81, 2.11), on both sides.
    const auto lines = deck.mainDeck.ops(DrawOp::Kind::Line);
    for (double y : {2.11, -2.11})
        EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [&](const DrawOp& op) {
            return std::fabs(op.x1 - (68 - 36.81) * 70) < 1e-6 && std::fabs(op.y1 - (8 - y) * 70) < 1e-6;
        })) << y;
}

TEST(JetB737_200ADV, SavesItsPersonsAsOneStationAndTwoClasses)
{
    JetRig rig;
    Boeing& form = rig.open("B737-200ADV");
    LoadState& state = rig.session.state;
    state.stationweight[0] = 100;   // 1D
    state.stationweight[101] = 300; // 19E
    state.stationweight[108] = 1500;
    form.mnusave_Click();
    const std::string cfg = rig.dir.read("sim/aircraft/b737_200adv/aircraft.cfg");
    EXPECT_NE(cfg.find("// B737-200ADV configuration two class 102 passangers.\r\n"), std::string::npos)
        << cfg;
    EXPECT_NE(cfg.find("max_number_of_stations = 3\r\n"
                       "station_load.0 = 400, -16.7, 3.8, 0.0 // All Personel (Crew + Passengers)\r\n"
                       "station_load.1 = 1500, 16.3, 0.0, 0.0 // Lower Deck Cargo Forward\r\n"
                       "station_load.2 = 0, -20.5, 0.0, 0.0 // Lower Deck Cargo Aft\r\n"),
              std::string::npos)
        << cfg;
}

} // namespace
} // namespace quillet

#include "JetChecks.h"
#include "JetRig.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace quillet {
namespace {

TEST(JetB727_212ADV, SetUpWritesTheTypeTable)
{
    const LoadState state = expectSetUp("B727-212ADV", {209500, 161000, 100000, 57200, 144000},
                                        {147, 3, 0, 12, 135, 153, 2, 2, 6}, 70);
    // In rows 3 and 4 seat D sits outboard and F inboard; rows 26 to 28 have D, E and F only.
    expectStations(state, {{0, "Passenger 1A", 38.4, -4.2},
                           {3, "Passenger 2C", 35.4, -2},
                           {6, "Passenger 3D", 32, 4.2},
                           {11, "Passenger 4F", 28.8, 2},
                           {65, "Passenger 13F", 2.912, 4.7},
                           {137, "Passenger 25F", -30.096, 4.7},
                           {146, "Passenger 28F", -42, 4.7},
                           {147, "Pilot", 50, -1.8},
                           {148, "Co-Pilot", 50, 1.8},
                           {152, "Crew", -35, 3.5},
                           {153, "Lower Deck Cargo Forward", 26, 0, 2002},
                           {154, "Lower Deck Cargo Aft", -18, 0, 5168}});
}

TEST(JetB727_212ADV, DrawsItsFuselageWithTheFittingsAndItsCabin)
{
    DeckDrawing deck("B727-212ADV");
    expectFuselage(deck, {105, 210, 105, 1120, 4655, 7945, false}, {60.075, -48.735, 5.8});
    expectCabin(deck, 147, 12, 1.8, 1.5, 6);
    // The aft pressure bulkhead (-46, 5.6) to (-46, -5.6) is drawn with the fuselage, not the seats.
    const auto lines = deck.mainDeck.ops(DrawOp::Kind::Line);
    EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [](const DrawOp& op) {
        return std::fabs(op.x1 - 122.5 * 70) < 1e-6 && std::fabs(op.y1 - 2.4 * 70) < 1e-6 &&
               std::fabs(op.y2 - 13.6 * 70) < 1e-6;
    }));
    EXPECT_TRUE(deck.seats.ops(DrawOp::Kind::Line).empty());
}

TEST(JetB727_212ADV, SavesItsPersonsAsOneStationAndTwoClasses)
{
    JetRig rig;
    Boeing& form = rig.open("B727-212ADV");
    LoadState& state = rig.session.state;
    state.stationweight[147] = 100; // Pilot
    state.stationweight[146] = 300; // 28F
    state.stationweight[154] = 3000;
    form.mnusave_Click();
    const std::string cfg = rig.dir.read("sim/aircraft/b727_212adv/aircraft.cfg");
    EXPECT_NE(cfg.find("// B727-212ADV configuration two class 147 passangers.\r\n"), std::string::npos)
        << cfg;
    EXPECT_NE(cfg.find("max_number_of_stations = 3\r\n"
                       "station_load.0 = 400, -19.0, 3.1, 0.0 // All Personel (Crew + Passengers)\r\n"
                       "station_load.1 = 0, 26.0, 0.0, 0.0 // Lower Deck Cargo Forward\r\n"
                       "station_load.2 = 3000, -18.0, 0.0, 0.0 // Lower Deck Cargo Aft\r\n"),
              std::string::npos)
        << cfg;
}

} // namespace
} // namespace quillet

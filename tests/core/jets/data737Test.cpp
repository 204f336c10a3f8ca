#include "JetChecks.h"
#include "JetRig.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

TEST(JetB737_200ADV, SetUpWritesTheTypeTable)
{
    const LoadState state = expectSetUp("B737-200ADV", {119500, 105000, 63100, 34570, 95000},
                                        {.maxpax = 108,
                                         .cfgstations = 3,
                                         .seats1 = 14,
                                         .seats2 = 0,
                                         .seats3 = 88,
                                         .nstations = 108,
                                         .ncargo = 2,
                                         .nlower = 2,
                                         .ncrew = 6},
                                        70);
    // Row 1 has only D and F; the next pass of first class is row 2, whose third seat is 2D.
    expectStations(state, {{0, "Passenger 1D", 23.7, 2},
                           {1, "Passenger 1F", 23.7, 4.2},
                           {2, "Passenger 2A", 20.5, -4.2},
                           {4, "Passenger 2D", 20.5, 2},
                           {6, "Passenger 3A", 17.33, -4.2},
                           {13, "Passenger 4F", 14.16, 4.2},
                           {14, "Passenger 5A", 9.5, -4.5},
                           {20, "Passenger 6A", 9.5 - 34.0 / 12, -4.5},
                           {91, "Passenger 17F", -24.5, 4.5},
                           {92, "Passenger 18A", -27.3, -4.4},
                           {94, "Passenger 18C", -27.3, 1.5},
                           {96, "Passenger 18E", -27.3, 4.5},
                           {97, "Passenger 19A", -30.2, -4.3},
                           {101, "Passenger 19E", -30.2, 4.4},
                           {102, "Pilot", 35, -2},
                           {103, "Co-Pilot", 35, 2},
                           {104, "Crew", 28, -2},
                           {105, "Crew", 28, -3.5},
                           {106, "Crew", -35, -2.5},
                           {107, "Crew", -35, -4},
                           {108, "Lower Deck Cargo Forward", 16.25, 0, 2002},
                           {109, "Lower Deck Cargo Aft", -20.5, 0, 5168}});
}

TEST(JetB737_200ADV, DrawsItsShorterFuselageAndCabin)
{
    DeckDrawing deck("B737-200ADV");
    expectTexts(deck, {.mainX = 560,
                       .mainY = 210,
                       .lowerX = 560,
                       .lowerY = 1120,
                       .forwardEdge = 2800,
                       .aftEdge = 5320,
                       .ending = true});
    // Nose (43.435, 0) and tail (-39.683, 0), each reached from both sides.
    EXPECT_EQ(deck.centreLineEnds(43.435), 2);
    EXPECT_EQ(deck.centreLineEnds(-39.683), 2);
    // The first window's first corner, 4.14 ft aft of the B737-300's (40.95, 2.11), on both sides.
    const auto lines = deck.mainDeck.ops(DrawOp::Kind::Line);
    for (double y : {(8 - 2.11) * 70, (8 + 2.11) * 70})
        EXPECT_TRUE(std::any_of(lines.begin(), lines.end(), [&](const DrawOp& op) {
            return std::fabs(op.x1 - (68 - 36.81) * 70) < 1e-6 && std::fabs(op.y1 - y) < 1e-6;
        })) << y;

    const std::vector<double> widths = seatWidths(deck);
    ASSERT_EQ(widths.size(), 102u);
    EXPECT_EQ(widths[13], 1.8);
    EXPECT_EQ(widths[14], 1.5);
    EXPECT_EQ(deck.seats.ops(DrawOp::Kind::Circle).size(), 6u);
    expectPersonsInside(deck, 43.435, -39.683, 5.9);
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

#include "JetChecks.h"
#include "JetRig.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

TEST(JetB757_200, SetUpWritesTheTypeTable)
{
    // Counts in the table's order: maxpax, cfgstations, seats1 to 3, nstations, ncargo, nlower, ncrew.
    const LoadState state = expectSetUp("B757-200", {254900, 198000, 127500, 81200, 200000},
                                        {184, 3, 0, 26, 158, 194, 2, 2, 10}, 60);
    // Two seats are called 7D; row 24 is followed by row 26; the cabin crew come before the pilots.
    expectStations(state, {{0, "Passenger 1A", 54.2, -4.2},
                           {8, "Passenger 3D", 47.05, 2},
                           {24, "Passenger 7D", 34.25, 2},
                           {26, "Passenger 7D", 26.2, 3},
                           {129, "Passenger 24F", -24.8, 4.5},
                           {130, "Passenger 26A", -34.7, -4.5},
                           {183, "Passenger 34F", -58.7, 4.5},
                           {184, "Crew", 59.2, -2.5},
                           {191, "Crew", 28, -2.3},
                           {192, "Pilot", 67.5, -2},
                           {193, "Co-Pilot", 67.5, 2},
                           {194, "Lower Deck Cargo Forward", 40, 0, 10300},
                           {195, "Lower Deck Cargo Aft", -32, 0, 16300}});
}

TEST(JetB757_200F, SetUpListsThePilotsTheContainersAndThenTheHolds)
{
    const LoadState state =
        expectSetUp("B757-200F", {254980, 209990, 112000, 81200, 200000}, {0, 19, 0, 0, 0, 2, 17, 2, 2}, 60);
    expectStations(state, {{0, "Pilot", 68, -2},
                           {1, "Co-Pilot", 68, 2},
                           {2, "Container 1", 51, 0, 8800},
                           {9, "Container 8", 51 - 7 * 94.0 / 12, 0, 8800},
                           {16, "Container 15", -58.6667, 0, 8800},
                           {17, "Lower Deck Cargo Forward", 40, 0, 10300},
                           {18, "Lower Deck Cargo Aft", -32, 0, 16300}});
}

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

TEST(JetB757_200, EmptyAircraftKeepsTheTenCrewAndSavesTwoClasses)
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

    form.mnusave_Click();
    const std::string cfg = rig.dir.read("sim/aircraft/b757_200/aircraft.cfg");
    EXPECT_NE(cfg.find("// B757-200 configuration two class 184 passangers.\r\n"), std::string::npos) << cfg;
    EXPECT_NE(cfg.find("max_number_of_stations = 3\r\n"
                       "station_load.0 = 1000, 12.4, -1.8, 0.0 // All Personel (Crew + Passengers)\r\n"
                       "station_load.1 = 0, 40.0, 0.0, 0.0 // Lower Deck Cargo Forward\r\n"),
              std::string::npos)
        << cfg;
}

TEST(JetB757_200F, CountsContainersSeatsNobodyAndSavesEveryStation)
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

    form.mnusave_Click();
    const std::string cfg = rig.dir.read("sim/aircraft/b757_200f/aircraft.cfg");
    EXPECT_NE(cfg.find("// B757-200F configurationCrago Configuration\r\n"), std::string::npos) << cfg;
    EXPECT_NE(cfg.find("max_number_of_stations = 19\r\n"
                       "station_load.0 = 190, 68.0, -2.0, 0.0 // Pilot\r\n"
                       "station_load.1 = 180, 68.0, 2.0, 0.0 // Co-Pilot\r\n"
                       "station_load.2 = 500, 51.0, 0.0, 0.0 // Container 1\r\n"
                       "station_load.3 = 0, 43.2, 0.0, 0.0 // Container 2\r\n"),
              std::string::npos)
        << cfg;
    EXPECT_NE(cfg.find("station_load.16 = 0, -58.7, 0.0, 0.0 // Container 15\r\n"
                       "station_load.17 = 500, 40.0, 0.0, 0.0 // Lower Deck Cargo Forward\r\n"
                       "station_load.18 = 500, -32.0, 0.0, 0.0 // Lower Deck Cargo Aft\r\n"
                       " \r\n"),
              std::string::npos)
        << cfg;
}

} // namespace
} // namespace quillet

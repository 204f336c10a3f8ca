#include "JetChecks.h"
#include "JetRig.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

constexpr JetLimits kLimits757{254900, 198000, 127500, 81200, 200000};
constexpr JetLimits kLimits757F{254980, 209990, 112000, 81200, 200000};

TEST(JetB757_200, SetUpWritesTheTypeTable)
{
    const LoadState state = expectSetUp("B757-200", kLimits757,
                                        {.maxpax = 184,
                                         .cfgstations = 3,
                                         .seats1 = 0,
                                         .seats2 = 26,
                                         .seats3 = 158,
                                         .nstations = 194,
                                         .ncargo = 2,
                                         .nlower = 2,
                                         .ncrew = 10},
                                        60);
    expectStations(state, {{0, "Passenger 1A", 54.2, -4.2},
                           {3, "Passenger 2C", 51, -2},
                           {4, "Passenger 2D", 50.25, 2},
                           {6, "Passenger 3A", 47.8, -4.2},
                           {8, "Passenger 3D", 47.05, 2},
                           {22, "Passenger 7A", 35, -4.2},
                           {25, "Passenger 7F", 34.25, 4.2},
                           {27, "Passenger 7E", 26.2, 1.5},
                           {28, "Passenger 8A", 23.2, -4.5},
                           {129, "Passenger 24F", -24.8, 4.5},
                           {130, "Passenger 26A", -34.7, -4.5},
                           {183, "Passenger 34F", -58.7, 4.5},
                           {184, "Crew", 59.2, -2.5},
                           {185, "Crew", 59.2, -4},
                           {186, "Crew", -61.6, -2},
                           {187, "Crew", -61.6, -3.5},
                           {188, "Crew", -31, 2.3},
                           {189, "Crew", -31, -2.5},
                           {190, "Crew", 28, -3.4},
                           {191, "Crew", 28, -2.3},
                           {192, "Pilot", 67.5, -2},
                           {193, "Co-Pilot", 67.5, 2},
                           {194, "Lower Deck Cargo Forward", 40, 0, 10300},
                           {195, "Lower Deck Cargo Aft", -32, 0, 16300}});
    // The cabin crew come before the pilots. Two seats are called 7D, and no seat is in row 25.
    EXPECT_EQ(state.stationname[24], "Passenger 7D");
    EXPECT_EQ(state.stationname[26], "Passenger 7D");
    EXPECT_NEAR(state.stationx[24], 34.25, 1e-5);
    EXPECT_NEAR(state.stationx[26], 26.2, 1e-5);
    for (int i = 0; i < 184; ++i)
        EXPECT_NE(state.stationname[i].rfind("Passenger 25", 0), 0u) << i;
}

TEST(JetB757_200F, SetUpListsThePilotsTheContainersAndThenTheHolds)
{
    const LoadState state = expectSetUp("B757-200F", kLimits757F,
                                        {.maxpax = 0,
                                         .cfgstations = 19,
                                         .seats1 = 0,
                                         .seats2 = 0,
                                         .seats3 = 0,
                                         .nstations = 2,
                                         .ncargo = 17,
                                         .nlower = 2,
                                         .ncrew = 2},
                                        60);
    expectStations(state, {{0, "Pilot", 68, -2},
                           {1, "Co-Pilot", 68, 2},
                           {2, "Container 1", 51, 0, 8800},
                           {3, "Container 2", 51 - 94.0 / 12, 0, 8800},
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
        expectTexts(deck, {.mainX = 180,
                           .mainY = 60,
                           .lowerX = 180,
                           .lowerY = 1020,
                           .forwardEdge = 4140,
                           .aftEdge = 8580,
                           .ending = false});
        EXPECT_EQ(deck.centreLineEnds(77.19), 2);
        EXPECT_EQ(deck.centreLineEnds(-68.175), 2);
        expectPersonsInside(deck, 77.19, -68.175, 5.85);
    }
}

TEST(JetB757_200, DrawsFirstClassWiderThanEconomy)
{
    DeckDrawing deck("B757-200");
    const std::vector<double> widths = seatWidths(deck);
    ASSERT_EQ(widths.size(), 184u);
    EXPECT_EQ(widths[25], 2.0);
    EXPECT_EQ(widths[26], 1.5);
    EXPECT_EQ(deck.seats.ops(DrawOp::Kind::Circle).size(), 10u);
}

TEST(JetB757_200F, DrawsEachContainerAsABoxCentredOnItsStation)
{
    DeckDrawing deck("B757-200F");
    const auto boxes = deck.seats.ops(DrawOp::Kind::Box);
    ASSERT_EQ(boxes.size(), 15u);
    for (int n = 0; n < 15; ++n) {
        const double x = (85 - deck.state.stationx[n + 2]) * 60;
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

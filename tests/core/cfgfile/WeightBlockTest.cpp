#include "cfgfile/WeightBlock.h"

#include "Golden.h"
#include "SmallType.h"

#include <gtest/gtest.h>
#include <vector>

namespace quillet {
namespace {

using Lines = std::vector<std::string>;

LoadState smallType()
{
    LoadState state;
    setUpSmallType(state);
    state.stationweight[0] = 170;
    state.stationweight[2] = 189.5f;
    state.loadweight = 359.5f;
    state.fuelallowance = 3578;
    return state;
}

TEST(WeightBlock, EveryLineOfARegionalType)
{
    std::string text;
    for (const std::string& line : weightAndBalanceBlock(smallType(), "Beech 1900D", Date{2001, 3, 7}))
        text += line + "\n";
    expectGoldenFile("small-type.block", text);
}

TEST(WeightBlock, CfgStationsSetsTheNumberOfStationLines)
{
    LoadState state = smallType();
    state.nstations = 21;
    state.ncargo = 2;
    state.cfgstations = 23;
    const Lines block = weightAndBalanceBlock(state, "Beech 1900D", Date{2001, 3, 7});
    ASSERT_EQ(block.size(), 17u + 23u + 1u);
    EXPECT_EQ(block[16], "max_number_of_stations = 23");
    for (int i = 0; i < 23; ++i)
        EXPECT_EQ(block[17 + i].rfind("station_load." + std::to_string(i) + " = ", 0), 0u) << block[17 + i];
}

TEST(WeightBlock, AirlinersWriteAllPersonsAsOneStation)
{
    LoadState state;
    state.nstations = 134;
    state.ncargo = 2;
    state.stationname[134] = "Forward Hold";
    state.stationx[134] = 30;
    state.stationname[135] = "Aft Hold";
    state.stationx[135] = -40;
    for (int i = 0; i < 134; ++i)
        state.stationx[i] = 20.0f - i;
    state.stationweight[134] = 1000;

    Lines block = weightAndBalanceBlock(state, "B737-300", Date{2001, 3, 7});
    const Lines stations(block.begin() + 16, block.end());
    EXPECT_EQ(stations, (Lines{"max_number_of_stations = 3",
                               "station_load.0 = 0, 0.0, 0.0, 0.0 // All Personel (Crew + Passengers)",
                               "station_load.1 = 1000, 30.0, 0.0, 0.0 // Forward Hold",
                               "station_load.2 = 0, -40.0, 0.0, 0.0 // Aft Hold", " "}));

    // Persons at x 20 (100 lb) and x 10 (300 lb) sit at their weighted centre.
    state.stationweight[0] = 100;
    state.stationweight[10] = 300;
    state.stationy[10] = 1;
    block = weightAndBalanceBlock(state, "B737-300", Date{2001, 3, 7});
    EXPECT_EQ(block[17], "station_load.0 = 400, 12.5, 0.8, 0.0 // All Personel (Crew + Passengers)");
}

TEST(WeightBlock, ClassTextFollowsTheSeatCounts)
{
    EXPECT_EQ(classText(0, 0, 0), "Crago Configuration");
    EXPECT_EQ(classText(0, 19, 0), " one class 19 passangers.");
    EXPECT_EQ(classText(0, 8, 120), " two class 128 passangers.");
    EXPECT_EQ(classText(12, 0, 150), " two class 162 passangers.");
    EXPECT_EQ(classText(12, 24, 100), " three class 136 passangers.");

    LoadState freighter;
    EXPECT_EQ(weightAndBalanceBlock(freighter, "DC-9-30F", Date{2001, 3, 7})[1],
              "// DC-9-30F configurationCrago Configuration");
}

} // namespace
} // namespace quillet

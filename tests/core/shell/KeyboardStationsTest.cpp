// The stations a keyboard walks on a load form: every station in use, once, and a press on one
// loads and empties that station alone, on every type.

#include "ShellFixture.h"
#include "TypeName.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <set>
#include <string>

namespace quillet {
namespace {

class KeyboardStations : public EveryTypeFixture {
protected:
    int loadedStations() const
    {
        const auto end = state.stationweight.begin() + state.stationsInUse();
        return static_cast<int>(
            std::count_if(state.stationweight.begin(), end, [](float w) { return w != 0; }));
    }
};

TEST_P(KeyboardStations, ReachEveryStationOnceAndAPressLoadsThatStationAlone)
{
    LoadForm& form = start();
    const std::vector<FocusStation> stations = form.focusStations();
    std::set<int> reached;
    for (const FocusStation& station : stations)
        reached.insert(station.station);
    EXPECT_EQ(reached.size(), stations.size()) << "a station is walked twice";
    EXPECT_EQ(static_cast<int>(reached.size()), state.stationsInUse());

    for (const FocusStation& station : stations) {
        SCOPED_TRACE(state.stationname[station.station]);
        prompt.answer("100");
        form.pressStation(station, 1);
        EXPECT_EQ(state.stationweight[station.station], 100);
        EXPECT_EQ(loadedStations(), 1);
        EXPECT_EQ(state.loadweight, 100);
        form.pressStation(station, 1);
        EXPECT_EQ(loadedStations(), 0);
    }
}

INSTANTIATE_TEST_SUITE_P(EveryType, KeyboardStations, ::testing::ValuesIn(kAircraftTypes),
                         [](const auto& info) { return testNameOf(info.param.type); });

} // namespace
} // namespace quillet

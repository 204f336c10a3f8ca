// The stations a keyboard walks on a load form: every station in use, once, and a press on one
// loads and empties that station alone, on every type.

#include "ShellFixture.h"
#include "TypeName.h"
#include "freighter/FreighterForms.h"
#include "jets/JetForms.h"
#include "regional/RegionalForms.h"
#include "shell/AircraftTypes.h"

#include <algorithm>
#include <cctype>
#include <gtest/gtest.h>
#include <set>
#include <string>

namespace quillet {
namespace {

class KeyboardStations : public ShellFixture, public ::testing::WithParamInterface<AircraftType> {
protected:
    LoadForm& open()
    {
        const std::string type(GetParam().type);
        dir.makeSimulator();
        dir.makeAircraft("plane");
        dir.writeIni(dir.sim(), {type + ",plane"});
        registerRegionalForms(forms);
        registerJetForms(forms);
        registerFreighterForms(forms);
        form1.Form_Load();
        return *forms.existing(GetParam().form);
    }

    int loadedStations() const
    {
        const auto end = state.stationweight.begin() + state.stationsInUse();
        return static_cast<int>(
            std::count_if(state.stationweight.begin(), end, [](float w) { return w != 0; }));
    }
};

TEST_P(KeyboardStations, ReachEveryStationOnceAndAPressLoadsThatStationAlone)
{
    LoadForm& form = open();
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

std::string testName(const ::testing::TestParamInfo<AircraftType>& info)
{
    return testNameOf(info.param.type);
}

INSTANTIATE_TEST_SUITE_P(EveryType, KeyboardStations, ::testing::ValuesIn(kAircraftTypes), testName);

} // namespace
} // namespace quillet

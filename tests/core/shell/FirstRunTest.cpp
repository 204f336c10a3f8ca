// The station file each type writes the first time it is read: its built-in table with nobody
// aboard, compared byte for byte with a file under tests/data that was checked by hand against the
// type's published table, through the main window as a user meets it. Beside it the whole table the
// form sets up (full precision, maxima, seat-map points and container boxes, which the station file
// does not keep). A new type adds its two files.

#include "Golden.h"
#include "ShellFixture.h"
#include "TypeName.h"

#include <algorithm>
#include <cstdio>
#include <gtest/gtest.h>
#include <string>

namespace quillet {
namespace {

std::string number(double value)
{
    char text[32];
    std::snprintf(text, sizeof text, "%.7g", value);
    return text;
}

// The set-up table as text: limits, counts, then one line per station.
std::string tableText(const LoadState& s)
{
    std::string text = "limits";
    for (float limit : {s.maxtakeoff, s.maxlanding, s.emptyweight, s.maxfuel, s.maxzerofuel})
        text += " " + number(limit);
    text += "\ncounts";
    for (int count :
         {s.maxpax, s.cfgstations, s.seats1, s.seats2, s.seats3, s.nstations, s.ncargo, s.nlower, s.ncrew})
        text += " " + std::to_string(count);
    text += "\n";
    for (int i = 0; i < std::max(s.stationsInUse(), s.cfgstations); ++i) {
        text += std::to_string(i) + " \"" + s.stationname[i] + "\"";
        for (double value : {s.stationx[i], s.stationy[i], s.stationz[i], s.stationmax[i]})
            text += " " + number(value);
        text += " at " + std::to_string(s.stationpx[i]) + " " + std::to_string(s.stationpy[i]);
        if (i < kContainerBoxCapacity && s.containerbox[i] != std::array<float, 4>{}) {
            text += " box";
            for (float value : s.containerbox[i])
                text += " " + number(value);
        }
        text += "\n";
    }
    return text;
}

using FirstRunStationFile = EveryTypeFixture;

TEST_P(FirstRunStationFile, IsTheBuiltInTableWithNobodyAboard)
{
    const std::string type(GetParam().type);
    start(); // there is no station file yet
    ASSERT_EQ(form1.Combo1.text(), type);
    expectGoldenFile(type + ".cfg", dir.read(type + ".cfg"));
    EXPECT_TRUE(told("station file").empty());
}

// The form's own set-up with no station file yet, before anything is read back from one.
TEST_P(FirstRunStationFile, SetsUpTheBuiltInTable)
{
    const std::string type(GetParam().type);
    dir.makeAircraft("plane");
    state.simfolder = dir.sim();
    state.menutype[0] = type;
    state.menufolder[0] = "plane";
    state.nmenu = 1;
    session.currentType = [type] { return type; };

    forms.form(findAircraftType(type)->form, session)->Form_Load();
    expectGoldenFile(type + ".table", tableText(state));
}

INSTANTIATE_TEST_SUITE_P(EveryType, FirstRunStationFile, ::testing::ValuesIn(kAircraftTypes),
                         [](const auto& info) { return testNameOf(info.param.type); });

} // namespace
} // namespace quillet

#include "load/LoadSheet.h"

#include "Golden.h"
#include "core/cfgfile/SmallType.h"

#include <gtest/gtest.h>
#include <sstream>

namespace quillet {
namespace {

// The Beech 1900D's limits with a pilot's seat, two passenger seats and a hold of 500 lb.
LoadState beech(float crew, float pax, float hold, float fuelallowance)
{
    LoadState state;
    setBeechLimits(state);
    state.nstations = 3;
    state.ncargo = 1;
    state.stationweight[0] = crew;
    state.stationweight[1] = pax;
    state.stationweight[3] = hold;
    state.stationmax[3] = 2000;
    state.loadweight = crew + pax + hold;
    state.fuelallowance = fuelallowance;
    state.nmenu = 1;
    state.menutype[0] = "Beech 1900D";
    state.menufolder[0] = "beech";
    return state;
}

// Every text of a sheet: a row to a line, its columns between bars, "!" before an exceeded one.
std::string describe(const LoadSheet& sheet)
{
    std::ostringstream out;
    out << sheet.type << " | " << sheet.folder << " | " << sheet.date << " | " << sheet.program << " | "
        << sheet.fileName << "\n";
    for (const auto* rows : {&sheet.groups, &sheet.totals}) {
        for (const LoadSheetRow& row : *rows) {
            std::string line = (row.exceeded ? "! " : "  ") + row.label + " | " + row.count + " | " +
                               row.weight + " | " + row.limit + " | " + row.margin;
            out << line.erase(line.find_last_not_of(' ') + 1) << "\n";
        }
    }
    for (const std::string& line : sheet.balanceLines)
        out << line << "\n";
    return out.str() + "\n";
}

// Light; past the zero-fuel limit, with the hold exactly at its limit and the fuel left filling up to
// the take-off limit exactly, both of which pass; and so heavy that no fuel is allowed: the take-off weight
// then counts none and is over.
TEST(LoadSheet, TotalsLimitsAndMarginsInPoundsAndKilograms)
{
    const StationGroups groups = {{"Crew", StationRole::Crew, {0}},
                                  {"Passengers", StationRole::Passenger, {1, 2}},
                                  {"Aft hold", StationRole::Cargo, {3}, 500, true}};
    const std::string sheets =
        describe(makeLoadSheet(beech(170, 170, 0, 3578), groups, "Beech 1900D", {2026, 11, 3})) +
        describe(makeLoadSheet(beech(200, 4100, 500, 1535), groups, "Beech 1900D", {2026, 11, 23})) +
        describe(makeLoadSheet(beech(200, 5700, 600, -165), groups, "Beech 1900D", {2026, 11, 23}));
    expectGoldenFile("Beech 1900D.sheets", sheets);
}

struct AxisCase {
    CentreOfGravity cg;
    const char* along;
    const char* across;
};

class CentreOfGravityWords : public ::testing::TestWithParam<AxisCase> {};

TEST_P(CentreOfGravityWords, SayWhichWayHowFarAndWhereInTheBand)
{
    EXPECT_EQ(alongText(GetParam().cg), GetParam().along);
    EXPECT_EQ(acrossText(GetParam().cg), GetParam().across);
}

INSTANTIATE_TEST_SUITE_P(
    Axes, CentreOfGravityWords,
    ::testing::Values(
        AxisCase{{.x = 1.3, .y = -0.5, .bandX = 2.1, .bandY = 0.4, .percentX = -61.9, .percentY = -125},
                 "Centre of gravity 1.3 ft forward of the empty aircraft's (allowed: 2.1 ft either way), 62 "
                 "% of the band",
                 "Centre of gravity 0.5 ft left of the empty aircraft's (allowed: 0.4 ft either way), 125 % "
                 "of the band"},
        AxisCase{
            {.x = -0.26, .y = 0.04, .bandX = 1.4, .bandY = 0.2, .percentX = 18.6, .percentY = 20},
            "Centre of gravity 0.3 ft aft of the empty aircraft's (allowed: 1.4 ft either way), 19 % of the "
            "band",
            "Centre of gravity at the empty aircraft's (allowed: 0.2 ft either way), 20 % of the band"}));

} // namespace
} // namespace quillet

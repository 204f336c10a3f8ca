#include "load/LoadSheet.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

// The Beech 1900D's limits with a pilot's seat, two passenger seats and a hold of 500 lb.
LoadState beech(float crew, float pax, float hold, float fuelallowance)
{
    LoadState state;
    state.emptyweight = 10615;
    state.maxtakeoff = 16950;
    state.maxlanding = 16500;
    state.maxzerofuel = 15000;
    state.maxfuel = 3578;
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

StationGroups beechGroups()
{
    return {{"Crew", StationRole::Crew, {0}},
            {"Passengers", StationRole::Passenger, {1, 2}},
            {"Aft hold", StationRole::Cargo, {3}, 500, true}};
}

LoadSheetRow row(const char* label, const char* count, const char* weight, const char* limit = "",
                 const char* margin = "", bool exceeded = false)
{
    return {label, count, weight, limit, margin, exceeded};
}

struct SheetCase {
    const char* name;
    float crew, pax, cargo, fuelallowance; // the allowance as the summary worked it out
    std::vector<LoadSheetRow> totals;
    LoadSheetRow hold;
};

class LoadSheetFigures : public ::testing::TestWithParam<SheetCase> {};

TEST_P(LoadSheetFigures, TotalsLimitsAndMarginsInPoundsAndKilograms)
{
    const SheetCase& c = GetParam();
    const LoadSheet sheet = makeLoadSheet(beech(c.crew, c.pax, c.cargo, c.fuelallowance), beechGroups(),
                                          "Beech 1900D", {2026, 11, 23});
    ASSERT_EQ(sheet.totals.size(), c.totals.size());
    for (std::size_t i = 0; i < c.totals.size(); ++i) {
        SCOPED_TRACE(c.totals[i].label);
        EXPECT_EQ(sheet.totals[i].label, c.totals[i].label);
        EXPECT_EQ(sheet.totals[i].weight, c.totals[i].weight);
        EXPECT_EQ(sheet.totals[i].limit, c.totals[i].limit);
        EXPECT_EQ(sheet.totals[i].margin, c.totals[i].margin);
        EXPECT_EQ(sheet.totals[i].exceeded, c.totals[i].exceeded);
    }
    ASSERT_EQ(sheet.groups.size(), 3u);
    EXPECT_EQ(sheet.groups[2].count, c.hold.count);
    EXPECT_EQ(sheet.groups[2].weight, c.hold.weight);
    EXPECT_EQ(sheet.groups[2].margin, c.hold.margin);
    EXPECT_EQ(sheet.groups[2].exceeded, c.hold.exceeded);
}

const LoadSheetRow kBow = row("Basic operating weight", "", "10615 lb (4815 kg)");

INSTANTIATE_TEST_SUITE_P(
    Loads, LoadSheetFigures,
    ::testing::Values(
        SheetCase{"Light",
                  170,
                  170,
                  0,
                  3578,
                  {kBow, row("Payload", "", "340 lb (154 kg)"),
                   row("Zero-fuel weight", "", "10955 lb (4969 kg)", "15000 lb (6804 kg)",
                       "margin 4045 lb (1835 kg)"),
                   row("Allowable fuel", "", "3578 lb (1623 kg)", "3578 lb (1623 kg)"),
                   row("Take-off weight", "", "14533 lb (6592 kg)", "16950 lb (7688 kg)",
                       "margin 2417 lb (1096 kg)"),
                   row("Maximum landing weight", "", "", "16500 lb (7484 kg)", "margin 5545 lb (2515 kg)")},
                  row("", "0 / 1", "0 lb (0 kg)", "500 lb (227 kg)", "margin 500 lb (227 kg)")},
        // Past the zero-fuel limit: the fuel left fills up to the take-off limit exactly, which passes.
        SheetCase{
            "OverZeroFuel",
            200,
            4200,
            400,
            1535,
            {kBow, row("Payload", "", "4800 lb (2177 kg)"),
             row("Zero-fuel weight", "", "15415 lb (6992 kg)", "15000 lb (6804 kg)",
                 "EXCEEDED by 415 lb (188 kg)", true),
             row("Allowable fuel", "", "1535 lb (696 kg)", "3578 lb (1623 kg)"),
             row("Take-off weight", "", "16950 lb (7688 kg)", "16950 lb (7688 kg)", "margin 0 lb (0 kg)"),
             row("Maximum landing weight", "", "", "16500 lb (7484 kg)", "margin 1085 lb (492 kg)")},
            row("", "1 / 1", "400 lb (181 kg)", "500 lb (227 kg)", "margin 100 lb (45 kg)")},
        // So heavy that no fuel is allowed: the take-off weight counts none and is over its limit.
        SheetCase{
            "NoFuelAllowed",
            200,
            5700,
            600,
            -165,
            {kBow, row("Payload", "", "6500 lb (2948 kg)"),
             row("Zero-fuel weight", "", "17115 lb (7763 kg)", "15000 lb (6804 kg)",
                 "EXCEEDED by 2115 lb (959 kg)", true),
             row("Allowable fuel", "", "-165 lb (-75 kg)", "3578 lb (1623 kg)"),
             row("Take-off weight", "", "17115 lb (7763 kg)", "16950 lb (7688 kg)",
                 "EXCEEDED by 165 lb (75 kg)", true),
             row("Maximum landing weight", "", "", "16500 lb (7484 kg)", "EXCEEDED by 615 lb (279 kg)",
                 true)},
            row("", "1 / 1", "600 lb (272 kg)", "500 lb (227 kg)", "EXCEEDED by 100 lb (45 kg)", true)}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(LoadSheet, HeadsTheSheetWithTypeFolderDateAndVersionAndNamesTheFileAfterTypeAndDate)
{
    const LoadSheet sheet =
        makeLoadSheet(beech(170, 170, 0, 3578), beechGroups(), "Beech 1900D", {2026, 11, 3});
    EXPECT_EQ(sheet.type, "Beech 1900D");
    EXPECT_EQ(sheet.folder, "beech");
    EXPECT_EQ(sheet.date, "3 Nov 2026");
    EXPECT_EQ(sheet.program, "Quillet 2.0");
    EXPECT_EQ(sheet.fileName, "Beech 1900D 2026-11-03.pdf");
    EXPECT_EQ(sheet.groups[0].label, "Crew");
    EXPECT_EQ(sheet.groups[0].count, "1 / 1");
    EXPECT_EQ(sheet.groups[1].count, "1 / 2");
    EXPECT_EQ(sheet.groups[1].weight, "170 lb (77 kg)");
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

CentreOfGravity cg(double x, double bandX, double percentX, double y, double bandY, double percentY)
{
    CentreOfGravity result;
    result.x = x;
    result.bandX = bandX;
    result.percentX = percentX;
    result.y = y;
    result.bandY = bandY;
    result.percentY = percentY;
    return result;
}

INSTANTIATE_TEST_SUITE_P(
    Axes, CentreOfGravityWords,
    ::testing::Values(
        AxisCase{cg(1.3, 2.1, -61.9, -0.5, 0.4, -125),
                 "Centre of gravity 1.3 ft forward of the empty aircraft's (allowed: 2.1 ft either way), 62 "
                 "% of the band",
                 "Centre of gravity 0.5 ft left of the empty aircraft's (allowed: 0.4 ft either way), 125 % "
                 "of the band"},
        AxisCase{
            cg(-0.26, 1.4, 18.6, 0.04, 0.2, 20),
            "Centre of gravity 0.3 ft aft of the empty aircraft's (allowed: 1.4 ft either way), 19 % of the "
            "band",
            "Centre of gravity at the empty aircraft's (allowed: 0.2 ft either way), 20 % of the band"}));

} // namespace
} // namespace quillet

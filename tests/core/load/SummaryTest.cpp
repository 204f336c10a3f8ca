#include "load/Summary.h"

#include "DrawOpText.h"
#include "Golden.h"
#include "core/cfgfile/SmallType.h"

#include <gtest/gtest.h>

namespace quillet {
namespace {

// The parts of a load form that the summary fills.
struct TestForm : SummaryForm {
    SummaryLabels labels;
    RecordingCanvas picture4{2295, 375};
    RecordingCanvas picture3{1695, 375};

    SummaryLabels& summaryLabels() override { return labels; }
    Canvas& Picture4() override { return picture4; }
    Canvas& Picture3() override { return picture3; }
    void nopass() override {}
};

// A small aircraft: limits of the Beech 1900D, stations from x -17 to 18 and y -2 to 2.
LoadState beechLike()
{
    LoadState state;
    setBeechLimits(state);
    state.maxpax = 19;
    state.nstations = 21;
    state.ncargo = 2;
    state.stationx[0] = 18;
    state.stationx[1] = 13.5f;
    state.stationy[1] = -2;
    state.stationx[2] = 13.5f;
    state.stationy[2] = 2;
    state.stationx[22] = -17;
    return state;
}

// The colour of the centre-of-gravity dot, drawn once.
Rgb dot(const RecordingCanvas& picture)
{
    const auto circles = picture.ops(DrawOp::Kind::Circle);
    EXPECT_EQ(circles.size(), 1u);
    if (circles.empty())
        return {};
    EXPECT_EQ(circles.front().fillColor, circles.front().colour) << "a dot filled in its own colour";
    return circles.front().colour;
}

TEST(WeightSummary, EmptyAircraftAndAnOverloadWithANegativeFuelAllowance)
{
    LoadState state = beechLike();
    TestForm form;
    summary(form, state, "Beech 1900D");
    EXPECT_EQ(form.labels.lblbow.text, "Basic Operating weight = 10615 lb.");
    EXPECT_EQ(form.labels.lblpax.text, "PAX weight =  0 lb.");
    EXPECT_EQ(state.fuelallowance, 3578) << "the tank limit is below take-off minus empty weight";
    EXPECT_EQ(form.labels.lblmf.text, "Maximum Allowable Fuel weight =  3578 lb.");
    EXPECT_EQ(form.labels.lbltot.text, "Total weight = 14193 lb.");
    EXPECT_EQ(form.labels.lblpass.text, "Passengers  0 / 19");
    EXPECT_EQ(form.labels.lblmaxtow.text, "Max takeoff weight  16950 lb.");
    EXPECT_EQ(form.labels.lblmaxfuel.text, "Fuel capacity  3578 lb.");
    EXPECT_FALSE(form.labels.warning.visible);

    state.maxzerofuel = 20000;
    state.stationweight[10] = state.loadweight = 6500;
    summary(form, state, "Beech 1900D");
    EXPECT_EQ(state.fuelallowance, -165);
    EXPECT_EQ(form.labels.lblmf.text, "Maximum Allowable Fuel weight =  -165 lb.");
    EXPECT_EQ(form.labels.lbltot.text, "Total weight = 16950 lb.");
}

// A load 0.4 ft aft of the reference point: out of balance on its 16 ft span (limit 0.32 ft), but
// not once a station at x = -30 widens the span to 38 ft (limit 0.76 ft).
LoadState slightlyAft()
{
    LoadState state;
    state.emptyweight = 1000;
    state.maxtakeoff = state.maxzerofuel = state.maxfuel = 1e6f;
    state.nstations = 2;
    state.stationx[0] = -8;
    state.stationx[1] = 8;
    state.stationweight[0] = 100;
    state.stationweight[1] = 100 - 1101 * 0.4f / 8; // cg at about -0.4 ft
    state.loadweight = state.stationweight[0] + state.stationweight[1];
    return state;
}

// The same span in balance: 250 lb at x = 4 then puts the centre of gravity 0.69 ft forward.
LoadState balanced()
{
    LoadState state = slightlyAft();
    state.stationweight[1] = 100;
    return state;
}

// A jet with stations 60 ft either way along and 6 ft either way across.
LoadState jetLike()
{
    LoadState state;
    state.emptyweight = 10000;
    state.maxtakeoff = state.maxzerofuel = state.maxfuel = 1e6f;
    state.stationx[0] = 60;
    state.stationx[1] = -60;
    state.stationy[2] = -6;
    state.stationy[3] = 6;
    return state;
}

// An aircraft with one station placed at x and loaded with weight (none where station is -1).
struct Verdict {
    const char* name;
    LoadState (*aircraft)();
    int station;
    float x, weight;
    const char* warning; // nullptr while hidden
    Rgb paxColour, along, across;
};

class WeightSummaryVerdicts : public ::testing::TestWithParam<Verdict> {};

// Each verdict on a form that last warned of both limits, so that what no longer holds goes away.
TEST_P(WeightSummaryVerdicts, WarningLineLabelColourAndBalanceDots)
{
    const Verdict& v = GetParam();
    TestForm form;
    LoadState warned = beechLike();
    warned.stationweight[0] = warned.loadweight = 5000;
    summary(form, warned, "Beech 1900D");
    form.picture4.forget();
    form.picture3.forget();

    LoadState state = v.aircraft();
    if (v.station >= 0) {
        state.stationx[v.station] = v.x;
        state.stationweight[v.station] = v.weight;
        state.loadweight += v.weight;
    }
    summary(form, state, "B737-300");
    EXPECT_EQ(form.labels.warning.visible, v.warning != nullptr);
    if (v.warning) {
        EXPECT_EQ(form.labels.warning.text, v.warning);
        EXPECT_EQ(form.labels.warning.foreColor, kRed);
    }
    EXPECT_EQ(form.labels.lblpax.foreColor, v.paxColour);
    EXPECT_EQ(dot(form.picture4), v.along);
    EXPECT_EQ(dot(form.picture3), v.across);
}

const char* const kOutOfBalance = "Warning aircraft out of balance";
const char* const kZeroFuel = "15000 lb Max. Zero Fuel Weight Exceeded";

// The zero-fuel test is strict: at the limit passes, a pound above does not; out of balance replaces
// its warning. A station left over from a larger type widens the span though it carries nothing;
// the balance takes stations up to 400. The jet loaded on its left side only is 0.55 ft left of the
// reference point, beyond 2 % of the 12 ft span across but within 2 % of the 120 ft span along.
const Verdict kVerdicts[] = {
    {"Empty", beechLike, -1, 0, 0, nullptr, kBlack, kBlue, kBlue},
    {"AtTheZeroFuelLimit", beechLike, 10, 0, 4385, nullptr, kBlack, kBlue, kBlue},
    {"OverTheZeroFuelLimit", beechLike, 10, 0, 4386, kZeroFuel, kRed, kBlue, kBlue},
    {"AllInTheNose", beechLike, 0, 18, 5000, kOutOfBalance, kRed, kRed, kBlue},
    {"SlightlyAft", slightlyAft, -1, 0, 0, kOutOfBalance, kBlack, kRed, kBlue},
    {"LeftoverStation", slightlyAft, 300, -30, 0, nullptr, kBlack, kBlue, kBlue},
    {"Station400Counts", slightlyAft, 400, -30, 0, nullptr, kBlack, kBlue, kBlue},
    {"Station401DoesNot", slightlyAft, 401, -30, 0, kOutOfBalance, kBlack, kRed, kBlue},
    {"WeightOn400", balanced, 400, 4, 250, kOutOfBalance, kBlack, kRed, kBlue},
    {"WeightOn401", balanced, 401, 4, 250, nullptr, kBlack, kBlue, kBlue},
    {"LeftSideOnly", jetLike, 2, 0, 1000, kOutOfBalance, kBlack, kBlue, kRed},
};

INSTANTIATE_TEST_SUITE_P(Loads, WeightSummaryVerdicts, ::testing::ValuesIn(kVerdicts),
                         [](const auto& info) { return std::string(info.param.name); });

// The second drawing clears the first: a line along the span, a tick at the reference point and the
// dot at the centre of gravity, solid blue.
TEST(BalanceIndicator, BeechFiguresDrawnOnAClearedPicture)
{
    RecordingCanvas picture4(2295, 375);
    RecordingCanvas picture3(1695, 375);
    balance(18, -17, 2, -2, 3, 0, 0.02, picture4, picture3);
    balance(18, -17, 2, -2, 0.5, 0, 0.02, picture4, picture3);
    expectGoldenFile("Beech.balance", describe(picture4.ops()) + describe(picture3.ops()));
}

TEST(BalanceIndicator, BlueUpToTwoPercentOfTheSpanRedBeyond)
{
    struct Case {
        double maxx, minx, maxy, miny, cgx, cgy;
        Rgb along, across;
    };
    const Case cases[] = {
        {25, -25, 1, -1, 1.0, -0.04, kBlue, kBlue}, // on the boundary: span 50, the limit exactly 1
        {25, -25, 1, -1, 1.0001, -0.0401, kRed, kRed},
        {10, -10, 0, 0, 0, 0, kBlue, kBlue}, // no span across: exactly 0 is within a zero tolerance
        {10, -10, 0, 0, 0, 0.001, kBlue, kRed},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.cgy);
        RecordingCanvas picture4(2295, 375);
        RecordingCanvas picture3(1695, 375);
        balance(c.maxx, c.minx, c.maxy, c.miny, c.cgx, c.cgy, 0.02, picture4, picture3);
        EXPECT_EQ(dot(picture4), c.along);
        EXPECT_EQ(dot(picture3), c.across);
        if (c.maxy == c.miny) { // and the span collapses onto the centre
            const auto lines = picture3.ops(DrawOp::Kind::Line);
            ASSERT_EQ(lines.size(), 2u);
            EXPECT_DOUBLE_EQ(lines[0].x1, 847.5);
            EXPECT_DOUBLE_EQ(lines[0].x2, 847.5);
            EXPECT_DOUBLE_EQ(lines[1].x1, 847.5);
        }
    }
}

} // namespace
} // namespace quillet

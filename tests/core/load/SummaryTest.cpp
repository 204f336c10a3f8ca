#include "load/Summary.h"

#include "platform/RecordingCanvas.h"

#include <functional>
#include <gtest/gtest.h>

namespace quillet {
namespace {

// The parts of a load form that the summary fills.
struct TestForm : SummaryForm {
    SummaryLabels labels;
    RecordingCanvas picture4{2295, 375};
    RecordingCanvas picture3{1695, 375};
    std::function<void()> count = [] {};

    SummaryLabels& summaryLabels() override { return labels; }
    Canvas& Picture4() override { return picture4; }
    Canvas& Picture3() override { return picture3; }
    void nopass() override { count(); }
};

// A small aircraft: limits of the Beech 1900D, stations from x -17 to 18 and y -2 to 2.
LoadState beechLike()
{
    LoadState state;
    state.emptyweight = 10615;
    state.maxtakeoff = 16950;
    state.maxlanding = 16500;
    state.maxzerofuel = 15000;
    state.maxfuel = 3578;
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

DrawOp dot(const RecordingCanvas& picture)
{
    const auto circles = picture.ops(DrawOp::Kind::Circle);
    EXPECT_EQ(circles.size(), 1u);
    return circles.empty() ? DrawOp{} : circles.front();
}

TEST(WeightSummary, EmptyAircraft)
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
    EXPECT_EQ(form.labels.lblpax.foreColor, kBlack);
    EXPECT_EQ(dot(form.picture4).fillColor, kBlue);
    EXPECT_EQ(dot(form.picture3).fillColor, kBlue);
}

TEST(WeightSummary, ZeroFuelLimitIsStrict)
{
    LoadState state = beechLike();
    state.stationweight[10] = state.loadweight = 15000 - 10615; // at x = 0: no balance warning
    TestForm form;
    summary(form, state, "Beech 1900D");
    EXPECT_FALSE(form.labels.warning.visible);
    EXPECT_EQ(form.labels.lblpax.foreColor, kBlack);

    state.stationweight[10] = state.loadweight = 15000 - 10615 + 1;
    summary(form, state, "Beech 1900D");
    EXPECT_TRUE(form.labels.warning.visible);
    EXPECT_EQ(form.labels.warning.text, "15000 lb Max. Zero Fuel Weight Exceeded");
    EXPECT_EQ(form.labels.warning.foreColor, kRed);
    EXPECT_EQ(form.labels.lblpax.foreColor, kRed);

    // And back within the limit: the warning goes.
    state.stationweight[10] = state.loadweight = 100;
    summary(form, state, "Beech 1900D");
    EXPECT_FALSE(form.labels.warning.visible);
    EXPECT_EQ(form.labels.lblpax.foreColor, kBlack);
}

TEST(WeightSummary, OverloadGivesANegativeFuelAllowance)
{
    LoadState state = beechLike();
    state.maxzerofuel = 20000;
    state.stationweight[10] = state.loadweight = 6500;
    TestForm form;
    summary(form, state, "Beech 1900D");
    EXPECT_EQ(state.fuelallowance, -165);
    EXPECT_EQ(form.labels.lblmf.text, "Maximum Allowable Fuel weight =  -165 lb.");
    EXPECT_EQ(form.labels.lbltot.text, "Total weight = 16950 lb.");
}

TEST(WeightSummary, OutOfBalanceReplacesTheZeroFuelWarning)
{
    LoadState state = beechLike();
    state.stationweight[0] = state.loadweight = 5000; // all in the nose, and too heavy
    TestForm form;
    summary(form, state, "Beech 1900D");
    EXPECT_TRUE(form.labels.warning.visible);
    EXPECT_EQ(form.labels.warning.text, "Warning aircraft out of balance");
    EXPECT_EQ(form.labels.lblpax.foreColor, kRed);
    EXPECT_EQ(dot(form.picture4).fillColor, kRed);
    EXPECT_EQ(dot(form.picture3).fillColor, kBlue);
}

TEST(WeightSummary, CountsComeFromTheFormsOwnCount)
{
    LoadState state = beechLike();
    TestForm form;
    form.count = [&state] { state.npax = 7; };
    summary(form, state, "Beech 1900D");
    EXPECT_EQ(form.labels.lblpass.text, "Passengers  7 / 19");
}

TEST(WeightSummary, FreightersCountMainDeckContainers)
{
    LoadState state;
    state.maxpax = 0;
    state.nstations = 2;
    state.ncargo = 17;
    state.nlower = 2;
    TestForm form;
    form.count = [&state] { state.ncontainers = 4; };
    summary(form, state, "B757-200F");
    EXPECT_EQ(form.labels.lblpass.text, "Containers  4 / 15");
    summary(form, state, "DC-9-30F");
    EXPECT_EQ(form.labels.lblpass.text, "Containers  4 / 15");
    summary(form, state, "b757-200f");
    EXPECT_EQ(form.labels.lblpass.text, "Passengers  0 / 0") << "type strings compare with letter case";
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

TEST(WeightSummary, LeftoverStationsBeyondTheTypeWidenTheSpan)
{
    LoadState state = slightlyAft();
    TestForm form;
    summary(form, state, "Beech 1900D");
    EXPECT_TRUE(form.labels.warning.visible);
    EXPECT_EQ(dot(form.picture4).colour, kRed);

    state.stationx[300] = -30; // left over from a larger type, weight 0
    summary(form, state, "Beech 1900D");
    EXPECT_FALSE(form.labels.warning.visible);
}

TEST(WeightSummary, TheBalanceTakesStationsUpTo400)
{
    for (const int station : {400, 401}) {
        SCOPED_TRACE(station);
        LoadState state = slightlyAft();
        state.stationx[station] = -30;
        TestForm form;
        summary(form, state, "Beech 1900D");
        EXPECT_EQ(form.labels.warning.visible, station == 401);
        EXPECT_EQ(dot(form.picture4).colour, station == 401 ? kRed : kBlue);
    }

    // A weight there moves the centre of gravity: 250 lb at x = 4 puts it 0.69 ft forward.
    for (const int station : {400, 401}) {
        SCOPED_TRACE(station);
        LoadState state = slightlyAft();
        state.stationweight[1] = 100; // balanced without it
        state.stationx[station] = 4;
        state.stationweight[station] = 250;
        TestForm form;
        summary(form, state, "Beech 1900D");
        EXPECT_EQ(dot(form.picture4).colour, station == 400 ? kRed : kBlue);
    }
}

TEST(BalanceIndicator, BeechFigures)
{
    RecordingCanvas picture4(2295, 375);
    RecordingCanvas picture3(1695, 375);
    balance(18, -17, 2, -2, 0.5, 0, 0.02, picture4, picture3);

    const auto lines = picture4.ops(DrawOp::Kind::Line);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_NEAR(lines[0].x1, 104.3, 0.05);
    EXPECT_NEAR(lines[0].x2, 2190.7, 0.05);
    EXPECT_NEAR(lines[0].y1, 187.5, 1e-9);
    EXPECT_NEAR(lines[1].x1, 1177.3, 0.05) << "the tick at the reference point";
    EXPECT_NEAR(lines[1].y1, 93.75, 1e-9);
    EXPECT_NEAR(lines[1].y2, 281.25, 1e-9);
    const DrawOp cg = dot(picture4);
    EXPECT_NEAR(cg.x1, 1147.5, 0.05);
    EXPECT_NEAR(cg.radius, 37.5, 1e-9);
    EXPECT_EQ(cg.fillStyle, FillStyle::Solid);
    EXPECT_EQ(cg.colour, kBlue);

    EXPECT_EQ(picture4.ops().front().kind, DrawOp::Kind::Clear);
    EXPECT_EQ(picture3.ops().front().kind, DrawOp::Kind::Clear);
}

TEST(BalanceIndicator, BlueOnTheTwoPercentBoundaryRedJustAbove)
{
    RecordingCanvas picture4(2295, 375);
    RecordingCanvas picture3(1695, 375);
    // Span 50: the limit is exactly 1.
    balance(25, -25, 1, -1, 1.0, -0.04, 0.02, picture4, picture3);
    EXPECT_EQ(dot(picture4).colour, kBlue);
    EXPECT_EQ(dot(picture3).colour, kBlue);

    picture4.forget();
    picture3.forget();
    balance(25, -25, 1, -1, 1.0001, -0.0401, 0.02, picture4, picture3);
    EXPECT_EQ(dot(picture4).colour, kRed);
    EXPECT_EQ(dot(picture3).colour, kRed);
}

TEST(BalanceIndicator, ZeroSpanCollapsesOntoTheCentre)
{
    RecordingCanvas picture4(2295, 375);
    RecordingCanvas picture3(1695, 375);
    balance(10, -10, 0, 0, 0, 0, 0.02, picture4, picture3);
    const auto lines = picture3.ops(DrawOp::Kind::Line);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_DOUBLE_EQ(lines[0].x1, 847.5);
    EXPECT_DOUBLE_EQ(lines[0].x2, 847.5);
    EXPECT_DOUBLE_EQ(lines[1].x1, 847.5);
    EXPECT_EQ(dot(picture3).colour, kBlue) << "exactly 0 is within a zero tolerance";

    picture3.forget();
    balance(10, -10, 0, 0, 0, 0.001, 0.02, picture4, picture3);
    EXPECT_EQ(dot(picture3).colour, kRed);
}

TEST(BalanceIndicator, EveryCallStartsFromAClearPicture)
{
    RecordingCanvas picture4(2295, 375);
    RecordingCanvas picture3(1695, 375);
    balance(18, -17, 2, -2, 0, 0, 0.02, picture4, picture3);
    balance(18, -17, 2, -2, 3, 0, 0.02, picture4, picture3);
    const auto& ops = picture4.ops();
    ASSERT_EQ(ops.size(), 8u);
    EXPECT_EQ(ops[4].kind, DrawOp::Kind::Clear);
}

// A jet loaded on its left side only: the centre of gravity lies 0.55 ft left of the reference point,
// beyond 2 % of the 12 ft span across but within 2 % of the 120 ft span along.
TEST(WeightSummary, LoadOnOneSideOnlyIsOutOfBalanceAcross)
{
    LoadState state;
    state.emptyweight = 10000;
    state.maxtakeoff = state.maxzerofuel = state.maxfuel = 1e6f;
    state.stationx[0] = 60;
    state.stationx[1] = -60;
    state.stationy[2] = -6;
    state.stationy[3] = 6;
    state.stationweight[2] = state.loadweight = 1000;
    TestForm form;
    summary(form, state, "B737-300");
    EXPECT_TRUE(form.labels.warning.visible);
    EXPECT_EQ(form.labels.warning.text, "Warning aircraft out of balance");
    EXPECT_EQ(dot(form.picture4).colour, kBlue);
    EXPECT_EQ(dot(form.picture3).colour, kRed);
}

} // namespace
} // namespace quillet

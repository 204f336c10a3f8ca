#include "JetRig.h"

#include <gtest/gtest.h>
#include <ostream>
#include <tuple>

namespace quillet {
namespace {

TEST(JetDC8_71F, TheAftmostContainerIsInsideThePictureAndItsLabelOpensToItsLeft)
{
    // The tail cone runs past the 9500-twip picture, the aftmost container does not.
    JetRig rig;
    Boeing& form = rig.open("DC-8-71F");
    LoadState& state = rig.session.state;
    const int c18 = 20;
    state.stationweight[c18] = 4000;
    EXPECT_EQ(state.stationpx[c18], 8405);
    form.Picture1_MouseMove(0, 0, 8405, state.stationpy[c18]);
    const DrawOp label = rig.picture().ops(DrawOp::Kind::Text).back();
    EXPECT_EQ(label.text, " Container 18 4000 lb.");
    EXPECT_DOUBLE_EQ(label.x1, 8405 - 0.75 * 47 - rig.picture().textWidth(label.text));
}

TEST(JetDC8_71F, DrawingChecksTheCargoFirstUnlikeTheOtherTypes)
{
    for (const auto& [type, container, checks] :
         {std::tuple{"DC-8-71F", 3, true}, std::tuple{"DC-9-30F", 3, false}}) {
        JetRig rig;
        Boeing& form = rig.open(type);
        LoadState& state = rig.session.state;
        state.stationweight[container] = state.stationmax[container] + 1;
        rig.picture().forget();
        form.redraw();
        EXPECT_EQ(state.stationmsg[container], checks ? " Container Overload" : "") << type;
        const auto fills = rig.picture().ops(DrawOp::Kind::FloodFill);
        ASSERT_EQ(fills.size(), 1u) << type;
        EXPECT_EQ(fills[0].fillColor, checks ? kRed : kGreen) << type;
    }
}

// Steers a preset: the first draw, then the same share for every other draw.
void pushPresetDraws(ScriptedRandom& random, double first, double rest, int cargo)
{
    random.push(first);
    for (int i = 0; i < cargo; ++i)
        random.push(rest);
}

TEST(JetFreighters, PresetsLoadTheCargoAndLeaveTheCrew)
{
    for (const char* type : {"DC-9-30F", "DC-8-71F", "B757-200F"}) {
        SCOPED_TRACE(type);
        JetRig rig;
        Boeing& form = rig.open(type);
        LoadState& state = rig.session.state;
        for (void (Boeing::*preset)() :
             {&Boeing::mnulight_Click, &Boeing::mnumed_Click, &Boeing::mnuheav_Click}) {
            for (int i = 0; i < state.nstations; ++i) // the crew
                state.stationweight[i] = 160.0f + 10 * i;
            pushPresetDraws(rig.random, 0.9, 0.5, state.ncargo);
            (form.*preset)();
            EXPECT_EQ(rig.random.left(), 0u);
            EXPECT_EQ(rig.random.overdrawn(), 0);
            for (int i = 0; i < state.nstations; ++i)
                EXPECT_EQ(state.stationweight[i], 160.0f + 10 * i) << i;
            EXPECT_EQ(state.npax, 0);
            EXPECT_FLOAT_EQ(state.loadweight, rig.sumOfWeights());
        }
    }
}

TEST(JetFreighters, HeavyLoadsEveryCargoStationAtItsOwnShare)
{
    JetRig rig;
    Boeing& form = rig.open("DC-9-30F");
    const float maxima[] = {2200, 4800, 4800, 4800, 4800, 4800, 4800, 4800, 4800, 2100, 7300, 4300};
    rig.random.push(0.3);
    for (int i = 0; i < 12; ++i)
        rig.random.push(i / 12.0);
    form.mnuheav_Click();
    const LoadState& state = rig.session.state;
    for (int i = 0; i < 12; ++i)
        EXPECT_NEAR(state.stationweight[3 + i], maxima[i] * (0.2 * i / 12.0 + 0.5), 1e-3) << i;
    // Ten main-deck containers loaded; the holds are not counted.
    EXPECT_EQ(state.ncontainers, 10);
    EXPECT_EQ(form.labels.lblpass.text, "Containers  10 / 10");
}

// Light and Medium load the cargo after the first two containers at a share of its maxima scaled by
// what the zero-fuel weight leaves for cargo: (maxzerofuel - emptyweight) / the sum of all maxima.
struct ScaledCargo {
    const char* type;
    void (Boeing::*preset)();
    double share; // a × 0.5 + b of the preset
    int station;  // the third container
    double expected;
};

void PrintTo(const ScaledCargo& c, std::ostream* out)
{
    *out << c.type << (c.preset == &Boeing::mnulight_Click ? " Light" : " Medium");
}

class JetFreighterPresets : public ::testing::TestWithParam<ScaledCargo> {};

TEST_P(JetFreighterPresets, ScaleTheLaterCargoByTheZeroFuelWeight)
{
    const ScaledCargo& c = GetParam();
    JetRig rig;
    Boeing& form = rig.open(c.type);
    pushPresetDraws(rig.random, 0.9, 0.5, rig.session.state.ncargo);
    (form.*c.preset)();
    EXPECT_NEAR(rig.session.state.stationweight[c.station], c.expected * c.share, 0.01);
}

constexpr double kLight = 0.28 * 0.5 + 0.05;
constexpr double kMedium = 0.33 * 0.5 + 0.33;
// Each type's station maximum × (maxzerofuel - emptyweight) / sum of its cargo maxima.
constexpr double kB757F = 8800 * (200000.0 - 112000) / (15 * 8800 + 10300 + 16300);
constexpr double kDC9 = 4800 * (87000.0 - 56430) / (2200 + 8 * 4800 + 2100 + 7300 + 4300);
constexpr double kDC8 = 8800 * (234000.0 - 152700) / (17 * 8800 + 5000 + 15000 + 15000);

INSTANTIATE_TEST_SUITE_P(
    SecondGroup, JetFreighterPresets,
    ::testing::Values(ScaledCargo{"B757-200F", &Boeing::mnulight_Click, kLight, 4, kB757F},
                      ScaledCargo{"B757-200F", &Boeing::mnumed_Click, kMedium, 4, kB757F},
                      ScaledCargo{"DC-9-30F", &Boeing::mnulight_Click, kLight, 5, kDC9},
                      ScaledCargo{"DC-9-30F", &Boeing::mnumed_Click, kMedium, 5, kDC9},
                      ScaledCargo{"DC-8-71F", &Boeing::mnulight_Click, kLight, 5, kDC8},
                      ScaledCargo{"DC-8-71F", &Boeing::mnumed_Click, kMedium, 5, kDC8}));

} // namespace
} // namespace quillet

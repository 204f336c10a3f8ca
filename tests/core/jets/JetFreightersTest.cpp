#include "JetChecks.h"
#include "JetRig.h"
#include "jets/DataDC8.h"
#include "jets/DataDC9.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <tuple>

namespace quillet {
namespace {

// The boxes of a freighter's main deck, in drawing order: one per container.
std::vector<DrawOp> containerBoxes(JetRig& rig)
{
    rig.picture().forget();
    rig.form->redraw();
    return rig.picture().ops(DrawOp::Kind::Box);
}

TEST(JetDC9_30F, ContainersAreDrawnEndToEndWithAnInchBetweenTheFirstTwo)
{
    JetRig rig;
    rig.open("DC-9-30F");
    const auto boxes = containerBoxes(rig);
    ASSERT_EQ(boxes.size(), 10u);
    // Container 1: 4.5 ft by 7.3333 ft centred on (36.7333, 0), at 65 twips per foot from (76.5, 9).
    EXPECT_NEAR(boxes[0].x1, (76.5 - 36.7333 - 2.25) * 65, 0.01);
    EXPECT_NEAR(boxes[0].y1, (9 - 3.66667) * 65, 0.01);
    EXPECT_NEAR(boxes[0].x2 - boxes[0].x1, 4.5 * 65, 1e-3);
    // Centres 6 ft apart; the boxes 1 inch apart.
    EXPECT_NEAR((boxes[1].x1 + boxes[1].x2) / 2 - (boxes[0].x1 + boxes[0].x2) / 2, 6 * 65, 1e-3);
    EXPECT_NEAR(boxes[1].x1 - boxes[0].x2, 65.0 / 12, 1e-3);
    // Container 10 sits 6 ft behind Container 9.
    EXPECT_NEAR((boxes[9].x1 + boxes[9].x2) / 2 - (boxes[8].x1 + boxes[8].x2) / 2, 6 * 65, 1e-3);

    // Three crew circles of 0.7 ft; the holds' labels start at x = 50 and -32 ft.
    const auto circles = rig.picture().ops(DrawOp::Kind::Circle);
    ASSERT_EQ(circles.size(), 3u);
    EXPECT_DOUBLE_EQ(circles[0].radius, 45.5);
    expectTexts(rig.picture(), {{"Main Deck", 422.5, 97.5},
                                {"Lower Deck", kAnywhere, 1170},
                                {"Forward", 1722.5, kAnywhere},
                                {"Aft", 7052.5, kAnywhere}});
}

TEST(JetDC8_71F, Container18IsDrawnTurnedNineFeetBehindContainer17)
{
    JetRig rig;
    rig.open("DC-8-71F");
    const auto boxes = containerBoxes(rig);
    ASSERT_EQ(boxes.size(), 18u);
    const DrawOp& c17 = boxes[16];
    const DrawOp& c18 = boxes[17];
    EXPECT_NEAR(c17.x2 - c17.x1, 88.0 / 12 * 47, 1e-3);
    EXPECT_NEAR(c17.y2 - c17.y1, 125.0 / 12 * 47, 1e-3);
    EXPECT_NEAR(c18.x2 - c18.x1, 125.0 / 12 * 47, 1e-3);
    EXPECT_NEAR(c18.y2 - c18.y1, 88.0 / 12 * 47, 1e-3);
    EXPECT_NEAR((c18.x1 + c18.x2) / 2 - (c17.x1 + c17.x2) / 2, 9 * 47, 1e-3);
    EXPECT_NEAR(c18.x1, (102 + 76.8333 - 125.0 / 24) * 47, 0.01);
    EXPECT_NEAR((c18.y1 + c18.y2) / 2, 11 * 47, 1e-3);

    expectTexts(rig.picture(), {{"Main Deck", 94, 164.5},
                                {"Lower Deck", kAnywhere, 1081},
                                {"Forward", 1504, kAnywhere},
                                {"Aft", 5499, kAnywhere}});
}

TEST(JetDC8_71F, TheOutlineRunsPastThePictureAndEverythingElseStillDraws)
{
    JetRig rig;
    Boeing& form = rig.open("DC-8-71F");
    LoadState& state = rig.session.state;
    rig.picture().forget();
    form.redraw();
    // The tail cone ends at (102 + 108.16) * 47 = 9877.52 twips, past the 9500-twip picture.
    double farthest = 0;
    for (const DrawOp& line : rig.picture().ops(DrawOp::Kind::Line))
        farthest = std::max({farthest, line.x1, line.x2});
    EXPECT_NEAR(farthest, 9877.52, 1e-6);

    // The aftmost container is still inside, and its label opens to its left.
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

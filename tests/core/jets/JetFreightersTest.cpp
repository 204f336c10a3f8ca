#include "JetRig.h"
#include "TypeTable.h"
#include "jets/DataDC8.h"
#include "jets/DataDC9.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <tuple>

namespace quillet {
namespace {

// A main-deck container as its table gives it: centre x, maximum, length and width in feet.
struct Container {
    int index;
    const char* name;
    double x;
    float maximum;
    double length;
    double width;
};

void expectContainers(const LoadState& state, std::initializer_list<Container> containers)
{
    for (const Container& expected : containers) {
        const int i = expected.index;
        EXPECT_EQ(state.stationname[i], expected.name) << i;
        EXPECT_NEAR(state.stationx[i], expected.x, 1e-4) << expected.name;
        EXPECT_EQ(state.stationy[i], 0) << expected.name;
        EXPECT_EQ(state.stationmax[i], expected.maximum) << expected.name;
        EXPECT_NEAR(state.containerbox[i][2], expected.length, 1e-4) << expected.name;
        EXPECT_NEAR(state.containerbox[i][3], expected.width, 1e-4) << expected.name;
    }
}

TEST(JetDC9_30F, SetUpWritesCrewContainersAndHolds)
{
    LoadState state;
    int deckscale = 0;
    DataDC9::setUpDC9_30F(state, deckscale);

    expectTable(state, deckscale,
                {.maxtakeoff = 108000,
                 .maxlanding = 99000,
                 .emptyweight = 56430,
                 .maxfuel = 24949,
                 .maxzerofuel = 87000,
                 .maxpax = 158,
                 .cfgstations = 15,
                 .seats1 = 0,
                 .seats2 = 0,
                 .seats3 = 0,
                 .nstations = 3,
                 .ncargo = 12,
                 .nlower = 2,
                 .ncrew = 3,
                 .deckscale = 65});
    expectStations(state, {{0, "Pilot", 44, -1.6},
                           {1, "Co-Pilot", 44, 1.6},
                           {2, "Crew", 41, -1.8},
                           {13, "Lower Deck Cargo Forward", 23, 0},
                           {14, "Lower Deck Cargo Aft", -20.5, 0}});
    EXPECT_EQ(state.stationmax[13], 7300);
    EXPECT_EQ(state.stationmax[14], 4300);
    expectContainers(state, {
                                {3, "Container 1", 36.7333, 2200, 4.5, 7.3333},
                                {4, "Container 2", 30.7333, 4800, 7.3333, 9},
                                {5, "Container 3", 23.2333, 4800, 7.3333, 9},
                                {6, "Container 4", 15.7333, 4800, 7.3333, 9},
                                {7, "Container 5", 8.2333, 4800, 7.3333, 9},
                                {8, "Container 6", 0.7333, 4800, 7.3333, 9},
                                {9, "Container 7", -6.7667, 4800, 7.3333, 9},
                                {10, "Container 8", -14.2667, 4800, 7.3333, 9},
                                {11, "Container 9", -21.7667, 4800, 7.3333, 9},
                                {12, "Container 10", -27.7667, 2100, 4.5, 7.3333},
                            });
}

TEST(JetDC8_71F, SetUpWritesCrewContainersAndHolds)
{
    LoadState state;
    int deckscale = 0;
    DataDC8::setUpDC8_71F(state, deckscale);

    expectTable(state, deckscale,
                {.maxtakeoff = 328000,
                 .maxlanding = 258000,
                 .emptyweight = 152700,
                 .maxfuel = 156740,
                 .maxzerofuel = 234000,
                 .maxpax = 3,
                 .cfgstations = 23,
                 .seats1 = 0,
                 .seats2 = 0,
                 .seats3 = 0,
                 .nstations = 3,
                 .ncargo = 20,
                 .nlower = 2,
                 .ncrew = 3,
                 .deckscale = 47});
    expectStations(state, {{0, "Pilot", 67, -1.6},
                           {1, "Co-Pilot", 67, 1.6},
                           {2, "Crew", 60, -1.8},
                           {21, "Lower Deck Cargo Forward", 35.5, 0},
                           {22, "Lower Deck Cargo Aft", -48.5, 0}});
    EXPECT_EQ(state.stationmax[21], 15000);
    EXPECT_EQ(state.stationmax[22], 15000);
    expectContainers(state, {
                                {3, "Container 1", 52.1667, 8800, 7.3333, 10.4167},
                                {4, "Container 2", 44.6667, 8800, 7.3333, 10.4167},
                                {11, "Container 9", -7.8333, 8800, 7.3333, 10.4167},
                                {19, "Container 17", -67.8333, 8800, 7.3333, 10.4167},
                                {20, "Container 18", -76.8333, 5000, 10.4167, 7.3333},
                            });
}

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
    const auto texts = rig.picture().ops(DrawOp::Kind::Text);
    ASSERT_EQ(texts.size(), 4u);
    EXPECT_EQ(texts[0].text, "Main Deck");
    EXPECT_DOUBLE_EQ(texts[0].x1, 422.5);
    EXPECT_DOUBLE_EQ(texts[0].y1, 97.5);
    EXPECT_EQ(texts[1].text, "Lower Deck");
    EXPECT_DOUBLE_EQ(texts[1].y1, 1170);
    EXPECT_EQ(texts[2].text, "Forward");
    EXPECT_DOUBLE_EQ(texts[2].x1, 1722.5);
    EXPECT_EQ(texts[3].text, "Aft");
    EXPECT_DOUBLE_EQ(texts[3].x1, 7052.5);
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

    const auto texts = rig.picture().ops(DrawOp::Kind::Text);
    ASSERT_EQ(texts.size(), 4u);
    EXPECT_DOUBLE_EQ(texts[0].x1, 94);
    EXPECT_DOUBLE_EQ(texts[0].y1, 164.5);
    EXPECT_DOUBLE_EQ(texts[1].y1, 1081);
    EXPECT_DOUBLE_EQ(texts[2].x1, 1504);
    EXPECT_DOUBLE_EQ(texts[3].x1, 5499);
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
    const float crew[] = {190, 175, 160};
    for (const char* type : {"DC-9-30F", "DC-8-71F"}) {
        JetRig rig;
        Boeing& form = rig.open(type);
        LoadState& state = rig.session.state;
        for (void (Boeing::*preset)() :
             {&Boeing::mnulight_Click, &Boeing::mnumed_Click, &Boeing::mnuheav_Click}) {
            std::copy(std::begin(crew), std::end(crew), state.stationweight.begin());
            pushPresetDraws(rig.random, 0.9, 0.5, state.ncargo);
            (form.*preset)();
            EXPECT_EQ(rig.random.left(), 0u) << type;
            EXPECT_EQ(rig.random.overdrawn(), 0) << type;
            for (int i = 0; i < 3; ++i)
                EXPECT_EQ(state.stationweight[i], crew[i]) << type << " " << i;
            EXPECT_EQ(state.npax, 0) << type;
            EXPECT_FLOAT_EQ(state.loadweight, rig.sumOfWeights()) << type;
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

TEST(JetFreighters, SavesOneLinePerStationAsACargoConfiguration)
{
    for (const auto& [type, folder, stations] :
         {std::tuple{"DC-9-30F", "dc9_30f", 15}, std::tuple{"DC-8-71F", "dc8_71f", 23}}) {
        JetRig rig;
        Boeing& form = rig.open(type);
        rig.session.state.stationweight[0] = 180;
        rig.session.state.stationweight[3] = 1500;
        form.mnusave_Click();
        const std::string cfg = rig.dir.read(std::string("sim/aircraft/") + folder + "/aircraft.cfg");
        EXPECT_NE(cfg.find("// " + std::string(type) + " configurationCrago Configuration\r\n"),
                  std::string::npos)
            << cfg;
        EXPECT_NE(cfg.find("max_number_of_stations = " + std::to_string(stations) + "\r\n"),
                  std::string::npos)
            << cfg;
        EXPECT_NE(cfg.find("station_load.0 = 180, "), std::string::npos) << cfg;
        EXPECT_NE(cfg.find(" // Co-Pilot\r\nstation_load.2 = 0, "), std::string::npos) << cfg;
        EXPECT_NE(cfg.find("station_load.3 = 1500, "), std::string::npos) << cfg;
        EXPECT_NE(cfg.find("station_load." + std::to_string(stations - 1) + " = 0, "), std::string::npos)
            << cfg;
        EXPECT_NE(cfg.find(" // Lower Deck Cargo Aft\r\n \r\n"), std::string::npos) << cfg;
        EXPECT_EQ(cfg.find("station_load." + std::to_string(stations) + " "), std::string::npos) << cfg;
        EXPECT_EQ(cfg.find("All Personel"), std::string::npos) << cfg;
    }
}

} // namespace
} // namespace quillet

#include "jets/data767.h"

#include "JetChecks.h"
#include "JetRig.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <numeric>
#include <set>

namespace quillet {
namespace {

constexpr int kFirstForward = 269; // Container F1L
constexpr int kLastForward = 284;  // Container F8R
constexpr int kFirstAft = 285;     // Container A1L
constexpr int kBulk = 299;

// The golden station file checks the whole table; these are what it does not hold, and what a user
// meets first.
TEST(JetB767_300ER, SetUpWritesSeatsCrewAndContainers)
{
    LoadState state;
    state.stationmsg[kBulk] = " Zone Overload";
    int deckscale = 0;
    data767::setUpB767_300ER(state, deckscale);
    EXPECT_EQ(deckscale, 55);
    EXPECT_EQ(state.maxpax, 261);

    // 269 persons: 261 seats, each named once, then the crew. Rows 17 and 18 have C, D and E only.
    std::set<std::string> seats;
    for (int i = 0; i < 261; ++i) {
        ASSERT_EQ(state.stationname[i].rfind("Passenger ", 0), 0u) << i;
        seats.insert(state.stationname[i]);
    }
    EXPECT_EQ(seats.size(), 261u);
    EXPECT_EQ(state.stationname[261], "Pilot");
    EXPECT_EQ(state.stationname[268], "Crew");
    for (const char* absent : {"Passenger 17A", "Passenger 17B", "Passenger 18F", "Passenger 18G"})
        EXPECT_EQ(seats.count(absent), 0u) << absent;
    EXPECT_EQ(state.stationname[108], "Passenger 17C");

    // The centre block sits 0.3 ft forward of the row in first class (1B, 1C), 0.7 ft forward in rows
    // 5 to 16 (5B, 5C) and 1.25 ft aft from row 19 on (19B, 19C).
    EXPECT_NEAR(state.stationx[2] - state.stationx[1], 0.3, 1e-5);
    EXPECT_NEAR(state.stationx[26] - state.stationx[25], 0.7, 1e-5);
    EXPECT_NEAR(state.stationx[116] - state.stationx[115], -1.25, 1e-5);

    for (int i = kFirstForward; i <= kLastForward; ++i)
        EXPECT_EQ(state.stationmax[i], 2700) << i;
    for (int i = kFirstAft; i < kBulk; ++i)
        EXPECT_EQ(state.stationmax[i], 2500) << i;
    EXPECT_EQ(state.stationname[kBulk], "Bulk Cargo");
    EXPECT_EQ(state.stationmax[kBulk], 6450);
    EXPECT_EQ(state.stationmsg[kBulk], "");
}

class B767Form : public ::testing::Test {
protected:
    void SetUp() override { form = &rig.open("B767-300ER"); }

    void load(int first, int last, float weight)
    {
        for (int i = first; i <= last; ++i)
            rig.session.state.stationweight[i] = weight;
    }
    std::vector<int> marked(const std::string& text) const
    {
        std::vector<int> found;
        for (int i = kFirstForward; i <= kBulk; ++i) {
            if (rig.session.state.stationmsg[i] == text)
                found.push_back(i);
        }
        return found;
    }

    JetRig rig;
    Boeing* form = nullptr;
};

std::vector<int> range(int first, int last)
{
    std::vector<int> values(last - first + 1);
    std::iota(values.begin(), values.end(), first);
    return values;
}

TEST_F(B767Form, AForwardZoneAbove45000PoundsMarksEveryForwardContainer)
{
    // Sixteen containers of 2700 lb hold 43200 lb at most, so 45000 lb needs one container over its
    // own limit: that one alone is marked until the zone passes 45000.
    load(kFirstForward, kLastForward - 1, 2700);
    load(kFirstAft, kBulk, 1000);
    rig.session.state.stationweight[kLastForward] = 4500;
    form->cargocheck();
    EXPECT_EQ(marked(" Zone Overload"), std::vector<int>{kLastForward});

    rig.session.state.stationweight[kLastForward] = 4501;
    form->cargocheck();
    EXPECT_EQ(marked(" Zone Overload"), range(kFirstForward, kLastForward));
    EXPECT_TRUE(marked(" Container Overload").empty());
}

TEST_F(B767Form, AnAftZoneAbove37800PoundsMarksTheAftContainersAndTheBulkHold)
{
    load(kFirstForward, kLastForward, 2000);
    load(kFirstAft, kBulk - 1, 2500);
    rig.session.state.stationweight[kBulk] = 2800;
    form->cargocheck();
    EXPECT_TRUE(marked(" Zone Overload").empty());

    rig.session.state.stationweight[kBulk] = 2801;
    form->cargocheck();
    EXPECT_EQ(marked(" Zone Overload"), range(kFirstAft, kBulk));
}

TEST_F(B767Form, TheClickThatTipsTheZoneHatchesAllForwardContainersRed)
{
    load(kFirstForward, kLastForward - 1, 2700);
    load(kFirstAft, kFirstAft, 1000);
    rig.prompt.answer("4501");
    const LoadState& state = rig.session.state;
    rig.picture().forget();
    form->Picture1_MouseDown(Boeing::kLeftButton, 0, state.stationpx[kLastForward],
                             state.stationpy[kLastForward]);
    ASSERT_EQ(rig.prompt.asked().size(), 1u);
    EXPECT_EQ(rig.prompt.asked()[0].prompt, "Container F8R weight in lbs");

    const auto fills = rig.picture().ops(DrawOp::Kind::FloodFill);
    ASSERT_EQ(fills.size(), 17u);
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(fills[i].fillColor, kRed) << i;
    EXPECT_EQ(fills[16].fillColor, kGreen);
    // Container F1L's point, (89.25 - 50) * 55 = 2158.75 and (29 + 2.6) * 55 = 1738 twips, in pixels.
    EXPECT_EQ(state.stationpx[kFirstForward], 2159);
    EXPECT_EQ(state.stationpy[kFirstForward], 1738);
    EXPECT_EQ(fills[0].x1, 144);
    EXPECT_EQ(fills[0].y1, 116);

    form->Picture1_MouseMove(0, 0, state.stationpx[kFirstForward], state.stationpy[kFirstForward]);
    EXPECT_EQ(rig.picture().ops(DrawOp::Kind::Text).back().text, " Container F1L 2700 lb.");
}

TEST_F(B767Form, DecksAreDrawnAtTheirPoints)
{
    rig.picture().forget();
    form->redraw();
    RecordingCanvas& canvas = rig.picture();
    // The hold labels start at x = 10 and x = -67 ft.
    expectTexts(canvas, {{"Main Deck", 123.75, 165},
                         {"Lower Deck", kAnywhere, 1320},
                         {"Forward", 4358.75, 1595 - canvas.textHeight("T") / 2},
                         {"Aft", 8593.75, kAnywhere}});
    EXPECT_FALSE(canvas.ops(DrawOp::Kind::Text).back().bold);

    // One fitting box, 261 seats and 30 containers; eight crew circles.
    const auto boxes = canvas.ops(DrawOp::Kind::Box);
    ASSERT_EQ(boxes.size(), 1u + 261 + 30);
    EXPECT_EQ(canvas.ops(DrawOp::Kind::Circle).size(), 8u);
    const auto f1l = std::find_if(boxes.begin(), boxes.end(), [](const DrawOp& box) {
        return std::fabs(box.x1 - 2021.25) < 0.005 && std::fabs(box.y1 - 1597.06) < 0.005;
    });
    ASSERT_NE(f1l, boxes.end());
    EXPECT_NEAR(f1l->x2 - f1l->x1, 5 * 55, 1e-9);
    EXPECT_NEAR(f1l->y2 - f1l->y1, 5.125 * 55, 1e-9);
    // First-class seat 1A: 1.8 ft square from (49.4 + 0.9, -6.67 + 0.9).
    EXPECT_NEAR(boxes[1].x1, (89.25 - 50.3) * 55, 1e-3);
    EXPECT_NEAR(boxes[1].y1, (10 + 5.77) * 55, 1e-3);
    EXPECT_NEAR(boxes[1].x2 - boxes[1].x1, 99, 1e-9);
    // Economy seat 5A: 1.5 ft.
    EXPECT_NEAR(boxes[25].x2 - boxes[25].x1, 82.5, 1e-9);
}

TEST_F(B767Form, SavesThePersonsAsOneStationAndEachContainer)
{
    rig.session.state.stationweight[kBulk] = 1000;
    rig.session.state.stationweight[261] = 200;
    form->mnusave_Click();
    const std::string cfg = rig.dir.read("sim/aircraft/b767_300er/aircraft.cfg");
    EXPECT_NE(cfg.find("// B767-300ER configuration two class 261 passangers.\r\n"), std::string::npos)
        << cfg;
    EXPECT_NE(cfg.find("max_number_of_stations = 32\r\n"
                       "station_load.0 = 200, 64.0, -1.8, 0.0 // All Personel (Crew + Passengers)\r\n"
                       "station_load.1 = 0, 50.0, -2.6, 0.0 // Container F1L\r\n"
                       "station_load.2 = 0, 50.0, 2.6, 0.0 // Container F1R\r\n"),
              std::string::npos)
        << cfg;
    EXPECT_NE(cfg.find("station_load.30 = 0, -50.0, 2.6, 0.0 // Container A7R\r\n"
                       "station_load.31 = 1000, -57.5, 0.0, 0.0 // Bulk Cargo\r\n"
                       " \r\n"),
              std::string::npos)
        << cfg;
}

} // namespace
} // namespace quillet

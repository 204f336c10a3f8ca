#include "jets/data767.h"

#include "JetRig.h"
#include "TypeTable.h"

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

TEST(JetB767_300ER, SetUpWritesTheLimitsAndTheSeats)
{
    LoadState state;
    state.loadweight = 500;
    int deckscale = 0;
    data767::setUpB767_300ER(state, deckscale);
    expectTable(state, deckscale,
                {.maxtakeoff = 407000,
                 .maxlanding = 320000,
                 .emptyweight = 198443,
                 .maxfuel = 161740,
                 .maxzerofuel = 295000,
                 .maxpax = 261,
                 .cfgstations = 32,
                 .seats1 = 24,
                 .seats2 = 0,
                 .seats3 = 237,
                 .nstations = 269,
                 .ncargo = 31,
                 .nlower = 31,
                 .ncrew = 8,
                 .deckscale = 55});

    // Seats in letter order, the centre block shifted along the row.
    expectStations(state, {
                              {0, "Passenger 1A", 49.4, -6.67},       {1, "Passenger 1B", 49.4, -4.67},
                              {2, "Passenger 1C", 49.7, -1.0},        {3, "Passenger 1D", 49.7, 1.0},
                              {5, "Passenger 1F", 49.4, 6.67},        {23, "Passenger 4F", 39.9, 6.67},
                              {24, "Passenger 5A", 35.4, -6.74},      {26, "Passenger 5C", 36.1, -1.72},
                              {27, "Passenger 5D", 36.1, 0},          {30, "Passenger 5G", 35.4, 6.74},
                              {107, "Passenger 16G", 4.2333, 6.74},   {108, "Passenger 17C", 2.1, -1.72},
                              {110, "Passenger 17E", 2.1, 1.72},      {113, "Passenger 18E", -0.7333, 1.72},
                              {114, "Passenger 19A", -2.5, -6.74},    {116, "Passenger 19C", -3.75, -1.72},
                              {119, "Passenger 19F", -2.5, 5.02},     {256, "Passenger 39C", -60.4167, -1.72},
                              {260, "Passenger 39G", -59.1667, 6.74},
                          });

    // 261 seats, every one named once; rows 17 and 18 have no window or aisle seats.
    std::set<std::string> names;
    for (int i = 0; i < 261; ++i) {
        ASSERT_EQ(state.stationname[i].rfind("Passenger ", 0), 0u) << i;
        names.insert(state.stationname[i]);
    }
    EXPECT_EQ(names.size(), 261u);
    for (const char* absent :
         {"Passenger 17A", "Passenger 17B", "Passenger 17F", "Passenger 18G", "Passenger 40A"})
        EXPECT_EQ(names.count(absent), 0u) << absent;
}

TEST(JetB767_300ER, CrewContainersAndBulkHold)
{
    LoadState state;
    state.stationmsg[kBulk] = " Zone Overload";
    int deckscale = 0;
    data767::setUpB767_300ER(state, deckscale);

    expectStations(state, {
                              {261, "Pilot", 64, -1.8},
                              {262, "Co-Pilot", 64, 1.8},
                              {263, "Crew", 53, 5},
                              {264, "Crew", 53, -5},
                              {265, "Crew", 53.5, 1},
                              {266, "Crew", 53.5, -1},
                              {267, "Crew", -66.5, 5},
                              {268, "Crew", -66.5, -5},
                              {269, "Container F1L", 50, -2.6},
                              {270, "Container F1R", 50, 2.6},
                              {272, "Container F2R", 45, 2.6},
                              {283, "Container F8L", 15, -2.6},
                              {284, "Container F8R", 15, 2.6},
                              {285, "Container A1L", -20, -2.6},
                              {298, "Container A7R", -50, 2.6},
                              {299, "Bulk Cargo", -57.5, 0},
                          });
    for (int i = kFirstForward; i <= kLastForward; ++i)
        EXPECT_EQ(state.stationmax[i], 2700) << i;
    for (int i = kFirstAft; i < kBulk; ++i)
        EXPECT_EQ(state.stationmax[i], 2500) << i;
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
    const auto texts = canvas.ops(DrawOp::Kind::Text);
    ASSERT_EQ(texts.size(), 4u);
    EXPECT_EQ(texts[0].text, "Main Deck");
    EXPECT_DOUBLE_EQ(texts[0].x1, 123.75);
    EXPECT_DOUBLE_EQ(texts[0].y1, 165);
    EXPECT_EQ(texts[1].text, "Lower Deck");
    EXPECT_DOUBLE_EQ(texts[1].y1, 1320);
    // The hold labels start at x = 10 and x = -67 ft.
    EXPECT_EQ(texts[2].text, "Forward");
    EXPECT_DOUBLE_EQ(texts[2].x1, 4358.75);
    EXPECT_DOUBLE_EQ(texts[2].y1, 1595 - canvas.textHeight("T") / 2);
    EXPECT_EQ(texts[3].text, "Aft");
    EXPECT_DOUBLE_EQ(texts[3].x1, 8593.75);
    EXPECT_FALSE(texts[3].bold);

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

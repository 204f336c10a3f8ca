#include "JetRig.h"

#include <gtest/gtest.h>
#include <numeric>
#include <tuple>

namespace quillet {
namespace {

constexpr int kFirstForward = 269; // Container F1L
constexpr int kLastForward = 284;  // Container F8R
constexpr int kFirstAft = 285;     // Container A1L
constexpr int kBulk = 299;

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

TEST_F(B767Form, AZoneAboveItsLimitMarksEveryStationOfTheZone)
{
    const auto checkWith = [&](int station, float weight) {
        rig.session.state.stationweight[station] = weight;
        form->cargocheck();
        return marked(" Zone Overload");
    };
    // Sixteen containers of 2700 lb hold 43200 lb at most, so 45000 lb forward needs one container
    // over its own limit: that one alone is marked until the zone passes 45000.
    load(kFirstForward, kLastForward - 1, 2700);
    load(kFirstAft, kBulk, 1000);
    EXPECT_EQ(checkWith(kLastForward, 4500), std::vector<int>{kLastForward});
    EXPECT_EQ(checkWith(kLastForward, 4501), range(kFirstForward, kLastForward));
    EXPECT_TRUE(marked(" Container Overload").empty());

    // The aft zone's 37800 lb count the bulk hold, which is marked with the aft containers.
    load(kFirstForward, kLastForward, 2000);
    load(kFirstAft, kBulk - 1, 2500);
    EXPECT_TRUE(checkWith(kBulk, 2800).empty());
    EXPECT_EQ(checkWith(kBulk, 2801), range(kFirstAft, kBulk));
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

TEST(JetMD90_30, TheAftHoldLiesOnTheLowerDeckAndTurnsRedAboveItsMaximum)
{
    JetRig rig;
    Boeing& form = rig.open("MD-90-30");
    LoadState& state = rig.session.state;
    const int forwardHold = 164;
    const int aftHold = 166;
    // (93.5 - 46) * 60 and 26 * 60.
    EXPECT_EQ(std::tuple(state.stationpx[forwardHold], state.stationpy[forwardHold]), std::tuple(2850, 1560));
    EXPECT_EQ(std::tuple(state.stationpx[aftHold], state.stationpy[aftHold]), std::tuple(7200, 1560));

    rig.prompt.answer("5169");
    rig.picture().forget();
    form.Picture1_MouseDown(Boeing::kLeftButton, 0, 7200, 1560);
    ASSERT_EQ(rig.prompt.asked().size(), 1u);
    EXPECT_EQ(rig.prompt.asked()[0].prompt, "Lower Deck Cargo Aft weight in lbs");
    EXPECT_EQ(state.stationmsg[aftHold], " Zone Overload");
    const auto fills = rig.picture().ops(DrawOp::Kind::FloodFill);
    ASSERT_EQ(fills.size(), 1u);
    EXPECT_EQ(std::tuple(fills[0].fillColor, fills[0].x1, fills[0].y1), std::tuple(kRed, 480.0, 104.0));
}

} // namespace
} // namespace quillet

#include "Golden.h"
#include "core/jets/JetRig.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <tuple>

namespace quillet {
namespace {

constexpr int kContainer1L = 0;
constexpr int kContainer1R = 1;
constexpr int kContainer5R = 9;
constexpr int kContainer6L = 10;
constexpr int kContainer9L = 16;
constexpr int kContainer9R = 17;
constexpr int kContainer12 = 22;
constexpr int kContainerA = 23;
constexpr int kContainerC1L = 28;
constexpr int kContainerC1R = 29;
constexpr int kContainerC5R = 37;
constexpr int kPilot = 38;
constexpr int kStations = 43;

// The payload the zero-fuel weight allows, shared out over the stations' maxima.
constexpr double kShare = (400160.0 - 237594.0) / 329450.0;

// The box last drawn for a container: the one whose top-left corner lies where its station's box goes.
DrawOp containerBox(FreighterRig& rig, int station)
{
    const LoadState& state = rig.session.state;
    const auto& box = state.containerbox[station];
    const double left = (98 - state.stationx[station] - box[2] / 2) * 52;
    const double top = (box[1] - box[3] / 2) * 52;
    const auto boxes = rig.picture().ops(DrawOp::Kind::Box);
    const auto found = std::find_if(boxes.rbegin(), boxes.rend(), [&](const DrawOp& op) {
        return std::fabs(op.x1 - left) < 0.05 && std::fabs(op.y1 - top) < 0.05;
    });
    EXPECT_NE(found, boxes.rend()) << station;
    return found == boxes.rend() ? DrawOp{} : *found;
}

void load(LoadState& state, int first, int last, float weight)
{
    for (int i = first; i <= last; ++i)
        state.stationweight[i] = weight;
    state.loadweight = state.sumOfWeights();
}

// The DC-10-30F's form opened the way "Adjust" opens it.
class DC10FForm : public ::testing::Test {
protected:
    void pressAt(double x, double y) { form.Picture1_MouseDown(DC10F::kLeftButton, 0, x, y); }

    FreighterRig rig;
    DC10F& form = rig.open();
    LoadState& state = rig.session.state;
};

// The golden table of the first run checks every station; this is what the form shows of it.
TEST(DC10FTable, OpeningShowsTheTypeEmptyAndAMissingPictureStaysBlank)
{
    FreighterRig rig;
    rig.session.state.stationmax.fill(5000);
    DC10F& form = rig.open();
    EXPECT_EQ(std::tuple(form.caption, form.photo.filename().string(), form.deckscale),
              std::tuple("DC-10-30F", "DC-10-30F.gif", 52));
    EXPECT_EQ(rig.session.state.loadweight, 0);
    EXPECT_EQ(form.labels.lblpass.text, "Containers  0 / 38");
    for (int i = kPilot; i < kStations; ++i)
        EXPECT_EQ(rig.session.state.stationmax[i], 0) << "crew seats have no maximum: " << i;

    std::filesystem::remove(rig.dir.path() / "DC-10-30F.gif");
    EXPECT_TRUE(rig.open().photo.empty());
}

TEST_F(DC10FForm, OverlappingContainersAskOneAfterTheOtherAndSeparatePairsDoNot)
{
    const auto& asked = rig.prompt.asked();

    // C1L and C1R are 271 twips apart with 200 twips either side: between them both are hit.
    rig.prompt.answer("1000");
    rig.prompt.answer("1200");
    pressAt(6515, 1622);
    ASSERT_EQ(asked.size(), 2u);
    EXPECT_EQ(rig.question(0), std::tuple("Container C1L weight in lbs", "Pax Details", "1300"));
    EXPECT_EQ(asked[1].prompt, "Container C1R weight in lbs");
    EXPECT_EQ(
        std::tuple(state.stationweight[kContainerC1L], state.stationweight[kContainerC1R], state.loadweight),
        std::tuple(1000.0f, 1200.0f, 2200.0f));
    EXPECT_EQ(form.labels.lblpass.text, "Containers  2 / 38");
    EXPECT_EQ(form.labels.lblpax.text, "PAX weight =  2200 lb.");

    // A second press there empties both without a question.
    pressAt(6515, 1622);
    EXPECT_EQ(asked.size(), 2u);
    EXPECT_EQ(
        std::tuple(state.stationweight[kContainerC1L], state.stationweight[kContainerC1R], state.loadweight),
        std::tuple(0.0f, 0.0f, 0.0f));

    // 1L and 1R are 416 apart: 199 twips below 1L only 1L is hit, and half-way neither.
    rig.prompt.answer("3500");
    pressAt(2329, 468 + 199);
    ASSERT_EQ(asked.size(), 3u);
    EXPECT_EQ(std::tie(asked[2].prompt, asked[2].defaultText),
              std::tuple("Container 1L weight in lbs", "3500"));
    EXPECT_EQ(state.stationweight[kContainer1R], 0);
    pressAt(2329, 676);
    pressAt(2329 + 200, 468); // the squares are open: 200 twips off is outside
    EXPECT_EQ(asked.size(), 3u);
    EXPECT_EQ(state.stationweight[kContainer1L], 3500);
}

TEST_F(DC10FForm, StationsOfferFortyPercentOfTheirMaximumAndOnlyTheLeftButtonLoads)
{
    const auto& asked = rig.prompt.asked();
    for (int station : {kPilot, kContainer6L, kContainer12}) {
        rig.prompt.cancel();
        rig.press(station);
    }
    ASSERT_EQ(asked.size(), 3u);
    EXPECT_EQ(std::tie(asked[0].prompt, asked[0].defaultText), std::tuple("Pilot weight in lbs", "0"));
    EXPECT_EQ(asked[1].defaultText, "5900");
    EXPECT_EQ(asked[2].defaultText, "3700");

    rig.press(kContainerA, DC10F::kRightButton);
    EXPECT_EQ(asked.size(), 3u);
    rig.prompt.answer("lots");
    rig.press(kContainerA);
    EXPECT_EQ(state.stationweight[kContainerA], 0);
    rig.prompt.answer("180 lb");
    rig.press(kPilot);
    EXPECT_EQ(state.stationweight[kPilot], 180);
    EXPECT_EQ(state.loadweight, 180);

    // A negative weight is kept but not counted; emptying the station takes it off the total.
    rig.prompt.answer("-40");
    rig.press(kContainerA);
    EXPECT_EQ(std::tuple(state.stationweight[kContainerA], state.loadweight), std::tuple(-40.0f, 180.0f));
    rig.press(kContainerA);
    EXPECT_EQ(std::tuple(state.stationweight[kContainerA], state.loadweight), std::tuple(0.0f, 220.0f));
    EXPECT_EQ(rig.form->labels.lblpass.text, "Containers  0 / 38") << "crew seats are no containers";
}

TEST_F(DC10FForm, ALoadedContainerShowsItsWeightBesideItWhileThePointerRestsOnIt)
{
    const std::size_t emptyBoxes = rig.picture().ops(DrawOp::Kind::Box).size();
    const auto moveTo = [&](double x, double y) {
        rig.picture().forget();
        form.Picture1_MouseMove(0, 0, x, y);
    };

    moveTo(2329, 468);
    EXPECT_EQ(rig.picture().ops(DrawOp::Kind::Box).size(), emptyBoxes);

    state.stationweight[kContainer1L] = 3499.5f;
    moveTo(2329 + 150, 468 - 150);
    const DrawOp label = rig.picture().ops(DrawOp::Kind::Text).back();
    EXPECT_EQ(std::tuple(label.text, label.fontSize, label.x1),
              std::tuple(" Container 1L 3500 lb.", 8.0, 2429.0));
    const DrawOp box = rig.picture().ops(DrawOp::Kind::Box).back();
    EXPECT_DOUBLE_EQ((box.y1 + box.y2) / 2, 468);

    // A label that would end at the right edge, 9435 twips, or past it opens to the left of the point;
    // one that ends a twip short opens to the right.
    state.stationweight[kContainer12] = 9000;
    const double width = rig.picture().textWidth(" Container 12 9000 lb.");
    for (const double end : {9435.0, 9434.0}) {
        const auto x = static_cast<std::int16_t>(end - 100 - width);
        state.stationpx[kContainer12] = x;
        moveTo(x, 676);
        const DrawOp right = rig.picture().ops(DrawOp::Kind::Text).back();
        EXPECT_EQ(right.text, " Container 12 9000 lb.");
        EXPECT_DOUBLE_EQ(right.x1, end == 9435 ? x - 100 - width : x + 100) << end;
    }

    moveTo(100, 100); // the next movement elsewhere wipes it
    EXPECT_EQ(rig.picture().ops(DrawOp::Kind::Box).size(), emptyBoxes);
}

TEST_F(DC10FForm, AContainerAboveItsMaximumIsDrawnRedAndNamedAtTheTop)
{
    for (const auto& [weight, message, colour] :
         {std::tuple(8800.0f, "", kGreen), std::tuple(8800.5f, "Container Overload", kRed)}) {
        load(state, kContainer1L, kContainer1L, weight);
        form.cargocheck();
        rig.picture().forget();
        form.redraw();
        EXPECT_EQ(state.stationmsg[kContainer1L], message);
        const DrawOp box = containerBox(rig, kContainer1L);
        EXPECT_EQ(std::tuple(box.fillColor, box.fillStyle), std::tuple(colour, FillStyle::DiagonalCross));
        EXPECT_EQ(form.overloadNote, message);
    }
    const DrawOp note = rig.picture().ops(DrawOp::Kind::Text).back();
    EXPECT_EQ(std::tuple(note.text, note.foreColor, note.fontSize, note.bold),
              std::tuple("Container Overload", kRed, 10.0, false));
    EXPECT_DOUBLE_EQ(note.x1, 500);
    EXPECT_DOUBLE_EQ(note.y1, 50);
    EXPECT_EQ(rig.picture().foreColor(), kBlack);
}

TEST_F(DC10FForm, AnOverloadedZoneMarksAllItsContainersButOnlyLoadedOnesTurnRed)
{
    // 1L to 4R: eight containers of 6250 lb, exactly zone 1's 50000 lb.
    load(state, 0, 7, 6250);
    form.cargocheck();
    for (int i = 0; i < kStations; ++i)
        EXPECT_EQ(state.stationmsg[i], "") << i;

    load(state, 7, 7, 6251);
    form.cargocheck();
    rig.picture().forget();
    form.redraw();
    for (int i = 0; i <= kContainer6L; ++i)
        EXPECT_EQ(state.stationmsg[i], i <= kContainer5R ? "Zone Overload" : "") << i;
    for (int i = 0; i <= 7; ++i)
        EXPECT_EQ(containerBox(rig, i).fillColor, kRed) << i;
    EXPECT_EQ(containerBox(rig, 8).fillStyle, FillStyle::Transparent);
    EXPECT_EQ(containerBox(rig, kContainer5R).fillStyle, FillStyle::Transparent);
    EXPECT_EQ(form.overloadNote, "Zone Overload");

    // The aft hold takes ten full containers and marks only the one above.
    load(state, 0, 7, 0);
    load(state, kContainerC1L, kContainerC5R, 3476);
    load(state, kContainerC5R, kContainerC5R, 3477);
    form.cargocheck();
    for (int i = kContainerC1L; i <= kContainerC5R; ++i)
        EXPECT_EQ(state.stationmsg[i], i == kContainerC5R ? "Container Overload" : "") << i;
}

TEST_F(DC10FForm, TheNoteNamesTheHighestNumberedLoadedContainerWithABrokenLimit)
{
    const auto check = [&] {
        form.cargocheck();
        form.redraw();
        return form.overloadNote;
    };
    // Zone 1 over its limit (its empty 5L and 5R are marked too) and Container A over its maximum.
    load(state, 0, 7, 6300);
    load(state, kContainerA, kContainerA, 10341);
    EXPECT_EQ(check(), "Container Overload");

    // Ten aft containers over their maximum also break zone 5, whose mark replaces theirs.
    load(state, kContainerC1L, kContainerC5R, 3501);
    EXPECT_EQ(check(), "Zone Overload");
    EXPECT_EQ(state.stationmsg[kContainerC5R], "Zone Overload");

    load(state, kContainerC1L, kContainerC5R, 0);
    load(state, kContainerA, kContainerA, 0);
    EXPECT_EQ(check(), "Zone Overload");

    // A mouse movement redraws with the marks of the previous check, then checks.
    state.stationweight.fill(0);
    check();
    state.stationweight[kContainer1L] = 9000;
    for (const Rgb colour : {kGreen, kRed}) {
        rig.picture().forget();
        form.Picture1_MouseMove(0, 0, 100, 100);
        EXPECT_EQ(containerBox(rig, kContainer1L).fillColor, colour);
        EXPECT_EQ(state.stationmsg[kContainer1L], "Container Overload");
    }
}

TEST_F(DC10FForm, LightLoadEmptiesTheCrewAndGivesEachContainerItsShareBeforeTheExchange)
{
    state.stationweight[kPilot] = 180;
    state.stationweight[400] = 50;

    // With every draw alike each container's load follows its maximum, so the centre already holds
    // the heaviest and nothing is exchanged.
    for (const auto& [draw, share] : {std::pair(0.0, 0.025), std::pair(0.9999999, 0.189)}) {
        for (int i = 0; i < kStations; ++i)
            rig.random.push(draw);
        form.mnulight_Click();
        EXPECT_EQ(rig.random.left(), 0u);
        EXPECT_EQ(rig.random.overdrawn(), 0);
        EXPECT_EQ(state.stationweight[400], 0);
        for (int i = kPilot; i < kStations; ++i)
            EXPECT_EQ(state.stationweight[i], 0) << i;
        for (int i = 0; i < kPilot; ++i)
            EXPECT_NEAR(state.stationweight[i] / state.stationmax[i], share, 0.0005) << i;
    }
}

TEST_F(DC10FForm, TheHeaviestPositionsMoveToTheCentreButContainer9LIsPassedOver)
{
    for (int i = 0; i < kStations; ++i)
        rig.random.push(i == kContainer9L ? 0.99 : i == kContainer9R ? 0.98 : 0);
    form.mnulight_Click();

    const auto expected = [](double maximum, double r) {
        return static_cast<float>(maximum * kShare * (0.05 + r / 3));
    };
    EXPECT_FLOAT_EQ(state.stationweight[kContainer9L], expected(9020, 0.99));
    EXPECT_FLOAT_EQ(state.stationweight[kContainer6L], expected(9020, 0.98));
    EXPECT_FLOAT_EQ(state.stationweight[kContainer9R], expected(14960, 0));
    for (int i = kContainer6L + 1; i <= 15; ++i)
        EXPECT_FLOAT_EQ(state.stationweight[i], expected(14960, 0)) << i;
}

TEST(DC10FPresets, NoPresetBreaksALimitAndTheTotalIsTheSum)
{
    SeededRandom seeded;
    FreighterRig rig(&seeded);
    DC10F& form = rig.open();
    LoadState& state = rig.session.state;
    for (int round = 0; round < 20; ++round) {
        for (void (DC10F::*preset)() :
             {&DC10F::mnulight_Click, &DC10F::mnumed_Click, &DC10F::mnuheav_Click}) {
            (form.*preset)();
            EXPECT_EQ(state.loadweight, rig.sumOfWeights());
            EXPECT_LT(state.loadweight, 400160 - 237594);
            form.cargocheck();
            for (int i = 0; i < kStations; ++i)
                ASSERT_EQ(state.stationmsg[i], "") << i << " after round " << round;
            EXPECT_EQ(form.labels.lblpass.text, "Containers  38 / 38");
        }
    }
}

TEST_F(DC10FForm, HeavyLoadKeepsTheMarksOfTheLastCheckAndWhatLiesBeyondTheStations)
{
    load(state, kContainer1R, kContainer1R, 9000);
    form.cargocheck();
    state.stationweight[400] = 50;

    for (int i = 0; i < kStations; ++i)
        rig.random.push(0.5);
    rig.picture().forget();
    form.mnuheav_Click();
    EXPECT_EQ(state.stationweight[400], 50);
    EXPECT_FLOAT_EQ(state.stationweight[kContainer1R],
                    static_cast<float>(8800 * kShare * (0.66666 + 0.5 / 3)));
    EXPECT_EQ(state.stationmsg[kContainer1R], "Container Overload");
    EXPECT_EQ(containerBox(rig, kContainer1R).fillColor, kRed);
    EXPECT_EQ(form.overloadNote, "Container Overload");
}

TEST_F(DC10FForm, SavingWritesEveryStationUnderACargoHeading)
{
    rig.prompt.answer("3500");
    rig.press(kContainer1L);
    rig.prompt.answer("180");
    rig.press(kPilot);
    form.mnusave_Click();
    expectGoldenFile("DC-10-30F.aircraft.cfg", rig.aircraftCfg("DC-10-30F"));

    // The station file brings the load back on the next opening.
    rig.open();
    EXPECT_EQ(std::tuple(state.stationweight[kContainer1L], state.stationweight[kPilot], state.loadweight),
              std::tuple(3500.0f, 180.0f, 3680.0f));
}

} // namespace
} // namespace quillet

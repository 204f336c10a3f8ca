#include "Drawing.h"
#include "FreighterRig.h"
#include "Golden.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

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

void press(FreighterRig& rig, double x, double y, int button = DC10F::kLeftButton)
{
    rig.form->Picture1_MouseDown(button, 0, x, y);
}

void pressStation(FreighterRig& rig, int station, int button = DC10F::kLeftButton)
{
    const LoadState& state = rig.session.state;
    press(rig, state.stationpx[station], state.stationpy[station], button);
}

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

// The golden table of the first run checks every station; this is what the form shows of it.
TEST(DC10FTable, OpeningShowsTheTypeWithNothingAboard)
{
    FreighterRig rig;
    DC10F& form = rig.open();
    EXPECT_EQ(form.caption, "DC-10-30F");
    EXPECT_EQ(form.photo.filename(), "DC-10-30F.gif");
    EXPECT_EQ(form.deckscale, 52);
    EXPECT_EQ(rig.session.state.loadweight, 0);
    EXPECT_EQ(form.labels.lblpass.text, "Containers  0 / 38");
}

TEST(DC10FTable, CrewSeatsHaveNoMaximumWhateverAnEarlierTypeLeftThere)
{
    FreighterRig rig;
    rig.session.state.stationmax.fill(5000);
    rig.open();
    for (int i = kPilot; i < kStations; ++i)
        EXPECT_EQ(rig.session.state.stationmax[i], 0) << i;
}

TEST(DC10FTable, AMissingPictureIsToldOnceAndTheFormStillOpens)
{
    FreighterRig rig;
    std::filesystem::remove(rig.dir.path() / "DC-10-30F.gif");
    rig.open();
    rig.open();
    EXPECT_TRUE(rig.form->photo.empty());
    EXPECT_EQ(rig.session.state.ncargo, 38);
    const auto& told = rig.session.messages.pending();
    ASSERT_EQ(told.size(), 1u);
    EXPECT_NE(told[0].find("DC-10-30F.gif"), std::string::npos);
}

TEST(DC10FMouse, OverlappingContainersAskOneAfterTheOtherAndSeparatePairsDoNot)
{
    FreighterRig rig;
    DC10F& form = rig.open();
    LoadState& state = rig.session.state;

    // C1L and C1R are 271 twips apart with 200 twips either side: between them both are hit.
    rig.prompt.answer("1000");
    rig.prompt.answer("1200");
    press(rig, 6515, 1622);
    ASSERT_EQ(rig.prompt.asked().size(), 2u);
    EXPECT_EQ(rig.prompt.asked()[0].prompt, "Container C1L weight in lbs");
    EXPECT_EQ(rig.prompt.asked()[0].title, "Pax Details");
    EXPECT_EQ(rig.prompt.asked()[0].defaultText, "1300");
    EXPECT_EQ(rig.prompt.asked()[1].prompt, "Container C1R weight in lbs");
    EXPECT_EQ(state.stationweight[kContainerC1L], 1000);
    EXPECT_EQ(state.stationweight[kContainerC1R], 1200);
    EXPECT_EQ(state.loadweight, 2200);
    EXPECT_EQ(form.labels.lblpass.text, "Containers  2 / 38");
    EXPECT_EQ(form.labels.lblpax.text, "PAX weight =  2200 lb.");

    // A second press there empties both without a question.
    press(rig, 6515, 1622);
    EXPECT_EQ(rig.prompt.asked().size(), 2u);
    EXPECT_EQ(state.stationweight[kContainerC1L], 0);
    EXPECT_EQ(state.stationweight[kContainerC1R], 0);
    EXPECT_EQ(state.loadweight, 0);

    // 1L and 1R are 416 apart: 199 twips below 1L only 1L is hit, and half-way neither.
    rig.prompt.answer("3500");
    press(rig, 2329, 468 + 199);
    ASSERT_EQ(rig.prompt.asked().size(), 3u);
    EXPECT_EQ(rig.prompt.asked()[2].prompt, "Container 1L weight in lbs");
    EXPECT_EQ(rig.prompt.asked()[2].defaultText, "3500");
    EXPECT_EQ(state.stationweight[kContainer1R], 0);
    press(rig, 2329, 676);
    EXPECT_EQ(rig.prompt.asked().size(), 3u);
    EXPECT_EQ(state.stationweight[kContainer1L], 3500);
    // The squares are open: 200 twips off is outside.
    press(rig, 2329 + 200, 468);
    EXPECT_EQ(state.stationweight[kContainer1L], 3500);
}

TEST(DC10FMouse, EachStationOffersFortyPercentOfItsMaximumInHundreds)
{
    FreighterRig rig;
    rig.open();
    rig.prompt.cancel();
    pressStation(rig, kPilot);
    rig.prompt.cancel();
    pressStation(rig, kContainer6L);
    rig.prompt.cancel();
    pressStation(rig, kContainer12);
    const auto& asked = rig.prompt.asked();
    ASSERT_EQ(asked.size(), 3u);
    EXPECT_EQ(asked[0].prompt, "Pilot weight in lbs");
    EXPECT_EQ(asked[0].defaultText, "0");
    EXPECT_EQ(asked[1].defaultText, "5900");
    EXPECT_EQ(asked[2].defaultText, "3700");
}

TEST(DC10FMouse, OnlyTheLeftButtonLoadsAndBadAnswersLeaveTheTotalAlone)
{
    FreighterRig rig;
    rig.open();
    LoadState& state = rig.session.state;
    pressStation(rig, kContainerA, 2);
    EXPECT_TRUE(rig.prompt.asked().empty());

    rig.prompt.answer("lots");
    pressStation(rig, kContainerA);
    EXPECT_EQ(state.stationweight[kContainerA], 0);
    rig.prompt.answer("180 lb");
    pressStation(rig, kPilot);
    EXPECT_EQ(state.stationweight[kPilot], 180);
    EXPECT_EQ(state.loadweight, 180);

    // A negative weight is kept but not counted; emptying the station takes it off the total.
    rig.prompt.answer("-40");
    pressStation(rig, kContainerA);
    EXPECT_EQ(state.stationweight[kContainerA], -40);
    EXPECT_EQ(state.loadweight, 180);
    pressStation(rig, kContainerA);
    EXPECT_EQ(state.stationweight[kContainerA], 0);
    EXPECT_EQ(state.loadweight, 220);

    // Crew seats are not containers.
    EXPECT_EQ(rig.form->labels.lblpass.text, "Containers  0 / 38");
}

TEST(DC10FMouse, ALoadedContainerShowsItsWeightBesideItWhileThePointerRestsOnIt)
{
    FreighterRig rig;
    DC10F& form = rig.open();
    LoadState& state = rig.session.state;
    const std::size_t emptyBoxes = rig.picture().ops(DrawOp::Kind::Box).size();

    rig.picture().forget();
    form.Picture1_MouseMove(0, 0, 2329, 468);
    EXPECT_EQ(rig.picture().ops(DrawOp::Kind::Box).size(), emptyBoxes);

    state.stationweight[kContainer1L] = 3499.5f;
    rig.picture().forget();
    form.Picture1_MouseMove(0, 0, 2329 + 150, 468 - 150);
    const DrawOp label = rig.picture().ops(DrawOp::Kind::Text).back();
    EXPECT_EQ(label.text, " Container 1L 3500 lb.");
    EXPECT_EQ(label.fontSize, 8);
    EXPECT_DOUBLE_EQ(label.x1, 2429);
    const DrawOp box = rig.picture().ops(DrawOp::Kind::Box).back();
    EXPECT_DOUBLE_EQ((box.y1 + box.y2) / 2, 468);

    // Near the right edge the box opens to the left of the point.
    state.stationweight[kContainer12] = 9000;
    rig.picture().forget();
    form.Picture1_MouseMove(0, 0, 8225, 676);
    const DrawOp right = rig.picture().ops(DrawOp::Kind::Text).back();
    EXPECT_EQ(right.text, " Container 12 9000 lb.");
    const double width = rig.picture().textWidth(right.text);
    ASSERT_GE(width, 1110);
    EXPECT_DOUBLE_EQ(right.x1, 8225 - 100 - width);

    // The next movement elsewhere wipes it.
    rig.picture().forget();
    form.Picture1_MouseMove(0, 0, 100, 100);
    EXPECT_EQ(rig.picture().ops(DrawOp::Kind::Box).size(), emptyBoxes);
}

TEST(DC10FLimits, AContainerAboveItsMaximumIsDrawnRedAndNamedAtTheTop)
{
    FreighterRig rig;
    DC10F& form = rig.open();
    LoadState& state = rig.session.state;
    load(state, kContainer1L, kContainer1L, 8800);
    form.cargocheck();
    form.redraw();
    EXPECT_EQ(state.stationmsg[kContainer1L], "");
    DrawOp box = containerBox(rig, kContainer1L);
    EXPECT_EQ(box.fillColor, kGreen);
    EXPECT_EQ(box.fillStyle, FillStyle::DiagonalCross);
    EXPECT_EQ(form.overloadNote, "");

    load(state, kContainer1L, kContainer1L, 8800.5f);
    form.cargocheck();
    rig.picture().forget();
    form.redraw();
    EXPECT_EQ(state.stationmsg[kContainer1L], "Container Overload");
    box = containerBox(rig, kContainer1L);
    EXPECT_EQ(box.fillColor, kRed);
    EXPECT_EQ(box.fillStyle, FillStyle::DiagonalCross);
    EXPECT_EQ(form.overloadNote, "Container Overload");
    const DrawOp note = rig.picture().ops(DrawOp::Kind::Text).back();
    EXPECT_EQ(note.text, "Container Overload");
    EXPECT_EQ(note.foreColor, kRed);
    EXPECT_EQ(note.fontSize, 10);
    EXPECT_FALSE(note.bold);
    EXPECT_DOUBLE_EQ(note.x1, 500);
    EXPECT_DOUBLE_EQ(note.y1, 50);
    EXPECT_EQ(rig.picture().foreColor(), kBlack);
}

TEST(DC10FLimits, AnOverloadedZoneMarksAllItsContainersButOnlyLoadedOnesTurnRed)
{
    FreighterRig rig;
    DC10F& form = rig.open();
    LoadState& state = rig.session.state;
    // 1L to 4R: eight containers of 6250 lb, exactly zone 1's 50000 lb.
    load(state, 0, 7, 6250);
    form.cargocheck();
    for (int i = 0; i < kStations; ++i)
        EXPECT_EQ(state.stationmsg[i], "") << i;

    load(state, 7, 7, 6251);
    form.cargocheck();
    rig.picture().forget();
    form.redraw();
    for (int i = 0; i <= kContainer5R; ++i)
        EXPECT_EQ(state.stationmsg[i], "Zone Overload") << i;
    EXPECT_EQ(state.stationmsg[kContainer6L], "");
    for (int i = 0; i <= 7; ++i)
        EXPECT_EQ(containerBox(rig, i).fillColor, kRed) << i;
    EXPECT_EQ(containerBox(rig, 8).fillStyle, FillStyle::Transparent);
    EXPECT_EQ(containerBox(rig, kContainer5R).fillStyle, FillStyle::Transparent);
    EXPECT_EQ(form.overloadNote, "Zone Overload");
}

TEST(DC10FLimits, TheAftHoldTakesTenFullContainersAndMarksOnlyTheOneAbove)
{
    FreighterRig rig;
    DC10F& form = rig.open();
    LoadState& state = rig.session.state;
    load(state, kContainerC1L, kContainerC5R, 3476);
    form.cargocheck();
    for (int i = kContainerC1L; i <= kContainerC5R; ++i)
        EXPECT_EQ(state.stationmsg[i], "") << i;

    load(state, kContainerC5R, kContainerC5R, 3477);
    form.cargocheck();
    for (int i = kContainerC1L; i < kContainerC5R; ++i)
        EXPECT_EQ(state.stationmsg[i], "") << i;
    EXPECT_EQ(state.stationmsg[kContainerC5R], "Container Overload");
}

TEST(DC10FLimits, TheNoteNamesTheHighestNumberedLoadedContainerWithABrokenLimit)
{
    FreighterRig rig;
    DC10F& form = rig.open();
    LoadState& state = rig.session.state;
    // Zone 1 over its limit (its empty 5L and 5R are marked too) and Container A over its maximum.
    load(state, 0, 7, 6300);
    load(state, kContainerA, kContainerA, 10341);
    form.cargocheck();
    form.redraw();
    EXPECT_EQ(form.overloadNote, "Container Overload");

    // Ten aft containers over their maximum also break zone 5, whose mark replaces theirs.
    load(state, kContainerC1L, kContainerC5R, 3501);
    form.cargocheck();
    form.redraw();
    EXPECT_EQ(state.stationmsg[kContainerC5R], "Zone Overload");
    EXPECT_EQ(form.overloadNote, "Zone Overload");

    load(state, kContainerC1L, kContainerC5R, 0);
    load(state, kContainerA, kContainerA, 0);
    form.cargocheck();
    form.redraw();
    EXPECT_EQ(form.overloadNote, "Zone Overload");
}

TEST(DC10FLimits, AMouseMovementShowsTheMarksOfThePreviousCheck)
{
    FreighterRig rig;
    DC10F& form = rig.open();
    LoadState& state = rig.session.state;
    state.stationweight[kContainer1L] = 9000;
    rig.picture().forget();
    form.Picture1_MouseMove(0, 0, 100, 100);
    EXPECT_EQ(containerBox(rig, kContainer1L).fillColor, kGreen);
    EXPECT_EQ(state.stationmsg[kContainer1L], "Container Overload");
    rig.picture().forget();
    form.Picture1_MouseMove(0, 0, 100, 100);
    EXPECT_EQ(containerBox(rig, kContainer1L).fillColor, kRed);
}

TEST(DC10FDrawing, TheDecksAreDrawnAtTheirFixedPlaces)
{
    FreighterRig rig;
    DC10F& form = rig.open();
    LoadState& state = rig.session.state;
    state.stationweight[kContainer1L] = 100;
    state.stationweight[kPilot] = 180;
    rig.picture().forget();
    form.redraw();
    RecordingCanvas& canvas = rig.picture();

    // Container 1L: corner (2116.8, 260), 541.7 by 416 twips.
    const DrawOp box = containerBox(rig, kContainer1L);
    EXPECT_NEAR(box.x1, 2116.8, 0.05);
    EXPECT_NEAR(box.y1, 260, 1e-9);
    EXPECT_NEAR(box.x2 - box.x1, 541.7, 0.05);
    EXPECT_NEAR(box.y2 - box.y1, 416, 1e-9);
    EXPECT_EQ(box.colour, kBlack);
    EXPECT_EQ(canvas.ops(DrawOp::Kind::Box).size(), 38u);

    // The nose at 1062.1 twips, the tail at 8521.5, the cabin walls at 199.2 and 1152.8.
    const auto lines = canvas.ops(DrawOp::Kind::Line);
    const auto touches = [&](double x, double y) { return lineEndsNear(lines, x, y, 0.05); };
    EXPECT_TRUE(touches(1062.1, 676));
    EXPECT_TRUE(touches(8521.5, 676));
    EXPECT_TRUE(touches(6938.62, 199.16));
    EXPECT_TRUE(touches(6938.62, 1152.84));
    // The bulkhead behind the flight deck, at x = 65 ft from y 6.8 to -6.8.
    EXPECT_TRUE(touches(1716, 322.4));
    EXPECT_TRUE(touches(1716, 1029.6));

    // Five rings, and a green disc on the loaded Pilot's seat, which sits 0.2 ft beside its ring.
    const auto circles = canvas.ops(DrawOp::Kind::Circle);
    ASSERT_EQ(circles.size(), 6u);
    EXPECT_NEAR(circles[0].x1, 1456, 1e-9);
    EXPECT_NEAR(circles[0].y1, 790.4, 1e-9);
    EXPECT_NEAR(circles[0].radius, 41.6, 1e-9);
    EXPECT_EQ(circles[0].fillStyle, FillStyle::Transparent);
    const DrawOp& disc = circles.back();
    EXPECT_NEAR(disc.x1, 1456, 1e-9);
    EXPECT_NEAR(disc.y1, 780, 1e-9);
    EXPECT_NEAR(disc.radius, 41.6, 1e-9);
    EXPECT_EQ(disc.fillStyle, FillStyle::Solid);
    EXPECT_EQ(disc.fillColor, kGreen);
    EXPECT_EQ(disc.colour, kBlack);

    const auto printed = canvas.ops(DrawOp::Kind::Text);
    ASSERT_EQ(printed.size(), 4u);
    const struct {
        const char* text;
        double x, y;
        bool bold;
    } headings[] = {{"Main Deck", 450, 100, true},
                    {"Lower Deck", 450, 1450, true},
                    {"Forward", 4550, 1450, false},
                    {"Aft", 7950, 1450, false}};
    for (std::size_t i = 0; i < printed.size(); ++i) {
        EXPECT_EQ(printed[i].text, headings[i].text);
        EXPECT_DOUBLE_EQ(printed[i].x1, headings[i].x);
        EXPECT_DOUBLE_EQ(printed[i].y1, headings[i].y);
        EXPECT_EQ(printed[i].bold, headings[i].bold);
        EXPECT_EQ(printed[i].fontSize, 10);
        EXPECT_EQ(printed[i].foreColor, kBlack);
    }
}

TEST(DC10FPresets, LightLoadEmptiesTheCrewAndGivesEachContainerItsShareBeforeTheExchange)
{
    FreighterRig rig;
    DC10F& form = rig.open();
    LoadState& state = rig.session.state;
    state.stationweight[kPilot] = 180;
    state.stationweight[400] = 50;

    // With every draw alike each container's load follows its maximum, so the centre already holds
    // the heaviest and nothing is exchanged.
    for (int i = 0; i < kStations; ++i)
        rig.random.push(0);
    form.mnulight_Click();
    EXPECT_EQ(rig.random.draws(), kStations);
    EXPECT_EQ(state.stationweight[400], 0);
    for (int i = kPilot; i < kStations; ++i)
        EXPECT_EQ(state.stationweight[i], 0) << i;
    for (int i = 0; i < kPilot; ++i)
        EXPECT_NEAR(state.stationweight[i] / state.stationmax[i], 0.025, 0.0005) << i;

    for (int i = 0; i < kStations; ++i)
        rig.random.push(0.9999999);
    form.mnulight_Click();
    for (int i = 0; i < kPilot; ++i)
        EXPECT_NEAR(state.stationweight[i] / state.stationmax[i], 0.189, 0.0005) << i;
}

TEST(DC10FPresets, TheHeaviestPositionsMoveToTheCentreButContainer9LIsPassedOver)
{
    FreighterRig rig;
    DC10F& form = rig.open();
    LoadState& state = rig.session.state;
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
            float sum = 0;
            for (int i = 0; i < kStations; ++i)
                sum += state.stationweight[i];
            EXPECT_EQ(state.loadweight, sum);
            EXPECT_LT(state.loadweight, 400160 - 237594);
            form.cargocheck();
            for (int i = 0; i < kStations; ++i)
                ASSERT_EQ(state.stationmsg[i], "") << i << " after round " << round;
            EXPECT_EQ(form.labels.lblpass.text, "Containers  38 / 38");
        }
    }
}

TEST(DC10FPresets, HeavyLoadKeepsTheMarksOfTheLastCheckAndWhatLiesBeyondTheStations)
{
    FreighterRig rig;
    DC10F& form = rig.open();
    LoadState& state = rig.session.state;
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

TEST(DC10FFiles, SavingWritesEveryStationUnderACargoHeading)
{
    FreighterRig rig;
    DC10F& form = rig.open();
    rig.prompt.answer("3500");
    pressStation(rig, kContainer1L);
    rig.prompt.answer("180");
    pressStation(rig, kPilot);
    form.mnusave_Click();

    expectGoldenFile("DC-10-30F.aircraft.cfg", rig.dir.read("sim/aircraft/dc10_30f/aircraft.cfg"));

    // The station file brings the load back on the next opening.
    rig.open();
    EXPECT_EQ(rig.session.state.stationweight[kContainer1L], 3500);
    EXPECT_EQ(rig.session.state.stationweight[kPilot], 180);
    EXPECT_EQ(rig.session.state.loadweight, 3680);
}

} // namespace
} // namespace quillet

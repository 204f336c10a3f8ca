#include "Golden.h"
#include "JetRig.h"
#include "TypeName.h"
#include "jets/JetForms.h"
#include "jets/data737.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace quillet {
namespace {

// B737-300 stations.
constexpr int kFirstClass1A = 0;
constexpr int kSeat3A = 8;
constexpr int kSeat3B = 9;
constexpr int kSeat3C = 10;
constexpr int kPilot = 128;
constexpr int kForwardHold = 134;
constexpr int kAftHold = 135;

// The B737-300's form opened the way "Adjust" opens it.
class B737Form : public ::testing::Test {
protected:
    JetRig rig;
    Boeing& form = rig.open("B737-300");
    LoadState& state = rig.session.state;
};

TEST(JetForm, OpeningSetsTheTypeUpAfreshAndAMissingPictureStaysBlank)
{
    JetRig rig;
    LoadState& state = rig.session.state;
    state.stationname[400] = "Container 12";
    state.stationweight.fill(12.5f);
    std::filesystem::remove(rig.dir.path() / "B737-300.gif");
    Boeing& form = rig.open("B737-300");
    EXPECT_EQ(state.stationname[400], "");
    EXPECT_EQ(state.stationweight[400], 0);
    EXPECT_EQ(form.caption, "B737-300");
    EXPECT_EQ(form.labels.lblpass.text, "Passengers  0 / 128");
    EXPECT_TRUE(form.photo.empty()) << "the message is the session's, told once";

    // Setting the type up again gives the same table, leaves the weights and clears the marks.
    const LoadState first = state;
    state.stationweight.fill(12.5f);
    state.stationmsg[kAftHold] = " Zone Overload";
    int scale = 0;
    data737::setUpB737_300(state, scale);
    EXPECT_EQ(std::tie(state.stationname, state.stationx, state.stationy, state.stationmax),
              std::tie(first.stationname, first.stationx, first.stationy, first.stationmax));
    EXPECT_EQ(state.stationweight[kAftHold], 12.5f);
    EXPECT_EQ(state.stationmsg[kAftHold], "");

    // An unknown type sets nothing up.
    rig.currentType = "B737-400";
    form.Form_Load();
    EXPECT_EQ(state.nstations, 134);
    EXPECT_EQ(state.stationname[0], "");
    EXPECT_EQ(rig.open("B737-200ADV").photo.filename(), "B737-200ADV.gif");
}

TEST_F(B737Form, ALeftClickAsksForAnEmptySeatAndEmptiesAnOccupiedOne)
{
    state.stationweight[kSeat3C] = -20;
    rig.picture().forget();
    form.redraw();
    EXPECT_TRUE(rig.picture().ops(DrawOp::Kind::FloodFill).empty()) << "empty holds are not filled";
    EXPECT_EQ(rig.picture().ops(DrawOp::Kind::Circle).size(), 6u) << "a negative weight draws no disc";
    state.stationweight[kSeat3C] = 0;

    rig.prompt.answer("180");
    rig.press(kSeat3C);
    ASSERT_EQ(rig.prompt.asked().size(), 1u);
    EXPECT_EQ(rig.question(0), std::tuple("Passenger 3C weight in lbs", "Pax Details", "170"));
    EXPECT_EQ(state.stationweight[kSeat3C], 180);
    EXPECT_EQ(state.loadweight, 180);
    EXPECT_EQ(form.labels.lblpass.text, "Passengers  1 / 128");
    rig.prompt.answer("170");
    rig.press(kFirstClass1A);
    rig.press(kSeat3C);
    EXPECT_EQ(rig.prompt.asked().size(), 2u);
    EXPECT_EQ(state.stationweight[kSeat3C], 0);
    EXPECT_EQ(state.loadweight, 170);
    EXPECT_EQ(form.labels.lblpass.text, "Passengers  1 / 128");

    // 3A (y 875) and 3B (y 770) overlap at 822: both are asked, in station order; 60 twips off is out.
    rig.prompt.answer("150");
    rig.prompt.answer("90");
    form.Picture1_MouseDown(Boeing::kLeftButton, 0, state.stationpx[kSeat3A], 822);
    ASSERT_EQ(rig.prompt.asked().size(), 4u);
    EXPECT_EQ(rig.prompt.asked()[2].prompt, "Passenger 3A weight in lbs");
    EXPECT_EQ(rig.prompt.asked()[3].prompt, "Passenger 3B weight in lbs");
    EXPECT_EQ(std::tuple(state.stationweight[kSeat3A], state.stationweight[kSeat3B]),
              std::tuple(150.0f, 90.0f));
    form.Picture1_MouseDown(Boeing::kLeftButton, 0, state.stationpx[kSeat3A], 875 - 60);
    EXPECT_EQ(std::tuple(state.stationweight[kSeat3A], state.stationweight[kSeat3B]),
              std::tuple(150.0f, 0.0f));
}

TEST_F(B737Form, OtherButtonsLoadOnlyHoldsAndBadAnswersLeaveStationsEmpty)
{
    rig.press(kSeat3C, Boeing::kRightButton);
    EXPECT_TRUE(rig.prompt.asked().empty());

    rig.prompt.answer("1500 lb");
    rig.press(kForwardHold, Boeing::kRightButton);
    ASSERT_EQ(rig.prompt.asked().size(), 1u);
    EXPECT_EQ(rig.question(0), std::tuple("Lower Deck Cargo Forward weight in lbs", "Cargo details", "1000"));
    EXPECT_EQ(state.stationweight[kForwardHold], 1500);

    rig.prompt.cancel();
    rig.press(kAftHold);
    EXPECT_EQ(state.stationweight[kAftHold], 0);
    for (const char* answer : {"heavy", "1e300"}) {
        rig.prompt.answer(answer);
        rig.press(kSeat3C);
        EXPECT_EQ(state.stationweight[kSeat3C], 0) << answer;
    }
    // A negative weight is kept and counted; the next click empties the seat.
    rig.prompt.answer("-40");
    rig.press(kSeat3C);
    EXPECT_EQ(state.stationweight[kSeat3C], -40);
    EXPECT_EQ(state.loadweight, 1460);
    rig.press(kSeat3C);
    EXPECT_EQ(state.stationweight[kSeat3C], 0);
    EXPECT_EQ(state.loadweight, 1500);
}

TEST_F(B737Form, HoverLabelNamesALoadedStationBesideIt)
{
    state.stationweight[kFirstClass1A] = 170;
    form.Picture1_MouseMove(0, 0, 3045 + 50, 854 - 50);
    const DrawOp label = rig.picture().ops(DrawOp::Kind::Text).back();
    EXPECT_EQ(std::tuple(label.text, label.fontSize, label.x1),
              std::tuple(" Passenger 1A 170 lb.", 8.0, 3097.5));
    const DrawOp box = rig.picture().ops(DrawOp::Kind::Box).back();
    EXPECT_DOUBLE_EQ((box.y1 + box.y2) / 2, 854);

    // 0.75 ft at 70 twips per foot is 52.5 twips; an empty seat shows nothing.
    for (const auto& [x, y] : {std::pair(3045.0 + 53, 854.0), std::pair(double(state.stationpx[kSeat3C]),
                                                                        double(state.stationpy[kSeat3C]))}) {
        rig.picture().forget();
        form.Picture1_MouseMove(0, 0, x, y);
        EXPECT_EQ(rig.picture().ops(DrawOp::Kind::Box).size(), 128u) << x;
    }
}

TEST_F(B737Form, AnAftHoldAboveItsMaximumIsHatchedRedAndSaysSo)
{
    rig.prompt.answer("5168");
    rig.press(kAftHold);
    EXPECT_EQ(state.stationmsg[kAftHold], "");
    // Filled from the hold's point (6387.5 twips, halves to even 6388; 1470) in pixels, bounded by black.
    const DrawOp fill = rig.picture().ops(DrawOp::Kind::FloodFill).back();
    EXPECT_EQ(std::tuple(fill.fillColor, fill.fillStyle, fill.x1, fill.y1, fill.colour),
              std::tuple(kGreen, FillStyle::DiagonalCross, 426.0, 98.0, kBlack));

    rig.press(kAftHold);
    rig.prompt.answer("5168.5");
    rig.press(kAftHold);
    EXPECT_EQ(state.stationmsg[kAftHold], " Zone Overload");
    EXPECT_EQ(rig.picture().ops(DrawOp::Kind::FloodFill).back().fillColor, kRed);

    rig.picture().forget();
    form.Picture1_MouseMove(0, 0, 6388 + 170, 1470 - 170);
    const DrawOp label = rig.picture().ops(DrawOp::Kind::Text).back();
    EXPECT_EQ(label.text, " Lower Deck Cargo Aft 5169 lb. Zone Overload");
    // That label would pass 9435 twips to the right of the hold, so it opens to its left.
    const double width = rig.picture().textWidth(label.text);
    EXPECT_GT(6388 + 52.5 + width, Boeing::kLabelRightLimit);
    EXPECT_DOUBLE_EQ(label.x1, 6388 - 52.5 - width);
}

TEST_F(B737Form, PassengersAreLoadedSeatsAndContainersLoadedMainDeckCargo)
{
    state.stationweight[kFirstClass1A] = 170;
    state.stationweight[kSeat3C] = -5;
    state.stationweight[kPilot] = 190;
    state.stationweight[kForwardHold] = 800;
    form.nopass();
    EXPECT_EQ(std::tuple(state.npax, state.ncontainers), std::tuple(1, 0));

    Boeing& freighter = rig.open("B757-200F");
    EXPECT_EQ(freighter.labels.lblpass.text, "Containers  0 / 15");
    for (int station : {0, 2, 17, 18}) // a pilot, container 1 and the two holds
        state.stationweight[station] = 500;
    freighter.runSummary();
    EXPECT_EQ(freighter.labels.lblpass.text, "Containers  1 / 15");
    EXPECT_EQ(state.npax, 0);
}

TEST(JetEmpty, EmptyAircraftKeepsTheCrewAndEmptiesSeatsAndHolds)
{
    for (const auto& [type, stations, crewFirst, crewLast, label] :
         {std::tuple("B737-300", 136, 128, 133, "Passengers  0 / 128"),
          std::tuple("B757-200", 196, 184, 193, "Passengers  0 / 184")}) {
        SCOPED_TRACE(type);
        JetRig rig;
        Boeing& form = rig.open(type);
        LoadState& state = rig.session.state;
        for (int i = 0; i < stations; ++i)
            state.stationweight[i] = 100;
        form.mnuempty_Click();
        for (int i = 0; i < stations; ++i)
            ASSERT_EQ(state.stationweight[i], i >= crewFirst && i <= crewLast ? 100 : 0) << i;
        EXPECT_EQ(state.loadweight, 100 * (crewLast - crewFirst + 1));
        EXPECT_EQ(form.labels.lblpass.text, label);
    }
}

TEST_F(B737Form, LightSeatsAThirdOfTheFirstDrawAndLoadsTheHolds)
{
    state.stationweight[kPilot] = 185;
    // 0.1344 × 128 / 3 = 5.73: five passengers, each a weight and a seat draw; then the two holds.
    for (double draw : {0.1344, 0.5, 0.0, 0.5, 0.1, 0.5, 0.2, 0.5, 0.3, 0.5, 0.4, 0.5, 0.25})
        rig.random.push(draw);
    form.mnulight_Click();

    EXPECT_EQ(rig.random.overdrawn(), 0);
    EXPECT_EQ(rig.random.left(), 0u);
    EXPECT_EQ(rig.loadedStations(0, 127), 5);
    for (int seat : {0, 12, 25, 38, 51})
        EXPECT_FLOAT_EQ(state.stationweight[seat], 54 + 188 * 0.5f) << seat;
    EXPECT_FLOAT_EQ(state.stationweight[kForwardHold], 2002 * (0.28f * 0.5f + 0.05f));
    EXPECT_FLOAT_EQ(state.stationweight[kAftHold], 5168 * (0.28f * 0.25f + 0.05f));
    EXPECT_EQ(state.stationweight[kPilot], 185);
    EXPECT_FLOAT_EQ(state.loadweight, rig.sumOfWeights());
    EXPECT_EQ(form.labels.lblpass.text, "Passengers  5 / 128");
}

TEST(JetPresets, MediumAndHeavyRemoveTheirShareOfAFullCabin)
{
    for (const auto& [preset, left] :
         {std::pair{&Boeing::mnumed_Click, 79}, std::pair{&Boeing::mnuheav_Click, 122}}) {
        FirstDrawThenSeeded random(0.1344);
        JetRig rig(&random);
        Boeing& form = rig.open("B737-300");
        LoadState& state = rig.session.state;
        state.stationweight[kPilot] = 185;
        (form.*preset)();
        EXPECT_EQ(rig.loadedStations(0, 127), left);
        EXPECT_EQ(state.stationweight[kPilot], 185);
        EXPECT_FLOAT_EQ(state.loadweight, rig.sumOfWeights());
        for (int i = 0; i < 128; ++i) {
            if (state.stationweight[i] > 0) {
                ASSERT_GE(state.stationweight[i], 54);
                ASSERT_LT(state.stationweight[i], 242);
            }
        }
    }

    // Heavy loads every hold with half to seventy percent of its maximum.
    JetRig rig;
    Boeing& form = rig.open("B737-300");
    for (int i = 0; i < 130; ++i)
        rig.random.push(0.0); // the share, 128 weights and the one seat emptied: seat 0
    rig.random.push(0.999999);
    rig.random.push(0.0);
    form.mnuheav_Click();
    const LoadState& state = rig.session.state;
    EXPECT_EQ(state.stationweight[0], 0);
    EXPECT_NEAR(state.stationweight[kForwardHold], 2002 * 0.7, 0.01);
    EXPECT_FLOAT_EQ(state.stationweight[kAftHold], 5168 * 0.5f);
}

// What each type saves for a load: the whole aircraft.cfg, compared with a golden file whose station
// lines were checked against the published tables. Airliners write their persons as one station at
// their centre of weight (none aboard: all zero), freighters every station under a cargo heading.
struct SavedLoad {
    const char* type;
    std::vector<std::pair<int, float>> weights;
    std::pair<int, int> hundredEach{0, -1}; // stations loaded with 100 lb each
};

const SavedLoad kSavedLoads[] = {
    {"B737-300", {{kFirstClass1A, 170}, {kPilot, 170}, {kForwardHold, 1000}}},
    {"B737-200ADV", {{0, 100}, {101, 300}, {108, 1500}}},
    {"B727-212ADV", {{147, 100}, {146, 300}, {154, 3000}}},
    {"B757-200", {}, {184, 193}},
    {"B757-200F", {{0, 190}, {1, 180}, {2, 500}, {17, 500}, {18, 500}}},
    {"B767-300ER", {{261, 200}, {299, 1000}}},
    {"MD-90-30", {{165, 3000}}},
    {"DC-9-30F", {{0, 180}, {3, 1500}}},
    {"DC-8-71F", {{0, 180}, {3, 1500}}},
};

class JetSave : public ::testing::TestWithParam<SavedLoad> {};

TEST_P(JetSave, WritesTheWeightSectionOfTheType)
{
    const SavedLoad& load = GetParam();
    JetRig rig;
    Boeing& form = rig.open(load.type);
    for (const auto& [station, weight] : load.weights)
        rig.session.state.stationweight[station] = weight;
    for (int i = load.hundredEach.first; i <= load.hundredEach.second; ++i)
        rig.session.state.stationweight[i] = 100;
    rig.session.state.loadweight = rig.sumOfWeights();
    form.mnusave_Click();
    expectGoldenFile(std::string(load.type) + ".aircraft.cfg", rig.aircraftCfg(load.type));
}

INSTANTIATE_TEST_SUITE_P(EveryType, JetSave, ::testing::ValuesIn(kSavedLoads),
                         [](const auto& info) { return testNameOf(info.param.type); });

TEST(JetForms, BoeingServesOnlyTheTypesWhoseDataExists)
{
    FormRegistry forms;
    registerJetForms(forms);
    for (const SavedLoad& load : kSavedLoads)
        EXPECT_TRUE(forms.serves("Boeing", load.type)) << load.type;
    for (const char* waiting : {"b737-300", "B757-200 ", "DC-10-30F", "CRJ-200ER"})
        EXPECT_FALSE(forms.serves("Boeing", waiting)) << waiting;
}

} // namespace
} // namespace quillet

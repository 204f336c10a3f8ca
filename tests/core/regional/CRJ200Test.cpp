#include "Golden.h"
#include "RegionalRig.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <optional>
#include <tuple>
#include <vector>

namespace quillet {
namespace {

constexpr int kLeft = CRJ200::kLeftButton;
constexpr int kPilot = 0;
constexpr int kCopilot = 1;
constexpr int kSeat1A = 2;
constexpr int kSeat1B = 3;
constexpr int kHold = 52;

// Where the seat map shows them.
constexpr double kSeat1AX = 2721;
constexpr double kSeat1AY = 862;
constexpr double kHoldX = 7444;
constexpr double kHoldY = 505;

RecordingCanvas& seatMap(CRJ200& form)
{
    return dynamic_cast<RecordingCanvas&>(form.Picture2());
}

// What the seat map shows now, of one kind or all: everything drawn since it was last cleared.
std::vector<DrawOp> shown(CRJ200& form, std::optional<DrawOp::Kind> kind = std::nullopt)
{
    const auto& ops = seatMap(form).ops();
    auto clear = std::find_if(ops.rbegin(), ops.rend(),
                              [](const DrawOp& op) { return op.kind == DrawOp::Kind::Clear; });
    std::vector<DrawOp> found;
    std::copy_if(clear.base(), ops.end(), std::back_inserter(found),
                 [&](const DrawOp& op) { return !kind || op.kind == *kind; });
    return found;
}

// Twips go through whole pixels and back: equal up to rounding.
bool same(double a, double b)
{
    return std::fabs(a - b) < 1e-6;
}

bool dotAt(const std::vector<DrawOp>& ops, double x, double y)
{
    return std::any_of(ops.begin(), ops.end(), [&](const DrawOp& op) {
        return op.kind == DrawOp::Kind::Circle && same(op.x1, x) && same(op.y1, y) && same(op.radius, 50) &&
               op.colour == kBlack && op.fillStyle == FillStyle::Solid && op.fillColor == kGreen;
    });
}

bool holdBoxShown(const std::vector<DrawOp>& ops)
{
    return std::any_of(ops.begin(), ops.end(), [](const DrawOp& op) {
        return op.kind == DrawOp::Kind::Box && op.fillStyle == FillStyle::DiagonalCross &&
               op.fillColor == kGreen && op.colour == kBlack && same(op.x1, kHoldX - 200) &&
               same(op.y1, kHoldY - 325) && same(op.x2, kHoldX + 200) && same(op.y2, kHoldY + 325);
    });
}

// The CRJ-200ER's form opened the way "Adjust" opens it, on a program folder of its own.
class CRJ200Form : public ::testing::Test {
protected:
    void click(double x, double y, int button = kLeft) { form.Picture2_MouseDown(button, 0, x, y); }

    RegionalRig rig;
    CRJ200& form = rig.openCRJ200();
    LoadState& state = rig.session.state;
};

// The golden table of the first run checks every station and its place on the seat map.
TEST_F(CRJ200Form, OpensEmptyAndAStationFileMovesTheSeatsOnTheMapAtTheNextSetUp)
{
    // Clearing the map goes back to the drawing without drawing it again.
    form.redraw();
    EXPECT_TRUE(shown(form, DrawOp::Kind::Line).empty());
    EXPECT_EQ(seatMap(form).ops().back().kind, DrawOp::Kind::Clear);
    EXPECT_EQ(form.labels.lblpass.text, "Passengers  0 / 50");
    EXPECT_EQ(form.photo, rig.dir.path() / "CRJ200.gif");

    std::string stations = rig.dir.read("CRJ-200ER.cfg");
    const std::string before = "\"Passenger 1A\",16,-3.2,0,0";
    stations.replace(stations.find(before), before.size(), "\"Passenger 1A\",15,-2,0,0");
    rig.dir.write("CRJ-200ER.cfg", stations);
    form.Form_Load();
    EXPECT_EQ(std::tuple(state.stationpx[kSeat1A], state.stationpy[kSeat1A]), std::tuple(2852, 728));
    rig.prompt.answer("170");
    click(2852, 728);
    EXPECT_EQ(state.stationweight[kSeat1A], 170);
}

TEST_F(CRJ200Form, TheStoredLoadIsDrawnWhenTheFormOpens)
{
    state.stationweight[kPilot] = 180;
    state.stationweight[kSeat1A] = 170;
    state.stationweight[kHold] = 500;
    form.mnusave_Click();
    state.stationweight.fill(0);

    form.Form_Load();
    EXPECT_EQ(std::tuple(state.loadweight, state.npax), std::tuple(850.0f, 1));
    EXPECT_TRUE(dotAt(shown(form), 1146, 678));
    EXPECT_TRUE(dotAt(shown(form), kSeat1AX, kSeat1AY));
    EXPECT_EQ(shown(form, DrawOp::Kind::Circle).size(), 2u) << "persons only";

    // Reloading redraws every loaded station with a dot, the hold's at its middle.
    form.mnuload_Click();
    EXPECT_EQ(shown(form, DrawOp::Kind::Circle).size(), 3u);
    EXPECT_TRUE(dotAt(shown(form), kHoldX, kHoldY));
}

TEST_F(CRJ200Form, ALeftClickAsksForAnEmptySeatsWeightAndEmptiesALoadedSeat)
{
    rig.prompt.answer("170");
    click(kSeat1AX + 99, kSeat1AY + 99);
    ASSERT_EQ(rig.prompt.asked().size(), 1u);
    EXPECT_EQ(rig.question(0), std::tuple("Passenger 1A weight in lbs", "Pax Details", "170"));
    EXPECT_EQ(std::tuple(state.stationweight[kSeat1A], state.loadweight), std::tuple(170.0f, 170.0f));
    EXPECT_TRUE(dotAt(seatMap(form).ops(), kSeat1AX, kSeat1AY));
    EXPECT_EQ(form.labels.lblpax.text, "PAX weight =  170 lb.");
    EXPECT_EQ(form.labels.lblpass.text, "Passengers  1 / 50");

    click(kSeat1AX, kSeat1AY);
    EXPECT_EQ(rig.prompt.asked().size(), 1u) << "emptied without asking";
    EXPECT_EQ(std::tuple(state.stationweight[kSeat1A], state.loadweight), std::tuple(0.0f, 0.0f));
    const DrawOp erased = seatMap(form).ops(DrawOp::Kind::Circle).back();
    EXPECT_TRUE(same(erased.x1, kSeat1AX) && same(erased.y1, kSeat1AY) && same(erased.radius, 51));
    EXPECT_EQ(std::tuple(erased.colour, erased.fillColor, erased.fillStyle),
              std::tuple(kWhite, kWhite, FillStyle::Solid));
    EXPECT_EQ(form.labels.lblpass.text, "Passengers  0 / 50");
}

TEST_F(CRJ200Form, HitBoxesAreStrictTheHoldsLargerAndAStripBetweenTwoSeatsHandlesBoth)
{
    const std::size_t balanceDrawings = dynamic_cast<RecordingCanvas&>(form.Picture4()).ops().size();
    click(kSeat1AX + 150, kSeat1AY);
    click(kSeat1AX + 100, kSeat1AY);
    click(kHoldX, kHoldY + 325);
    EXPECT_TRUE(rig.prompt.asked().empty());
    EXPECT_EQ(state.loadweight, 0);
    EXPECT_GT(dynamic_cast<RecordingCanvas&>(form.Picture4()).ops().size(), balanceDrawings)
        << "the summary runs after a click that hits nothing";

    rig.prompt.answer("1200");
    click(kHoldX + 150, kHoldY);
    ASSERT_EQ(rig.prompt.asked().size(), 1u);
    EXPECT_EQ(rig.question(0), std::tuple("Cargo weight in lbs", "Cargo details", "1000"));
    EXPECT_EQ(std::tuple(state.stationweight[kHold], state.loadweight), std::tuple(1200.0f, 1200.0f));
    EXPECT_TRUE(holdBoxShown(seatMap(form).ops()));
    EXPECT_EQ(form.labels.lblpass.text, "Passengers  0 / 50") << "cargo is no passenger";

    rig.prompt.answer("170");
    rig.prompt.answer("80");
    click(kSeat1AX, 772); // 1A at 862 and 1B at 683
    ASSERT_EQ(rig.prompt.asked().size(), 3u);
    EXPECT_EQ(rig.prompt.asked()[1].prompt, "Passenger 1A weight in lbs");
    EXPECT_EQ(rig.prompt.asked()[2].prompt, "Passenger 1B weight in lbs");
    EXPECT_EQ(std::tuple(state.stationweight[kSeat1A], state.stationweight[kSeat1B]),
              std::tuple(170.0f, 80.0f));
    rig.prompt.answer("90");
    rig.prompt.answer("100");
    click(3075, 237); // 2C at 327 and 2D at 148
    EXPECT_EQ(std::tuple(state.stationweight[8], state.stationweight[9]), std::tuple(90.0f, 100.0f));

    click(kSeat1AX, 772);
    EXPECT_EQ(rig.prompt.asked().size(), 5u);
    EXPECT_EQ(std::tuple(state.stationweight[kSeat1A], state.stationweight[kSeat1B]), std::tuple(0.0f, 0.0f));
    EXPECT_EQ(state.loadweight, 1390);
}

TEST_F(CRJ200Form, OtherButtonsPrintASeatsWeightAndChangeNothing)
{
    rig.prompt.answer("182.6");
    click(kSeat1AX, kSeat1AY);
    click(2700, 850, CRJ200::kRightButton);
    click(kSeat1AX, 700, 4); // the middle button, on 1B
    EXPECT_EQ(rig.prompt.asked().size(), 1u);
    EXPECT_EQ(std::tuple(state.stationweight[kSeat1A], state.loadweight), std::tuple(182.6f, 182.6f));
    const auto texts = seatMap(form).ops(DrawOp::Kind::Text);
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_EQ(texts[0].text, "182.6");
    EXPECT_TRUE(same(texts[0].x1, 2700) && same(texts[0].y1, 850));
    EXPECT_EQ(texts[1].text, "0");

    // The hold answers every button alike.
    rig.prompt.answer("300");
    click(kHoldX, kHoldY, CRJ200::kRightButton);
    EXPECT_EQ(state.stationweight[kHold], 300);
}

TEST_F(CRJ200Form, AnswersThatAreNoWeightLeaveTheStationEmptyAndANegativeSeatIsKeptUncounted)
{
    for (const char* answer : {"0", "none", ""})
        rig.prompt.answer(answer);
    rig.prompt.cancel();
    for (int i = 0; i < 4; ++i)
        click(kSeat1AX, kSeat1AY);
    // The hold wants a number: anything that does not read as a positive one leaves it empty.
    for (const char* answer : {"-5", "lots", ""})
        rig.prompt.answer(answer);
    rig.prompt.cancel();
    for (int i = 0; i < 4; ++i)
        click(kHoldX, kHoldY);
    EXPECT_EQ(rig.prompt.asked().size(), 8u);
    EXPECT_EQ(std::tuple(state.stationweight[kSeat1A], state.stationweight[kHold], state.loadweight),
              std::tuple(0.0f, 0.0f, 0.0f));
    EXPECT_TRUE(seatMap(form).ops(DrawOp::Kind::Circle).empty());
    EXPECT_FALSE(holdBoxShown(seatMap(form).ops()));
    rig.prompt.answer("850 lb");
    click(kHoldX, kHoldY);
    EXPECT_EQ(state.stationweight[kHold], 850);
    click(kHoldX, kHoldY);

    // A negative seat weight is neither drawn nor counted; the next click empties the seat without
    // asking and takes its weight off the load.
    const std::size_t circles = seatMap(form).ops(DrawOp::Kind::Circle).size();
    rig.prompt.answer("-80");
    click(kSeat1AX, kSeat1AY);
    EXPECT_EQ(std::tuple(state.stationweight[kSeat1A], state.loadweight), std::tuple(-80.0f, 0.0f));
    EXPECT_EQ(seatMap(form).ops(DrawOp::Kind::Circle).size(), circles);
    EXPECT_EQ(form.labels.lblpass.text, "Passengers  0 / 50");
    click(kSeat1AX, kSeat1AY);
    EXPECT_EQ(rig.prompt.asked().size(), 10u);
    EXPECT_EQ(std::tuple(state.stationweight[kSeat1A], state.loadweight), std::tuple(0.0f, 80.0f));
}

TEST_F(CRJ200Form, ALoadedStationShowsItsInformationBoxUntilThePointerMovesOff)
{
    rig.prompt.answer("170");
    click(kSeat1AX, kSeat1AY);
    rig.prompt.answer("1200");
    click(kHoldX, kHoldY);

    form.Picture2_MouseMove(0, 0, kSeat1AX + 60, kSeat1AY - 40);
    EXPECT_TRUE(dotAt(shown(form), kSeat1AX, kSeat1AY));
    EXPECT_TRUE(holdBoxShown(shown(form)));
    auto texts = shown(form, DrawOp::Kind::Text);
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].text, " Passenger 1A 170 lb.");
    const DrawOp box = shown(form, DrawOp::Kind::Box).back();
    EXPECT_TRUE(same(box.x1, kSeat1AX + 100) && same((box.y1 + box.y2) / 2, kSeat1AY));
    EXPECT_TRUE(same(texts[0].x1, box.x1) && same(texts[0].y1, box.y1));

    // Just off the seat, onto an empty one, and beside the hold where a click would still land.
    for (const auto& [x, y] : {std::pair(kSeat1AX + 100, kSeat1AY), std::pair(kSeat1AX + 354, kSeat1AY),
                               std::pair(kHoldX + 150, kHoldY)}) {
        form.Picture2_MouseMove(0, 0, x, y);
        EXPECT_TRUE(shown(form, DrawOp::Kind::Text).empty()) << x;
        EXPECT_TRUE(dotAt(shown(form), kSeat1AX, kSeat1AY));
    }

    form.Picture2_MouseMove(kLeft, 0, kHoldX + 99, kHoldY);
    texts = shown(form, DrawOp::Kind::Text);
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].text, " Cargo 1200 lb.");
    EXPECT_TRUE(same(texts[0].x1, kHoldX + 100));

    // Emptying the hold redraws the map without it.
    click(kHoldX + 50, kHoldY);
    EXPECT_EQ(std::tuple(state.stationweight[kHold], state.loadweight), std::tuple(0.0f, 170.0f));
    EXPECT_FALSE(holdBoxShown(shown(form)));
    EXPECT_TRUE(dotAt(shown(form), kSeat1AX, kSeat1AY));
    EXPECT_EQ(form.labels.lblpax.text, "PAX weight =  170 lb.");
}

TEST_F(CRJ200Form, LightSeatsExactlyTheDrawnPassengersAndLeavesTheCrewAlone)
{
    rig.prompt.answer("190");
    click(1146, 678);

    // n = 1 + Int(50 × 0.95 / 3) = 16; hold = 13 × 16 + Int(16 × 20 × 0.5) = 368; then a weight and a
    // seat for each passenger, a taken seat drawn again.
    rig.random.push(0.95);
    rig.random.push(0.5);
    for (int seat = 2; seat <= 17; ++seat) {
        rig.random.push(0.5);
        if (seat == 3)
            rig.random.push(0.5 / 50); // seat 2, taken
        rig.random.push((seat - 2 + 0.5) / 50);
    }
    form.mnulight_Click();

    EXPECT_EQ(std::tuple(rig.random.left(), rig.random.overdrawn()), std::tuple(0u, 0));
    EXPECT_EQ(rig.loadedStations(kSeat1A, 51), 16);
    EXPECT_EQ(std::tuple(state.stationweight[17], state.stationweight[kHold], state.stationweight[kPilot],
                         state.stationweight[kCopilot]),
              std::tuple(148.0f, 368.0f, 190.0f, 0.0f));
    EXPECT_EQ(state.loadweight, rig.sumOfWeights());
    EXPECT_EQ(state.loadweight, 190 + 16 * 148 + 368);
    EXPECT_EQ(state.npax, 16);
    EXPECT_EQ(form.labels.lblpass.text, "Passengers  16 / 50");
    EXPECT_EQ(shown(form, DrawOp::Kind::Circle).size(), 18u) << "pilot, passengers and the hold";
    EXPECT_TRUE(dotAt(shown(form), kHoldX, kHoldY));
}

TEST(CRJ200Presets, MediumAndHeavyDrawTheirOwnCountsAndBaggage)
{
    // The passengers the first draw, 0.95, gives, and the hold's baggage per passenger.
    for (const auto& [click, passengers, perPassenger] :
         {std::tuple(&CRJ200::mnumed_Click, 11 + 15, 14), std::tuple(&CRJ200::mnuheav_Click, 50 - 15, 15)}) {
        SCOPED_TRACE(passengers);
        FirstDrawThenSeeded generator(0.95);
        RegionalRig rig(&generator);
        CRJ200& form = rig.openCRJ200();
        const LoadState& state = rig.session.state;
        rig.prompt.answer("85");
        form.Picture2_MouseDown(kLeft, 0, 1146, 321);
        (form.*click)();
        EXPECT_EQ(rig.loadedStations(kSeat1A, 51), passengers);
        EXPECT_EQ(state.npax, passengers);
        for (int seat = kSeat1A; seat <= 51; ++seat) {
            if (state.stationweight[seat] > 0) {
                ASSERT_GE(state.stationweight[seat], 54);
                ASSERT_LT(state.stationweight[seat], 242);
            }
        }
        EXPECT_GE(state.stationweight[kHold], perPassenger * passengers);
        EXPECT_LT(state.stationweight[kHold], (perPassenger + 20) * passengers);
        EXPECT_EQ(std::tuple(state.stationweight[kCopilot], state.stationweight[kPilot]),
                  std::tuple(85.0f, 0.0f));
        EXPECT_EQ(state.loadweight, rig.sumOfWeights());
    }
}

TEST_F(CRJ200Form, SavingWritesAllFiftyThreeStationsTheHoldIncluded)
{
    rig.prompt.answer("170");
    click(kSeat1AX, kSeat1AY);
    rig.prompt.answer("1200");
    click(kHoldX, kHoldY);
    form.mnusave_Click();
    expectGoldenFile("CRJ-200ER.aircraft.cfg", rig.dir.read("sim/aircraft/crj200/aircraft.cfg"));
    EXPECT_NE(rig.dir.read("CRJ-200ER.cfg").find("\r\n\"Cargo\",-20,0,0,1200\r\n"), std::string::npos);
}

} // namespace
} // namespace quillet

#include "Golden.h"
#include "RegionalRig.h"
#include "regional/RegionalForms.h"
#include "shell/Form1.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace quillet {
namespace {

constexpr int kLeft = CRJ200::kLeftButton;
constexpr int kRight = CRJ200::kRightButton;
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

// What the seat map shows now: everything drawn since it was last cleared.
std::vector<DrawOp> shown(CRJ200& form)
{
    const auto& ops = seatMap(form).ops();
    auto clear = std::find_if(ops.rbegin(), ops.rend(),
                              [](const DrawOp& op) { return op.kind == DrawOp::Kind::Clear; });
    return std::vector<DrawOp>(clear.base(), ops.end());
}

std::vector<DrawOp> ofKind(const std::vector<DrawOp>& ops, DrawOp::Kind kind)
{
    std::vector<DrawOp> found;
    std::copy_if(ops.begin(), ops.end(), std::back_inserter(found),
                 [kind](const DrawOp& op) { return op.kind == kind; });
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

// Scripted draws first, then the program's own generator.
class ScriptedThenSeeded final : public RandomSource {
public:
    ScriptedThenSeeded(std::initializer_list<double> first) : m_first(first) {}
    double next() override
    {
        if (m_used < m_first.size())
            return m_first[m_used++];
        return m_seeded.next();
    }

private:
    std::vector<double> m_first;
    std::size_t m_used = 0;
    SeededRandom m_seeded;
};

int occupiedPassengerSeats(const LoadState& state)
{
    int count = 0;
    for (int seat = 2; seat <= 51; ++seat)
        count += state.stationweight[seat] > 0 ? 1 : 0;
    return count;
}

// The CRJ-200ER's form opened the way "Adjust" opens it, on a program folder of its own.
class CRJ200Fixture : public ::testing::Test {
protected:
    RegionalRig rig;
    CRJ200& form = rig.openCRJ200();
    LoadState& state = rig.session.state;
};
using CRJ200Click = CRJ200Fixture;
using CRJ200Hover = CRJ200Fixture;
using CRJ200Presets = CRJ200Fixture;
using CRJ200Save = CRJ200Fixture;
using CRJ200SeatMap = CRJ200Fixture;
using CRJ200SetUp = CRJ200Fixture;

// The golden table of the first run checks every station and its place on the seat map.
TEST_F(CRJ200SetUp, ShowsTheTypeWithNobodyAboard)
{
    EXPECT_EQ(form.labels.lblpass.text, "Passengers  0 / 50");
    EXPECT_EQ(form.labels.lblmaxtow.text, "Max takeoff weight  51000 lb.");
    EXPECT_EQ(form.photo, rig.dir.path() / "CRJ200.gif");
}

TEST_F(CRJ200SetUp, AStationFileMovesTheSeatsOnTheMapAtTheNextSetUp)
{
    std::string stations = rig.dir.read("CRJ-200ER.cfg");
    const std::string before = "\"Passenger 1A\",16,-3.2,0,0";
    stations.replace(stations.find(before), before.size(), "\"Passenger 1A\",15,-2,0,0");
    rig.dir.write("CRJ-200ER.cfg", stations);

    form.Form_Load();
    EXPECT_EQ(rig.session.state.stationpx[kSeat1A], 2852);
    EXPECT_EQ(rig.session.state.stationpy[kSeat1A], 728);
    rig.prompt.answer("170");
    form.Picture2_MouseDown(kLeft, 0, 2852, 728);
    EXPECT_EQ(rig.session.state.stationweight[kSeat1A], 170);
}

TEST_F(CRJ200SeatMap, TheCabinDrawingHasASeatUnderEveryStationAndStaysUnderTheDots)
{
    const auto& background = seatMap(form).backgroundOps();
    const auto outlines = ofKind(background, DrawOp::Kind::Box);
    for (int i = 0; i <= kHold; ++i) {
        SCOPED_TRACE(state.stationname[i]);
        const double x = state.stationpx[i];
        const double y = state.stationpy[i];
        const double halfLength = i == kHold ? 200 : 100;
        const double halfWidth = i == kHold ? 325 : 100;
        // A black outline around the station's point, inside its hit box, so that a click on what
        // the user sees lands on the station.
        const bool seated = std::any_of(outlines.begin(), outlines.end(), [&](const DrawOp& box) {
            return box.colour == kBlack && box.x1 < x - 50 && box.x2 > x + 50 && box.y1 < y - 50 &&
                   box.y2 > y + 50 && box.x1 >= x - halfLength && box.x2 <= x + halfLength &&
                   box.y1 >= y - halfWidth && box.y2 <= y + halfWidth;
        });
        EXPECT_TRUE(seated);
    }

    // Clearing the map goes back to the drawing: nothing of it is drawn again.
    form.redraw();
    EXPECT_TRUE(ofKind(shown(form), DrawOp::Kind::Line).empty());
    EXPECT_EQ(seatMap(form).ops().back().kind, DrawOp::Kind::Clear);
}

TEST_F(CRJ200SetUp, TheStoredLoadIsDrawnWhenTheFormOpens)
{
    state.stationweight[kPilot] = 180;
    state.stationweight[kSeat1A] = 170;
    state.stationweight[kHold] = 500;
    form.mnusave_Click();
    state.stationweight.fill(0);

    form.Form_Load();
    EXPECT_EQ(state.loadweight, 850);
    EXPECT_EQ(state.npax, 1);
    std::vector<DrawOp> map = shown(form);
    EXPECT_TRUE(dotAt(map, 1146, 678));
    EXPECT_TRUE(dotAt(map, kSeat1AX, kSeat1AY));
    EXPECT_EQ(ofKind(map, DrawOp::Kind::Circle).size(), 2u) << "persons only";

    // Reloading redraws every loaded station with a dot, the hold's at its middle.
    form.mnuload_Click();
    map = shown(form);
    EXPECT_EQ(ofKind(map, DrawOp::Kind::Circle).size(), 3u);
    EXPECT_TRUE(dotAt(map, kHoldX, kHoldY));
}

TEST_F(CRJ200Click, ALeftClickAsksForAnEmptySeatsWeightAndEmptiesALoadedSeat)
{
    rig.prompt.answer("170");
    form.Picture2_MouseDown(kLeft, 0, kSeat1AX + 99, kSeat1AY + 99);
    ASSERT_EQ(rig.prompt.asked().size(), 1u);
    EXPECT_EQ(rig.prompt.asked()[0].prompt, "Passenger 1A weight in lbs");
    EXPECT_EQ(rig.prompt.asked()[0].title, "Pax Details");
    EXPECT_EQ(rig.prompt.asked()[0].defaultText, "170");
    EXPECT_EQ(state.stationweight[kSeat1A], 170);
    EXPECT_EQ(state.loadweight, 170);
    EXPECT_TRUE(dotAt(seatMap(form).ops(), kSeat1AX, kSeat1AY));
    EXPECT_EQ(form.labels.lblpax.text, "PAX weight =  170 lb.");
    EXPECT_EQ(form.labels.lblpass.text, "Passengers  1 / 50");

    form.Picture2_MouseDown(kLeft, 0, kSeat1AX, kSeat1AY);
    EXPECT_EQ(rig.prompt.asked().size(), 1u) << "emptied without asking";
    EXPECT_EQ(state.stationweight[kSeat1A], 0);
    EXPECT_EQ(state.loadweight, 0);
    const DrawOp erased = seatMap(form).ops(DrawOp::Kind::Circle).back();
    EXPECT_TRUE(same(erased.x1, kSeat1AX) && same(erased.y1, kSeat1AY));
    EXPECT_TRUE(same(erased.radius, 51));
    EXPECT_EQ(erased.colour, kWhite);
    EXPECT_EQ(erased.fillColor, kWhite);
    EXPECT_EQ(erased.fillStyle, FillStyle::Solid);
    EXPECT_EQ(form.labels.lblpass.text, "Passengers  0 / 50");
}

TEST_F(CRJ200Click, HitBoxesAreStrictAndTheHoldsIsLarger)
{
    const std::size_t balanceDrawings = dynamic_cast<RecordingCanvas&>(form.Picture4()).ops().size();

    form.Picture2_MouseDown(kLeft, 0, kSeat1AX + 150, kSeat1AY);
    form.Picture2_MouseDown(kLeft, 0, kSeat1AX + 100, kSeat1AY);
    form.Picture2_MouseDown(kLeft, 0, kHoldX, kHoldY + 325);
    EXPECT_TRUE(rig.prompt.asked().empty());
    EXPECT_EQ(state.loadweight, 0);
    EXPECT_GT(dynamic_cast<RecordingCanvas&>(form.Picture4()).ops().size(), balanceDrawings)
        << "the summary runs after a click that hits nothing";

    rig.prompt.answer("1200");
    form.Picture2_MouseDown(kLeft, 0, kHoldX + 150, kHoldY);
    ASSERT_EQ(rig.prompt.asked().size(), 1u);
    EXPECT_EQ(rig.prompt.asked()[0].prompt, "Cargo weight in lbs");
    EXPECT_EQ(rig.prompt.asked()[0].title, "Cargo details");
    EXPECT_EQ(rig.prompt.asked()[0].defaultText, "1000");
    EXPECT_EQ(state.stationweight[kHold], 1200);
    EXPECT_EQ(state.loadweight, 1200);
    EXPECT_TRUE(holdBoxShown(seatMap(form).ops()));
    EXPECT_EQ(form.labels.lblpass.text, "Passengers  0 / 50") << "cargo is no passenger";
}

TEST_F(CRJ200Click, TheStripsBetweenNeighbouringSeatsHandleBothSeats)
{
    rig.prompt.answer("170");
    rig.prompt.answer("80");
    form.Picture2_MouseDown(kLeft, 0, kSeat1AX, 772); // 1A at 862 and 1B at 683
    ASSERT_EQ(rig.prompt.asked().size(), 2u);
    EXPECT_EQ(rig.prompt.asked()[0].prompt, "Passenger 1A weight in lbs");
    EXPECT_EQ(rig.prompt.asked()[1].prompt, "Passenger 1B weight in lbs");
    EXPECT_EQ(state.stationweight[kSeat1A], 170);
    EXPECT_EQ(state.stationweight[kSeat1B], 80);
    EXPECT_EQ(state.loadweight, 250);

    rig.prompt.answer("90");
    rig.prompt.answer("100");
    form.Picture2_MouseDown(kLeft, 0, 3075, 237); // 2C at 327 and 2D at 148
    EXPECT_EQ(rig.prompt.asked().size(), 4u);
    EXPECT_EQ(state.stationweight[8], 90);
    EXPECT_EQ(state.stationweight[9], 100);

    form.Picture2_MouseDown(kLeft, 0, kSeat1AX, 772);
    EXPECT_EQ(rig.prompt.asked().size(), 4u);
    EXPECT_EQ(state.stationweight[kSeat1A], 0);
    EXPECT_EQ(state.stationweight[kSeat1B], 0);
    EXPECT_EQ(state.loadweight, 190);
}

TEST_F(CRJ200Click, OtherButtonsPrintASeatsWeightAndChangeNothing)
{
    rig.prompt.answer("182.6");
    form.Picture2_MouseDown(kLeft, 0, kSeat1AX, kSeat1AY);

    form.Picture2_MouseDown(kRight, 0, 2700, 850);
    form.Picture2_MouseDown(4, 0, kSeat1AX, 700); // the middle button, on 1B
    EXPECT_EQ(rig.prompt.asked().size(), 1u);
    EXPECT_EQ(state.stationweight[kSeat1A], 182.6f);
    EXPECT_EQ(state.loadweight, 182.6f);
    const auto texts = seatMap(form).ops(DrawOp::Kind::Text);
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_EQ(texts[0].text, "182.6");
    EXPECT_TRUE(same(texts[0].x1, 2700) && same(texts[0].y1, 850));
    EXPECT_EQ(texts[1].text, "0");

    // The hold answers every button alike.
    rig.prompt.answer("300");
    form.Picture2_MouseDown(kRight, 0, kHoldX, kHoldY);
    EXPECT_EQ(state.stationweight[kHold], 300);
}

TEST_F(CRJ200Click, ANegativeSeatAnswerIsKeptButNeitherDrawnNorCountedUntilTheNextClick)
{
    const std::size_t circles = seatMap(form).ops(DrawOp::Kind::Circle).size();
    rig.prompt.answer("-80");
    form.Picture2_MouseDown(kLeft, 0, kSeat1AX, kSeat1AY);
    EXPECT_EQ(state.stationweight[kSeat1A], -80);
    EXPECT_EQ(state.loadweight, 0);
    EXPECT_EQ(seatMap(form).ops(DrawOp::Kind::Circle).size(), circles);
    EXPECT_EQ(form.labels.lblpass.text, "Passengers  0 / 50");

    // The next click empties the seat without asking, and takes its weight off the load.
    form.Picture2_MouseDown(kLeft, 0, kSeat1AX, kSeat1AY);
    EXPECT_EQ(rig.prompt.asked().size(), 1u);
    EXPECT_EQ(state.stationweight[kSeat1A], 0);
    EXPECT_EQ(state.loadweight, 80);
}

TEST_F(CRJ200Click, AnswersThatAreNoWeightLeaveTheStationEmpty)
{
    rig.prompt.answer("0");
    rig.prompt.answer("none");
    rig.prompt.answer("");
    rig.prompt.cancel();
    for (int i = 0; i < 4; ++i)
        form.Picture2_MouseDown(kLeft, 0, kSeat1AX, kSeat1AY);
    // The hold wants a number: anything that does not read as a positive one leaves it empty.
    rig.prompt.answer("-5");
    rig.prompt.answer("lots");
    rig.prompt.answer("");
    rig.prompt.cancel();
    for (int i = 0; i < 4; ++i)
        form.Picture2_MouseDown(kLeft, 0, kHoldX, kHoldY);
    EXPECT_EQ(rig.prompt.asked().size(), 8u);
    EXPECT_EQ(state.stationweight[kSeat1A], 0);
    EXPECT_EQ(state.stationweight[kHold], 0);
    EXPECT_EQ(state.loadweight, 0);
    EXPECT_TRUE(seatMap(form).ops(DrawOp::Kind::Circle).empty());
    EXPECT_FALSE(holdBoxShown(seatMap(form).ops()));

    rig.prompt.answer("850 lb");
    form.Picture2_MouseDown(kLeft, 0, kHoldX, kHoldY);
    EXPECT_EQ(state.stationweight[kHold], 850);
}

TEST_F(CRJ200Click, EmptyingTheHoldRedrawsTheMapWithoutIt)
{
    rig.prompt.answer("170");
    form.Picture2_MouseDown(kLeft, 0, kSeat1AX, kSeat1AY);
    rig.prompt.answer("1200");
    form.Picture2_MouseDown(kLeft, 0, kHoldX, kHoldY);

    form.Picture2_MouseDown(kLeft, 0, kHoldX + 50, kHoldY);
    EXPECT_EQ(state.stationweight[kHold], 0);
    EXPECT_EQ(state.loadweight, 170);
    const auto map = shown(form);
    EXPECT_FALSE(holdBoxShown(map));
    EXPECT_TRUE(dotAt(map, kSeat1AX, kSeat1AY));
    EXPECT_EQ(form.labels.lblpax.text, "PAX weight =  170 lb.");
}

TEST_F(CRJ200Hover, ALoadedStationShowsItsInformationBoxUntilThePointerMovesOff)
{
    rig.prompt.answer("170");
    form.Picture2_MouseDown(kLeft, 0, kSeat1AX, kSeat1AY);
    rig.prompt.answer("1200");
    form.Picture2_MouseDown(kLeft, 0, kHoldX, kHoldY);

    form.Picture2_MouseMove(0, 0, kSeat1AX + 60, kSeat1AY - 40);
    auto map = shown(form);
    EXPECT_TRUE(dotAt(map, kSeat1AX, kSeat1AY));
    EXPECT_TRUE(holdBoxShown(map));
    auto texts = ofKind(map, DrawOp::Kind::Text);
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].text, " Passenger 1A 170 lb.");
    const DrawOp box = ofKind(map, DrawOp::Kind::Box).back();
    EXPECT_TRUE(same(box.x1, kSeat1AX + 100));
    EXPECT_TRUE(same((box.y1 + box.y2) / 2, kSeat1AY));
    EXPECT_TRUE(same(texts[0].x1, box.x1) && same(texts[0].y1, box.y1));

    // Just off the seat, onto an empty one, and beside the hold where a click would still land.
    const std::pair<double, double> elsewhere[] = {
        {kSeat1AX + 100, kSeat1AY}, {kSeat1AX + 354, kSeat1AY}, {kHoldX + 150, kHoldY}};
    for (const auto& [x, y] : elsewhere) {
        form.Picture2_MouseMove(0, 0, x, y);
        map = shown(form);
        EXPECT_TRUE(ofKind(map, DrawOp::Kind::Text).empty()) << x;
        EXPECT_TRUE(dotAt(map, kSeat1AX, kSeat1AY));
    }

    form.Picture2_MouseMove(kLeft, 0, kHoldX + 99, kHoldY);
    texts = ofKind(shown(form), DrawOp::Kind::Text);
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].text, " Cargo 1200 lb.");
    EXPECT_TRUE(same(texts[0].x1, kHoldX + 100));
}

TEST_F(CRJ200Presets, LightSeatsExactlyTheDrawnPassengersAndLeavesTheCrewAlone)
{
    rig.prompt.answer("190");
    form.Picture2_MouseDown(kLeft, 0, 1146, 678);

    // n = 1 + Int(50 × 0.95 / 3) = 16; hold = 13 × 16 + Int(16 × 20 × 0.5) = 368; then a weight and a
    // seat for each passenger, a taken seat drawn again.
    for (double draw : {0.95, 0.5})
        rig.random.push(draw);
    for (int seat = 2; seat <= 17; ++seat) {
        rig.random.push(0.5);
        if (seat == 3)
            rig.random.push(0.5 / 50); // seat 2, taken
        rig.random.push((seat - 2 + 0.5) / 50);
    }
    form.mnulight_Click();

    EXPECT_EQ(rig.random.left(), 0u);
    EXPECT_EQ(rig.random.overdrawn(), 0);
    EXPECT_EQ(occupiedPassengerSeats(state), 16);
    EXPECT_EQ(state.stationweight[17], 148);
    EXPECT_EQ(state.stationweight[kHold], 368);
    EXPECT_EQ(state.stationweight[kPilot], 190);
    EXPECT_EQ(state.stationweight[kCopilot], 0);
    EXPECT_EQ(state.loadweight, rig.sumOfWeights());
    EXPECT_EQ(state.loadweight, 190 + 16 * 148 + 368);
    EXPECT_EQ(state.npax, 16);
    EXPECT_EQ(form.labels.lblpass.text, "Passengers  16 / 50");
    const auto map = shown(form);
    EXPECT_EQ(ofKind(map, DrawOp::Kind::Circle).size(), 18u) << "pilot, passengers and the hold";
    EXPECT_TRUE(dotAt(map, kHoldX, kHoldY));
}

TEST(CRJ200PresetDraws, MediumAndHeavyDrawTheirOwnCountsAndBaggage)
{
    struct Member {
        void (CRJ200::*click)();
        int passengers; // from the first draw, 0.95
        int perPassenger;
    };
    const Member members[] = {
        {&CRJ200::mnumed_Click, 11 + 15, 14},
        {&CRJ200::mnuheav_Click, 50 - 15, 15},
    };
    for (const Member& member : members) {
        SCOPED_TRACE(member.passengers);
        ScriptedThenSeeded generator{0.95};
        RegionalRig rig(&generator);
        CRJ200& form = rig.openCRJ200();
        const LoadState& state = rig.session.state;
        rig.prompt.answer("85");
        form.Picture2_MouseDown(kLeft, 0, 1146, 321);
        (form.*member.click)();
        EXPECT_EQ(occupiedPassengerSeats(state), member.passengers);
        EXPECT_EQ(state.npax, member.passengers);
        EXPECT_GE(state.stationweight[kHold], member.perPassenger * member.passengers);
        EXPECT_LT(state.stationweight[kHold], (member.perPassenger + 20) * member.passengers);
        EXPECT_EQ(state.stationweight[kCopilot], 85);
        EXPECT_EQ(state.stationweight[kPilot], 0);
        EXPECT_EQ(state.loadweight, rig.sumOfWeights());
    }
}

TEST(CRJ200PresetDraws, EveryPresetKeepsItsRanges)
{
    SeededRandom generator;
    RegionalRig rig(&generator);
    CRJ200& form = rig.openCRJ200();
    const LoadState& state = rig.session.state;
    struct Member {
        void (CRJ200::*click)();
        int least, most;
    };
    const Member members[] = {
        {&CRJ200::mnulight_Click, 1, 17},
        {&CRJ200::mnumed_Click, 11, 27},
        {&CRJ200::mnuheav_Click, 34, 50},
    };
    for (int round = 0; round < 40; ++round) {
        for (const Member& member : members) {
            (form.*member.click)();
            ASSERT_GE(state.npax, member.least);
            ASSERT_LE(state.npax, member.most);
            ASSERT_EQ(occupiedPassengerSeats(state), state.npax);
            for (int seat = 2; seat <= 51; ++seat) {
                if (state.stationweight[seat] > 0) {
                    ASSERT_GE(state.stationweight[seat], 54);
                    ASSERT_LT(state.stationweight[seat], 242);
                }
            }
            ASSERT_EQ(state.loadweight, rig.sumOfWeights());
        }
    }
}

TEST_F(CRJ200Save, WritesAllFiftyThreeStationsTheHoldIncluded)
{
    rig.prompt.answer("170");
    form.Picture2_MouseDown(kLeft, 0, kSeat1AX, kSeat1AY);
    rig.prompt.answer("1200");
    form.Picture2_MouseDown(kLeft, 0, kHoldX, kHoldY);
    form.mnusave_Click();

    expectGoldenFile("CRJ-200ER.aircraft.cfg", rig.dir.read("sim/aircraft/crj200/aircraft.cfg"));
    EXPECT_NE(rig.dir.read("CRJ-200ER.cfg").find("\r\n\"Cargo\",-20,0,0,1200\r\n"), std::string::npos);
}

TEST(CRJ200Form, TheMainWindowSetsItUpForTheCRJ200ER)
{
    RegionalRig rig;
    FormRegistry registry;
    registerRegionalForms(registry);
    ASSERT_TRUE(registry.serves("CRJ200", "CRJ-200ER"));
    rig.dir.write("quillet.ini", rig.session.state.simfolder + "\r\n1\r\nCRJ-200ER,crj200\r\n");

    Form1 main(rig.session, registry);
    main.Form_Load();
    EXPECT_EQ(main.Combo1.text(), "CRJ-200ER");
    EXPECT_EQ(main.lblbow.text, "Basic Operating weight = 35000 lb.");
    main.Command2_Click();
    auto* form = dynamic_cast<CRJ200*>(registry.existing("CRJ200"));
    ASSERT_NE(form, nullptr);
    EXPECT_TRUE(form->visible);
}

} // namespace
} // namespace quillet

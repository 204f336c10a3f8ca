#include "RegionalRig.h"

#include <gtest/gtest.h>
#include <vector>

namespace quillet {
namespace {

// The draw that makes Int(count × draw + first) give the seat.
double seatDraw(int seat, int count, int first)
{
    return (seat - first + 0.5) / count;
}

std::vector<int> occupiedPassengerSeats(const RegionalRig& rig, const RegionalType& type)
{
    std::vector<int> seats;
    for (int i = type.roles.firstPassenger; i <= type.roles.lastPassenger; ++i) {
        if (rig.session.state.stationweight[i] > 0)
            seats.push_back(i);
    }
    return seats;
}

std::vector<int> emptyPassengerSeats(const RegionalRig& rig, const RegionalType& type)
{
    std::vector<int> seats;
    for (int i = type.roles.firstPassenger; i <= type.roles.lastPassenger; ++i) {
        if (rig.session.state.stationweight[i] == 0)
            seats.push_back(i);
    }
    return seats;
}

TEST(RegionalPresets, LightPlacesPassengersOnDrawnFreeSeats)
{
    RegionalRig rig;
    RegionalForm& form = rig.open(beechType());
    // n = 1 + Int(6 × 0.5) = 4; hold = 15 × 4 + Int(4 × 20 × 0.5) = 100; then a weight and seats
    // per passenger, a taken seat drawn again.
    for (double draw : {0.5, 0.5, 0.0, seatDraw(3, 18, 3), 0.5, seatDraw(3, 18, 3), seatDraw(20, 18, 3), 0.5,
                        seatDraw(10, 18, 3), 0.5, seatDraw(4, 18, 3)})
        rig.random.push(draw);
    form.mnulight_Click();

    EXPECT_EQ(rig.random.left(), 0u);
    EXPECT_EQ(rig.random.overdrawn(), 0);
    EXPECT_EQ(occupiedPassengerSeats(rig, beechType()), (std::vector<int>{3, 4, 10, 20}));
    const LoadState& state = rig.session.state;
    EXPECT_EQ(state.stationweight[3], 54);
    EXPECT_EQ(state.stationweight[20], 148);
    EXPECT_EQ(state.stationweight[22], 100);
    EXPECT_EQ(state.stationweight[0], 100) << "avionics";
    EXPECT_EQ(form.location[20].tooltip, "Passenger 9B 148 lb.");
    EXPECT_TRUE(form.Shape1[20].visible);
    EXPECT_EQ(form.location[22].tooltip, "Cargo 100 lb.");
    EXPECT_EQ(form.labels.lblpass.text, "Passengers  4 / 19");
    EXPECT_EQ(state.loadweight, rig.sumOfWeights());
}

TEST(RegionalPresets, MediumUsesItsOwnSeatRangeAndBaggage)
{
    RegionalRig rig;
    RegionalForm& form = rig.open(emb120Type());
    // n = 11 + Int(10 × 0) = 11; hold = 8 × 11 + Int(11 × 16 × 0.5) = 176.
    for (double draw : {0.0, 0.5, 0.5, 0.0, 0.5, 0.9999})
        rig.random.push(draw);
    for (int seat = 3; seat <= 11; ++seat) {
        rig.random.push(0.5);
        rig.random.push(seatDraw(seat, 30, 2));
    }
    form.mnumed_Click();

    EXPECT_EQ(rig.random.overdrawn(), 0);
    EXPECT_EQ(occupiedPassengerSeats(rig, emb120Type()),
              (std::vector<int>{2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 31}));
    EXPECT_EQ(rig.session.state.stationweight[32], 176);
    EXPECT_EQ(form.labels.lblpass.text, "Passengers  11 / 30");
}

TEST(RegionalPresets, HeavyEmptiesReservedThenDrawnSeats)
{
    struct Case {
        const RegionalType& type;
        double countDraw;
        int passengers;
        std::vector<double> emptyingDraws;
        std::vector<int> emptySeats;
    };
    const Case cases[] = {
        {beechType(), 0.0, 19, {}, {}},
        {beechType(), 0.2, 18, {}, {20}},
        // Seat 20 is already empty and seat 3 taken twice: both are drawn again.
        {beechType(),
         0.9,
         14,
         {seatDraw(20, 18, 3), seatDraw(3, 18, 3), seatDraw(3, 18, 3), seatDraw(10, 18, 3),
          seatDraw(15, 18, 3), seatDraw(4, 18, 3)},
         {3, 4, 10, 15, 20}},
        {emb120Type(), 0.0, 30, {}, {}},
        {emb120Type(), 0.15, 29, {seatDraw(20, 18, 3)}, {20}},
        {emb120Type(), 0.25, 28, {seatDraw(3, 18, 3)}, {3, 29}},
        {dhc8Type(), 0.0, 50, {}, {}},
        {dhc8Type(), 0.1, 49, {0.999}, {51}},
        {dhc8Type(), 0.13, 48, {0.999}, {6, 50}},
        {dhc8Type(), 0.19, 47, {0.999}, {6, 7, 49}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.type.form) + " n = " + std::to_string(c.passengers));
        RegionalRig rig;
        RegionalForm& form = rig.open(c.type);
        const RegionalPresets& presets = c.type.presets;
        const int seatCount = c.type.roles.lastPassenger - c.type.roles.firstPassenger + 1;
        rig.random.push(c.countDraw);
        for (int i = 0; i < seatCount; ++i)
            rig.random.push(0.5);
        for (double draw : c.emptyingDraws)
            rig.random.push(draw);
        rig.random.push(0.75); // the hold
        form.mnuheav_Click();

        EXPECT_EQ(rig.random.left(), 0u);
        EXPECT_EQ(rig.random.overdrawn(), 0);
        const std::vector<int> empty = emptyPassengerSeats(rig, c.type);
        EXPECT_EQ(empty, c.emptySeats);
        EXPECT_EQ(rig.session.state.npax, c.passengers);
        const int baggage = presets.heavy.baggage.perPassenger * c.passengers;
        EXPECT_GE(rig.session.state.stationweight[c.type.roles.hold], baggage);
        for (int seat : empty) {
            EXPECT_EQ(form.location[seat].tooltip, "Empty");
            EXPECT_FALSE(form.Shape1[seat].visible);
        }
        EXPECT_EQ(rig.session.state.loadweight, rig.sumOfWeights());
    }
}

TEST(RegionalPresets, CrewKeepTheirWeights)
{
    for (const RegionalType* type : regionalTypes()) {
        SCOPED_TRACE(type->form);
        SeededRandom generator;
        RegionalRig rig(&generator);
        RegionalForm& form = rig.open(*type);
        const int pilot = type->roles.crew[0];
        const int copilot = type->roles.crew[1];
        rig.prompt.answer("180");
        form.location_Click(pilot);
        for (int round = 0; round < 3; ++round) {
            form.mnulight_Click();
            form.mnumed_Click();
            form.mnuheav_Click();
            EXPECT_EQ(rig.session.state.stationweight[pilot], 180);
            EXPECT_EQ(form.location[pilot].tooltip, "Pilot 180 lb.");
            EXPECT_EQ(form.location[copilot].tooltip, "Empty");
            EXPECT_FALSE(form.Shape1[copilot].visible);
        }
    }
}

TEST(RegionalPresets, EveryPresetKeepsItsRangesAndTheSum)
{
    for (const RegionalType* type : regionalTypes()) {
        SeededRandom generator;
        RegionalRig rig(&generator);
        RegionalForm& form = rig.open(*type);
        const RegionalPresets& presets = type->presets;
        struct Member {
            void (RegionalForm::*click)();
            int least, most, perPassenger;
        };
        const auto range = [](const CountDraw& d) {
            const int other = d.base + d.sign * (d.spread - 1);
            return std::pair{std::min(d.base, other), std::max(d.base, other)};
        };
        const Member members[] = {
            {&RegionalForm::mnulight_Click, range(presets.light.passengers).first,
             range(presets.light.passengers).second, presets.light.baggage.perPassenger},
            {&RegionalForm::mnumed_Click, range(presets.medium.passengers).first,
             range(presets.medium.passengers).second, presets.medium.baggage.perPassenger},
            {&RegionalForm::mnuheav_Click, range(presets.heavy.passengers).first,
             range(presets.heavy.passengers).second, presets.heavy.baggage.perPassenger},
        };
        for (int round = 0; round < 40; ++round) {
            for (const Member& member : members) {
                (form.*member.click)();
                const LoadState& state = rig.session.state;
                ASSERT_GE(state.npax, member.least) << type->form;
                ASSERT_LE(state.npax, member.most) << type->form;
                ASSERT_GE(state.stationweight[type->roles.hold], member.perPassenger * state.npax);
                for (int seat : occupiedPassengerSeats(rig, *type)) {
                    ASSERT_GE(state.stationweight[seat], 54);
                    ASSERT_LT(state.stationweight[seat], 242);
                }
                if (type->roles.avionics >= 0) {
                    ASSERT_EQ(state.stationweight[type->roles.avionics], 100);
                }
                ASSERT_EQ(state.loadweight, rig.sumOfWeights());
            }
        }
    }
}

TEST(RegionalPresets, ExtremeDrawsStayInsideTheWeightRange)
{
    RegionalRig rig;
    RegionalForm& form = rig.open(dhc8Type());
    rig.random.push(0.0); // n = 50
    for (int i = 0; i < 25; ++i) {
        rig.random.push(0.0);
        rig.random.push(0.99999999);
    }
    form.mnuheav_Click();
    for (int seat = 2; seat <= 51; ++seat) {
        EXPECT_GE(rig.session.state.stationweight[seat], 54);
        EXPECT_LT(rig.session.state.stationweight[seat], 242);
    }
}

TEST(RegionalPresets, TheSameSequenceGivesTheSameLoads)
{
    const auto run = [] {
        SeededRandom generator;
        RegionalRig rig(&generator);
        RegionalForm& form = rig.open(dhc8Type());
        form.mnuheav_Click();
        form.mnulight_Click();
        form.mnumed_Click();
        return rig.session.state.stationweight;
    };
    EXPECT_EQ(run(), run());
}

TEST(RegionalPresets, AStuckGeneratorDoesNotHangTheForm)
{
    RegionalRig rig;
    RegionalForm& form = rig.open(beechType());
    form.mnumed_Click(); // every draw 0: seven passengers all drawn onto seat 3
    EXPECT_EQ(occupiedPassengerSeats(rig, beechType()), (std::vector<int>{3, 4, 5, 6, 7, 8, 9}));
}

} // namespace
} // namespace quillet

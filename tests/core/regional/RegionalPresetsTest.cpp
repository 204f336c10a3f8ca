#include "RegionalRig.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace quillet {
namespace {

// The draw that makes Int(count × draw + first) give the seat.
double seatDraw(int seat, int count, int first)
{
    return (seat - first + 0.5) / count;
}

// The passenger seats that are loaded, or with `loaded` false those that are empty.
std::vector<int> passengerSeats(const RegionalRig& rig, const RegionalType& type, bool loaded = true)
{
    std::vector<int> seats;
    for (int i = type.roles.firstPassenger; i <= type.roles.lastPassenger; ++i) {
        if ((rig.session.state.stationweight[i] > 0) == loaded)
            seats.push_back(i);
    }
    return seats;
}

void push(ScriptedRandom& random, std::initializer_list<double> draws)
{
    for (double draw : draws)
        random.push(draw);
}

TEST(RegionalPresets, LightAndMediumPlacePassengersOnDrawnFreeSeats)
{
    RegionalRig rig;
    RegionalForm& beech = rig.open(beechType());
    // n = 1 + Int(6 × 0.5) = 4; hold = 15 × 4 + Int(4 × 20 × 0.5) = 100; then a weight and seats
    // per passenger, a taken seat drawn again.
    push(rig.random, {0.5, 0.5, 0.0, seatDraw(3, 18, 3), 0.5, seatDraw(3, 18, 3), seatDraw(20, 18, 3), 0.5,
                      seatDraw(10, 18, 3), 0.5, seatDraw(4, 18, 3)});
    beech.mnulight_Click();
    EXPECT_EQ(std::tuple(rig.random.left(), rig.random.overdrawn()), std::tuple(0u, 0));
    EXPECT_EQ(passengerSeats(rig, beechType()), (std::vector<int>{3, 4, 10, 20}));
    const LoadState& state = rig.session.state;
    EXPECT_EQ(std::tuple(state.stationweight[3], state.stationweight[20], state.stationweight[22]),
              std::tuple(54.0f, 148.0f, 100.0f));
    EXPECT_EQ(state.stationweight[0], 100) << "avionics";
    EXPECT_EQ(beech.location[20].tooltip, "Passenger 9B 148 lb.");
    EXPECT_TRUE(beech.Shape1[20].visible);
    EXPECT_EQ(beech.location[22].tooltip, "Cargo 100 lb.");
    EXPECT_EQ(beech.labels.lblpass.text, "Passengers  4 / 19");
    EXPECT_EQ(state.loadweight, rig.sumOfWeights());

    // The Embraer's Medium: n = 11 + Int(10 × 0) = 11; hold = 8 × 11 + Int(11 × 16 × 0.5) = 176.
    RegionalForm& emb120 = rig.open(emb120Type());
    push(rig.random, {0.0, 0.5, 0.5, 0.0, 0.5, 0.9999});
    for (int seat = 3; seat <= 11; ++seat)
        push(rig.random, {0.5, seatDraw(seat, 30, 2)});
    emb120.mnumed_Click();
    EXPECT_EQ(rig.random.overdrawn(), 0);
    EXPECT_EQ(passengerSeats(rig, emb120Type()), (std::vector<int>{2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 31}));
    EXPECT_EQ(state.stationweight[32], 176);
    EXPECT_EQ(emb120.labels.lblpass.text, "Passengers  11 / 30");
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
        {beechType(), 0.2, 18, {}, {20}},
        // Seat 20 is already empty and seat 3 taken twice: both are drawn again.
        {beechType(),
         0.9,
         14,
         {seatDraw(20, 18, 3), seatDraw(3, 18, 3), seatDraw(3, 18, 3), seatDraw(10, 18, 3),
          seatDraw(15, 18, 3), seatDraw(4, 18, 3)},
         {3, 4, 10, 15, 20}},
        {emb120Type(), 0.15, 29, {seatDraw(20, 18, 3)}, {20}},
        {emb120Type(), 0.25, 28, {seatDraw(3, 18, 3)}, {3, 29}},
        {dhc8Type(), 0.1, 49, {0.999}, {51}},
        {dhc8Type(), 0.13, 48, {0.999}, {6, 50}},
        {dhc8Type(), 0.19, 47, {0.999}, {6, 7, 49}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.type.form) + " n = " + std::to_string(c.passengers));
        RegionalRig rig;
        RegionalForm& form = rig.open(c.type);
        rig.random.push(c.countDraw);
        for (int i = c.type.roles.firstPassenger; i <= c.type.roles.lastPassenger; ++i)
            rig.random.push(0.5);
        for (double draw : c.emptyingDraws)
            rig.random.push(draw);
        rig.random.push(0.75); // the hold
        form.mnuheav_Click();

        EXPECT_EQ(std::tuple(rig.random.left(), rig.random.overdrawn()), std::tuple(0u, 0));
        EXPECT_EQ(passengerSeats(rig, c.type, false), c.emptySeats);
        EXPECT_EQ(rig.session.state.npax, c.passengers);
        EXPECT_GE(rig.session.state.stationweight[c.type.roles.hold],
                  c.type.presets.heavy.baggage.perPassenger * c.passengers);
        for (int seat : c.emptySeats) {
            EXPECT_EQ(form.location[seat].tooltip, "Empty");
            EXPECT_FALSE(form.Shape1[seat].visible);
        }
        EXPECT_EQ(rig.session.state.loadweight, rig.sumOfWeights());
    }
}

// The presets as published, one row per member: the passenger counts that the draws 0 and just under
// 1 give, the seats the first and last draws of the range give, and the hold's baggage per passenger
// and spread. The heavy rows give the range of the seats emptied at the smallest count.
struct PublishedPreset {
    const RegionalType& type;
    void (RegionalForm::*click)();
    int passengersAtZero, passengersAtOne;
    int firstSeat, lastSeat;
    int perPassenger, spread;
    std::vector<int> reserved; // heavy: emptied first at the smallest count

    bool heavy() const { return click == &RegionalForm::mnuheav_Click; }
    std::string name() const
    {
        return std::string(type.form) + (heavy()                                ? " heavy"
                                         : click == &RegionalForm::mnumed_Click ? " medium"
                                                                                : " light");
    }
};

const std::vector<PublishedPreset>& publishedPresets()
{
    static const std::vector<PublishedPreset> all{
        {beechType(), &RegionalForm::mnulight_Click, 1, 6, 3, 20, 15, 20, {}},
        {beechType(), &RegionalForm::mnumed_Click, 7, 12, 3, 20, 15, 20, {}},
        {beechType(), &RegionalForm::mnuheav_Click, 19, 14, 3, 20, 15, 20, {20}},
        {emb120Type(), &RegionalForm::mnulight_Click, 1, 10, 3, 20, 13, 20, {}},
        {emb120Type(), &RegionalForm::mnumed_Click, 11, 20, 2, 31, 8, 16, {}},
        {emb120Type(), &RegionalForm::mnuheav_Click, 30, 21, 3, 20, 8, 16, {29}},
        {dhc8Type(), &RegionalForm::mnulight_Click, 1, 17, 2, 50, 13, 20, {}},
        {dhc8Type(), &RegionalForm::mnumed_Click, 11, 44, 2, 50, 14, 20, {}},
        {dhc8Type(), &RegionalForm::mnuheav_Click, 50, 35, 3, 49, 15, 20, {6, 7}},
    };
    return all;
}

TEST(RegionalPresets, DrawsOfZeroAndJustUnderOneGiveTheEndsOfEveryRange)
{
    for (const PublishedPreset& p : publishedPresets()) {
        for (const double extreme : {0.0, 0.9999999}) {
            SCOPED_TRACE(p.name() + " " + std::to_string(extreme));
            RegionalRig rig;
            RegionalForm& form = rig.open(p.type);
            const bool atZero = extreme == 0.0;
            const int n = atZero ? p.passengersAtZero : p.passengersAtOne;
            const int endSeat = atZero ? p.firstSeat : p.lastSeat;
            const int seatCount = p.lastSeat - p.firstSeat + 1;
            // The seat the extreme draw gives, then seats further inside the range.
            const auto seatDrawAt = [&](int k) {
                return k == 0 ? extreme
                              : seatDraw(atZero ? p.firstSeat + k : p.lastSeat - k, seatCount, p.firstSeat);
            };

            rig.random.push(extreme); // the number of passengers
            int seatsDrawn = n;
            if (p.heavy()) {
                const int allSeats = p.type.roles.lastPassenger - p.type.roles.firstPassenger + 1;
                for (int k = 0; k < allSeats; ++k)
                    rig.random.push(extreme); // every seat's passenger
                seatsDrawn = atZero ? 0 : allSeats - static_cast<int>(p.reserved.size()) - n;
                // A reserved seat at the end of the range is empty already: that draw is taken again.
                const bool endReserved = std::count(p.reserved.begin(), p.reserved.end(), endSeat) > 0;
                for (int k = 0; k < seatsDrawn + (endReserved ? 1 : 0); ++k)
                    rig.random.push(seatDrawAt(k));
                rig.random.push(extreme); // the hold
            } else {
                rig.random.push(extreme); // the hold
                for (int k = 0; k < n; ++k)
                    push(rig.random, {extreme, seatDrawAt(k)});
            }
            (form.*p.click)();

            const LoadState& state = rig.session.state;
            EXPECT_EQ(std::tuple(rig.random.left(), rig.random.overdrawn()), std::tuple(0u, 0));
            EXPECT_EQ(state.npax, n);
            // Int(n × spread × draw): 0, or one short of n × spread.
            EXPECT_EQ(state.stationweight[p.type.roles.hold],
                      p.perPassenger * n + (atZero ? 0 : n * p.spread - 1));
            if (seatsDrawn > 0) { // a placed passenger, or a seat emptied, at the end of the range
                EXPECT_EQ(state.stationweight[endSeat] > 0, !p.heavy()) << "seat " << endSeat;
            }
            for (int seat : passengerSeats(rig, p.type)) {
                EXPECT_FLOAT_EQ(state.stationweight[seat], atZero ? 54 : 242);
                EXPECT_TRUE(p.heavy() || (seat >= p.firstSeat && seat <= p.lastSeat)) << seat;
            }
            for (int seat : p.heavy() && !atZero ? p.reserved : std::vector<int>{})
                EXPECT_EQ(state.stationweight[seat], 0) << "reserved seat " << seat;
        }
    }
}

TEST(RegionalPresets, EveryPresetKeepsItsRangesTheSumAndTheCrew)
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
        for (int round = 0; round < 40; ++round) {
            for (const PublishedPreset& p : publishedPresets()) {
                if (&p.type != type)
                    continue;
                (form.*p.click)();
                const LoadState& state = rig.session.state;
                ASSERT_GE(state.npax, std::min(p.passengersAtZero, p.passengersAtOne)) << p.name();
                ASSERT_LE(state.npax, std::max(p.passengersAtZero, p.passengersAtOne)) << p.name();
                ASSERT_GE(state.stationweight[type->roles.hold], p.perPassenger * state.npax);
                ASSERT_LT(state.stationweight[type->roles.hold], (p.perPassenger + p.spread) * state.npax);
                for (int seat : passengerSeats(rig, *type)) {
                    ASSERT_GE(state.stationweight[seat], 54);
                    ASSERT_LT(state.stationweight[seat], 242);
                    ASSERT_TRUE(p.heavy() || (seat >= p.firstSeat && seat <= p.lastSeat))
                        << p.name() << " " << seat;
                }
                ASSERT_TRUE(type != &beechType() || state.stationweight[0] == 100) << "avionics";
                ASSERT_EQ(state.loadweight, rig.sumOfWeights());
                // The crew keep their weights.
                ASSERT_EQ(form.location[pilot].tooltip, "Pilot 180 lb.");
                ASSERT_EQ(form.location[copilot].tooltip, "Empty");
                ASSERT_FALSE(form.Shape1[copilot].visible);
            }
        }
    }
}

TEST(RegionalPresets, ExtremeDrawsStayInsideTheWeightRangeAndAStuckGeneratorDoesNotHang)
{
    RegionalRig rig;
    RegionalForm& form = rig.open(dhc8Type());
    rig.random.push(0.0); // n = 50
    for (int i = 0; i < 25; ++i)
        push(rig.random, {0.0, 0.99999999});
    form.mnuheav_Click();
    for (int seat = 2; seat <= 51; ++seat) {
        EXPECT_GE(rig.session.state.stationweight[seat], 54);
        EXPECT_LT(rig.session.state.stationweight[seat], 242);
    }

    RegionalForm& beech = rig.open(beechType());
    beech.mnumed_Click(); // every draw 0: seven passengers all drawn onto seat 3
    EXPECT_EQ(passengerSeats(rig, beechType()), (std::vector<int>{3, 4, 5, 6, 7, 8, 9}));
}

} // namespace
} // namespace quillet

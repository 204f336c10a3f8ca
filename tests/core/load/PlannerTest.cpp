// Loading to a target on every type: the totals met to the pound, no limit broken, and the aircraft
// in balance wherever a witness shows that some arrangement of the request balances. The witness
// search below is the tests' own: seats taken as blocks of the most forward to the most aft, the
// cargo mixed between a forward and an aft fill of its own.

#include "load/Planner.h"

#include "FormRig.h"
#include "TypeName.h"
#include "freighter/FreighterForms.h"
#include "jets/JetForms.h"
#include "regional/RegionalForms.h"
#include "shell/AircraftTypes.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <numeric>
#include <optional>
#include <string>

namespace quillet {
namespace {

// The type's form opened the way "Adjust" opens it, with nobody aboard but what the station file
// gives (nothing: it is made on first use).
class TypeRig : public FormRig {
public:
    explicit TypeRig(const std::string& type)
    {
        addAircraft(type, "plane", "[fltsim.0]\r\ntitle=Test\r\n\r\n[WEIGHT_AND_BALANCE]\r\n");
        registerRegionalForms(forms);
        registerJetForms(forms);
        registerFreighterForms(forms);
        currentType = type;
        form = forms.form(findAircraftType(type)->form, session);
        form->Form_Load();
        form->mnuload_Click();
        groups = form->stationGroups();
    }

    const LoadState& state() const { return session.state; }

    FormRegistry forms;
    LoadForm* form = nullptr;
    StationGroups groups;
};

std::vector<int> stationsOf(const StationGroups& groups, StationRole role)
{
    std::vector<int> stations;
    for (const StationGroup& group : groups) {
        if (group.role == role)
            stations.insert(stations.end(), group.stations.begin(), group.stations.end());
    }
    return stations;
}

// Only the members a test sets; the rest keep their defaults.
PlanRequest planRequest(int passengers, std::optional<float> cargo, std::optional<float> zeroFuelWeight = {})
{
    PlanRequest r;
    r.passengers = passengers;
    r.cargo = cargo;
    r.zeroFuelWeight = zeroFuelWeight;
    return r;
}

// Whether some arrangement of the request is in balance, shown by finding one. Seats: blocks of
// `passengers` consecutive seats in order of position; cargo: any mix of a fill from the nose and a
// fill from the tail, each station to its limit and each group to its own.
bool witnessBalances(const LoadState& state, const StationGroups& groups, int passengers, double cargo)
{
    constexpr double perPassenger = 170;
    std::vector<int> seats = stationsOf(groups, StationRole::Passenger);
    std::sort(seats.begin(), seats.end(), [&](int a, int b) {
        return std::pair(state.stationx[a], state.stationy[a]) >
               std::pair(state.stationx[b], state.stationy[b]);
    });
    std::array<bool, kStationCapacity> planned{};
    for (const StationGroup& group : groups) {
        for (int station : group.stations)
            planned[station] = group.role != StationRole::Crew;
    }
    double weight = state.emptyweight + 0.01 + passengers * perPassenger + cargo;
    double fixedX = 0, fixedY = 0, maxX = 0, minX = 0, maxY = 0, minY = 0;
    for (int i = 0; i < kMarkerCapacity; ++i) {
        maxX = std::max<double>(maxX, state.stationx[i]);
        minX = std::min<double>(minX, state.stationx[i]);
        maxY = std::max<double>(maxY, state.stationy[i]);
        minY = std::min<double>(minY, state.stationy[i]);
        if (!planned[i]) {
            weight += state.stationweight[i];
            fixedX += state.stationx[i] * state.stationweight[i];
            fixedY += state.stationy[i] * state.stationweight[i];
        }
    }
    const auto fill = [&](bool fromNose) {
        std::vector<std::pair<double, int>> cargoStations; // x, station
        std::vector<double> groupRoom;
        std::vector<int> groupOf(kStationCapacity, -1);
        for (const StationGroup& group : groups) {
            groupRoom.push_back(group.limit > 0 ? group.limit : 1e12);
            for (int station : group.stations) {
                if (group.role == StationRole::Cargo) {
                    cargoStations.emplace_back(fromNose ? -state.stationx[station] : state.stationx[station],
                                               station);
                    groupOf[station] = static_cast<int>(groupRoom.size()) - 1;
                }
            }
        }
        std::sort(cargoStations.begin(), cargoStations.end());
        std::pair<double, double> moment{0, 0};
        double left = cargo;
        for (const auto& [key, station] : cargoStations) {
            const auto group = static_cast<std::size_t>(groupOf[station]);
            const double put =
                std::min({left, groupRoom[group],
                          groups[group].stationLimits ? double(state.stationmax[station]) : 1e12});
            left -= put;
            groupRoom[group] -= put;
            moment.first += put * state.stationx[station];
            moment.second += put * state.stationy[station];
        }
        return moment;
    };
    const auto nose = fill(true);
    const auto tail = fill(false);
    for (std::size_t k = 0; k + static_cast<std::size_t>(passengers) <= seats.size(); ++k) {
        double seatX = fixedX, seatY = fixedY;
        for (std::size_t i = k; i < k + static_cast<std::size_t>(passengers); ++i) {
            seatX += perPassenger * state.stationx[seats[i]];
            seatY += perPassenger * state.stationy[seats[i]];
        }
        for (int step = 0; step <= 100; ++step) {
            const double t = step / 100.0;
            const double x = (seatX + t * nose.first + (1 - t) * tail.first) / weight;
            const double y = (seatY + t * nose.second + (1 - t) * tail.second) / weight;
            if (std::fabs(x) <= 0.02 * (maxX - minX) && std::fabs(y) <= 0.02 * (maxY - minY))
                return true;
        }
    }
    return false;
}

// Checks a plan against the request and every limit the program knows, through the form's own
// checks after applying it.
void expectMeets(TypeRig& rig, const Plan& plan, int passengers, double cargo, const std::string& what)
{
    SCOPED_TRACE(what);
    const LoadState& state = rig.state();
    const std::map<int, float> weights(plan.weights.begin(), plan.weights.end());
    int seated = 0;
    double stowed = 0;
    for (int seat : stationsOf(rig.groups, StationRole::Passenger)) {
        ASSERT_TRUE(weights.count(seat)) << seat;
        ASSERT_TRUE(weights.at(seat) == 0 || weights.at(seat) == 170) << weights.at(seat);
        seated += weights.at(seat) > 0;
    }
    for (int station : stationsOf(rig.groups, StationRole::Cargo)) {
        ASSERT_TRUE(weights.count(station)) << station;
        EXPECT_EQ(weights.at(station), std::floor(weights.at(station)));
        EXPECT_GE(weights.at(station), 0);
        stowed += weights.at(station);
    }
    EXPECT_EQ(seated, passengers);
    EXPECT_EQ(stowed, cargo);

    const auto before = state.stationweight;
    rig.form->applyPlan(plan);
    for (int station : stationsOf(rig.groups, StationRole::Crew))
        EXPECT_EQ(state.stationweight[station], before[station]);
    EXPECT_EQ(state.loadweight,
              std::accumulate(state.stationweight.begin(), state.stationweight.end(), 0.0f));
    EXPECT_LE(state.emptyweight + state.loadweight, state.maxzerofuel);
    // The forms' own checks (their tests' business) mark any station above its maximum or in a zone
    // above its limit.
    for (int i = 0; i < state.stationsInUse(); ++i)
        EXPECT_EQ(state.stationmsg[i], "") << state.stationname[i];
    EXPECT_EQ(rig.form->summaryLabels().warning.visible, !plan.cg.inBalance)
        << rig.form->summaryLabels().warning.text;
}

std::string testName(const ::testing::TestParamInfo<AircraftType>& info)
{
    return testNameOf(info.param.type);
}

class PlanOnEveryType : public ::testing::TestWithParam<AircraftType> {};

TEST_P(PlanOnEveryType, MeetsTheRequestWithinEveryLimitAndBalancesWhenAnyArrangementDoes)
{
    TypeRig rig{std::string(GetParam().type)};
    std::vector<int> seen; // the groups hold every station once
    for (const StationGroup& group : rig.groups) {
        EXPECT_FALSE(group.name.empty());
        seen.insert(seen.end(), group.stations.begin(), group.stations.end());
    }
    std::sort(seen.begin(), seen.end());
    std::vector<int> all(static_cast<std::size_t>(rig.state().stationsInUse()));
    std::iota(all.begin(), all.end(), 0);
    EXPECT_EQ(seen, all);

    const PlanBounds bounds = planBounds(rig.state(), rig.groups);
    std::vector<PlanRequest> requests;
    for (int p = 0; p <= 10; ++p) {
        const int passengers = bounds.seats * p / 10;
        const double room = std::min<double>(
            bounds.maxCargo, std::floor(bounds.maxZeroFuel - bounds.fixedWeight - 170.0 * passengers));
        for (int c = 0; c <= 10 && room >= 0; ++c)
            requests.push_back(planRequest(passengers, static_cast<float>(std::floor(room * c / 10))));
        requests.push_back(planRequest(passengers, std::nullopt, bounds.maxZeroFuel - p * 100.0f));
    }

    int balanced = 0;
    for (const PlanRequest& request : requests) {
        const std::string what =
            std::to_string(request.passengers) + " passengers, " +
            (request.cargo ? "cargo " + std::to_string(*request.cargo)
                           : "zero-fuel weight " + std::to_string(*request.zeroFuelWeight));
        const Result<Plan> plan = planLoad(rig.state(), rig.groups, request);
        if (!plan) {
            // Only a zero-fuel weight the passengers alone exceed, or one the holds cannot reach.
            EXPECT_TRUE(request.zeroFuelWeight) << what << ": " << plan.error().message;
            continue;
        }
        if (request.zeroFuelWeight) {
            EXPECT_NEAR(plan->zeroFuelWeight, *request.zeroFuelWeight, 0.5) << what;
        }
        if (witnessBalances(rig.state(), rig.groups, request.passengers, plan->cargo)) {
            EXPECT_TRUE(plan->cg.inBalance) << what << ": best " << plan->cg.x << ", " << plan->cg.y;
        }
        balanced += plan->cg.inBalance;
        expectMeets(rig, *plan, request.passengers, plan->cargo, what);
        if (::testing::Test::HasFailure())
            return;
    }
    EXPECT_GT(balanced, 0);
}

INSTANTIATE_TEST_SUITE_P(EveryType, PlanOnEveryType, ::testing::ValuesIn(kAircraftTypes), testName);

// Passengers sit as people board: whole rows together, pairs either side of the aisle, so that at
// most the two rows at the ends of the block are part filled and the sides carry the same count.
TEST(PlanSeating, FillsRowsTogetherAndPairsAcrossTheAisle)
{
    TypeRig rig{"B737-300"};
    const LoadState& state = rig.state();
    for (int passengers : {24, 60, 97}) {
        const Result<Plan> plan = planLoad(state, rig.groups, planRequest(passengers, 3000));
        ASSERT_TRUE(plan) << plan.error().message;
        EXPECT_TRUE(plan->cg.inBalance);
        std::map<float, std::pair<int, int>> rows; // x: seats taken, seats
        int sides[2] = {0, 0};                     // taken left, right of the aisle
        for (const auto& [station, weight] : plan->weights) {
            if (station < state.nstations - state.ncrew) {
                auto& [taken, seats] = rows[state.stationx[station]];
                ++seats;
                taken += weight > 0;
                sides[state.stationy[station] >= 0] += weight > 0;
            }
        }
        const auto partial = std::count_if(rows.begin(), rows.end(), [](const auto& row) {
            return row.second.first > 0 && row.second.first < row.second.second;
        });
        EXPECT_LE(partial, 2) << passengers;
        EXPECT_LE(std::abs(sides[0] - sides[1]), 1) << passengers;
    }
}

// What the planner makes of one request. A full cabin (passengers -1) balances on these types, on the
// Beech and the MD-90 once cargo weighs down the tail; where nothing balances, the every-type test
// holds the planner to saying so. A request no load can meet is refused with the limit it breaks and
// by how much.
struct Outcome {
    const char* type;
    int passengers;
    std::optional<float> cargo;
    std::optional<float> zeroFuelWeight;
    bool inBalance;
    const char* refusal = nullptr;
};

class PlanOutcome : public ::testing::TestWithParam<Outcome> {};

TEST_P(PlanOutcome, BalancesOrNamesTheLimitAndTheExcess)
{
    const Outcome& o = GetParam();
    TypeRig rig{o.type};
    const int passengers = o.passengers < 0 ? planBounds(rig.state(), rig.groups).seats : o.passengers;
    const Result<Plan> plan =
        planLoad(rig.state(), rig.groups, planRequest(passengers, o.cargo, o.zeroFuelWeight));
    if (o.refusal) {
        ASSERT_FALSE(plan);
        EXPECT_EQ(plan.error().message, o.refusal);
    } else {
        ASSERT_TRUE(plan) << plan.error().message;
        EXPECT_EQ(plan->cg.inBalance, o.inBalance) << plan->cg.x;
    }
}

// The B737-300 has 128 seats, holds of 2002 and 5168 lb, an empty weight of 69953.4 lb and a maximum
// zero-fuel weight 33000 lb above it. The DC-10-30F's zone limits add up to 223000 lb, but its aft
// lower hold's ten containers of 3476 lb carry only 34760 of that zone's 35000.
const Outcome kOutcomes[] = {
    Outcome{"Beech 1900D", -1, 600, std::nullopt, true},
    Outcome{"MD-90-30", -1, 6000, std::nullopt, true},
    Outcome{"B727-212ADV", -1, 0, std::nullopt, true},
    Outcome{"B727-212ADV", -1, 5000, std::nullopt, true},
    Outcome{"B757-200", -1, 0, std::nullopt, true},
    Outcome{"B757-200", -1, 20000, std::nullopt, true},
    Outcome{"B767-300ER", -1, 0, std::nullopt, true},
    Outcome{"B767-300ER", -1, 20000, std::nullopt, true},
    Outcome{"B737-300", 142, 9000, std::nullopt, false,
            "142 passengers do not fit in the 128 passenger seats: 14 too many."},
    Outcome{"B737-300", 100, 8000, std::nullopt, false,
            "The holds and containers carry at most 7170 lb: 830 lb too much cargo."},
    Outcome{"B737-300", 0, std::nullopt, 103953.4f, false,
            "The zero-fuel weight of 103953 lb is above the maximum of 102953 lb by 1000 lb."},
    Outcome{"B737-300", 100, std::nullopt, 80000, false,
            "The zero-fuel weight of 80000 lb is below the 86953 lb that the aircraft, its crew and the "
            "passengers weigh, by 6953 lb."},
    Outcome{"DC-10-30F", 0, 223001, std::nullopt, false,
            "The holds and containers carry at most 222760 lb: 241 lb too much cargo."},
    Outcome{"Beech 1900D", 19, 2000, std::nullopt, false,
            "The zero-fuel weight would be 15845 lb, above the maximum of 15000 lb by 845 lb."},
};

INSTANTIATE_TEST_SUITE_P(Requests, PlanOutcome, ::testing::ValuesIn(kOutcomes), [](const auto& info) {
    return testNameOf(info.param.type) + "_" + std::to_string(info.index);
});

} // namespace
} // namespace quillet

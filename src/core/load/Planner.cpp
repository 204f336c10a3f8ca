#include "Planner.h"

#include "platform/Format.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>

namespace quillet {

namespace {

constexpr double kUnlimited = std::numeric_limits<double>::infinity();
// Centres of gravity that differ by less than this look the same to the user (the dialog shows
// hundredths of a foot), so the nicer seating decides between them.
constexpr double kSameCentre = 0.01;

std::string lb(double weight)
{
    return format0(weight) + " lb";
}

// ---- The request against the type -----------------------------------------------------------------

struct Stations {
    std::vector<int> seats;
    std::vector<int> cargo;
    std::vector<int> cargoGroup;  // the group of each cargo station, by its index in `cargo`
    std::vector<double> cargoCap; // each cargo station's own limit
    std::vector<double> groupCap; // each group's limit, by group index
    std::array<bool, kStationCapacity> planned{};
    double fixedWeight = 0; // what the stations planning leaves alone carry
    double capacity = 0;    // the most the cargo stations carry together
};

Stations sortStations(const LoadState& state, const StationGroups& groups)
{
    Stations s;
    const int inUse = std::clamp(state.stationsInUse(), 0, kStationCapacity);
    for (std::size_t g = 0; g < groups.size(); ++g) {
        const StationGroup& group = groups[g];
        const double groupCap = group.limit > 0 ? std::floor(static_cast<double>(group.limit)) : kUnlimited;
        s.groupCap.push_back(groupCap);
        if (group.role == StationRole::Crew)
            continue;
        double stationSum = 0;
        for (int station : group.stations) {
            if (station < 0 || station >= kStationCapacity || s.planned[station])
                continue;
            s.planned[station] = true;
            if (group.role == StationRole::Passenger) {
                s.seats.push_back(station);
                continue;
            }
            const double cap = group.stationLimits
                                   ? std::max(0.0, std::floor(static_cast<double>(state.stationmax[station])))
                                   : kUnlimited;
            s.cargo.push_back(station);
            s.cargoGroup.push_back(static_cast<int>(g));
            s.cargoCap.push_back(cap);
            stationSum += cap;
        }
        if (group.role == StationRole::Cargo)
            s.capacity += std::min(groupCap, stationSum);
    }
    for (int i = 0; i < inUse; ++i) {
        if (!s.planned[i])
            s.fixedWeight += state.stationweight[i];
    }
    return s;
}

// ---- Cargo ------------------------------------------------------------------------------------------

// A split of the cargo over the cargo stations (by index in Stations::cargo) and its moments.
struct CargoSplit {
    std::vector<double> weight;
    double momentX = 0;
    double momentY = 0;
};

// The cargo stowed as far aft (forwardFirst false) or forward as the limits let it go. Limits are
// nested, every station within one group, so filling stations in order of position gives the
// extreme moment. Stations of a group at the same position share their load evenly, so pairs either
// side of the centre line stay level.
CargoSplit extremeSplit(const LoadState& state, const Stations& s, double cargo, bool forwardFirst)
{
    const std::size_t n = s.cargo.size();
    std::vector<std::size_t> order(n);
    for (std::size_t i = 0; i < n; ++i)
        order[i] = i;
    const auto xOf = [&](std::size_t i) { return static_cast<double>(state.stationx[s.cargo[i]]); };
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        if (xOf(a) != xOf(b))
            return forwardFirst ? xOf(a) > xOf(b) : xOf(a) < xOf(b);
        return s.cargoGroup[a] < s.cargoGroup[b];
    });

    CargoSplit split;
    split.weight.assign(n, 0);
    std::vector<double> groupLeft = s.groupCap;
    double left = cargo;
    for (std::size_t first = 0; first < n && left > 0;) {
        std::size_t end = first + 1;
        while (end < n && xOf(order[end]) == xOf(order[first]) &&
               s.cargoGroup[order[end]] == s.cargoGroup[order[first]])
            ++end;
        const int group = s.cargoGroup[order[first]];
        double room = 0;
        for (std::size_t k = first; k < end; ++k)
            room += s.cargoCap[order[k]];
        double amount = std::min({left, room, groupLeft[static_cast<std::size_t>(group)]});
        left -= amount;
        groupLeft[static_cast<std::size_t>(group)] -= amount;
        // Equal shares, the stations with less room filled up first.
        std::vector<std::size_t> tied(order.begin() + static_cast<std::ptrdiff_t>(first),
                                      order.begin() + static_cast<std::ptrdiff_t>(end));
        std::stable_sort(tied.begin(), tied.end(),
                         [&](std::size_t a, std::size_t b) { return s.cargoCap[a] < s.cargoCap[b]; });
        for (std::size_t k = 0; k < tied.size(); ++k) {
            const double share = std::min(amount / static_cast<double>(tied.size() - k), s.cargoCap[tied[k]]);
            split.weight[tied[k]] = share;
            amount -= share;
        }
        first = end;
    }
    for (std::size_t i = 0; i < n; ++i) {
        split.momentX += split.weight[i] * state.stationx[s.cargo[i]];
        split.momentY += split.weight[i] * state.stationy[s.cargo[i]];
    }
    return split;
}

// Whole pounds for every station, the total kept: each group's sum and then each station's weight
// is rounded down or up, the largest remainders up, so no limit the split kept is broken.
std::vector<double> wholePounds(const Stations& s, const std::vector<double>& weight, double total)
{
    const auto roundOff = [](const std::vector<double>& values, const std::vector<double>& caps, double sum) {
        std::vector<double> result(values.size());
        std::vector<std::size_t> order(values.size());
        double rest = sum;
        for (std::size_t i = 0; i < values.size(); ++i) {
            result[i] = std::min(std::floor(values[i] + 1e-7), caps[i]);
            rest -= result[i];
            order[i] = i;
        }
        std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
            return values[a] - result[a] > values[b] - result[b];
        });
        for (int pass = 0; pass < 2 && rest > 0.5; ++pass) {
            for (std::size_t i : order) {
                if (rest < 0.5)
                    break;
                // First pass: only those rounded down; second: anything with room.
                const bool wanted = pass == 1 || values[i] - result[i] > 1e-7;
                const double room = caps[i] - result[i];
                if (wanted && room >= 1) {
                    const double add = pass == 0 ? 1 : std::min(std::floor(room), std::floor(rest + 0.5));
                    result[i] += add;
                    rest -= add;
                }
            }
        }
        return result;
    };

    const std::size_t groups = s.groupCap.size();
    std::vector<double> groupSum(groups, 0);
    std::vector<double> groupRoom(groups, 0);
    for (std::size_t i = 0; i < weight.size(); ++i) {
        groupSum[static_cast<std::size_t>(s.cargoGroup[i])] += weight[i];
        groupRoom[static_cast<std::size_t>(s.cargoGroup[i])] += s.cargoCap[i];
    }
    for (std::size_t g = 0; g < groups; ++g)
        groupRoom[g] = std::min(groupRoom[g], s.groupCap[g]);
    const std::vector<double> groupTotal = roundOff(groupSum, groupRoom, total);

    std::vector<double> result(weight.size(), 0);
    for (std::size_t g = 0; g < groups; ++g) {
        std::vector<std::size_t> members;
        for (std::size_t i = 0; i < weight.size(); ++i) {
            if (static_cast<std::size_t>(s.cargoGroup[i]) == g)
                members.push_back(i);
        }
        std::vector<double> values;
        std::vector<double> caps;
        for (std::size_t i : members) {
            values.push_back(weight[i]);
            caps.push_back(s.cargoCap[i]);
        }
        const std::vector<double> rounded = roundOff(values, caps, groupTotal[g]);
        for (std::size_t k = 0; k < members.size(); ++k)
            result[members[k]] = rounded[k];
    }
    return result;
}

// ---- Seats ------------------------------------------------------------------------------------------

// The row a seat's name gives ("Passenger 12C" is in row 12), or nothing.
std::optional<int> rowNumber(const std::string& name)
{
    const auto digit = std::find_if(name.begin(), name.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (digit == name.end())
        return std::nullopt;
    int row = 0;
    for (auto c = digit; c != name.end() && *c >= '0' && *c <= '9' && row < 100000; ++c)
        row = row * 10 + (*c - '0');
    return row;
}

// The seats in the order a cabin fills: rows from the front, and in each row the window pair first,
// then the aisle pair, then the seats between, and last any seat without a partner across the aisle.
// `rowStart` marks where each row begins, `pairStart` where each pair (or lone seat) begins.
struct SeatOrder {
    std::vector<int> seats;
    std::vector<bool> rowStart;
    std::vector<bool> pairStart;
};

SeatOrder seatOrder(const LoadState& state, const std::vector<int>& seats)
{
    struct Row {
        double x = 0;
        std::vector<int> seats;
    };
    std::map<long long, Row> byKey;
    for (int seat : seats) {
        const std::optional<int> number = rowNumber(state.stationname[seat]);
        // A seat whose name gives no row is a row of its own.
        const long long key = number ? *number : -1LL - seat;
        byKey[key].seats.push_back(seat);
    }
    std::vector<Row> rows;
    for (auto& [key, row] : byKey) {
        double sum = 0;
        for (int seat : row.seats)
            sum += state.stationx[seat];
        row.x = sum / static_cast<double>(row.seats.size());
        rows.push_back(std::move(row));
    }
    std::stable_sort(rows.begin(), rows.end(), [](const Row& a, const Row& b) { return a.x > b.x; });

    SeatOrder order;
    const auto add = [&order](int seat, bool rowStart, bool pairStart) {
        order.seats.push_back(seat);
        order.rowStart.push_back(rowStart);
        order.pairStart.push_back(pairStart);
    };
    for (const Row& row : rows) {
        std::vector<int> left;
        std::vector<int> right;
        std::vector<int> centre;
        for (int seat : row.seats)
            (state.stationy[seat] < 0 ? left : state.stationy[seat] > 0 ? right : centre).push_back(seat);
        const auto outermostFirst = [&state](std::vector<int>& side) {
            std::stable_sort(side.begin(), side.end(), [&state](int a, int b) {
                return std::fabs(state.stationy[a]) > std::fabs(state.stationy[b]);
            });
        };
        outermostFirst(left);
        outermostFirst(right);
        const std::size_t pairs = std::min(left.size(), right.size());
        std::vector<std::size_t> pairOrder;
        if (pairs > 0)
            pairOrder.push_back(0);
        if (pairs > 1)
            pairOrder.push_back(pairs - 1);
        for (std::size_t k = 1; k + 1 < pairs; ++k)
            pairOrder.push_back(k);
        bool first = true;
        for (std::size_t k : pairOrder) {
            add(left[k], first, true);
            add(right[k], false, false);
            first = false;
        }
        std::vector<int> alone(left.begin() + static_cast<std::ptrdiff_t>(pairs), left.end());
        alone.insert(alone.end(), right.begin() + static_cast<std::ptrdiff_t>(pairs), right.end());
        alone.insert(alone.end(), centre.begin(), centre.end());
        for (int seat : alone) {
            add(seat, first, true);
            first = false;
        }
    }
    return order;
}

// ---- The plan -----------------------------------------------------------------------------------

// Everything about the request that does not depend on which seats are taken.
struct Frame {
    double weight = 0;  // as the balance counts it
    double wantedX = 0; // the moment the target asks for
    double fixedX = 0;  // moments of the stations planning leaves alone
    double fixedY = 0;
    double passenger = 0;
    double bandX = 0;
    double bandY = 0;
    CargoSplit aft;
    CargoSplit forward;
};

// How well a choice of seats does: the distance of the reachable centre from the target along the
// aircraft and from the centre line across it, in feet, and what share of the way from the aftmost
// to the foremost cargo split the cargo then takes.
struct Fit {
    double errorX = 0;
    double cgY = 0;
    double cargoShare = 0;
    double outside = 0; // how far the centre lies outside the band, in feet
};

Fit fitOf(const Frame& f, double seatX, double seatY)
{
    Fit fit;
    const double wanted = f.wantedX - f.fixedX - f.passenger * seatX;
    const double low = f.aft.momentX;
    const double high = f.forward.momentX;
    const double got = std::clamp(wanted, low, std::max(low, high));
    fit.errorX = std::fabs(wanted - got) / f.weight;
    fit.cargoShare = high - low > 1e-9 ? (got - low) / (high - low) : 0;
    const double cargoY = f.aft.momentY + fit.cargoShare * (f.forward.momentY - f.aft.momentY);
    fit.cgY = (f.fixedY + f.passenger * seatY + cargoY) / f.weight;
    const double cgX = (f.fixedX + f.passenger * seatX + got) / f.weight;
    fit.outside = std::max(0.0, std::fabs(cgX) - f.bandX) + std::max(0.0, std::fabs(fit.cgY) - f.bandY);
    return fit;
}

// Lexicographic, with a margin for rounding.
bool better(const std::array<double, 3>& a, const std::array<double, 3>& b)
{
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i] < b[i] - 1e-12)
            return true;
        if (a[i] > b[i] + 1e-12)
            return false;
    }
    return false;
}

long long steps(double feet)
{
    return std::llround(std::fabs(feet) / kSameCentre);
}

// Seats first to first + count - 1 of the order, as the cabin fills: a block of whole rows where it
// can, placed where the balance wants it; among equally balanced blocks the one with fewest split
// rows and pairs and the most evenly centred in the cabin.
std::vector<bool> chooseSeats(const LoadState& state, const SeatOrder& order, int count, const Frame& f)
{
    const int n = static_cast<int>(order.seats.size());
    std::vector<double> sumX(static_cast<std::size_t>(n) + 1, 0);
    std::vector<double> sumY(static_cast<std::size_t>(n) + 1, 0);
    for (int i = 0; i < n; ++i) {
        sumX[static_cast<std::size_t>(i) + 1] =
            sumX[static_cast<std::size_t>(i)] + state.stationx[order.seats[i]];
        sumY[static_cast<std::size_t>(i) + 1] =
            sumY[static_cast<std::size_t>(i)] + state.stationy[order.seats[i]];
    }
    const auto boundary = [&](int i, const std::vector<bool>& starts) {
        return i <= 0 || i >= n || starts[static_cast<std::size_t>(i)];
    };

    using Score = std::array<long long, 6>;
    Score best{};
    int bestStart = 0;
    for (int k = 0; k + count <= n; ++k) {
        const Fit fit =
            fitOf(f, sumX[static_cast<std::size_t>(k + count)] - sumX[static_cast<std::size_t>(k)],
                  sumY[static_cast<std::size_t>(k + count)] - sumY[static_cast<std::size_t>(k)]);
        const int splitRows = !boundary(k, order.rowStart) + !boundary(k + count, order.rowStart);
        const int splitPairs = !boundary(k, order.pairStart) + !boundary(k + count, order.pairStart);
        const Score score{fit.outside > 0, steps(fit.errorX), steps(fit.cgY),
                          splitPairs,      splitRows,         std::abs(2 * k + count - n)};
        if (k == 0 || score < best) {
            best = score;
            bestStart = k;
        }
    }
    std::vector<bool> taken(static_cast<std::size_t>(n), false);
    for (int i = bestStart; i < bestStart + count; ++i)
        taken[static_cast<std::size_t>(i)] = true;

    // When no block reaches the target, single moves of a passenger to another seat may still bring
    // the centre nearer: take the best move until none helps.
    double seatX =
        sumX[static_cast<std::size_t>(bestStart + count)] - sumX[static_cast<std::size_t>(bestStart)];
    double seatY =
        sumY[static_cast<std::size_t>(bestStart + count)] - sumY[static_cast<std::size_t>(bestStart)];
    // In balance first, then near the target along, then near the centre line across.
    const auto badness = [&](double x, double y) {
        const Fit fit = fitOf(f, x, y);
        return std::array{fit.outside, fit.errorX * 2 < kSameCentre ? 0.0 : fit.errorX, std::fabs(fit.cgY)};
    };
    for (int round = 0; round < n; ++round) {
        const auto now = badness(seatX, seatY);
        if (now[0] == 0 && now[1] == 0)
            break;
        auto bestMove = now;
        int from = -1;
        int to = -1;
        for (int i = 0; i < n; ++i) {
            if (!taken[static_cast<std::size_t>(i)])
                continue;
            for (int j = 0; j < n; ++j) {
                if (taken[static_cast<std::size_t>(j)])
                    continue;
                const int a = order.seats[static_cast<std::size_t>(i)];
                const int b = order.seats[static_cast<std::size_t>(j)];
                const auto moved = badness(seatX - state.stationx[a] + state.stationx[b],
                                           seatY - state.stationy[a] + state.stationy[b]);
                if (better(moved, bestMove)) {
                    bestMove = moved;
                    from = i;
                    to = j;
                }
            }
        }
        if (from < 0)
            break;
        taken[static_cast<std::size_t>(from)] = false;
        taken[static_cast<std::size_t>(to)] = true;
        const int a = order.seats[static_cast<std::size_t>(from)];
        const int b = order.seats[static_cast<std::size_t>(to)];
        seatX += state.stationx[b] - state.stationx[a];
        seatY += state.stationy[b] - state.stationy[a];
    }
    return taken;
}

} // namespace

PlanBounds planBounds(const LoadState& state, const StationGroups& groups)
{
    const Stations s = sortStations(state, groups);
    PlanBounds bounds;
    bounds.seats = static_cast<int>(s.seats.size());
    bounds.fixedWeight = static_cast<float>(state.emptyweight + s.fixedWeight);
    bounds.maxZeroFuel = state.maxzerofuel;
    const double room = std::floor(static_cast<double>(state.maxzerofuel) - bounds.fixedWeight);
    bounds.maxCargo = static_cast<float>(std::max(0.0, std::min(s.capacity, room)));
    bounds.bandX = centreOfGravity(state).bandX;
    return bounds;
}

Result<Plan> planLoad(const LoadState& state, const StationGroups& groups, const PlanRequest& request)
{
    const Stations s = sortStations(state, groups);
    const int seats = static_cast<int>(s.seats.size());
    const int passengers = request.passengers;
    const double perPassenger = request.passengerWeight;
    const CentreOfGravity now = centreOfGravity(state);

    if (passengers < 0)
        return Error{"The number of passengers cannot be negative."};
    if (passengers > seats) {
        return Error{format0(passengers) + " passengers do not fit in the " + format0(seats) +
                     " passenger seats: " + format0(passengers - seats) + " too many."};
    }
    if (passengers > 0 && !(perPassenger > 0))
        return Error{"A passenger must weigh more than 0 lb."};
    if (request.cargo && request.zeroFuelWeight)
        return Error{"Give either the cargo or the zero-fuel weight, not both."};
    if (!(std::fabs(request.targetCgX) <= now.bandX + 1e-9)) {
        return Error{"The centre of gravity can only be asked for within " + format1(now.bandX) +
                     " ft of the reference point."};
    }

    const double base = state.emptyweight + s.fixedWeight + passengers * perPassenger;
    const double maxZeroFuel = state.maxzerofuel;
    double cargo = 0;
    if (request.zeroFuelWeight) {
        const double wanted = *request.zeroFuelWeight;
        if (wanted > maxZeroFuel + 1e-6) {
            return Error{"The zero-fuel weight of " + lb(wanted) + " is above the maximum of " +
                         lb(maxZeroFuel) + " by " + lb(wanted - maxZeroFuel) + "."};
        }
        if (wanted < base - 0.5) {
            return Error{"The zero-fuel weight of " + lb(wanted) + " is below the " + lb(base) +
                         " that the aircraft, its crew and the passengers weigh, by " + lb(base - wanted) +
                         "."};
        }
        cargo = std::max(0.0, std::floor(wanted - base + 0.5));
        if (base + cargo > maxZeroFuel)
            cargo = std::max(0.0, std::floor(maxZeroFuel - base));
    } else if (request.cargo) {
        if (*request.cargo < 0)
            return Error{"The cargo cannot be negative."};
        cargo = std::floor(static_cast<double>(*request.cargo) + 0.5);
    }
    if (cargo > s.capacity) {
        return Error{"The holds and containers carry at most " + lb(s.capacity) + ": " +
                     lb(cargo - s.capacity) + " too much cargo."};
    }
    if (base + cargo > maxZeroFuel) {
        return Error{"The zero-fuel weight would be " + lb(base + cargo) + ", above the maximum of " +
                     lb(maxZeroFuel) + " by " + lb(base + cargo - maxZeroFuel) + "."};
    }

    Frame f;
    f.weight = state.emptyweight + 0.01 + s.fixedWeight + passengers * perPassenger + cargo;
    f.wantedX = request.targetCgX * f.weight;
    f.passenger = perPassenger;
    f.bandX = now.bandX;
    f.bandY = now.bandY;
    for (int i = 0; i < kMarkerCapacity; ++i) {
        if (!s.planned[i]) {
            f.fixedX += static_cast<double>(state.stationx[i]) * state.stationweight[i];
            f.fixedY += static_cast<double>(state.stationy[i]) * state.stationweight[i];
        }
    }
    f.aft = extremeSplit(state, s, cargo, false);
    f.forward = extremeSplit(state, s, cargo, true);

    const SeatOrder order = seatOrder(state, s.seats);
    const std::vector<bool> taken = chooseSeats(state, order, passengers, f);
    double seatX = 0;
    double seatY = 0;
    for (std::size_t i = 0; i < order.seats.size(); ++i) {
        if (taken[i]) {
            seatX += state.stationx[order.seats[i]];
            seatY += state.stationy[order.seats[i]];
        }
    }
    const Fit fit = fitOf(f, seatX, seatY);
    std::vector<double> split(s.cargo.size());
    for (std::size_t i = 0; i < split.size(); ++i)
        split[i] = f.aft.weight[i] + fit.cargoShare * (f.forward.weight[i] - f.aft.weight[i]);
    const std::vector<double> stowed = wholePounds(s, split, cargo);

    Plan plan;
    std::array<float, kMarkerCapacity> weights{};
    std::copy_n(state.stationweight.begin(), kMarkerCapacity, weights.begin());
    const auto put = [&](int station, double weight) {
        plan.weights.emplace_back(station, static_cast<float>(weight));
        if (station < kMarkerCapacity)
            weights[static_cast<std::size_t>(station)] = static_cast<float>(weight);
    };
    for (std::size_t i = 0; i < order.seats.size(); ++i)
        put(order.seats[i], taken[i] ? perPassenger : 0);
    for (std::size_t i = 0; i < s.cargo.size(); ++i)
        put(s.cargo[i], stowed[i]);
    std::sort(plan.weights.begin(), plan.weights.end());

    plan.cargo = static_cast<float>(cargo);
    plan.zeroFuelWeight = static_cast<float>(base + cargo);
    const double fuel = std::min(static_cast<double>(state.maxtakeoff) - plan.zeroFuelWeight,
                                 static_cast<double>(state.maxfuel));
    plan.total = static_cast<float>(plan.zeroFuelWeight + fuel);
    plan.cg = centreOfGravity(state, weights);
    return plan;
}

} // namespace quillet

#pragma once

#include "Balance.h"
#include "LoadState.h"
#include "StationGroups.h"
#include "platform/Result.h"

#include <optional>
#include <utility>
#include <vector>

namespace quillet {

// A load to plan: how many passengers at what weight each, and either the cargo or the zero-fuel
// weight to reach (then the cargo is what brings the aircraft to it; neither means no cargo), and
// where along the aircraft the centre of gravity should sit, in feet forward of the empty aircraft's.
struct PlanRequest {
    int passengers = 0;
    float passengerWeight = 170;
    std::optional<float> cargo;
    std::optional<float> zeroFuelWeight;
    double targetCgX = 0;
};

// What a request may ask of the type that is set up.
struct PlanBounds {
    int seats = 0;         // passenger seats
    float maxCargo = 0;    // the most the holds and containers carry, within the zero-fuel limit
    double bandX = 0;      // the centre of gravity target may lie within ±bandX feet
    float fixedWeight = 0; // what the empty aircraft and its crew weigh
    float maxZeroFuel = 0;
};

// A planned load: the new weight of every passenger seat and cargo station (crew stations keep
// theirs), and what the aircraft then weighs and where its centre of gravity lies.
struct Plan {
    std::vector<std::pair<int, float>> weights;
    float cargo = 0;
    float zeroFuelWeight = 0;
    float total = 0; // zero-fuel weight and the fuel then allowed
    CentreOfGravity cg;
};

PlanBounds planBounds(const LoadState& state, const StationGroups& groups);

// Seats the passengers and stows the cargo within every station, hold, zone and zero-fuel limit, with
// the centre of gravity as near the target as the request allows. A request that no load can meet
// comes back as an error naming the limit and by how much it is missed. Draws nothing at random.
Result<Plan> planLoad(const LoadState& state, const StationGroups& groups, const PlanRequest& request);

} // namespace quillet

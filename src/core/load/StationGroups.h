#pragma once

#include "LoadState.h"

#include <string>
#include <vector>

namespace quillet {

// What a station carries: the crew, whom planning never moves; passengers, one to a seat; or cargo.
enum class StationRole { Crew, Passenger, Cargo };

// Stations that belong together on a load sheet: the crew, a cabin class, a hold, a zone of
// containers. `limit` bounds the group's summed weight (a zone or hold limit); 0 means none.
struct StationGroup {
    std::string name;
    StationRole role = StationRole::Cargo;
    std::vector<int> stations;
    float limit = 0;
    // Whether each station is also bounded by its own stationmax (holds and containers whose table
    // gives one).
    bool stationLimits = false;
};

// The groups of the type that is set up; together they hold every station in use exactly once.
using StationGroups = std::vector<StationGroup>;

// Stations first to end - 1.
std::vector<int> stationRange(int first, int end);

// The passenger seats split into the type's cabin classes (seats1, seats2, seats3 of them, in seat
// order; seats the counts leave out join the last class): "First class", "Business class" and
// "Economy class" on a type with three, "First class" and "Economy class" with two, one group
// "Passengers" with one. Adds nothing when there are no seats.
void addCabinClasses(StationGroups& groups, const LoadState& state, const std::vector<int>& seats);

// The number of stations with that role.
int countStations(const StationGroups& groups, StationRole role);

} // namespace quillet

#pragma once

#include "RegionalType.h"
#include "load/LoadState.h"
#include "platform/Random.h"

namespace quillet {

// The light, medium and heavy presets of the regional forms: one family, driven by the numbers in
// each type's table. A preset works on the load state alone: it draws the passengers, their seats
// and the hold's baggage, leaves the crew as they are, and sets loadweight to the sum of the
// weights. The form then shows the new load and runs the summary.
class RegionalPresetRun {
public:
    // `formStations`: how many stations the form shows (0 to formStations - 1).
    RegionalPresetRun(LoadState& state, RandomSource& random, const StationRoles& roles, int formStations,
                      float avionicsLoad);

    // Light and medium: n passengers on free seats drawn from the preset's range.
    void run(const PlacingPreset& preset);
    // Heavy: every passenger seat filled, then seats emptied until n passengers remain.
    void run(const HeavyPreset& preset);

private:
    int drawCount(const CountDraw& draw);
    int drawSeat(const SeatDraw& seats, bool wantLoaded);
    // Draws the number of passengers and clears the load (every passenger seat emptied) for the
    // preset to rebuild.
    int start(const CountDraw& passengers);
    void loadHold(const BaggageDraw& baggage, int passengers);
    void sumLoad();

    LoadState& m_state;
    RandomSource& m_random;
    const StationRoles& m_roles;
    int m_formStations;
    float m_avionicsLoad;
};

} // namespace quillet

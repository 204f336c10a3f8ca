#include "RegionalPresets.h"

#include "load/PresetDraws.h"

#include <algorithm>

namespace quillet {

RegionalPresetRun::RegionalPresetRun(LoadState& state, RandomSource& random, const StationRoles& roles,
                                     int formStations, float avionicsLoad)
    : m_state(state), m_random(random), m_roles(roles), m_formStations(formStations),
      m_avionicsLoad(avionicsLoad)
{
}

int RegionalPresetRun::drawCount(const CountDraw& draw)
{
    return draw.base + draw.sign * static_cast<int>(draw.spread * m_random.next() / draw.divisor);
}

int RegionalPresetRun::drawSeat(const SeatDraw& seats, bool wantLoaded)
{
    const int first = std::max(seats.first, 0);
    const int last = std::min(seats.last(), m_formStations - 1);
    const auto fits = [&](int seat) {
        return seat >= first && seat <= last && (m_state.stationweight[seat] > 0) == wantLoaded;
    };
    return quillet::drawSeat(m_random, seats.first, seats.count, fits);
}

int RegionalPresetRun::start(const CountDraw& passengers)
{
    const int count = drawCount(passengers);
    if (m_roles.avionics >= 0)
        m_state.stationweight[m_roles.avionics] = m_avionicsLoad;
    m_state.loadweight = 0;
    for (int seat = m_roles.firstPassenger; seat <= m_roles.lastPassenger; ++seat)
        m_state.stationweight[seat] = 0;
    return count;
}

void RegionalPresetRun::loadHold(const BaggageDraw& baggage, int passengers)
{
    const int extra = static_cast<int>(passengers * baggage.spread * m_random.next());
    m_state.stationweight[m_roles.hold] = static_cast<float>(baggage.perPassenger * passengers + extra);
}

void RegionalPresetRun::sumLoad()
{
    // Stations a hand-edited station file adds beyond the form still count in the load.
    const int counted = std::clamp(std::max(m_formStations, m_state.stationsInUse()), 0, kStationCapacity);
    m_state.loadweight = 0;
    for (int i = 0; i < counted; ++i)
        m_state.loadweight += m_state.stationweight[i];
}

void RegionalPresetRun::run(const PlacingPreset& preset)
{
    const int passengers = start(preset.passengers);
    loadHold(preset.baggage, passengers);
    for (int k = 0; k < passengers; ++k) {
        const float weight = drawPassengerWeight(m_random);
        if (const int seat = drawSeat(preset.place, false); seat >= 0)
            m_state.stationweight[seat] = weight;
    }
    sumLoad();
}

void RegionalPresetRun::run(const HeavyPreset& preset)
{
    const int passengers = start(preset.passengers);
    for (int seat = m_roles.firstPassenger; seat <= m_roles.lastPassenger; ++seat)
        m_state.stationweight[seat] = drawPassengerWeight(m_random);

    const auto rule = std::find_if(preset.rules.begin(), preset.rules.end(),
                                   [&](const EmptyingRule& r) { return passengers >= r.fromCount; });
    if (rule != preset.rules.end()) {
        for (int seat : rule->reserved)
            m_state.stationweight[seat] = 0;
        const int seatCount = m_roles.lastPassenger - m_roles.firstPassenger + 1;
        const int toEmpty = seatCount - static_cast<int>(rule->reserved.size()) - passengers;
        for (int k = 0; k < toEmpty; ++k) {
            if (const int seat = drawSeat(rule->empty, true); seat >= 0)
                m_state.stationweight[seat] = 0;
        }
    }
    loadHold(preset.baggage, passengers);
    sumLoad();
}

} // namespace quillet

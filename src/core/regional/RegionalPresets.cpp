// The light, medium and heavy presets of the regional forms: one family, driven by the numbers in
// each type's table.

#include "RegionalForm.h"

#include "load/PresetDraws.h"

#include <algorithm>
#include <cmath>

namespace quillet {

int RegionalForm::drawCount(const CountDraw& draw)
{
    return draw.base + draw.sign * static_cast<int>(draw.spread * m_session.random.next());
}

float RegionalForm::drawPassengerWeight()
{
    return quillet::drawPassengerWeight(m_session.random);
}

int RegionalForm::drawSeat(const SeatDraw& seats, bool wantLoaded)
{
    const LoadState& state = m_session.state;
    const int first = std::max(seats.first, 0);
    const int last = std::min(seats.last(), stationCount() - 1);
    const auto fits = [&](int seat) {
        return seat >= first && seat <= last && (state.stationweight[seat] > 0) == wantLoaded;
    };
    return quillet::drawSeat(m_session.random, seats.first, seats.count, fits);
}

int RegionalForm::startPreset(const CountDraw& passengers)
{
    const int count = drawCount(passengers);
    LoadState& state = m_session.state;
    if (m_type.roles.avionics >= 0)
        state.stationweight[m_type.roles.avionics] = m_type.presets.avionicsLoad;
    state.loadweight = 0;
    for (int seat = m_type.roles.firstPassenger; seat <= m_type.roles.lastPassenger; ++seat) {
        showEmpty(seat);
        state.stationweight[seat] = 0;
    }
    return count;
}

void RegionalForm::loadHold(const BaggageDraw& baggage, int passengers)
{
    const int extra = static_cast<int>(passengers * baggage.spread * m_session.random.next());
    m_session.state.stationweight[m_type.roles.hold] =
        static_cast<float>(baggage.perPassenger * passengers + extra);
}

void RegionalForm::finishPreset()
{
    LoadState& state = m_session.state;
    for (int i = 0; i < stationCount(); ++i) {
        if (state.stationweight[i] > 0)
            showLoaded(i);
        else
            showEmpty(i);
    }
    // Stations a hand-edited station file adds beyond the form still count in the load.
    const int counted = std::clamp(std::max(stationCount(), state.stationsInUse()), 0, kStationCapacity);
    for (int i = 0; i < counted; ++i)
        state.loadweight += state.stationweight[i];
    runSummary();
}

void RegionalForm::placingPreset(const PlacingPreset& preset)
{
    LoadState& state = m_session.state;
    const int passengers = startPreset(preset.passengers);
    loadHold(preset.baggage, passengers);
    for (int k = 0; k < passengers; ++k) {
        const float weight = drawPassengerWeight();
        if (const int seat = drawSeat(preset.place, false); seat >= 0)
            state.stationweight[seat] = weight;
    }
    finishPreset();
}

void RegionalForm::heavyPreset(const HeavyPreset& preset)
{
    LoadState& state = m_session.state;
    const StationRoles& roles = m_type.roles;

    const int passengers = startPreset(preset.passengers);
    for (int seat = roles.firstPassenger; seat <= roles.lastPassenger; ++seat) {
        state.stationweight[seat] = drawPassengerWeight();
        location[seat].tooltip = occupiedText(seat);
    }

    const auto rule = std::find_if(preset.rules.begin(), preset.rules.end(),
                                   [&](const EmptyingRule& r) { return passengers >= r.fromCount; });
    if (rule != preset.rules.end()) {
        for (int seat : rule->reserved)
            state.stationweight[seat] = 0;
        const int seatCount = roles.lastPassenger - roles.firstPassenger + 1;
        const int toEmpty = seatCount - static_cast<int>(rule->reserved.size()) - passengers;
        for (int k = 0; k < toEmpty; ++k) {
            if (const int seat = drawSeat(rule->empty, true); seat >= 0) {
                state.stationweight[seat] = 0;
                showEmpty(seat);
            }
        }
    }
    loadHold(preset.baggage, passengers);
    finishPreset();
}

} // namespace quillet

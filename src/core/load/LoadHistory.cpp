#include "LoadHistory.h"

#include <algorithm>

namespace quillet {

LoadSnapshot LoadSnapshot::of(const LoadState& state)
{
    LoadSnapshot load;
    load.header = state;
    const int used = std::clamp(state.stationsInUse(), 0, kStationCapacity);
    load.stations.reserve(static_cast<std::size_t>(used));
    for (int i = 0; i < used; ++i) {
        load.stations.push_back({state.stationname[i], state.stationx[i], state.stationy[i],
                                 state.stationz[i], state.stationweight[i]});
    }
    load.loadweight = state.loadweight;
    return load;
}

void LoadSnapshot::restoreInto(LoadState& state) const
{
    static_cast<StationHeader&>(state) = header;
    for (std::size_t i = 0; i < stations.size(); ++i) {
        const Station& station = stations[i];
        state.stationname[i] = station.name;
        state.stationx[i] = station.x;
        state.stationy[i] = station.y;
        state.stationz[i] = station.z;
        state.stationweight[i] = station.weight;
    }
    state.loadweight = loadweight;
}

void LoadHistory::record(std::string_view action, LoadSnapshot before, LoadSnapshot after)
{
    if (before == after)
        return;
    std::string name(action);
    if (before.header == after.header && before.stations.size() == after.stations.size()) {
        const auto differs = [&](std::size_t i) { return before.stations[i] != after.stations[i]; };
        std::size_t changed = 0;
        std::size_t which = 0;
        for (std::size_t i = 0; i < after.stations.size(); ++i) {
            if (differs(i)) {
                ++changed;
                which = i;
            }
        }
        if (changed == 1)
            name = after.stations[which].name;
    }
    m_steps.resize(m_done);
    m_steps.push_back({std::move(name), std::move(before), std::move(after)});
    m_done = m_steps.size();
}

const LoadSnapshot* LoadHistory::undo()
{
    if (m_done == 0)
        return nullptr;
    return &m_steps[--m_done].before;
}

const LoadSnapshot* LoadHistory::redo()
{
    if (m_done == m_steps.size())
        return nullptr;
    return &m_steps[m_done++].after;
}

std::string LoadHistory::undoName() const
{
    return m_done == 0 ? std::string() : m_steps[m_done - 1].name;
}

std::string LoadHistory::redoName() const
{
    return m_done == m_steps.size() ? std::string() : m_steps[m_done].name;
}

void LoadHistory::clear()
{
    m_steps.clear();
    m_done = 0;
}

void LoadHistory::markStored(LoadSnapshot stored)
{
    m_stored = std::move(stored);
    m_hasStored = true;
}

bool LoadHistory::differsFromStored(const LoadSnapshot& load) const
{
    return m_hasStored && !(load == m_stored);
}

} // namespace quillet

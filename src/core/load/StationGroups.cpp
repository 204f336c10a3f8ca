#include "StationGroups.h"

#include <algorithm>
#include <array>

namespace quillet {

std::vector<int> stationRange(int first, int end)
{
    std::vector<int> stations;
    for (int i = first; i < end; ++i)
        stations.push_back(i);
    return stations;
}

void addCabinClasses(StationGroups& groups, const LoadState& state, const std::vector<int>& seats)
{
    if (seats.empty())
        return;
    const std::array<int, 3> counts{state.seats1, state.seats2, state.seats3};
    std::vector<int> sizes;
    for (int count : counts) {
        if (count > 0)
            sizes.push_back(count);
    }
    static const std::vector<std::vector<const char*>> kNames{
        {"Passengers"}, {"First class", "Economy class"}, {"First class", "Business class", "Economy class"}};
    if (sizes.empty())
        sizes.push_back(static_cast<int>(seats.size()));
    const auto& names = kNames[sizes.size() - 1];

    std::size_t next = 0;
    for (std::size_t c = 0; c < sizes.size() && next < seats.size(); ++c) {
        const bool last = c + 1 == sizes.size();
        const std::size_t take =
            last ? seats.size() - next : std::min(static_cast<std::size_t>(sizes[c]), seats.size() - next);
        StationGroup group{names[c], StationRole::Passenger, {}, 0, false};
        group.stations.assign(seats.begin() + static_cast<std::ptrdiff_t>(next),
                              seats.begin() + static_cast<std::ptrdiff_t>(next + take));
        next += take;
        if (!group.stations.empty())
            groups.push_back(std::move(group));
    }
}

int countStations(const StationGroups& groups, StationRole role)
{
    int count = 0;
    for (const StationGroup& group : groups) {
        if (group.role == role)
            count += static_cast<int>(group.stations.size());
    }
    return count;
}

} // namespace quillet

#include "JetSetUp.h"

#include "platform/Format.h"

#include <string>

namespace quillet {

void setLimits(LoadState& state, const JetLimits& limits)
{
    state.maxtakeoff = limits.maxtakeoff;
    state.maxlanding = limits.maxlanding;
    state.emptyweight = limits.emptyweight;
    state.maxfuel = limits.maxfuel;
    state.maxzerofuel = limits.maxzerofuel;
}

void setCounts(LoadState& state, const JetCounts& counts)
{
    state.maxpax = counts.maxpax;
    state.loadweight = 0;
    state.cfgstations = counts.cfgstations;
    state.seats1 = counts.seats1;
    state.seats2 = counts.seats2;
    state.seats3 = counts.seats3;
    state.nstations = counts.nstations;
    state.ncargo = counts.ncargo;
    state.nlower = counts.nlower;
    state.ncrew = counts.ncrew;
}

void seatRow(LoadState& state, int first, double row, double x, std::string_view letters,
             std::initializer_list<double> ys)
{
    int i = first;
    auto y = ys.begin();
    for (char letter : letters) {
        station(state, i++, "Passenger " + format0(row) + letter, x, *y++);
    }
}

void station(LoadState& state, int index, std::string_view name, double x, double y)
{
    state.stationname[index] = std::string(name);
    state.stationx[index] = static_cast<float>(x);
    state.stationy[index] = static_cast<float>(y);
}

void cargo(LoadState& state, int index, std::string_view name, double x, double y, float maximum)
{
    station(state, index, name, x, y);
    state.stationmax[index] = maximum;
    state.stationmsg[index].clear();
}

} // namespace quillet

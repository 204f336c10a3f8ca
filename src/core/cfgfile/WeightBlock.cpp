#include "WeightBlock.h"

#include "platform/Format.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace quillet {

namespace {

std::string stationLine(int number, double weight, double x, double y, double z, const std::string& label)
{
    return "station_load." + std::to_string(number) + " = " + format0(weight) + ", " + format1(x) + ", " +
           format1(y) + ", " + format1(z) + " // " + label;
}

std::string stationLine(const LoadState& state, int number, int station)
{
    return stationLine(number, state.stationweight[station], state.stationx[station], state.stationy[station],
                       state.stationz[station], state.stationname[station]);
}

// Station indices are clamped to the table, so counts set up wrongly can never read past it.
int inTable(int count)
{
    return std::clamp(count, 0, kStationCapacity);
}

void appendStations(const LoadState& state, std::vector<std::string>& block)
{
    if (state.nstations <= kMaxSeparatePersons) {
        block.push_back("max_number_of_stations = " + format0(state.cfgstations));
        for (int i = 0; i < inTable(state.cfgstations); ++i)
            block.push_back(stationLine(state, i, i));
        return;
    }

    block.push_back("max_number_of_stations = " + format0(state.ncargo + 1));
    const int persons = inTable(state.nstations);
    double weight = 0, xMoment = 0, yMoment = 0, zMoment = 0;
    for (int i = 0; i < persons; ++i) {
        weight += state.stationweight[i];
        xMoment += static_cast<double>(state.stationx[i]) * state.stationweight[i];
        yMoment += static_cast<double>(state.stationy[i]) * state.stationweight[i];
        zMoment += static_cast<double>(state.stationz[i]) * state.stationweight[i];
    }
    if (weight == 0)
        block.push_back(stationLine(0, 0, 0, 0, 0, "All Personel (Crew + Passengers)"));
    else
        block.push_back(stationLine(0, weight, xMoment / weight, yMoment / weight, zMoment / weight,
                                    "All Personel (Crew + Passengers)"));
    for (int i = persons; i < inTable(state.nstations + state.ncargo); ++i)
        block.push_back(stationLine(state, i - persons + 1, i));
}

} // namespace

std::string classText(int seats1, int seats2, int seats3)
{
    const int all = seats1 + seats2 + seats3;
    if (all == 0)
        return "Crago Configuration";
    std::string classes;
    if (seats1 == all || seats2 == all || seats3 == all)
        classes = " one class ";
    else if (seats1 + seats2 == all || seats3 + seats2 == all || seats3 + seats1 == all)
        classes = " two class ";
    else
        classes = " three class ";
    return classes + format0(all) + " passangers.";
}

std::vector<std::string> weightAndBalanceBlock(const LoadState& state, const std::string& type,
                                               const Date& today)
{
    const double total = static_cast<double>(state.emptyweight) + state.loadweight + state.fuelallowance;
    // Moved rather than copied out of a list: a save makes this block every time.
    std::array<std::string, 16> head = {
        "// Weight and Balance edited by Quillet 2.0 on " + formatDate(today),
        "// " + type + " configuration" + classText(state.seats1, state.seats2, state.seats3),
        "// MaxTakeoff Weight = " + format0(state.maxtakeoff) + "lb",
        "// Max Landing Weight = " + format0(state.maxlanding) + "lb",
        "// Max Fuel Capacity = " + format0(state.maxfuel) + "lb ",
        "",
        "//         Empty Weight = " + format0(state.emptyweight) + " lb",
        "// Total Payload Weight = " + format0(state.loadweight) + " lb",
        "//  Allowable Fuel load = " + format0(state.fuelallowance) + " lb ",
        "//                     -------------------",
        "//         Total weight = " + format0(total) + " lb ",
        "//                     -------------------",
        "",
        "Empty_weight = " + format0(state.emptyweight) + " // Weight in pounds ",
        "empty_weight_cg_position=0.0, 0, 0",
        " ",
    };
    std::vector<std::string> block(std::make_move_iterator(head.begin()),
                                   std::make_move_iterator(head.end()));
    appendStations(state, block);
    block.push_back(" ");
    return block;
}

} // namespace quillet

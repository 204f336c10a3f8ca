#include "LoadSheet.h"

#include "platform/Format.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace quillet {

namespace {

std::string kilograms(double pounds)
{
    return format0(pounds * kKilogramsPerPound) + " kg";
}

LoadSheetRow plain(std::string label, double weight, std::string limit = {})
{
    return {std::move(label), {}, poundsAndKilograms(weight), std::move(limit), {}, false};
}

// A total held against a limit: the margin left, or by how much the limit is passed.
LoadSheetRow limited(std::string label, double weight, double limit, bool exceeded)
{
    LoadSheetRow row = plain(std::move(label), weight, poundsAndKilograms(limit));
    row.exceeded = exceeded;
    row.margin = exceeded ? "EXCEEDED by " + poundsAndKilograms(weight - limit)
                          : "margin " + poundsAndKilograms(std::max(0.0, limit - weight));
    return row;
}

// As on the form, a weight exactly at its limit passes.
LoadSheetRow limited(std::string label, double weight, double limit)
{
    return limited(std::move(label), weight, limit, weight > limit);
}

std::string isoDate(const Date& date)
{
    char text[16];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", date.year, date.month, date.day);
    return text;
}

} // namespace

std::string poundsAndKilograms(double pounds)
{
    return format0(pounds) + " lb (" + kilograms(pounds) + ")";
}

std::string programVersion()
{
    return std::string("Quillet ") + QUILLET_VERSION;
}

LoadSheet makeLoadSheet(const LoadState& state, const StationGroups& groups, std::string_view type,
                        const Date& today)
{
    LoadSheet sheet;
    sheet.type = std::string(type);
    if (const std::string* folder = state.folderOf(sheet.type))
        sheet.folder = *folder;
    sheet.date = formatDate(today);
    sheet.program = programVersion();
    sheet.fileName = sheet.type + " " + isoDate(today) + ".pdf";

    for (const StationGroup& group : groups) {
        int loaded = 0;
        double weight = 0;
        bool overStation = false;
        for (int i : group.stations) {
            if (i < 0 || i >= kStationCapacity)
                continue;
            const float w = state.stationweight[static_cast<std::size_t>(i)];
            loaded += w > 0 ? 1 : 0;
            weight += w;
            overStation =
                overStation || (group.stationLimits && w > state.stationmax[static_cast<std::size_t>(i)]);
        }
        LoadSheetRow row =
            group.limit > 0 ? limited(group.name, weight, group.limit) : plain(group.name, weight);
        row.count = std::to_string(loaded) + " / " + std::to_string(group.stations.size());
        if (overStation && !row.exceeded) {
            row.exceeded = true;
            row.margin = "station limit EXCEEDED";
        }
        sheet.groups.push_back(std::move(row));
    }

    sheet.basicOperatingWeight = state.emptyweight;
    sheet.payload = state.loadweight;
    sheet.zeroFuelWeight = state.emptyweight + state.loadweight; // in single precision, as the form checks it
    sheet.allowableFuel = state.fuelallowance;
    // Summed in single precision as the form's total weight is, so that both show the same pounds.
    const bool fuelAllowed = state.fuelallowance >= 0;
    sheet.takeOffWeight = fuelAllowed ? state.emptyweight + state.loadweight + state.fuelallowance
                                      : state.emptyweight + state.loadweight;

    sheet.totals.push_back(plain("Basic operating weight", sheet.basicOperatingWeight));
    sheet.totals.push_back(plain("Payload", sheet.payload));
    sheet.totals.push_back(limited("Zero-fuel weight", sheet.zeroFuelWeight, state.maxzerofuel));
    sheet.totals.push_back(plain("Allowable fuel", sheet.allowableFuel, poundsAndKilograms(state.maxfuel)));
    // The allowance fills up to the take-off limit at most, so only a load that leaves no fuel at all
    // passes it; comparing the sum would flag rounding noise.
    sheet.totals.push_back(limited("Take-off weight", sheet.takeOffWeight, state.maxtakeoff, !fuelAllowed));
    // Whatever fuel is burnt, the aircraft lands no lighter than its zero-fuel weight.
    LoadSheetRow landing = limited("Maximum landing weight", sheet.zeroFuelWeight, state.maxlanding);
    landing.weight.clear();
    sheet.totals.push_back(std::move(landing));

    sheet.cg = centreOfGravity(state);
    sheet.inBalance = sheet.cg.inBalance;
    sheet.balanceLines = {"Along: " + alongText(sheet.cg), "Across: " + acrossText(sheet.cg),
                          sheet.inBalance ? "in balance" : "out of balance"};
    return sheet;
}

} // namespace quillet

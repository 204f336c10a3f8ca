#pragma once

#include "Balance.h"
#include "LoadState.h"
#include "StationGroups.h"
#include "Summary.h"
#include "platform/Date.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillet {

inline constexpr double kKilogramsPerPound = 0.45359237;

// A weight in pounds with its whole kilograms beside it: "12345 lb (5600 kg)".
std::string poundsAndKilograms(double pounds);

// One line of the load sheet's tables. Empty texts leave their column blank.
struct LoadSheetRow {
    std::string label;
    std::string count;  // loaded stations against the group's stations: "12 / 30"
    std::string weight; // pounds and kilograms
    std::string limit;  // the limit it is held against, pounds and kilograms
    std::string margin; // what is left below the limit, or "EXCEEDED by ..."
    bool exceeded = false;
};

// Everything a printed load sheet shows, as plain texts and figures; the window only lays it out.
struct LoadSheet {
    std::string type;
    std::string folder;
    std::string date;
    std::string program; // "Quillet" and its version
    std::vector<LoadSheetRow> groups;
    std::vector<LoadSheetRow> totals;
    std::vector<std::string> balanceLines;
    bool inBalance = true;
    // What a saved copy is called: the type string and the date, "B767-300ER 2026-11-23.pdf".
    std::string fileName;

    // The figures behind the texts.
    double basicOperatingWeight = 0;
    double payload = 0;
    double zeroFuelWeight = 0;
    double allowableFuel = 0;
    double takeOffWeight = 0;
    CentreOfGravity cg;
};

// The load sheet of the load in the state, for the type's station groups. An allowance below zero is
// shown as it is; the take-off weight then counts no fuel, so that the overload shows as exceeded.
LoadSheet makeLoadSheet(const LoadState& state, const StationGroups& groups, std::string_view type,
                        const Date& today);

// The program's name and version as the sheet prints it.
std::string programVersion();

} // namespace quillet

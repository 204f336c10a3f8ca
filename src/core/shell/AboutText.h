#pragma once

namespace quillet {

// The fixed texts of the "About" windows.
inline constexpr const char* kVersionCaption = "About Quillet";
inline constexpr const char* kVersionText =
    "Quillet Manager 2.0\n"
    "Load planner for the airliners and commuter aircraft of Flight Simulator 2000.\n"
    "Weights in pounds, positions in feet.";

inline constexpr const char* kTermsCaption = "Quillet - Terms of use";
inline constexpr const char* kTermsText =
    "Quillet is free to use and to pass on, unchanged and without charge.\n"
    "It rewrites the [WEIGHT_AND_BALANCE] section of your aircraft.cfg files and keeps\n"
    "a copy of each original as aircraft.cfg.bak beside it.\n"
    "It is for simulation only: never use it to plan the load of a real aircraft.\n"
    "It comes without any warranty.";

} // namespace quillet

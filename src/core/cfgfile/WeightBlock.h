#pragma once

#include "load/LoadState.h"
#include "platform/Date.h"

#include <string>
#include <vector>

namespace quillet {

// Persons beyond this many are written to aircraft.cfg as one station at their centre of gravity.
inline constexpr int kMaxSeparatePersons = 55;

// What follows " configuration" on the block's second line: the cabin classes and seats, or the
// freighter text.
std::string classText(int seats1, int seats2, int seats3);

// The lines that follow the weight and balance header in aircraft.cfg, without line ends.
std::vector<std::string> weightAndBalanceBlock(const LoadState& state, const std::string& type,
                                               const Date& today);

} // namespace quillet

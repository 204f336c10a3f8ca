#pragma once

#include "load/LoadHistory.h"
#include "load/LoadState.h"
#include "platform/Result.h"

#include <string>
#include <string_view>

namespace quillet {

// A station file as read: the counts and limits of its first two lines, and the label, position and
// weight of every station it lists (the load's total is their sum). Fields may be split over lines,
// line ends be CR LF, LF or CR. The whole file must be good: the error says what is wrong, and on
// which line ("line 4: ...").
Result<LoadSnapshot> readStationFile(std::string_view text);

// The station file of the type that is set up, lines ended by CR LF.
std::string stationFileText(const LoadState& state);

} // namespace quillet

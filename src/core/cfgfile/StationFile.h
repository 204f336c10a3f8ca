#pragma once

#include "load/LoadState.h"
#include "platform/Result.h"

#include <string>
#include <string_view>
#include <vector>

namespace quillet {

// A station file as read: the counts and limits of its first two lines, and the label, position
// and weight of every station it lists.
struct StationTable {
    struct Row {
        std::string name;
        float x = 0;
        float y = 0;
        float z = 0;
        float weight = 0;
    };
    StationHeader header;
    std::vector<Row> rows;
};

// Reads a station file. Fields may be split over lines, line ends be CR LF, LF or CR. The whole file
// must be good: the error says what is wrong, and on which line ("line 4: ...").
Result<StationTable> readStationFile(std::string_view text);
// Puts the table's counts, limits and stations into the state; stations it does not list keep theirs.
void takeStationTable(StationTable&& table, LoadState& state);

// The state with a station file taken in: the counts and limits of its first two lines, and the
// label, position and weight of every station it lists. Fields may be split over lines, line ends be
// CR LF, LF or CR. The whole file must be good, or nothing of it is taken: the error says what is
// wrong, and on which line ("line 4: ...").
Result<LoadState> withStationFile(std::string_view text, LoadState state);

// The station file of the type that is set up, lines ended by CR LF.
std::string stationFileText(const LoadState& state);

} // namespace quillet

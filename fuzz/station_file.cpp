// A station file edited by hand: whatever its bytes, reading it never crashes, and a file it takes
// in is written back as a file that reads again to the same bytes, so a save never loses a load.

#include "FuzzCheck.h"
#include "cfgfile/StationFile.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    auto read = quillet::readStationFile(bytes);
    if (!read)
        return 0;
    // One load state serves every input; what a file lists is all its text is made from.
    static quillet::LoadState state;
    read.value().restoreInto(state);
    const std::string written = quillet::stationFileText(state);
    auto again = quillet::readStationFile(written);
    QUILLET_FUZZ_CHECK(again);
    again.value().restoreInto(state);
    QUILLET_FUZZ_CHECK(quillet::stationFileText(state) == written);
    return 0;
}

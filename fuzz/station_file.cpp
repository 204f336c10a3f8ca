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
    auto read = quillet::withStationFile(bytes, quillet::LoadState{});
    if (!read)
        return 0;
    const std::string written = quillet::stationFileText(read.value());
    auto again = quillet::withStationFile(written, quillet::LoadState{});
    QUILLET_FUZZ_CHECK(again);
    QUILLET_FUZZ_CHECK(quillet::stationFileText(again.value()) == written);
    return 0;
}

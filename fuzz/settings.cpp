// quillet.ini as the user may leave it: whatever its bytes, reading it never crashes and never takes
// more entries than the menu holds.

#include "shell/Settings.h"

#include "FuzzCheck.h"
#include "load/LoadState.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const quillet::Settings settings = quillet::parseSettings(bytes, quillet::kMenuCapacity);
    QUILLET_FUZZ_CHECK(settings.entries.size() <= static_cast<std::size_t>(quillet::kMenuCapacity));
    // What the configuration dialog would write back from it.
    static_cast<void>(quillet::formatSettings(settings.simfolder, settings.entries));
    return 0;
}

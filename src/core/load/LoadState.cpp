#include "LoadState.h"

#include <algorithm>

namespace quillet {

float LoadState::sumOfWeights() const
{
    float sum = 0;
    const int used = std::clamp(stationsInUse(), 0, kStationCapacity);
    for (int i = 0; i < used; ++i)
        sum += stationweight[i];
    return sum;
}

const std::string* LoadState::folderOf(const std::string& type) const
{
    const std::string* found = nullptr;
    const int entries = std::clamp(nmenu, 0, kMenuCapacity);
    for (int i = 0; i < entries; ++i) {
        if (menutype[i] == type)
            found = &menufolder[i];
    }
    return found;
}

} // namespace quillet

#include "StationInput.h"

#include "platform/Format.h"

#include <cmath>
#include <limits>

namespace quillet {

float typedWeight(const std::optional<std::string>& answer)
{
    const double value = val(answer.value_or(std::string()));
    if (!(std::fabs(value) <= std::numeric_limits<float>::max()))
        return 0;
    return static_cast<float>(value);
}

} // namespace quillet

#pragma once

#include <optional>
#include <string>

namespace quillet {

// The weight typed into a station's input box: its leading number, taken as it is, negative numbers
// too. A cancelled box, a text without a leading number, and a number a single-precision weight
// cannot hold all count as 0.
float typedWeight(const std::optional<std::string>& answer);

} // namespace quillet

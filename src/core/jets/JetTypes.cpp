#include "JetType.h"
#include "data737.h"

#include <algorithm>
#include <array>

namespace quillet {

namespace {

// In the order the jet form tries the type strings; origins in feet.
const std::array kJetTypes{
    JetType{"B737-300",
            "data737",
            data737::setUpB737_300,
            {68, 8, 21, 21},
            data737::mainDeck,
            data737::seats,
            data737::lowerDeck,
            2},
    JetType{"B737-200ADV",
            "data737",
            data737::setUpB737_200ADV,
            {68, 8, 21, 21},
            data737::mainDeck,
            data737::seats,
            data737::lowerDeck,
            2},
};

} // namespace

std::span<const JetType> jetTypes()
{
    return kJetTypes;
}

const JetType* findJetType(std::string_view type)
{
    const auto found = std::find_if(kJetTypes.begin(), kJetTypes.end(),
                                    [type](const JetType& known) { return known.type == type; });
    return found == kJetTypes.end() ? nullptr : &*found;
}

} // namespace quillet

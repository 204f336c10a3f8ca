#include "JetType.h"
#include "data727.h"
#include "data737.h"
#include "data757.h"

#include <algorithm>
#include <array>

namespace quillet {

namespace {

// In the order the jet form tries the type strings; origins in feet.
const std::array kJetTypes{
    JetType{"B757-200",
            "data757",
            data757::setUpB757_200,
            {85, 10, 24, 27},
            data757::mainDeck,
            data757::seats,
            data757::lowerDeck,
            std::nullopt},
    JetType{"B757-200F",
            "data757",
            data757::setUpB757_200F,
            {85, 10, 24, 27},
            data757::mainDeck,
            data757::containers,
            data757::lowerDeck,
            std::nullopt},
    JetType{"B737-300",
            "data737",
            data737::setUpB737_300,
            {68, 8, 21, 21},
            data737::mainDeck,
            data737::seats,
            data737::lowerDeck,
            2},
    JetType{"B727-212ADV",
            "data727",
            data727::setUpB727_212ADV,
            {76.5, 8, 21, 21},
            data727::mainDeck,
            data727::seats,
            data727::lowerDeck,
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

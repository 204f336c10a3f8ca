#include "DataDC8.h"
#include "DataDC9.h"
#include "JetDecks.h"
#include "JetType.h"
#include "MD90.h"
#include "data737.h"
#include "data767.h"

#include <algorithm>
#include <array>

namespace quillet {

namespace {

// In the order the jet form tries the type strings; origins in feet.
const std::array kJetTypes{
    JetType{"DC-9-30F",
            "DataDC9",
            DataDC9::setUpDC9_30F,
            {76.5, 9, 23, 23},
            DataDC9::mainDeck,
            jetDecks::freighterSeats,
            DataDC9::lowerDeck,
            std::nullopt},
    JetType{"DC-8-71F",
            "DataDC8",
            DataDC8::setUpDC8_71F,
            {102, 11, 28, 28},
            DataDC8::mainDeck,
            jetDecks::freighterSeats,
            DataDC8::lowerDeck,
            std::nullopt,
            true},
    JetType{"B737-300",
            "data737",
            data737::setUpB737_300,
            {68, 8, 21, 21},
            data737::mainDeck,
            data737::seats,
            data737::lowerDeck,
            2},
    JetType{"B767-300ER",
            "data767",
            data767::setUpB767_300ER,
            {89.25, 10, 29, 29},
            data767::mainDeck,
            data767::seats,
            data767::lowerDeck,
            std::nullopt},
    JetType{"MD-90-30",
            "MD90",
            MD90::setUpMD90_30,
            {93.5, 9, 26, 26},
            MD90::mainDeck,
            MD90::seats,
            MD90::lowerDeck,
            3},
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

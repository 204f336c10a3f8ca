#include "DataDC8.h"
#include "DataDC9.h"
#include "JetDecks.h"
#include "JetType.h"
#include "MD90.h"
#include "data727.h"
#include "data737.h"
#include "data757.h"
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
    JetType{"B767-300ER",
            "data767",
            data767::setUpB767_300ER,
            {89.25, 10, 29, 29},
            data767::mainDeck,
            data767::seats,
            data767::lowerDeck,
            std::nullopt},
    JetType{"B737-200ADV",
            "data737",
            data737::setUpB737_200ADV,
            {68, 8, 21, 21},
            data737::mainDeck,
            data737::seats,
            data737::lowerDeck,
            2},
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

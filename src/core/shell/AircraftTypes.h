#pragma once

#include <array>
#include <string_view>

namespace quillet {

// A supported aircraft type: the type string of the aircraft list, the load form that loads it and
// its picture in the program's folder.
struct AircraftType {
    std::string_view type;
    std::string_view form;
    std::string_view picture;
};

inline constexpr std::array<AircraftType, 14> kAircraftTypes{{
    {"Beech 1900D", "Beech", "beech.gif"},
    {"Empraer EMB_120", "Emb120", "emb120.gif"},
    {"DHC-8-300", "DHC8", "dhc8.gif"},
    {"CRJ-200ER", "CRJ200", "crj200.gif"},
    {"DC-10-30F", "DC10F", "DC-10-30F.gif"},
    {"B727-212ADV", "Boeing", "B727-212ADV.gif"},
    {"B737-200ADV", "Boeing", "B737-200ADV.gif"},
    {"B737-300", "Boeing", "B737-300.gif"},
    {"B757-200", "Boeing", "B757-200.gif"},
    {"B757-200F", "Boeing", "B757-200F.gif"},
    {"B767-300ER", "Boeing", "B767-300ER.gif"},
    {"DC-8-71F", "Boeing", "DC-8-71F.gif"},
    {"DC-9-30F", "Boeing", "DC-9-30F.gif"},
    {"MD-90-30", "Boeing", "MD-90-30.gif"},
}};

// The type with exactly this type string, letter case included; nullptr for any other text.
inline const AircraftType* findAircraftType(std::string_view type)
{
    for (const AircraftType& known : kAircraftTypes) {
        if (known.type == type)
            return &known;
    }
    return nullptr;
}

} // namespace quillet

#pragma once

#include "shell/FormLayout.h"

namespace quillet::dc10f {

// Where the DC-10-30F load form places its controls, in twips inside its client area of 9555 × 4425.
inline constexpr int kClientWidth = 9555;
inline constexpr int kClientHeight = 4425;
inline constexpr TwipsRect kPicture1{0, 0, 9500, 2100};       // the decks; takes the mouse
inline constexpr TwipsRect kPicture2{4440, 2640, 2310, 1635}; // the aircraft's picture

inline constexpr SummaryLayout kSummary{
    .Picture4 = {7320, 2880, 2295, 375},
    .Label2 = {7320, 3225, 2295, 255},
    .Picture3 = {7620, 3480, 1695, 375},
    .Label3 = {7320, 3840, 2295, 255},
    .Label1 = {240, 2400, 3855, 375},
    .lblbow = {360, 2760, 3735, 255},
    .lblpax = {360, 3000, 3735, 255},
    .lblmf = {360, 3240, 3735, 255},
    .lbltot = {360, 3480, 3735, 255},
    .warning = {360, 3840, 3735, 255},
    // The right-hand labels end at the client area's edge.
    .lblpass = {7080, 2160, 2055, 255},
    .lblmaxtow = {7080, 2400, 2295, 255},
    .lblmaxfuel = {7080, 2640, 2475, 255},
    .Line1 = {4080, 3465, 240, 3465},
};

inline constexpr DeckLayout kDeck{kClientWidth, kClientHeight, kPicture1, kPicture2, kSummary};

inline constexpr MenuItem kMnufile{"mnufile", "&File"};
inline constexpr MenuItem kMnuload{"mnuload", "&Re-load Configuration"};
inline constexpr MenuItem kMnusave{"mnusave", "&Save Configuration"};
inline constexpr MenuItem kMnuauto{"mnuauto", "&Auto Load"};
inline constexpr MenuItem kMnulight{"mnulight", "&Light Load"};
inline constexpr MenuItem kMnumed{"mnumed", "&Medium Load"};
inline constexpr MenuItem kMnuheav{"mnuheav", "&Heavy Load"};

} // namespace quillet::dc10f

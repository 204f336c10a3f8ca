#pragma once

#include "shell/FormLayout.h"

namespace quillet::boeing {

// Where the jet load form places its controls, in twips inside its client area of 9810 × 4875.
inline constexpr int kClientWidth = 9810;
inline constexpr int kClientHeight = 4875;
inline constexpr TwipsRect kPicture1{120, 0, 9500, 2100};     // the decks; takes the mouse
inline constexpr TwipsRect kPicture2{4320, 2640, 2310, 1605}; // the aircraft's picture

inline constexpr SummaryLayout kSummary{
    .Picture4 = {7200, 2880, 2295, 375},
    .Label2 = {7200, 3225, 2295, 255},
    .Picture3 = {7500, 3480, 1695, 375},
    .Label3 = {7200, 3840, 2295, 255},
    .Label1 = {120, 2400, 3855, 375},
    .lblbow = {240, 2760, 3735, 255},
    .lblpax = {240, 3000, 3735, 255},
    .lblmf = {240, 3240, 3735, 255},
    .lbltot = {240, 3480, 3735, 255},
    .warning = {240, 3840, 3735, 255},
    .lblpass = {6960, 2160, 2055, 255},
    .lblmaxtow = {6960, 2400, 2295, 255},
    .lblmaxfuel = {6960, 2640, 2535, 255},
    .Line1 = {3960, 3465, 120, 3465},
};

inline constexpr DeckLayout kDeck{kClientWidth, kClientHeight, kPicture1, kPicture2, kSummary};

inline constexpr MenuItem kMnufile{"mnufile", "&File"};
inline constexpr MenuItem kMnuload{"mnuload", "&Re-load Configuration"};
inline constexpr MenuItem kMnusave{"mnusave", "&Save configuration"};
inline constexpr MenuItem kMnuauto{"mnuauto", "&Auto Load"};
inline constexpr MenuItem kMnuempty{"mnuempty", "&Empty Aircraft"};
inline constexpr MenuItem kMnuline{"mnuline", "-"};
inline constexpr MenuItem kMnulight{"mnulight", "&Light Load"};
inline constexpr MenuItem kMnumed{"mnumed", "&Medium Load"};
inline constexpr MenuItem kMnuheav{"mnuheav", "&Heavy Load"};

} // namespace quillet::boeing

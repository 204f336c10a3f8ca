#pragma once

#include <string_view>

namespace quillet {

// A rectangle in twips inside a form or picture box, y downwards.
struct TwipsRect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    int right() const { return left + width; }
    int bottom() const { return top + height; }
    double centreX() const { return left + width / 2.0; }
    double centreY() const { return top + height / 2.0; }
};

// A straight line on a form, in twips.
struct TwipsLine {
    int x1 = 0;
    int y1 = 0;
    int x2 = 0;
    int y2 = 0;
};

// A menu or menu item: its control name and its caption.
struct MenuItem {
    std::string_view name;
    std::string_view caption;
};

// Where a load form places the controls every load form has: the weight summary, its heading and
// separator, and the two balance pictures with their captions.
struct SummaryLayout {
    TwipsRect Picture4;
    TwipsRect Label2;
    TwipsRect Picture3;
    TwipsRect Label3;
    TwipsRect Label1;
    TwipsRect lblbow;
    TwipsRect lblpax;
    TwipsRect lblmf;
    TwipsRect lbltot;
    TwipsRect warning;
    TwipsRect lblpass;
    TwipsRect lblmaxtow;
    TwipsRect lblmaxfuel;
    TwipsLine Line1;
};

// Where a deck form places its controls: its client area, the deck picture that takes the mouse,
// the aircraft's picture and the weight summary.
struct DeckLayout {
    int clientWidth = 0;
    int clientHeight = 0;
    TwipsRect Picture1;
    TwipsRect Picture2;
    SummaryLayout summary;
};

// Fixed texts of those controls.
inline constexpr std::string_view kLabel1Text = "Demonstrated configuration"; // Arial 9.75 pt bold
inline constexpr std::string_view kLabel1Font = "Arial";
inline constexpr double kLabel1Points = 9.75;
inline constexpr std::string_view kLabel2Text = "Longitudinal Balance"; // centred
inline constexpr std::string_view kLabel3Text = "Lateral Balance";      // centred
// lblbow, lblpax, lblmf and lbltot are right-aligned; the other labels are left-aligned.

} // namespace quillet

#pragma once

#include "Balance.h"
#include "LoadState.h"
#include "platform/Canvas.h"
#include "platform/Controls.h"

#include <string>
#include <string_view>

namespace quillet {

// The labels every load form carries under its seat map or deck plan.
struct SummaryLabels {
    SummaryLabels() { warning.visible = false; }

    LabelState lblbow;
    LabelState lblpax;
    LabelState lblmf;
    LabelState lbltot;
    LabelState lblpass;
    LabelState lblmaxtow;
    LabelState lblmaxfuel;
    LabelState warning; // hidden while there is nothing to warn of
    // The tool tips of the two balance pictures (Picture4, Picture3), read by screen readers too.
    std::string balanceAlong;
    std::string balanceAcross;
};

// What the weight summary fills: a load form's summary labels, its two balance pictures and its own
// count of passengers (or containers).
class SummaryForm {
public:
    virtual SummaryLabels& summaryLabels() = 0;
    virtual Canvas& Picture4() = 0; // longitudinal balance
    virtual Canvas& Picture3() = 0; // lateral balance
    // Recounts npax (and ncontainers) from the station weights.
    virtual void nopass() = 0;

protected:
    ~SummaryForm() = default;
};

// Computes the allowable fuel, fills the form's labels, checks the zero-fuel weight and the balance,
// and draws both balance pictures. `type` is the type string of the aircraft list.
void summary(SummaryForm& form, LoadState& state, std::string_view type);

// The weight lines, shared by the load forms and the main window.
std::string bowText(const LoadState& state);
std::string paxText(const LoadState& state);
std::string fuelText(const LoadState& state);
std::string totalText(const LoadState& state);

// The centre of gravity on one axis in words, as the balance pictures' tool tips and the load sheet
// give it: "Centre of gravity 1.3 ft forward of the empty aircraft's (allowed: 2.1 ft either way),
// 62 % of the band".
std::string alongText(const CentreOfGravity& cg);
std::string acrossText(const CentreOfGravity& cg);

// Whether a type counts main-deck containers instead of passengers.
bool countsContainers(std::string_view type);

// Draws the two balance indicators: the station span, the reference point and the centre of
// gravity, blue within tol of the span and red outside it.
void balance(double maxx, double minx, double maxy, double miny, double cgx, double cgy, double tol,
             Canvas& picture4, Canvas& picture3);

} // namespace quillet

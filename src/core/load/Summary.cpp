#include "Summary.h"

#include "Balance.h"
#include "platform/Format.h"

#include <algorithm>
#include <cmath>

namespace quillet {

std::string bowText(const LoadState& state)
{
    return "Basic Operating weight = " + format0(state.emptyweight) + " lb.";
}

std::string paxText(const LoadState& state)
{
    return "PAX weight =  " + format0(state.loadweight) + " lb.";
}

std::string fuelText(const LoadState& state)
{
    return "Maximum Allowable Fuel weight =  " + format0(state.fuelallowance) + " lb.";
}

std::string totalText(const LoadState& state)
{
    return "Total weight = " + format0(state.emptyweight + state.loadweight + state.fuelallowance) + " lb.";
}

namespace {

std::string axisText(double cg, double band, double percent, std::string_view ahead, std::string_view behind)
{
    std::string where;
    // One decimal is what the text shows; a centre that rounds to 0.0 ft sits on the reference.
    if (std::fabs(cg) < 0.05)
        where = "at the empty aircraft's";
    else
        where = format1(std::fabs(cg)) + " ft " + std::string(cg > 0 ? ahead : behind) +
                " of the empty aircraft's";
    return "Centre of gravity " + where + " (allowed: " + format1(band) + " ft either way), " +
           format0(std::fabs(percent)) + " % of the band";
}

} // namespace

std::string alongText(const CentreOfGravity& cg)
{
    return axisText(cg.x, cg.bandX, cg.percentX, "forward", "aft");
}

std::string acrossText(const CentreOfGravity& cg)
{
    return axisText(cg.y, cg.bandY, cg.percentY, "right", "left");
}

bool countsContainers(std::string_view type)
{
    return type == "DC-9-30F" || type == "DC-10-30F" || type == "B757-200F";
}

void summary(SummaryForm& form, LoadState& state, std::string_view type)
{
    SummaryLabels& labels = form.summaryLabels();

    // Zero-fuel check; the test is strict, so a load exactly at the limit passes.
    if (state.emptyweight + state.loadweight > state.maxzerofuel) {
        labels.lblpax.foreColor = kRed;
        labels.warning.foreColor = kRed;
        labels.warning.visible = true;
        labels.warning.text = format0(state.maxzerofuel) + " lb Max. Zero Fuel Weight Exceeded";
    } else {
        labels.warning.visible = false;
        labels.warning.foreColor = kBlack;
        labels.lblpax.foreColor = kBlack;
    }

    // No lower bound: an overloaded aircraft gets a negative allowance, which the user should see.
    state.fuelallowance = std::min(state.maxtakeoff - state.loadweight - state.emptyweight, state.maxfuel);

    labels.lblbow.text = bowText(state);
    labels.lblpax.text = paxText(state);
    labels.lblmf.text = fuelText(state);
    labels.lbltot.text = totalText(state);

    form.nopass();
    if (countsContainers(type)) {
        labels.lblpass.text =
            "Containers  " + format0(state.ncontainers) + " / " + format0(state.ncargo - state.nlower);
    } else {
        labels.lblpass.text = "Passengers  " + format0(state.npax) + " / " + format0(state.maxpax);
    }
    labels.lblmaxtow.text = "Max takeoff weight  " + format0(state.maxtakeoff) + " lb.";
    labels.lblmaxfuel.text = "Fuel capacity  " + format0(state.maxfuel) + " lb.";

    const CentreOfGravity cg = centreOfGravity(state);
    if (!cg.inBalance) {
        labels.warning.text = "Warning aircraft out of balance";
        labels.warning.visible = true;
        labels.warning.foreColor = kRed;
    }

    labels.balanceAlong = alongText(cg);
    labels.balanceAcross = acrossText(cg);
    balance(cg.maxX, cg.minX, cg.maxY, cg.minY, cg.x, cg.y, kBalanceTolerance, form.Picture4(),
            form.Picture3());
}

namespace {

void drawIndicator(Canvas& picture, double max, double min, double cg, double tol)
{
    const double w = picture.scaleWidth();
    const double h = picture.scaleHeight();
    const double span = max - min;
    const double k = w / (1.1 * (span + 0.001));
    const auto px = [&](double v) { return w / 2 - k * (v - (max + min) / 2); };

    picture.line(px(max), h / 2, px(min), h / 2, kBlack);
    picture.line(px(0), h / 4, px(0), 3 * h / 4, kBlack);

    const Rgb colour = std::fabs(cg) <= tol * span ? kBlue : kRed;
    picture.setFillStyle(FillStyle::Solid);
    picture.setFillColor(colour);
    picture.circle(px(cg), h / 2, h / 10, colour);
    picture.setFillStyle(FillStyle::Solid);
}

} // namespace

void balance(double maxx, double minx, double maxy, double miny, double cgx, double cgy, double tol,
             Canvas& picture4, Canvas& picture3)
{
    picture4.clear();
    picture3.clear();
    drawIndicator(picture4, maxx, minx, cgx, tol);
    drawIndicator(picture3, maxy, miny, cgy, tol);
}

} // namespace quillet

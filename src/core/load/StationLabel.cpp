#include "StationLabel.h"

#include "platform/Format.h"

namespace quillet {

std::string stationLabelText(std::string_view name, float weight)
{
    return " " + std::string(name) + " " + format0(weight) + " lb.";
}

double drawStationLabel(Canvas& canvas, std::string_view text, double stationX, double stationY,
                        const LabelPlacement& placement)
{
    canvas.setFont(kStationLabelPoints, false);
    canvas.setFillColor(kWhite);
    canvas.setFillStyle(FillStyle::Solid);
    const double width = canvas.textWidth(text);
    const double height = canvas.textHeight(text);
    double left = stationX + placement.gap;
    const double right = left + width;
    if (right > placement.rightLimit || (placement.leftAtLimit && right == placement.rightLimit))
        left = stationX - placement.gap - width;
    const double top = stationY - height / 2;
    canvas.box(left, top, left + width, top + height, kBlack);
    canvas.setCurrentPoint(left, top);
    canvas.print(text);
    canvas.setFillStyle(FillStyle::Transparent);
    canvas.setFillColor(kGreen);
    return left;
}

void drawLoadedDot(Canvas& canvas, double x, double y, double radius)
{
    canvas.setFillStyle(FillStyle::Solid);
    canvas.setFillColor(kGreen);
    canvas.circle(x, y, radius, kBlack);
}

} // namespace quillet

#include "dataDC10.h"

namespace quillet::dataDC10 {

namespace {

// Nose to tail, the right side; the left side is its mirror image.
constexpr FeetPoint kFuselage[] = {
    {76.45, 0},     {76.45, 0.81},  {75.99, 1.82},  {75.02, 2.85},  {73.69, 3.68},  {72.36, 4.52},
    {70.68, 5.25},  {68.38, 5.98},  {66.08, 6.75},  {63.24, 7.45},  {61.12, 7.95},  {59.07, 8.33},
    {57.03, 8.61},  {55.27, 8.82},  {52.79, 9.08},  {49.87, 9.17},  {-36.56, 9.17}, {-47.76, 9.12},
    {-50.02, 9.00}, {-53.36, 8.78}, {-56.47, 8.48}, {-59.94, 7.86}, {-62.24, 7.28}, {-64.62, 6.53},
    {-66.35, 5.87}, {-67, 5.27},    {-67, 0},
};

constexpr FeetPoint kWindow1[] = {
    {70.5, 2.344}, {71.26, 1.259}, {71.6, 0.07}, {73.6, 0.07}, {73, 1.246}, {72, 2.545}, {70.5, 2.344},
};
constexpr FeetPoint kWindow2[] = {
    {69, 3.313}, {69.7, 2.97}, {70.2, 2.593}, {71.5, 2.852}, {70.4, 3.489}, {69.2, 4.02}, {69, 3.313},
};
constexpr FeetPoint kWindow3[] = {
    {68.6, 3.501}, {67.8, 3.889}, {66.8, 4.09}, {66.8, 4.692}, {68.2, 4.385}, {68.9, 4.09}, {68.6, 3.501},
};

constexpr FeetPoint kSeatRings[] = {{70, -2.2}, {70, 2.2}, {67, 0}, {63.5, -2.8}, {63.5, -5.2}};
constexpr double kSeatRingRadius = 0.8;

constexpr double kHeadingPoints = 10;

} // namespace

void mainDeckOutline(DeckPen& pen)
{
    pen.bothSides(kFuselage);
    pen.bothSides(kWindow1);
    pen.bothSides(kWindow2);
    pen.bothSides(kWindow3);
}

void flightDeck(DeckPen& pen)
{
    pen.canvas().setFillStyle(FillStyle::Transparent);
    for (const FeetPoint& seat : kSeatRings)
        pen.circle(seat, kSeatRingRadius);
    pen.line({65, 6.8}, {65, -6.8});
    pen.line({58, 9}, {58, -9});
}

void headings(Canvas& picture)
{
    const auto print = [&picture](const char* text, double left, double top, bool bold) {
        picture.setFont(kHeadingPoints, bold);
        picture.setCurrentPoint(left, top);
        picture.print(text);
    };
    print("Main Deck", 450, 100, true);
    print("Lower Deck", 450, 1450, true);
    print("Forward", 4550, 1450, false);
    print("Aft", 7950, 1450, false);
}

} // namespace quillet::dataDC10

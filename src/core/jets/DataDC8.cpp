#include "DataDC8.h"

#include "JetDecks.h"
#include "JetSetUp.h"

#include <string>

namespace quillet::DataDC8 {

namespace {

constexpr FeetPoint kOutline[] = {
    {80.84, 0},       {80.677, 0.608},  {80.401, 1.217},  {79.8, 1.825},     {78.369, 2.653},
    {76.533, 3.325},  {73.64, 4.143},   {70.926, 4.766},  {67.269, 5.372},   {65.14, 5.585},
    {62.686, 5.797},  {59.793, 5.994},  {57.989, 6.059},  {56.12, 6.125},    {0, 6.125},
    {-32.505, 6.125}, {-69.544, 6.125}, {-75.216, 5.847}, {-80.905, 5.257},  {-85.634, 4.667},
    {-90.087, 4.029}, {-93.826, 3.406}, {-99.66, 2.276},  {-102.423, 1.687}, {-107.136, 0.606},
    {-108.16, 0},
};

constexpr FeetPoint kWindscreen[] = {{73.331, 0}, {73.266, 0.868}, {72.242, 0.852}, {72.242, 0}};
constexpr FeetPoint kWindow1[] = {
    {72.24, 1.146}, {71.072, 2.342}, {71.901, 2.44}, {73.217, 1.163}, {72.24, 1.163}};
constexpr FeetPoint kWindow2[] = {
    {70.95, 2.65}, {69.756, 3.57}, {70.243, 4.078}, {71.511, 2.817}, {70.95, 2.65}};
constexpr FeetPoint kWindow3[] = {
    {69.4, 3.7}, {67.984, 4.209}, {68.325, 4.471}, {69.853, 4.225}, {69.4, 3.7}};
constexpr FeetPoint kWindow4[] = {
    {69.5, 2.9}, {69.561, 2.342}, {70.243, 2.014}, {70.438, 2.473}, {69.5, 2.9}};

// Seventeen 88-inch containers 90 in apart, then the last one turned, 125 in along the fuselage.
constexpr double kFirstContainer = 52.166667;
constexpr double kPitch = 90.0 / 12;
constexpr double kLength = 88.0 / 12;
constexpr double kWidth = 125.0 / 12;

} // namespace

void setUpDC8_71F(LoadState& state, int& deckscale)
{
    state.maxtakeoff = 328000;
    state.maxlanding = 258000;
    state.emptyweight = 152700;
    state.maxfuel = 156740;
    state.maxzerofuel = 234000;
    setCounts(state, {.maxpax = 3,
                      .cfgstations = 23,
                      .seats1 = 0,
                      .seats2 = 0,
                      .seats3 = 0,
                      .nstations = 3,
                      .ncargo = 20,
                      .nlower = 2,
                      .ncrew = 3});
    deckscale = 47;

    station(state, 0, "Pilot", 67, -1.6);
    station(state, 1, "Co-Pilot", 67, 1.6);
    station(state, 2, "Crew", 60, -1.8);

    double x = kFirstContainer;
    for (int i = 3; i <= 19; ++i) {
        x = kFirstContainer - (i - 3) * kPitch;
        cargo(state, i, "Container " + std::to_string(i - 2), x, 0, 8800);
        jetDecks::setContainerBox(state, i, kLength, kWidth);
    }
    cargo(state, 20, "Container 18", x - 45.0 / 12 - 126.0 / 24, 0, 5000);
    jetDecks::setContainerBox(state, 20, kWidth, kLength);

    cargo(state, 21, "Lower Deck Cargo Forward", 35.5, 0, 15000);
    cargo(state, 22, "Lower Deck Cargo Aft", -48.5, 0, 15000);
}

void mainDeck(DeckPen& pen, const LoadState&, std::string_view)
{
    pen.heading("Main Deck", {100, 7.5});
    pen.bothSides(kOutline);
    pen.bothSides(kWindscreen);
    pen.bothSides(kWindow1);
    pen.bothSides(kWindow2);
    pen.bothSides(kWindow3);
    pen.bothSides(kWindow4);
}

void lowerDeck(DeckPen& pen, const LoadState&, std::string_view)
{
    pen.heading("Lower Deck", {100, 5});
    pen.textStartingAt("Forward", 70);
    pen.textStartingAt("Aft", -15);
    pen.closed({{14, 4}, {57, 4}, {57, -4}, {14, -4}});
    pen.closed({{-21, -4}, {-76, -4}, {-76, 4}, {-21, 4}});
}

} // namespace quillet::DataDC8

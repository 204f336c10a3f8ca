#include "DataDC9.h"

#include "JetDecks.h"
#include "JetSetUp.h"

#include <string>

namespace quillet::DataDC9 {

namespace {

constexpr FeetPoint kOutline[] = {
    {53.795, 0},    {53.795, 0.417},  {53.687, 0.833}, {53.334, 1.25},  {52.901, 1.667},  {52.128, 2.083},
    {51.343, 2.5},  {49.988, 3.042},  {48.551, 3.542}, {46.614, 3.958}, {45.001, 4.25},   {44.039, 4.403},
    {42.63, 4.625}, {40.597, 4.875},  {37.047, 5},     {-23.143, 5},    {-28.761, 4.875}, {-34.379, 4.069},
    {-39.997, 3},   {-45.975, 1.389}, {-51.232, 0},
};

constexpr FeetPoint kWindow1[] = {
    {46.111, 1.931}, {46.98, 0.75}, {48.04, 0.75}, {46.74, 2.4}, {46.09, 1.958}};
constexpr FeetPoint kWindow2[] = {
    {46.09, 1.986}, {45.42, 1.236}, {44.64, 1.778}, {45.14, 2.694}, {46.08, 1.972}};
constexpr FeetPoint kWindow3[] = {
    {45.14, 2.708}, {43.76, 3.444}, {43.64, 3.944}, {45.54, 3.6}, {45.17, 2.764}};

// The two containers at the ends of the row are 54 in long, the eight between them 88 in long and
// 90 in apart; the row starts 26 in aft of the partition at 38.9 ft.
constexpr double kPartition = 38.9;
constexpr double kSmallLength = 54.0 / 12;
constexpr double kLength = 88.0 / 12;
constexpr double kSmallWidth = 88.0 / 12;
constexpr double kWidth = 108.0 / 12;

} // namespace

void setUpDC9_30F(LoadState& state, int& deckscale)
{
    state.maxtakeoff = 108000;
    state.maxlanding = 99000;
    state.emptyweight = 56430;
    state.maxfuel = 24949;
    state.maxzerofuel = 87000;
    setCounts(state, {.maxpax = 158,
                      .cfgstations = 15,
                      .seats1 = 0,
                      .seats2 = 0,
                      .seats3 = 0,
                      .nstations = 3,
                      .ncargo = 12,
                      .nlower = 2,
                      .ncrew = 3});
    deckscale = 65;

    station(state, 0, "Pilot", 44, -1.6);
    station(state, 1, "Co-Pilot", 44, 1.6);
    station(state, 2, "Crew", 41, -1.8);

    const double first = kPartition - 26.0 / 12;
    cargo(state, 3, "Container 1", first, 0, 2200);
    jetDecks::setContainerBox(state, 3, kSmallLength, kSmallWidth);
    double x = first;
    for (int i = 4; i <= 11; ++i) {
        x = first - 72.0 / 12 - (i - 4) * 90.0 / 12;
        cargo(state, i, "Container " + std::to_string(i - 2), x, 0, 4800);
        jetDecks::setContainerBox(state, i, kLength, kWidth);
    }
    cargo(state, 12, "Container 10", x - 72.0 / 12, 0, 2100);
    jetDecks::setContainerBox(state, 12, kSmallLength, kSmallWidth);

    cargo(state, 13, "Lower Deck Cargo Forward", 23, 0, 7300);
    cargo(state, 14, "Lower Deck Cargo Aft", -20.5, 0, 4300);
}

void mainDeck(DeckPen& pen, const LoadState&, std::string_view)
{
    pen.heading("Main Deck", {70, 7.5});
    pen.bothSides(kOutline);
    pen.bothSides(kWindow1);
    pen.bothSides(kWindow2);
    pen.bothSides(kWindow3);
    pen.bothSides({{45.54, 3.6}, {46.74, 2.4}});
    pen.bothSides({{48.04, 0.75}, {48.04, -0.5}});
    pen.bothSides({{46.98, 0.75}, {46.98, -0.5}});

    // Partitions and fittings across the fuselage.
    pen.polyline({{38.4, -4.9}, {39.4, -3.5}, {39.4, 3.5}, {38.4, 4.9}});
    pen.line({42.75, -4.5}, {42.75, 4.5});
    pen.line({-31, 1.2}, {-31, -1.2});
    pen.bothSides({{-31, -1.2},
                   {-30.75, -3},
                   {-30.25, -4},
                   {-29.5, -4.8},
                   {-29.7, -4.8},
                   {-30.45, -4},
                   {-30.95, -3},
                   {-31.2, -1.2},
                   {-31, -1.2}});
}

void lowerDeck(DeckPen& pen, const LoadState&, std::string_view)
{
    pen.heading("Lower Deck", {70, 5});
    pen.textStartingAt("Forward", 50);
    pen.textStartingAt("Aft", -32);
    pen.closed({{9, 4}, {37, 4}, {37, -4}, {9, -4}});
    pen.closed({{-13, -4}, {-28, -4}, {-28, 4}, {-13, 4}});
}

} // namespace quillet::DataDC9

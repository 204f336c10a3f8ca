#include "data757.h"

#include "JetDecks.h"
#include "JetSetUp.h"

#include <algorithm>
#include <string>

namespace quillet::data757 {

namespace {

constexpr FeetPoint kOutline[] = {
    {77.19, 0},     {77.19, 0.252},  {77.16, 0.755},   {76.965, 1.259}, {76.695, 1.762}, {76.215, 2.25},
    {75.36, 2.769}, {73.935, 3.272}, {71.73, 3.776},   {69.105, 4.279}, {66.195, 4.783}, {62.565, 5.286},
    {59.94, 5.538}, {55.605, 5.734}, {52.995, 5.812},  {50.895, 5.85},  {0, 5.85},       {-62.01, 5.85},
    {-63.93, 5.82}, {-65.55, 5.749}, {-66.975, 5.644}, {-68.175, 5.52}, {-68.175, 0},
};

constexpr FeetPoint kWindow1[] = {
    {69.5, 2.344}, {70.26, 1.259}, {70.6, 0.07}, {72.6, 0.07}, {72, 1.246}, {71, 2.545}, {69.5, 2.344},
};
constexpr FeetPoint kWindow2[] = {
    {68, 3.313}, {68.7, 2.97}, {69.2, 2.593}, {70.5, 2.852}, {69.4, 3.489}, {68.2, 4.02}, {68, 3.313},
};
constexpr FeetPoint kWindow3[] = {
    {67.6, 3.501}, {66.8, 3.889}, {65.8, 4.09}, {65.8, 4.692}, {67.2, 4.385}, {67.9, 4.09}, {67.6, 3.501},
};

// A main-deck container position: 88 by 125 inches.
constexpr double kContainerLength = 7.333;
constexpr double kContainerWidth = 10.417;
constexpr double kCrewRadius = 0.75;

void holds(LoadState& state, int first)
{
    cargo(state, first, "Lower Deck Cargo Forward", 40.0, 0.0, 10300);
    cargo(state, first + 1, "Lower Deck Cargo Aft", -32.0, 0.0, 16300);
}

} // namespace

void setUpB757_200(LoadState& state, int& deckscale)
{
    setLimits(state, {.maxtakeoff = 254900,
                      .maxlanding = 198000,
                      .emptyweight = 127500,
                      .maxfuel = 81200,
                      .maxzerofuel = 200000});
    // 26 first-class and 158 economy seats: two classes, counted the way the other narrow bodies
    // count theirs.
    setCounts(state, {.maxpax = 184,
                      .cfgstations = 3,
                      .seats1 = 0,
                      .seats2 = 26,
                      .seats3 = 158,
                      .nstations = 194,
                      .ncargo = 2,
                      .nlower = 2,
                      .ncrew = 10});
    deckscale = 60;

    // First class: row 1 has only A and C; from row 2 on, D and F sit 0.75 ft aft of A and C.
    seatRow(state, 0, 1, 54.2, "AC", {-4.2, -2.0});
    seatRow(state, 2, 2, 51.0, "AC", {-4.2, -2.0});
    seatRow(state, 4, 2, 50.25, "DF", {2.0, 4.2});
    for (int i = 6; i <= 22; i += 4) {
        const double x = 47.8 - (i - 6) / 4 * 3.2;
        const int row = (i - 6) / 4 + 3;
        seatRow(state, i, row, x, "AC", {-4.2, -2.0});
        seatRow(state, i + 2, row, x - 0.75, "DF", {2.0, 4.2});
    }
    // The first two economy seats are named row 7 too: a second 7D, and 7E.
    seatRow(state, 26, 7, 26.2, "DE", {3.0, 1.5});
    // Economy at a 36-inch pitch: rows 8 to 24, then, past the mid-cabin lavatories, rows 26 to 34;
    // there is no row 25.
    for (int i = 28; i <= 124; i += 6)
        seatRow(state, i, (i - 28) / 6 + 8, 23.2 - (i - 28) / 6 * 3.0, "ABCDEF",
                {-4.5, -3.0, -1.5, 1.5, 3.0, 4.5});
    for (int i = 130; i <= 178; i += 6)
        seatRow(state, i, (i - 130) / 6 + 26, -34.7 - (i - 130) / 6 * 3.0, "ABCDEF",
                {-4.5, -3.0, -1.5, 1.5, 3.0, 4.5});

    // The cabin crew come before the pilots.
    station(state, 184, "Crew", 59.2, -2.5);
    station(state, 185, "Crew", 59.2, -4.0);
    station(state, 186, "Crew", -61.6, -2.0);
    station(state, 187, "Crew", -61.6, -3.5);
    station(state, 188, "Crew", -31.0, 2.3);
    station(state, 189, "Crew", -31.0, -2.5);
    station(state, 190, "Crew", 28.0, -3.4);
    station(state, 191, "Crew", 28.0, -2.3);
    station(state, 192, "Pilot", 67.5, -2.0);
    station(state, 193, "Co-Pilot", 67.5, 2.0);
    holds(state, 194);
}

void setUpB757_200F(LoadState& state, int& deckscale)
{
    setLimits(state, {.maxtakeoff = 254980,
                      .maxlanding = 209990,
                      .emptyweight = 112000,
                      .maxfuel = 81200,
                      .maxzerofuel = 200000});
    setCounts(state, {.maxpax = 0,
                      .cfgstations = 19,
                      .seats1 = 0,
                      .seats2 = 0,
                      .seats3 = 0,
                      .nstations = 2,
                      .ncargo = 17,
                      .nlower = 2,
                      .ncrew = 2});
    deckscale = 60;

    station(state, 0, "Pilot", 68.0, -2.0);
    station(state, 1, "Co-Pilot", 68.0, 2.0);
    // Fifteen containers from the front of the main deck aft, 94 inches apart.
    for (int n = 1; n <= 15; ++n)
        cargo(state, n + 1, "Container " + std::to_string(n), 51.0 - (n - 1) * (94.0 / 12), 0.0, 8800);
    holds(state, 17);
}

void mainDeck(DeckPen& pen, const LoadState&, std::string_view)
{
    pen.heading("Main Deck", {82, 9});
    pen.bothSides(kOutline);
    pen.bothSides(kWindow1);
    pen.bothSides(kWindow2);
    pen.bothSides(kWindow3);
}

void seats(DeckPen& pen, const LoadState& state, std::string_view)
{
    jetDecks::personMarks(pen, state, {{26, 2.0}, {184, 1.5}}, 0.75);
    // Galleys, lavatories and closets, fore to aft.
    pen.polyline({{54, 5.4}, {54, 0.97}, {59, 0.97}, {59, 5.3}});
    pen.polyline({{29, 5.6}, {29, 1.7}, {32, 1.7}, {32, 6}});
    pen.polyline({{32, 5.6}, {32, 1.7}, {33, 1.7}, {33, 6}});
    pen.bothSides({{-29.715, -5.86}, {-29.715, -1.8}, {-26.73, -1.83}, {-26.73, -5.83}});
    pen.polyline({{29, -5.8}, {29, -1.8}, {32, -1.83}, {32, -5.83}});
    pen.polyline({{57.15, -5.661}, {57.15, -1.5}, {58.29, -1.5}, {58.29, -5.631}});
    pen.bothSides({{-60, -5.85}, {-60, -1.5}, {-60.5, -1.5}, {-60.5, -5.85}});
    pen.polyline({{62.7, -5.294}, {62.7, -1.447}, {65, -1.432}, {65, -4.803}});
    pen.polyline({{63.555, 5.3}, {63.555, 3.27}, {62.7, 3.27}, {62.7, 0.083}, {65, 0.083}, {65, 4.7}});
}

void containers(DeckPen& pen, const LoadState& state, std::string_view)
{
    const int first = std::clamp(state.nstations, 0, kStationCapacity);
    const int end = std::clamp(state.nstations + state.ncargo - state.nlower, first, kStationCapacity);
    for (int i = first; i < end; ++i)
        pen.centredBox({state.stationx[i], state.stationy[i]}, kContainerLength, kContainerWidth);
    for (int i = 0; i < first; ++i)
        pen.circle({state.stationx[i], state.stationy[i]}, kCrewRadius);
}

void lowerDeck(DeckPen& pen, const LoadState&, std::string_view)
{
    pen.heading("Lower Deck", {82, 7});
    pen.textStartingAt("Forward", 16);
    pen.textStartingAt("Aft", -58);
    pen.polyline({{18, 4}, {54, 4}, {62, 3}, {62, -3}, {54, -4}, {18, -4}, {18, 4}});
    pen.polyline({{-18, -4}, {-56, -4}, {-56, 4}, {-18, 4}, {-18, -4}});
}

} // namespace quillet::data757

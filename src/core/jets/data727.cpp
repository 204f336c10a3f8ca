#include "data727.h"

#include "JetDecks.h"
#include "JetSetUp.h"

namespace quillet::data727 {

namespace {

constexpr FeetPoint kOutline[] = {
    {60.075, 0},     {59.796, 0.527},  {59.463, 1.055}, {58.869, 1.582}, {57.735, 2.109}, {56.421, 2.636},
    {54.963, 3.164}, {52.92, 3.726},   {50.598, 4.243}, {48.105, 4.781}, {45.855, 5.173}, {43.605, 5.499},
    {40.455, 5.712}, {37.755, 5.8},    {35.955, 5.8},   {-40.275, 5.8},  {-42.345, 5.8},  {-44.865, 5.689},
    {-46.98, 5.466}, {-48.735, 5.185}, {-48.735, 0},
};

constexpr FeetPoint kWindow1[] = {
    {55, 0.176}, {53.172, 0.123}, {51.876, 2.004}, {53.055, 2.601}, {55, 0.141},
};
constexpr FeetPoint kWindow2[] = {
    {52.8, 2.795}, {51.678, 2.197}, {50.319, 2.759}, {50.445, 3.849}, {52.8, 2.795},
};
constexpr FeetPoint kWindow3[] = {
    {50, 2.9}, {48.429, 3.392}, {48.366, 4.341}, {50.121, 3.884}, {50, 2.9},
};

constexpr double kEconomyPitch = 2.736; // feet

void fittings(DeckPen& pen)
{
    // Cockpit bulkhead, forward galleys and closets, the class divider, the aft galleys and lavatories.
    pen.bothSides({{47.3, 4.87}, {47.3, 1}});
    pen.polyline({{43.5, -5.2}, {43.5, -1.5}, {40.5, -1.5}, {40.5, -5.8}});
    pen.polyline({{38.5, 5.8}, {38.5, 1.5}, {35.5, 1.5}, {35.5, 5.8}});
    pen.bothSides({{27.2, 5.8}, {27.2, 1}});
    pen.polyline({{43, 5.4}, {43, 1.5}, {47.3, 1.5}});
    pen.polyline({{-32, -5.8}, {-32, -1.5}, {-34.5, -1.5}, {-34.5, -5.8}});
    pen.polyline({{-37.5, -5.8}, {-37.5, -1.5}, {-40, -1.5}, {-40, -5.8}});
    pen.polyline({{-40, -5.8}, {-40, -2}, {-43, -2}, {-43, -5.8}});
    pen.line({-46, 5.6}, {-46, -5.6});
    pen.line({-43, -2}, {-45, -0.5});
    pen.polyline({{-43, 5.8}, {-43, 2}, {-45, 0.5}, {-45, -0.5}, {-46, -0.5}});
    pen.line({-45, 0.5}, {-46, 0.5});
}

} // namespace

void setUpB727_212ADV(LoadState& state, int& deckscale)
{
    setLimits(state, {.maxtakeoff = 209500,
                      .maxlanding = 161000,
                      .emptyweight = 100000,
                      .maxfuel = 57200,
                      .maxzerofuel = 144000});
    setCounts(state, {.maxpax = 147,
                      .cfgstations = 3,
                      .seats1 = 0,
                      .seats2 = 12,
                      .seats3 = 135,
                      .nstations = 153,
                      .ncargo = 2,
                      .nlower = 2,
                      .ncrew = 6});
    deckscale = 70;

    // First class: rows 1 and 2 on the left only (2C a little forward of 2A), then rows 3 and 4
    // with seat D outboard and F inboard.
    seatRow(state, 0, 1, 38.4, "AC", {-4.2, -2.0});
    seatRow(state, 2, 2, 35.2, "A", {-4.2});
    seatRow(state, 3, 2, 35.4, "C", {-2.0});
    seatRow(state, 4, 3, 32.0, "ACDF", {-4.2, -2.0, 4.2, 2.0});
    seatRow(state, 8, 4, 28.8, "ACDF", {-4.2, -2.0, 4.2, 2.0});
    // Economy in two runs: rows 5 to 13, then rows 14 to 25 from x = 0 aft.
    for (int i = 12; i <= 60; i += 6)
        seatRow(state, i, (i - 12) / 6 + 5, 24.8 - (i - 12) / 6 * kEconomyPitch, "ABCDEF",
                {-4.7, -3.2, -1.7, 1.7, 3.2, 4.7});
    for (int i = 66; i <= 132; i += 6)
        seatRow(state, i, (i - 66) / 6 + 14, (66 - i) / 6 * kEconomyPitch, "ABCDEF",
                {-4.7, -3.2, -1.7, 1.7, 3.2, 4.7});
    // The last three rows keep only the right-hand seats.
    seatRow(state, 138, 26, -32.8, "DEF", {1.7, 3.2, 4.7});
    seatRow(state, 141, 27, -39.26, "DEF", {1.7, 3.2, 4.7});
    seatRow(state, 144, 28, -42.0, "DEF", {1.7, 3.2, 4.7});

    station(state, 147, "Pilot", 50.0, -1.8);
    station(state, 148, "Co-Pilot", 50.0, 1.8);
    station(state, 149, "Crew", 42.2, 2.6);
    station(state, 150, "Crew", 46.5, -2.0);
    station(state, 151, "Crew", -35.0, 2.0);
    station(state, 152, "Crew", -35.0, 3.5);
    cargo(state, 153, "Lower Deck Cargo Forward", 26.0, 0.0, 2002);
    cargo(state, 154, "Lower Deck Cargo Aft", -18.0, 0.0, 5168);
}

void mainDeck(DeckPen& pen, const LoadState&, std::string_view)
{
    pen.heading("Main Deck", {75, 5});
    pen.bothSides(kOutline);
    pen.bothSides(kWindow1);
    pen.bothSides(kWindow2);
    pen.bothSides(kWindow3);
    fittings(pen);
}

void seats(DeckPen& pen, const LoadState& state, std::string_view)
{
    jetDecks::personMarks(pen, state, {{12, 1.8}, {147, 1.5}}, 0.75);
}

void lowerDeck(DeckPen& pen, const LoadState&, std::string_view)
{
    pen.heading("Lower Deck", {75, 5});
    pen.textStartingAt("Forward", 10);
    pen.textStartingAt("Aft", -37);
    pen.polyline({{11, 4}, {29, 4}, {31, 3}, {31, -3}, {29, -4}, {11, -4}, {11, 4}});
    pen.polyline({{-10, -4}, {-35, -4}, {-35, 4}, {-10, 4}, {-10, -4}});
}

} // namespace quillet::data727

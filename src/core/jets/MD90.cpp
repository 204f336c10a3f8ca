#include "MD90.h"

#include "JetDecks.h"
#include "JetSetUp.h"

namespace quillet::MD90 {

namespace {

constexpr int kFirstCabinSeats = 12;
constexpr int kSeats = 158;

constexpr FeetPoint kOutline[] = {
    {77.655, 0},    {77.655, 0.417},  {77.547, 0.833}, {77.194, 1.25},  {76.761, 1.667},  {75.988, 2.083},
    {75.203, 2.5},  {73.848, 3.042},  {72.411, 3.542}, {70.474, 3.958}, {68.861, 4.25},   {67.899, 4.403},
    {66.49, 4.625}, {64.457, 4.875},  {60.907, 5},     {-38.143, 5},    {-43.761, 4.875}, {-49.379, 4.069},
    {-54.997, 3},   {-60.975, 1.389}, {-66.232, 0},
};

constexpr FeetPoint kWindow1[] = {{69.971, 1.931}, {70.84, 0.75}, {71.9, 0.75}, {70.6, 2.4}, {69.95, 1.958}};
constexpr FeetPoint kWindow2[] = {{69.95, 1.986}, {69.28, 1.236}, {68.5, 1.778}, {69, 2.694}, {69.94, 1.972}};
constexpr FeetPoint kWindow3[] = {{69, 2.708}, {67.62, 3.444}, {67.5, 3.944}, {69.4, 3.6}, {69.03, 2.764}};

// The cabin fittings, front to back.
void fittings(DeckPen& pen)
{
    pen.line({66, 4.8}, {66, -4.8});
    pen.polyline({{66, -4.8}, {66, -1}, {65, -1}, {65, -5}});
    pen.polyline({{66, 4.8}, {66, 1.5}, {64.5, 1.5}, {64.5, 5}});
    pen.polyline({{61, 5.1}, {61, 1.5}, {58, 1.5}, {58, 5}});
    pen.polyline({{61.5, -5.1}, {61.5, -2}, {58.25, -2}, {58.25, -5.1}});
    pen.line({48, -5}, {48, -1});
    pen.line({48, 5}, {48, 1});
    pen.polyline({{-22, -5}, {-22, 0}, {-19, 0}, {-19, -5}});
    pen.polyline({{-29, -5}, {-29, -0.5}, {-25.5, -0.5}, {-25.5, -5}});
    pen.polyline({{-37, 4.8}, {-37, 1.8}, {-43, 1.8}, {-42.75, 3}, {-42.25, 4}, {-41.5, 4.8}});
    pen.polyline({{-38, -4.8}, {-38, -1.8}, {-43, -1.8}, {-42.75, -3}, {-42.25, -4}, {-41.5, -4.8}});
}

} // namespace

void setUpMD90_30(LoadState& state, int& deckscale)
{
    state.maxtakeoff = 156000;
    state.maxlanding = 142000;
    state.emptyweight = 88171;
    state.maxfuel = 39128;
    state.maxzerofuel = 130000;
    setCounts(state, {.maxpax = 158,
                      .cfgstations = 4,
                      .seats1 = 0,
                      .seats2 = 12,
                      .seats3 = 146,
                      .nstations = 164,
                      .ncargo = 3,
                      .nlower = 3,
                      .ncrew = 6});
    deckscale = 60;

    // First cabin, rows 1 to 3: D outboard, F inboard on the right.
    for (int i = 0; i <= 8; i += 4)
        seatRow(state, i, i / 4 + 1, 55.8 - 3.0 * i / 4, "ACDF", {-4.1, -2.0, 4.1, 2.0});
    // Rows 4 to 28 at a 31.2-inch pitch.
    for (int i = 12; i <= 132; i += 5)
        seatRow(state, i, (i - 12) / 5 + 4, 45 - 2.6 * (i - 12) / 5, "ABCDE", {-4.2, -2.5, -0.86, 2.5, 4.2});
    // Rows 29 to 31: D and E only; the left side holds fittings there.
    for (int i = 137; i <= 141; i += 2)
        seatRow(state, i, (i - 137) / 2 + 29, -21.4 - 2.7 * (i - 137) / 2, "DE", {2.5, 4.2});
    // Rows 32 to 34: D and E 1.8 ft forward of A, B and C.
    for (int i = 143; i <= 153; i += 5) {
        const int row = (i - 143) / 5 + 32;
        seatRow(state, i, row, -31.4 - 2.6 * (i - 143) / 5, "ABC", {-4.2, -2.5, -0.86});
        seatRow(state, i + 3, row, -29.6 - 2.6 * (i - 143) / 5, "DE", {2.5, 4.2});
    }

    station(state, 158, "Pilot", 67.8, -1.6);
    station(state, 159, "Co-Pilot", 67.8, 1.6);
    station(state, 160, "Crew", 64, -1.8);
    station(state, 161, "Crew", 64, -3.2);
    station(state, 162, "Crew", -40.5, -0.9);
    station(state, 163, "Crew", -40.5, 0.9);
    cargo(state, 164, "Lower Deck Cargo Forward", 46, 0, 2002);
    cargo(state, 165, "Lower Deck Cargo Centre", 20, 0, 5168);
    cargo(state, 166, "Lower Deck Cargo Aft", -26.5, 0, 5168);
}

void mainDeck(DeckPen& pen, const LoadState&, std::string_view)
{
    pen.heading("Main Deck", {92, 7.5});
    pen.bothSides(kOutline);
    pen.bothSides(kWindow1);
    pen.bothSides(kWindow2);
    pen.bothSides(kWindow3);
    pen.bothSides({{69.4, 3.6}, {70.6, 2.4}});
    pen.bothSides({{71.9, 0.75}, {71.9, -0.5}});
    pen.bothSides({{70.84, 0.75}, {70.84, -0.5}});
    fittings(pen);
}

void seats(DeckPen& pen, const LoadState& state, std::string_view)
{
    jetDecks::personMarks(pen, state, {{kFirstCabinSeats, 1.8}, {kSeats, 1.4}}, 0.7);
}

void lowerDeck(DeckPen& pen, const LoadState&, std::string_view)
{
    pen.heading("Lower Deck", {92, 5});
    pen.textStartingAt("Forward", 70);
    pen.textStartingAt("Centre", 5);
    pen.textStartingAt("Aft", -42);
    pen.closed({{-14, 4}, {-39, 4}, {-39, -4}, {-14, -4}});
    pen.closed({{7, -4}, {33.75, -4}, {33.75, 4}, {7, 4}});
    pen.closed({{33.75, -4}, {59, -4}, {59, 4}, {33.75, 4}});
}

} // namespace quillet::MD90

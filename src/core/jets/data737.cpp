#include "data737.h"

#include "JetSetUp.h"

namespace quillet::data737 {

namespace {

constexpr FeetPoint kOutline300[] = {
    {-42.183, 0},     {-42.126, 0.889}, {-42.183, 1.657}, {-42.012, 2.452}, {-41.831, 3.287},
    {-41.573, 3.960}, {-40.982, 4.701}, {-40.792, 5.294}, {-40.353, 5.738}, {-38.981, 5.900},
    {24.780, 5.900},  {27.163, 5.860},  {29.545, 5.795},  {31.928, 5.620},  {34.311, 5.307},
    {36.122, 4.997},  {37.723, 4.681},  {39.076, 4.377},  {40.592, 4.055},  {41.840, 3.787},
    {43.203, 3.421},  {44.595, 2.800},  {45.376, 2.350},  {46.510, 1.522},  {47.378, 0.956},
    {47.845, 0.296},  {48.035, 0},
};

constexpr FeetPoint kWindow1[] = {
    {40.950, 2.110}, {41.634, 1.133}, {41.940, 0.063}, {43.740, 0.063},
    {43.200, 1.121}, {42.300, 2.290}, {40.950, 2.110},
};
constexpr FeetPoint kWindow2[] = {
    {39.600, 2.982}, {40.230, 2.673}, {40.680, 2.334}, {41.850, 2.567},
    {40.860, 3.140}, {39.780, 3.618}, {39.600, 2.982},
};
constexpr FeetPoint kWindow3[] = {
    {39.240, 3.151}, {38.520, 3.500}, {37.620, 3.681}, {37.620, 4.223},
    {38.880, 3.947}, {39.510, 3.681}, {39.240, 3.151},
};

void fittings300(DeckPen& pen)
{
    // Aft lavatories, forward galleys, cockpit bulkhead.
    pen.bothSides({{-32.5, -1.2}, {-35.5, -1.2}, {-35.5, -5.9}, {-32.5, -5.9}, {-32.5, -1.2}});
    pen.bothSides({{27.5, -1.2}, {30.5, -1.2}, {30.5, -5.7}, {27.5, -5.86}, {27.5, -1.2}});
    pen.line({35.75, -5}, {35.75, 5});
    pen.polyline({{35.75, -1.1}, {34.75, -1.1}, {34.75, -5.2}});
    pen.polyline({{35.75, 1.1}, {34.75, 1.1}, {34.75, 5.2}});
}

} // namespace

void setUpB737_300(LoadState& state, int& deckscale)
{
    state.maxtakeoff = 136378.0f;
    state.maxlanding = 113759.8f;
    state.emptyweight = 69953.4f;
    state.maxfuel = 35508.0f;
    state.maxzerofuel = state.emptyweight + 33000.0f;
    setCounts(state, {.maxpax = 128,
                      .cfgstations = 3,
                      .seats1 = 0,
                      .seats2 = 8,
                      .seats3 = 120,
                      .nstations = 134,
                      .ncargo = 2,
                      .nlower = 2,
                      .ncrew = 6});
    deckscale = 70;

    // First class, rows 1 and 2.
    for (int i = 0; i <= 6; i += 4)
        seatRow(state, i, i / 4 + 1, 24.5 - 3.0 * i / 4, "ACDF", {-4.2, -2.0, 2.0, 4.2});
    // Economy, rows 3 to 22 at a 31-inch pitch.
    for (int i = 8; i <= 122; i += 6)
        seatRow(state, i, (i - 8) / 6 + 3, 18.083 - (i - 8) * (31.0 / 12) / 6, "ABCDEF",
                {-4.5, -3.0, -1.5, 1.5, 3.0, 4.5});

    station(state, 128, "Pilot", 39.0, -2.0);
    station(state, 129, "Co-Pilot", 39.0, 2.0);
    station(state, 130, "Crew", 31.5, 2.5);
    station(state, 131, "Crew", 31.5, -2.5);
    station(state, 132, "Crew", -36.5, 2.3);
    station(state, 133, "Crew", -36.5, -2.5);
    cargo(state, 134, "Lower Deck Cargo Forward", 17.5, 0.0, 2002);
    cargo(state, 135, "Lower Deck Cargo Aft", -23.25, 0.0, 5168);
}

void mainDeck(DeckPen& pen, const LoadState&, std::string_view)
{
    pen.heading("Main Deck", {60, 5});
    pen.bothSides(kOutline300);
    pen.bothSides(kWindow1);
    pen.bothSides(kWindow2);
    pen.bothSides(kWindow3);
}

void seats(DeckPen& pen, const LoadState& state, std::string_view)
{
    for (int i = 0; i < state.nstations; ++i) {
        const FeetPoint at{state.stationx[i], state.stationy[i]};
        if (i < 8)
            pen.box({at.x + 0.9, at.y + 0.9}, 1.8, 1.8);
        else if (i < 128)
            pen.box({at.x + 0.75, at.y + 0.75}, 1.5, 1.5);
        else
            pen.circle(at, 0.75);
    }
    fittings300(pen);
}

void lowerDeck(DeckPen& pen, const LoadState&, std::string_view)
{
    pen.heading("Lower Deck", {60, 5});
    pen.textEndingAt("Forward", 28);
    pen.textEndingAt("Aft", -8);
    pen.polyline({{9, 4}, {25, 4}, {26, 3}, {26, -3}, {25, -4}, {9, -4}, {9, 4}});
    pen.polyline({{-10, -4}, {-36.5, -4}, {-36.5, 4}, {-10, 4}, {-10, -4}});
}

} // namespace quillet::data737

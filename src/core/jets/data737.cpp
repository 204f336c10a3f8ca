#include "data737.h"

#include "JetDecks.h"
#include "JetSetUp.h"

#include <vector>

namespace quillet::data737 {

namespace {

constexpr std::string_view kB737_200ADV = "B737-200ADV";

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

// The B737-200ADV: a shorter fuselage whose cockpit windows are the B737-300's moved 4.14 ft aft.
constexpr FeetPoint kOutline200[] = {
    {-39.683, 0},     {-39.626, 0.889}, {-39.683, 1.657}, {-39.512, 2.452}, {-39.331, 3.287}, {-39.073, 3.96},
    {-38.482, 4.701}, {-38.292, 5.294}, {-37.853, 5.738}, {-36.481, 5.9},   {20.18, 5.9},     {22.563, 5.86},
    {24.945, 5.795},  {27.328, 5.62},   {29.711, 5.307},  {31.522, 4.997},  {33.123, 4.681},  {34.476, 4.377},
    {35.992, 4.055},  {37.24, 3.787},   {38.603, 3.421},  {39.995, 2.8},    {40.776, 2.35},   {41.91, 1.522},
    {42.778, 0.956},  {43.245, 0.296},  {43.435, 0},
};
constexpr double kWindowShift200 = 4.14;

constexpr std::span<const FeetPoint> kWindows[] = {kWindow1, kWindow2, kWindow3};

std::vector<FeetPoint> movedAft(std::span<const FeetPoint> points, double feet)
{
    std::vector<FeetPoint> moved(points.begin(), points.end());
    for (FeetPoint& point : moved)
        point.x -= feet;
    return moved;
}

void fittings300(DeckPen& pen)
{
    // Aft lavatories, forward galleys, cockpit bulkhead.
    pen.bothSides({{-32.5, -1.2}, {-35.5, -1.2}, {-35.5, -5.9}, {-32.5, -5.9}, {-32.5, -1.2}});
    pen.bothSides({{27.5, -1.2}, {30.5, -1.2}, {30.5, -5.7}, {27.5, -5.86}, {27.5, -1.2}});
    pen.line({35.75, -5}, {35.75, 5});
    pen.polyline({{35.75, -1.1}, {34.75, -1.1}, {34.75, -5.2}});
    pen.polyline({{35.75, 1.1}, {34.75, 1.1}, {34.75, 5.2}});
}

void fittings200(DeckPen& pen)
{
    // Cockpit bulkhead, forward galley and closet, the class divider, the aft galleys and lavatories.
    pen.line({31.8, -5}, {31.8, 5});
    pen.line({26.6, 5}, {26.6, 1.2});
    pen.polyline({{31.8, -1.1}, {28.8, -1.1}, {28.8, -5.2}});
    pen.polyline({{31.8, 1.1}, {30.3, 1.1}, {30.3, 5.2}});
    pen.bothSides({{12.3, 5.86}, {12.3, 1.2}});
    pen.bothSides({{-32.2, 5.86}, {-32.2, 1.2}});
    pen.bothSides({{-36, 5.86}, {-36, 2.1}, {-37.5, 0.5}, {-39.5, 0.5}});
    pen.line({-37.5, 0.5}, {-37.5, -0.5});
    pen.polyline({{24, -5.86}, {24, -1.2}, {23.25, -1.2}, {23.25, -5.86}});
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

void setUpB737_200ADV(LoadState& state, int& deckscale)
{
    setLimits(state, {.maxtakeoff = 119500,
                      .maxlanding = 105000,
                      .emptyweight = 63100,
                      .maxfuel = 34570,
                      .maxzerofuel = 95000});
    setCounts(state, {.maxpax = 108,
                      .cfgstations = 3,
                      .seats1 = 14,
                      .seats2 = 0,
                      .seats3 = 88,
                      .nstations = 108,
                      .ncargo = 2,
                      .nlower = 2,
                      .ncrew = 6});
    deckscale = 70;

    // First class: row 1 has only D and F; the loop's row number i / 4 + 1 rounds 1.5, 2.5 and 3.5
    // up to rows 2, 3 and 4.
    station(state, 0, "Passenger 1D", 23.7, 2.0);
    station(state, 1, "Passenger 1F", 23.7, 4.2);
    for (int i = 2; i <= 10; i += 4)
        seatRow(state, i, i / 4.0 + 1, 20.5 - 3.17 * (i - 2) / 4, "ACDF", {-4.2, -2.0, 2.0, 4.2});
    // Economy, rows 5 to 17 at a 34-inch pitch.
    for (int i = 14; i <= 86; i += 6)
        seatRow(state, i, (i - 14) / 6 + 5, 9.5 - (i - 14) / 6 * (34.0 / 12), "ABCDEF",
                {-4.5, -3.0, -1.5, 1.5, 3.0, 4.5});
    // The last two rows have five seats, narrowing with the fuselage.
    seatRow(state, 92, 18, -27.3, "ABCDE", {-4.4, -2.9, 1.5, 3.0, 4.5});
    seatRow(state, 97, 19, -30.2, "ABCDE", {-4.3, -2.8, 1.4, 2.9, 4.4});

    station(state, 102, "Pilot", 35.0, -2.0);
    station(state, 103, "Co-Pilot", 35.0, 2.0);
    station(state, 104, "Crew", 28.0, -2.0);
    station(state, 105, "Crew", 28.0, -3.5);
    station(state, 106, "Crew", -35.0, -2.5);
    station(state, 107, "Crew", -35.0, -4.0);
    cargo(state, 108, "Lower Deck Cargo Forward", 16.25, 0.0, 2002);
    cargo(state, 109, "Lower Deck Cargo Aft", -20.5, 0.0, 5168);
}

void mainDeck(DeckPen& pen, const LoadState&, std::string_view type)
{
    pen.heading("Main Deck", {60, 5});
    const bool is200 = type == kB737_200ADV;
    pen.bothSides(is200 ? std::span<const FeetPoint>(kOutline200) : std::span<const FeetPoint>(kOutline300));
    for (std::span<const FeetPoint> window : kWindows)
        pen.bothSides(movedAft(window, is200 ? kWindowShift200 : 0));
}

void seats(DeckPen& pen, const LoadState& state, std::string_view type)
{
    // The class boundaries are the types' own, whatever a station file says of the class counts.
    if (type == kB737_200ADV) {
        jetDecks::personMarks(pen, state, {{14, 1.8}, {102, 1.5}}, 0.75);
        fittings200(pen);
        return;
    }
    jetDecks::personMarks(pen, state, {{8, 1.8}, {128, 1.5}}, 0.75);
    fittings300(pen);
}

void lowerDeck(DeckPen& pen, const LoadState&, std::string_view type)
{
    pen.heading("Lower Deck", {60, 5});
    pen.textEndingAt("Forward", 28);
    pen.textEndingAt("Aft", -8);
    if (type == kB737_200ADV) {
        pen.polyline({{9, 4}, {22.5, 4}, {23.5, 3}, {23.5, -3}, {22.5, -4}, {9, -4}, {9, 4}});
        pen.polyline({{-10, -4}, {-31, -4}, {-31, 4}, {-10, 4}, {-10, -4}});
        return;
    }
    pen.polyline({{9, 4}, {25, 4}, {26, 3}, {26, -3}, {25, -4}, {9, -4}, {9, 4}});
    pen.polyline({{-10, -4}, {-36.5, -4}, {-36.5, 4}, {-10, 4}, {-10, -4}});
}

} // namespace quillet::data737

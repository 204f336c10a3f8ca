#include "data767.h"

#include "JetDecks.h"
#include "JetSetUp.h"

#include <string>

namespace quillet::data767 {

namespace {

constexpr int kFirstClassSeats = 24;
constexpr int kSeats = 261;
constexpr int kFirstContainer = 269;
constexpr int kContainerPairsForward = 8;
constexpr int kContainerPairsAft = 7;
constexpr double kContainerLength = 5;
constexpr double kContainerWidth = 5.125;

constexpr FeetPoint kOutline[] = {
    {72.123, 0},     {71.659, 1.319}, {70.398, 2.507}, {68.948, 3.544}, {67.498, 4.335}, {66.164, 4.901},
    {64.308, 5.768}, {63.003, 6.164}, {61.698, 6.597}, {60.248, 6.918}, {58.624, 7.276}, {57.13, 7.54},
    {55.361, 7.822}, {54.448, 7.917}, {52.998, 7.917}, {0.304, 7.917},  {-64.38, 7.917}, {-68.15, 7.54},
    {-71.63, 6.691}, {-73.95, 4.882}, {-75.4, 1.923},  {-75.5, 0},
};

constexpr FeetPoint kWindow1[] = {
    {69, 0.176}, {67.172, 0.123}, {65.876, 2.004}, {67.055, 2.601}, {69, 0.141}};
constexpr FeetPoint kWindow2[] = {
    {66.8, 2.795}, {65.678, 2.197}, {64.319, 2.759}, {64.445, 3.849}, {66.8, 2.795}};
constexpr FeetPoint kWindow3[] = {{64, 2.9}, {62.429, 3.392}, {62.366, 4.341}, {64.121, 3.884}, {64, 2.9}};

constexpr FeetPoint kBulkHold[] = {
    {-53, 5.2}, {-58, 5.2}, {-63, 4.5}, {-63, -4.5}, {-58, -5.2}, {-53, -5.2}, {-53, 5.2},
};

// The cabin fittings.
void fittings(DeckPen& pen)
{
    pen.polyline({{56.5, 7.8}, {56.5, 2.2}, {59.5, 2.2}, {59.5, 7.5}});
    pen.polyline({{56.5, -7.8}, {56.5, -4}, {59.5, -4}, {59.5, -7.5}});
    pen.polyline({{59.5, 2.2}, {58, 2.2}, {58, -1.5}, {59.5, -1.5}, {59.5, 2.2}});
    pen.bothSides({{52, 7.9}, {52, 4}});
    pen.line({52.5, -2}, {52.5, 2});
    pen.bothSides({{38, 7.9}, {38, 4}});
    pen.line({38.5, -2}, {38.5, 2});
    pen.bothSides({{3.2, -7.9}, {3.2, -4.2}, {0.3, -4.2}, {0.3, -7.9}});
    pen.bothSides({{-60.4, 7.9}, {-60.4, 4.2}, {-63.5, 4.2}, {-63.5, 7.9}});
    pen.polyline({{-61.4, -2.2}, {-61.4, 2.2}, {-63.5, 2.2}, {-63.5, -2.2}, {-61.4, -2.2}});
    pen.polyline({{-67.4, -7.6}, {-67.4, -4.4}, {-71, -3.9}, {-71, 3.9}, {-67.4, 4.4}, {-67.4, 7.6}});
    pen.box({-66, 1.5}, 2.5, 3);
}

// Container pairs from station `first` on, L before R, the first pair at x and each next one 5 ft aft.
void containerPairs(LoadState& state, int first, char zone, int pairs, double x, float maximum)
{
    for (int n = 1; n <= pairs; ++n) {
        const std::string pair = std::string("Container ") + zone + std::to_string(n);
        const double at = x - 5.0 * (n - 1);
        cargo(state, first + 2 * (n - 1), pair + "L", at, -2.6, maximum);
        cargo(state, first + 2 * (n - 1) + 1, pair + "R", at, 2.6, maximum);
    }
}

} // namespace

void setUpB767_300ER(LoadState& state, int& deckscale)
{
    state.maxtakeoff = 407000;
    state.maxlanding = 320000;
    state.emptyweight = 198443;
    state.maxfuel = 161740;
    state.maxzerofuel = 295000;
    setCounts(state, {.maxpax = 261,
                      .cfgstations = 32,
                      .seats1 = 24,
                      .seats2 = 0,
                      .seats3 = 237,
                      .nstations = 269,
                      .ncargo = 31,
                      .nlower = 31,
                      .ncrew = 8});
    deckscale = 55;

    // First class, rows 1 to 4 at a 38-inch pitch; the centre pair C, D sits 0.3 ft forward.
    for (int i = 0; i <= 18; i += 6) {
        const double x = 49.4 - (i / 6) * 38.0 / 12;
        const int row = i / 6 + 1;
        seatRow(state, i, row, x, "AB", {-6.67, -4.67});
        seatRow(state, i + 2, row, x + 0.3, "CD", {-1.0, 1.0});
        seatRow(state, i + 4, row, x, "EF", {4.67, 6.67});
    }
    // Economy at a 34-inch pitch: rows 5 to 16, where the centre block C, D, E sits 0.7 ft forward;
    // rows 17 and 18, centre block only; rows 19 to 39, where the centre block sits 1.25 ft aft.
    for (int i = 24; i <= 101; i += 7) {
        const double x = 35.4 - ((i - 24) / 7) * 34.0 / 12;
        const int row = (i - 24) / 7 + 5;
        seatRow(state, i, row, x, "AB", {-6.74, -5.02});
        seatRow(state, i + 2, row, x + 0.7, "CDE", {-1.72, 0, 1.72});
        seatRow(state, i + 5, row, x, "FG", {5.02, 6.74});
    }
    for (int i = 108; i <= 111; i += 3)
        seatRow(state, i, (i - 108) / 3 + 17, 2.1 - ((i - 108) / 3) * 34.0 / 12, "CDE", {-1.72, 0, 1.72});
    for (int i = 114; i <= 254; i += 7) {
        const double pitches = ((i - 114) / 7) * 34.0 / 12;
        const int row = (i - 114) / 7 + 19;
        seatRow(state, i, row, -2.5 - pitches, "AB", {-6.74, -5.02});
        seatRow(state, i + 2, row, -3.75 - pitches, "CDE", {-1.72, 0, 1.72});
        seatRow(state, i + 5, row, -2.5 - pitches, "FG", {5.02, 6.74});
    }

    station(state, 261, "Pilot", 64, -1.8);
    station(state, 262, "Co-Pilot", 64, 1.8);
    station(state, 263, "Crew", 53, 5);
    station(state, 264, "Crew", 53, -5);
    station(state, 265, "Crew", 53.5, 1);
    station(state, 266, "Crew", 53.5, -1);
    station(state, 267, "Crew", -66.5, 5);
    station(state, 268, "Crew", -66.5, -5);

    containerPairs(state, kFirstContainer, 'F', kContainerPairsForward, 50, 2700);
    containerPairs(state, kFirstContainer + 2 * kContainerPairsForward, 'A', kContainerPairsAft, -20, 2500);
    cargo(state, 299, "Bulk Cargo", -57.5, 0, 6450);
}

void mainDeck(DeckPen& pen, const LoadState&, std::string_view)
{
    pen.heading("Main Deck", {87, 7});
    pen.bothSides(kOutline);
    pen.bothSides(kWindow1);
    pen.bothSides(kWindow2);
    pen.bothSides(kWindow3);
}

void seats(DeckPen& pen, const LoadState& state, std::string_view)
{
    fittings(pen);
    jetDecks::personMarks(pen, state, {{kFirstClassSeats, 1.8}, {kSeats, 1.5}}, 0.75);
}

void lowerDeck(DeckPen& pen, const LoadState& state, std::string_view)
{
    pen.heading("Lower Deck", {87, 5});
    pen.textStartingAt("Forward", 10);
    pen.textStartingAt("Aft", -67);
    const int containersEnd = kFirstContainer + 2 * (kContainerPairsForward + kContainerPairsAft);
    for (int i = kFirstContainer; i < containersEnd; ++i)
        pen.centredBox({state.stationx[i], state.stationy[i]}, kContainerLength, kContainerWidth);
    pen.polyline(kBulkHold);
}

} // namespace quillet::data767

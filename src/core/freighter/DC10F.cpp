#include "DC10F.h"

#include "DC10FLayout.h"
#include "dataDC10.h"
#include "load/DeckMapping.h"
#include "load/StationInput.h"
#include "load/StationLabel.h"
#include "platform/Format.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace quillet {

namespace {

constexpr std::string_view kPicture = "DC-10-30F.gif";
constexpr int kDeckscale = 52;

// Container sizes in feet, from inches.
constexpr double kPosition = 125.0 / 12; // a main-deck position's length
constexpr double kWide = 96.0 / 12;
constexpr double kNarrow = 88.0 / 12;
constexpr double kAftLength = 68.2 / 12;
constexpr double kAftWidth = 62.5 / 12;

// The picture's frame in feet: box x grows towards the tail, box y downwards.
constexpr double kPairOneX = 50;                 // box x of main-deck pair 1
constexpr double kPairSixX = 1225.0 / 12;        // box x of pair 6, where stationx is 0
constexpr double kMainRow = 13;                  // the main deck's centre line
constexpr double kLowerRow = 26 + kPosition / 2; // the lower holds' centre line, 31.2083
// The outline and the points that take the mouse are mapped from 96.875 ft (pair 6 less half a
// position), the boxes and crew discs from 98 ft: those are drawn 1.125 ft aft of their points.
constexpr double kOutlineX0 = kPairSixX - kPosition / 2;
constexpr double kDrawX0 = 98;

constexpr int kFirstCrew = 38;
constexpr int kContainerHit = 200; // twips either side of a station's point
constexpr int kCrewHit = 80;
constexpr double kCrewDotRadius = 0.8; // feet
constexpr double kNotePoints = 10;
constexpr double kNoteLeft = 500;
constexpr double kNoteTop = 50;
// An information box that would reach this opens to the left of its station.
constexpr LabelPlacement kLabelPlacement{100, 9435, true};

constexpr std::string_view kContainerOverload = "Container Overload";
constexpr std::string_view kZoneOverload = "Zone Overload";

struct MaximumRange {
    int first;
    int last;
    float maximum; // lb
};
constexpr MaximumRange kMaxima[] = {
    {0, 1, 8800},   {2, 9, 9020},    {10, 15, 14960}, {16, 21, 9020},
    {22, 22, 9350}, {23, 27, 10340}, {28, 37, 3476},
};

struct Zone {
    int first;
    int last;
    double limit; // lb
    const char* name;
};
constexpr Zone kZones[] = {
    {0, 9, 50000, "Main deck zone 1"},     // 1L to 5R
    {10, 15, 60000, "Main deck zone 2"},   // 6L to 8R
    {16, 22, 38000, "Main deck zone 3"},   // 9L to 11R and 12
    {23, 27, 40000, "Forward lower hold"}, // A to E
    {28, 37, 35000, "Aft lower hold"},     // C1L to C5R
};

// The centre positions 6L to 8R take the heaviest loads of a preset. Container 9L is left out of the
// scan.
constexpr int kCentreFirst = 10;
constexpr int kCentreLast = 15;
constexpr std::pair<int, int> kExchangeScans[] = {{0, 9}, {17, 22}};

struct CrewSeat {
    const char* name;
    double x;
    double y;
};
constexpr CrewSeat kCrew[] = {
    {"Pilot", 70, -2},    {"Co-Pilot", 70, 2},  {"Flight Engineer", 67, 0},
    {"Crew", 63.5, -2.8}, {"Crew", 63.5, -5.2},
};

// A container with its box in picture feet centred on (boxX, row + y); its station lies along the
// fuselage from pair 6 and across it at y.
void container(LoadState& state, int i, std::string name, double boxX, double row, double y, double length,
               double width)
{
    state.stationname[i] = std::move(name);
    state.stationx[i] = static_cast<float>(kPairSixX - boxX);
    state.stationy[i] = static_cast<float>(y);
    state.stationz[i] = 0;
    state.containerbox[i] = {static_cast<float>(boxX), static_cast<float>(row + y),
                             static_cast<float>(length), static_cast<float>(width)};
}

int clampedTo(int value, int capacity)
{
    return std::clamp(value, 0, capacity);
}

} // namespace

DC10F::DC10F(Session& session) : DeckForm(session, dc10f::kDeck) {}

void DC10F::Form_Load()
{
    photo = m_session.picture(kPicture);
    Picture1().clear();
    if (m_session.currentType() == kType) {
        caption = std::string(kType);
        setUpStations();
    }
    runSummary();
    mnuload_Click();
    redraw();
}

void DC10F::setUpStations()
{
    LoadState& state = m_session.state;
    state.maxtakeoff = 572000;
    state.maxlanding = 420100;
    state.emptyweight = 237594;
    state.maxfuel = 221910;
    state.maxzerofuel = 400160;
    state.cfgstations = 43;
    state.maxpax = 43;
    state.nstations = 5;
    state.ncargo = 38;
    state.nlower = 0;
    state.ncrew = 5;
    state.seats1 = 0;
    state.seats2 = 0;
    state.seats3 = 0;
    state.loadweight = 0;

    // Main deck: eleven pairs, L above R in the picture; pair 11 is narrower.
    for (int n = 1; n <= 11; ++n) {
        const double boxX = kPairSixX - (6 - n) * kPosition;
        const double width = n < 11 ? kWide : kNarrow;
        const std::string name = "Container " + std::to_string(n);
        container(state, 2 * n - 2, name + "L", boxX, kMainRow, -width / 2, kPosition, width);
        container(state, 2 * n - 1, name + "R", boxX, kMainRow, width / 2, kPosition, width);
    }
    // Position 12 stands crosswise on the centre line behind pair 11.
    container(state, 22, "Container 12", kPairOneX + 10 * kPosition + kPosition / 2 + kWide / 2, kMainRow, 0,
              kWide, kPosition);
    // Forward lower hold, A to E on the centre line.
    for (int k = 0; k < 5; ++k) {
        container(state, 23 + k, std::string("Container ") + static_cast<char>('A' + k),
                  kPairOneX + kPosition / 2 + k * kNarrow, kLowerRow, 0, kNarrow, kPosition);
    }
    // Aft lower hold, five pairs C1 to C5.
    for (int k = 0; k < 5; ++k) {
        const double boxX = kPairOneX + 8 * kPosition - kAftLength / 2 + k * kAftLength;
        const std::string name = "Container C" + std::to_string(k + 1);
        container(state, 28 + 2 * k, name + "L", boxX, kLowerRow, -kAftWidth / 2, kAftLength, kAftWidth);
        container(state, 29 + 2 * k, name + "R", boxX, kLowerRow, kAftWidth / 2, kAftLength, kAftWidth);
    }
    for (const MaximumRange& range : kMaxima) {
        for (int i = range.first; i <= range.last; ++i)
            state.stationmax[i] = range.maximum;
    }

    int i = kFirstCrew;
    for (const CrewSeat& seat : kCrew) {
        state.stationname[i] = seat.name;
        state.stationx[i] = static_cast<float>(seat.x);
        state.stationy[i] = static_cast<float>(seat.y);
        state.stationz[i] = 0;
        state.stationmax[i] = 0;
        state.containerbox[i][1] = static_cast<float>(kMainRow - seat.y);
        ++i;
    }
    deckscale = kDeckscale;

    const DeckMapping hitPoints{kOutlineX0, 0, static_cast<double>(deckscale)};
    for (int station = 0; station < kFirstCrew + static_cast<int>(std::size(kCrew)); ++station) {
        state.stationpx[station] = toMarker(hitPoints.stationX(state.stationx[station]));
        state.stationpy[station] = toMarker(
            static_cast<int>(roundHalfEven(state.containerbox[station][1] * static_cast<double>(deckscale))));
    }
}

void DC10F::mnuload_Click()
{
    // The reader tells the user itself what went wrong; the form shows whatever it left.
    static_cast<void>(read());
    cargocheck();
}

void DC10F::mnusave_Click()
{
    static_cast<void>(save());
}

int DC10F::markedStations() const
{
    return clampedTo(m_session.state.stationsInUse(), kMarkerCapacity);
}

bool DC10F::hits(int station, double X, double Y) const
{
    const LoadState& state = m_session.state;
    const int half = station < state.ncargo ? kContainerHit : kCrewHit;
    return std::fabs(X - state.stationpx[station]) < half && std::fabs(Y - state.stationpy[station]) < half;
}

void DC10F::Picture1_MouseDown(int Button, int, double X, double Y)
{
    LoadState& state = m_session.state;
    // Every station under the point is handled, each with its own input box.
    for (int i = 0; i < markedStations(); ++i) {
        if (!hits(i, X, Y) || Button != kLeftButton)
            continue;
        if (state.stationweight[i] == 0) {
            // 40 % of the maximum in whole hundreds of pounds.
            const std::string offered = format0(std::floor(state.stationmax[i] * 0.004) * 100);
            const float weight = typedWeight(
                m_session.prompt.inputBox(state.stationname[i] + " weight in lbs", "Pax Details", offered));
            state.stationweight[i] = weight;
            if (weight > 0)
                state.loadweight += weight;
        } else {
            state.loadweight -= state.stationweight[i];
            state.stationweight[i] = 0;
        }
    }
    afterLoadChange();
}

void DC10F::afterLoadChange()
{
    runSummary();
    cargocheck();
    redraw();
}

StationGroups DC10F::stationGroups() const
{
    const LoadState& state = m_session.state;
    const int end = clampedTo(state.stationsInUse(), kStationCapacity);
    StationGroups groups;
    groups.push_back({"Crew", StationRole::Crew, stationRange(std::min(kFirstCrew, end), end)});
    for (const Zone& zone : kZones) {
        groups.push_back({zone.name, StationRole::Cargo,
                          stationRange(zone.first, std::min(zone.last + 1, end)),
                          static_cast<float>(zone.limit), true});
    }
    std::erase_if(groups, [](const StationGroup& group) { return group.stations.empty(); });
    return groups;
}

std::vector<FocusStation> DC10F::focusStations() const
{
    const LoadState& state = m_session.state;
    const double scale = deckscale;
    const int end = markedStations();
    const int containers = std::min({clampedTo(state.ncargo, kContainerBoxCapacity), end});
    std::vector<FocusStation> stations;
    for (int i = containers; i < end; ++i) {
        const double x = state.stationpx[i];
        const double y = state.stationpy[i];
        stations.push_back(
            {i,
             x,
             y,
             {static_cast<int>(x - kCrewHit), static_cast<int>(y - kCrewHit), 2 * kCrewHit, 2 * kCrewHit}});
    }
    orderInRows(stations, state);
    // A container's mark is its drawn box, a little aft of the point a click takes.
    for (int i = 0; i < containers; ++i) {
        const auto& box = state.containerbox[i];
        const double left = (kDrawX0 - state.stationx[i] - box[2] / 2.0) * scale;
        const double top = (box[1] - box[3] / 2.0) * scale;
        stations.push_back({i,
                            static_cast<double>(state.stationpx[i]),
                            static_cast<double>(state.stationpy[i]),
                            {static_cast<int>(left), static_cast<int>(top), static_cast<int>(box[2] * scale),
                             static_cast<int>(box[3] * scale)}});
    }
    return stations;
}

void DC10F::Picture1_MouseMove(int, int, double X, double Y)
{
    redraw();
    Canvas& picture = Picture1();
    const LoadState& state = m_session.state;
    for (int i = 0; i < markedStations(); ++i) {
        if (!hits(i, X, Y) || !(state.stationweight[i] > 0))
            continue;
        drawStationLabel(picture, stationLabelText(state.stationname[i], state.stationweight[i]),
                         state.stationpx[i], state.stationpy[i], kLabelPlacement);
    }
    cargocheck();
}

void DC10F::nopass()
{
    LoadState& state = m_session.state;
    // The form has no passenger seats.
    state.npax = 0;
    state.ncontainers = 0;
    const int containers = clampedTo(state.ncargo, kStationCapacity);
    for (int i = 0; i < containers; ++i) {
        if (state.stationweight[i] > 0)
            ++state.ncontainers;
    }
}

void DC10F::cargocheck()
{
    LoadState& state = m_session.state;
    state.stationmsg.fill({});
    const int containers = clampedTo(state.cfgstations - state.ncrew, kStationCapacity);
    for (int i = 0; i < containers; ++i) {
        // A load equal to the maximum passes.
        if (state.stationweight[i] > state.stationmax[i])
            state.stationmsg[i] = kContainerOverload;
    }
    for (const Zone& zone : kZones) {
        double sum = 0;
        for (int i = zone.first; i <= zone.last; ++i)
            sum += state.stationweight[i];
        if (sum > zone.limit) {
            // Empty containers of the zone carry the mark too; only loaded ones show it.
            for (int i = zone.first; i <= zone.last; ++i)
                state.stationmsg[i] = kZoneOverload;
        }
    }
}

void DC10F::redraw()
{
    drawDeck(Picture1());
}

void DC10F::drawDeck(Canvas& picture)
{
    const LoadState& state = m_session.state;
    const double scale = deckscale;
    picture.clear();
    overloadNote.clear();

    DeckPen outline(picture, {kOutlineX0, kMainRow, scale});
    dataDC10::mainDeckOutline(outline);
    DeckPen deck(picture, {kDrawX0, kMainRow, scale});
    dataDC10::flightDeck(deck);

    const int containers = clampedTo(state.ncargo, kContainerBoxCapacity);
    for (int i = 0; i < containers; ++i) {
        if (!(state.stationweight[i] > 0)) {
            picture.setFillStyle(FillStyle::Transparent);
        } else if (state.stationmsg[i].empty()) {
            picture.setFillColor(kGreen);
            picture.setFillStyle(FillStyle::DiagonalCross);
        } else {
            picture.setFillColor(kRed);
            picture.setFillStyle(FillStyle::DiagonalCross);
            overloadNote = state.stationmsg[i];
        }
        const auto& box = state.containerbox[i];
        const double left = (kDrawX0 - state.stationx[i] - box[2] / 2.0) * scale;
        const double top = (box[1] - box[3] / 2.0) * scale;
        picture.box(left, top, left + box[2] * scale, top + box[3] * scale, kBlack);
    }

    const int crewEnd = clampedTo(state.ncargo + state.ncrew, kContainerBoxCapacity);
    for (int i = containers; i < crewEnd; ++i) {
        if (state.stationweight[i] > 0)
            drawLoadedDot(picture, (kDrawX0 - state.stationx[i]) * scale, state.containerbox[i][1] * scale,
                          kCrewDotRadius * scale);
    }

    dataDC10::headings(picture);
    if (!overloadNote.empty()) {
        picture.setForeColor(kRed);
        picture.setFont(kNotePoints, false);
        picture.setCurrentPoint(kNoteLeft, kNoteTop);
        picture.print(overloadNote);
        picture.setForeColor(kBlack);
    }
    picture.markRepeated(); // every pointer movement redraws the deck before its label
}

void DC10F::mnulight_Click()
{
    m_session.state.stationweight.fill(0);
    preset(0.05);
}

void DC10F::mnumed_Click()
{
    preset(0.3833);
}

void DC10F::mnuheav_Click()
{
    preset(0.66666);
}

void DC10F::preset(double base)
{
    LoadState& state = m_session.state;
    const int stations = clampedTo(state.cfgstations, kStationCapacity);
    state.loadweight = 0;

    // Each station gets base + r/3 of its share of the payload the zero-fuel weight allows. That share
    // is under a half, so no container or zone ends up overloaded, even after the exchange below.
    double capacity = 0;
    for (int i = 0; i < stations; ++i)
        capacity += state.stationmax[i];
    const double share = capacity > 0 ? (state.maxzerofuel - state.emptyweight) / capacity : 0;
    for (int i = 0; i < stations; ++i) {
        const double r = m_session.random.next();
        state.stationweight[i] = static_cast<float>(state.stationmax[i] * share * (base + r / 3));
    }

    for (int j = kCentreFirst; j <= kCentreLast; ++j) {
        for (const auto& [first, last] : kExchangeScans) {
            for (int i = first; i <= last; ++i) {
                if (state.stationweight[i] > state.stationweight[j])
                    std::swap(state.stationweight[i], state.stationweight[j]);
            }
        }
    }

    redraw();
    float sum = 0;
    for (int i = 0; i < stations; ++i)
        sum += state.stationweight[i];
    state.loadweight = sum;
    redraw();
    runSummary();
}

} // namespace quillet

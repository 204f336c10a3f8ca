#include "Boeing.h"

#include "BoeingLayout.h"
#include "load/PresetDraws.h"
#include "load/StationInput.h"
#include "load/StationLabel.h"
#include "platform/Format.h"

#include <algorithm>
#include <cmath>

namespace quillet {

namespace {

constexpr double kPersonHit = 60;         // twips either side of a seat's point
constexpr double kCargoHit = 100;         // twips either side of a hold's point
constexpr double kPersonHalfWidth = 0.75; // feet, for the hover labels
constexpr double kCargoHalfWidth = 2.5;
constexpr double kSeatDotRadius = 45;
constexpr double kPicturePoints = 8.25;

// The B767-300ER's lower deck is also limited by zone: the first sixteen cargo stations after its
// 269 persons form the forward zone, the rest the aft one.
constexpr std::string_view kZonedType = "B767-300ER";
constexpr int kZonedFirstAft = 269 + 16;
constexpr float kForwardZoneLimit = 45000;
constexpr float kAftZoneLimit = 37800;

constexpr std::string_view kContainerOverload = " Container Overload";
constexpr std::string_view kZoneOverload = " Zone Overload";

} // namespace

Boeing::Boeing(Session& session) : DeckForm(session, boeing::kDeck) {}

int Boeing::personCount() const
{
    return std::clamp(m_session.state.nstations, 0, kMarkerCapacity);
}

int Boeing::cargoEnd() const
{
    const LoadState& state = m_session.state;
    return std::clamp(state.nstations + state.ncargo, 0, kMarkerCapacity);
}

void Boeing::Form_Load()
{
    LoadState& state = m_session.state;
    state.stationweight.fill(0);
    state.stationname.fill({});

    // A type string that is not a jet type sets nothing up; the main window sends none.
    if (const JetType* jet = findJetType(type())) {
        photo = m_session.picture(std::string(jet->type) + ".gif");
        caption = std::string(jet->type);
        jet->setUp(state, deckscale);
    }

    mnuload_Click();
    runSummary();
    redraw();
}

void Boeing::mnuload_Click()
{
    // The reader tells the user itself what went wrong; the form shows whatever it left.
    static_cast<void>(read());
    redraw();
    runSummary();
}

void Boeing::mnusave_Click()
{
    static_cast<void>(save());
}

void Boeing::mnuempty_Click()
{
    LoadState& state = m_session.state;
    const int crewFirst = state.nstations - state.ncrew;
    const int end = std::clamp(state.stationsInUse(), 0, kStationCapacity);
    for (int i = 0; i < end; ++i) {
        if (i < crewFirst || i >= state.nstations)
            state.stationweight[i] = 0;
    }
    afterLoadChange();
}

StationGroups Boeing::stationGroups() const
{
    const LoadState& state = m_session.state;
    const int persons = personCount();
    const int crewFirst = std::clamp(persons - state.ncrew, 0, persons);
    StationGroups groups;
    groups.push_back({"Crew", StationRole::Crew, stationRange(crewFirst, persons)});
    addCabinClasses(groups, state, stationRange(0, crewFirst));

    const int end = cargoEnd();
    if (type() == kZonedType) {
        const int firstAft = std::clamp(kZonedFirstAft, persons, end);
        groups.push_back({"Forward lower hold", StationRole::Cargo, stationRange(persons, firstAft),
                          kForwardZoneLimit, true});
        groups.push_back({"Aft lower hold and bulk", StationRole::Cargo, stationRange(firstAft, end),
                          kAftZoneLimit, true});
    } else {
        StationGroup mainDeck{"Main deck", StationRole::Cargo, {}, 0, true};
        for (int i = persons; i < end; ++i) {
            if (!isLowerCargo(i))
                mainDeck.stations.push_back(i);
        }
        if (!mainDeck.stations.empty())
            groups.push_back(std::move(mainDeck));
        for (int i = persons; i < end; ++i) {
            if (isLowerCargo(i))
                groups.push_back({state.stationname[i], StationRole::Cargo, {i}, 0, true});
        }
    }
    std::erase_if(groups, [](const StationGroup& group) { return group.stations.empty(); });
    return groups;
}

void Boeing::afterLoadChange()
{
    m_session.state.loadweight = m_session.state.sumOfWeights();
    cargocheck();
    redraw();
    runSummary();
}

bool Boeing::isLowerCargo(int station) const
{
    const LoadState& state = m_session.state;
    const JetType* jet = findJetType(type());
    if (jet && jet->lowerCargoFirst)
        return station - state.nstations < *jet->lowerCargoFirst;
    return station >= state.nstations + state.ncargo - state.nlower;
}

void Boeing::placeStations()
{
    const LoadState& state = m_session.state;
    const JetType* jet = findJetType(type());
    const DeckMapping mainDeck{jet->origins.x0, jet->origins.y0, static_cast<double>(deckscale)};
    const DeckMapping lowerRow{jet->origins.x0, jet->origins.lowerRow, static_cast<double>(deckscale)};
    for (int i = 0; i < cargoEnd(); ++i) {
        const DeckMapping& map = i >= state.nstations && isLowerCargo(i) ? lowerRow : mainDeck;
        m_session.state.stationpx[i] = toMarker(map.stationX(state.stationx[i]));
        m_session.state.stationpy[i] = toMarker(map.stationY(state.stationy[i]));
    }
}

void Boeing::redraw()
{
    drawDeck(Picture1());
}

void Boeing::drawDeck(Canvas& picture)
{
    picture.clear();
    picture.setFont(kPicturePoints, false);

    if (const JetType* jet = findJetType(type())) {
        const LoadState& state = m_session.state;
        const double scale = deckscale;
        DeckPen mainDeck(picture, {jet->origins.x0, jet->origins.y0, scale});
        jet->mainDeck(mainDeck, state, jet->type);
        jet->seats(mainDeck, state, jet->type);
        DeckPen lowerDeck(picture, {jet->origins.x0, jet->origins.lowerOrigin, scale});
        jet->lowerDeck(lowerDeck, state, jet->type);
        placeStations();
        if (jet->checksCargoWhileDrawing)
            cargocheck();
    }
    fillPass(picture);
    picture.markRepeated(); // every pointer movement redraws the deck before its label
}

void Boeing::fillPass(Canvas& picture)
{
    const LoadState& state = m_session.state;
    for (int i = 0; i < personCount(); ++i) {
        if (state.stationweight[i] > 0) {
            drawLoadedDot(picture, state.stationpx[i], state.stationpy[i], kSeatDotRadius);
            picture.setFillStyle(FillStyle::Transparent);
        }
    }

    // The flood fill works on device pixels.
    picture.setScaleMode(ScaleMode::Pixels);
    const double pixels = picture.scaleWidth();
    picture.setScaleMode(ScaleMode::Twips);
    const double twipsPerPixel = picture.scaleWidth() / pixels;

    for (int i = personCount(); i < cargoEnd(); ++i) {
        if (!(state.stationweight[i] > 0))
            continue;
        picture.setFillStyle(FillStyle::DiagonalCross);
        picture.setFillColor(state.stationmsg[i].empty() ? kGreen : kRed);
        picture.floodFill(static_cast<int>(roundHalfEven(state.stationpx[i] / twipsPerPixel)),
                          static_cast<int>(roundHalfEven(state.stationpy[i] / twipsPerPixel)));
        picture.setFillStyle(FillStyle::Transparent);
        picture.setFillColor(kGreen);
    }
}

void Boeing::Picture1_MouseDown(int Button, int, double X, double Y)
{
    LoadState& state = m_session.state;
    for (int i = 0; i < personCount(); ++i) {
        if (!(std::fabs(X - state.stationpx[i]) < kPersonHit &&
              std::fabs(Y - state.stationpy[i]) < kPersonHit))
            continue;
        if (Button != kLeftButton)
            continue;
        if (state.stationweight[i] == 0) {
            const float weight = typedWeight(
                m_session.prompt.inputBox(state.stationname[i] + " weight in lbs", "Pax Details", "170"));
            state.stationweight[i] = weight;
            state.loadweight += weight;
        } else {
            state.loadweight -= state.stationweight[i];
            state.stationweight[i] = 0;
        }
    }
    for (int i = personCount(); i < cargoEnd(); ++i) {
        if (!(std::fabs(X - state.stationpx[i]) < kCargoHit && std::fabs(Y - state.stationpy[i]) < kCargoHit))
            continue;
        if (state.stationweight[i] != 0) {
            state.loadweight -= state.stationweight[i];
            state.stationweight[i] = 0;
        } else {
            const float weight = typedWeight(
                m_session.prompt.inputBox(state.stationname[i] + " weight in lbs", "Cargo details", "1000"));
            state.stationweight[i] = weight;
            state.loadweight += weight;
        }
    }
    cargocheck();
    redraw();
    runSummary();
}

std::vector<FocusStation> Boeing::focusStations() const
{
    const LoadState& state = m_session.state;
    // The focus mark outlines what a click hits.
    const auto around = [&](int i, double half) {
        const double x = state.stationpx[i];
        const double y = state.stationpy[i];
        return FocusStation{i,
                            x,
                            y,
                            {static_cast<int>(x - half), static_cast<int>(y - half),
                             static_cast<int>(2 * half), static_cast<int>(2 * half)}};
    };
    std::vector<FocusStation> stations;
    for (int i = 0; i < personCount(); ++i)
        stations.push_back(around(i, kPersonHit));
    orderInRows(stations, state);
    for (int i = personCount(); i < cargoEnd(); ++i)
        stations.push_back(around(i, kCargoHit));
    return stations;
}

void Boeing::Picture1_MouseMove(int, int, double X, double Y)
{
    redraw();
    Canvas& picture = Picture1();
    const LoadState& state = m_session.state;
    const LabelPlacement placement{kPersonHalfWidth * deckscale, kLabelRightLimit, false};
    for (int i = 0; i < cargoEnd(); ++i) {
        const double half = (i < state.nstations ? kPersonHalfWidth : kCargoHalfWidth) * deckscale;
        if (!(std::fabs(X - state.stationpx[i]) < half && std::fabs(Y - state.stationpy[i]) < half))
            continue;
        if (!(state.stationweight[i] > 0))
            continue;
        std::string text = stationLabelText(state.stationname[i], state.stationweight[i]);
        if (state.stationweight[i] > state.stationmax[i])
            text += state.stationmsg[i];
        drawStationLabel(picture, text, state.stationpx[i], state.stationpy[i], placement);
    }
    cargocheck();
}

void Boeing::nopass()
{
    LoadState& state = m_session.state;
    state.npax = 0;
    state.ncontainers = 0;
    const int seats = std::clamp(state.nstations - state.ncrew, 0, kStationCapacity);
    for (int i = 0; i < seats; ++i) {
        if (state.stationweight[i] > 0)
            ++state.npax;
    }
    const int containersEnd = std::clamp(state.nstations + state.ncargo - state.nlower, 0, kStationCapacity);
    for (int i = std::max(state.nstations, 0); i < containersEnd; ++i) {
        if (state.stationweight[i] > 0)
            ++state.ncontainers;
    }
}

void Boeing::cargocheck()
{
    LoadState& state = m_session.state;
    state.stationmsg.fill({});
    const int first = std::clamp(state.nstations, 0, kStationCapacity);
    const int end = std::clamp(state.stationsInUse(), 0, kStationCapacity);
    const int firstLower = std::clamp(end - state.nlower, first, end);
    for (int i = first; i < end; ++i) {
        if (state.stationweight[i] > state.stationmax[i])
            state.stationmsg[i] = i < firstLower ? kContainerOverload : kZoneOverload;
    }

    if (type() != kZonedType)
        return;
    double forward = 0;
    double aft = 0;
    for (int i = first; i < end; ++i)
        (i < kZonedFirstAft ? forward : aft) += state.stationweight[i];
    for (int i = first; i < end; ++i) {
        if (i < kZonedFirstAft ? forward > kForwardZoneLimit : aft > kAftZoneLimit)
            state.stationmsg[i] = kZoneOverload;
    }
}

void Boeing::mnulight_Click()
{
    preset(Seating::Light, {0.28, 0.05});
}

void Boeing::mnumed_Click()
{
    preset(Seating::Medium, {0.33, 0.33});
}

void Boeing::mnuheav_Click()
{
    preset(Seating::Heavy, {0.2, 0.5});
}

int Boeing::drawSeat(int seats, bool wantOccupied)
{
    const LoadState& state = m_session.state;
    return quillet::drawSeat(m_session.random, 0, seats, [&](int seat) {
        return seat >= 0 && seat < seats && (state.stationweight[seat] > 0) == wantOccupied;
    });
}

void Boeing::preset(Seating seating, PresetFactors factors)
{
    LoadState& state = m_session.state;
    RandomSource& random = m_session.random;
    const int seats = std::clamp(state.nstations - state.ncrew, 0, kStationCapacity);
    const int cargoFirst = std::clamp(state.nstations, 0, kStationCapacity);
    const int cargoEnd = std::clamp(state.stationsInUse(), 0, kStationCapacity);

    for (int i = 0; i < seats; ++i)
        state.stationweight[i] = 0;
    for (int i = cargoFirst; i < cargoEnd; ++i)
        state.stationweight[i] = 0;

    const double r0 = random.next();
    const double v = r0 * seats / 3;
    const auto removePassengers = [&](int count) {
        for (int n = 0; n < count && seats > 0; ++n) {
            if (const int seat = drawSeat(seats, true); seat >= 0)
                state.stationweight[seat] = 0;
        }
    };
    if (seating == Seating::Light) {
        for (int n = 0; n <= v - 1; ++n) {
            const float weight = drawPassengerWeight(random);
            if (const int seat = drawSeat(seats, false); seat >= 0)
                state.stationweight[seat] = weight;
        }
    } else {
        for (int i = 0; i < seats; ++i)
            state.stationweight[i] = drawPassengerWeight(random);
        const double share = seating == Seating::Medium ? (1 + r0) : r0;
        removePassengers(static_cast<int>(std::floor(share * seats / 3)) + 1);
    }

    double capacity = 0;
    for (int i = cargoFirst; i < cargoEnd; ++i)
        capacity += state.stationmax[i];
    const double ratio = capacity > 0 ? (state.maxzerofuel - state.emptyweight) / capacity : 0;
    const int firstGroupEnd =
        seating == Seating::Heavy ? cargoEnd : std::clamp(cargoFirst + state.nlower, cargoFirst, cargoEnd);
    for (int i = cargoFirst; i < cargoEnd; ++i) {
        const double share = factors.a * random.next() + factors.b;
        const double weight =
            i < firstGroupEnd ? state.stationmax[i] * share : ratio * state.stationmax[i] * share;
        state.stationweight[i] = static_cast<float>(weight);
    }

    afterLoadChange();
}

} // namespace quillet

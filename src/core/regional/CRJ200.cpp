#include "CRJ200.h"

#include "CabinDrawing.h"
#include "load/DeckMapping.h"
#include "load/StationInput.h"
#include "load/StationLabel.h"
#include "platform/Format.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>

namespace quillet {

namespace {

constexpr int kHold = 52;
constexpr int kLastPerson = 51;

// The seat map: the nose to the left, station 0 ft of the fuselage 4820 twips from the left edge, the
// centre line 505 twips from the top, and a foot across the cabin drawn at 0.85 of a foot along it.
constexpr double kMapNoseX = 4820;
constexpr double kMapCentreY = 505;
constexpr double kTwipsPerFoot = 131.2;
constexpr double kAcrossScale = 0.85;

constexpr double kPersonReach = 100; // half the side of a station's hit box
constexpr double kHoldHalfLength = 200;
constexpr double kHoldHalfWidth = 325;
constexpr double kDotRadius = 50;
constexpr double kEraseRadius = 51; // a little larger, so that no rim of the dot stays behind
constexpr double kInformationGap = 100;

std::int16_t toMapTwips(double twips)
{
    // A position a hand-edited station file puts far off the map must still become a whole number.
    const double rounded = roundHalfEven(twips);
    if (!std::isfinite(rounded))
        return 0;
    return toMarker(static_cast<int>(std::clamp(rounded, -1e9, 1e9)));
}

std::int16_t seatMapX(double x)
{
    return toMapTwips(kMapNoseX - kTwipsPerFoot * x);
}

std::int16_t seatMapY(double y)
{
    return toMapTwips(kMapCentreY - kAcrossScale * kTwipsPerFoot * y);
}

// The cabin drawing fits the built-in table: every seat drawn under its hit box, the hold under its
// own.
CabinPlan cabinPlanOf(const RegionalType& type)
{
    const auto around = [](const StationRow& station, double halfLength, double halfWidth) {
        const int x = seatMapX(station.x);
        const int y = seatMapY(station.y);
        return TwipsRect{static_cast<int>(x - halfLength), static_cast<int>(y - halfWidth),
                         static_cast<int>(2 * halfLength), static_cast<int>(2 * halfWidth)};
    };
    const auto& stations = type.stations;
    CabinPlan plan;
    for (int crew : type.roles.crew)
        plan.crewSeats.push_back(
            around(stations[static_cast<std::size_t>(crew)], kPersonReach, kPersonReach));
    for (int seat = type.roles.firstPassenger; seat <= type.roles.lastPassenger; ++seat)
        plan.passengerSeats.push_back(
            around(stations[static_cast<std::size_t>(seat)], kPersonReach, kPersonReach));
    const StationRow& hold = stations[static_cast<std::size_t>(type.roles.hold)];
    plan.holds.push_back({around(hold, kHoldHalfLength, kHoldHalfWidth), hold.name});
    return plan;
}

} // namespace

CRJ200::CRJ200(Session& session)
    : RegionalLoadForm(session, crj200Type()),
      m_picture2(session.makeCanvas(type().layout.cabin.width, type().layout.cabin.height))
{
    drawCabinView(*m_picture2, cabinPlanOf(type()));
    m_picture2->keepAsBackground();
}

void CRJ200::Form_Load()
{
    setUpType();
    LoadState& state = m_session.state;

    m_picture2->clear();
    // The reader tells the user itself what went wrong; the form shows whatever it left.
    static_cast<void>(read());
    placeseats();
    runSummary();
    for (int i = 0; i <= lastPerson(); ++i) {
        if (state.stationweight[i] > 0)
            drawSeatDot(i);
    }
}

void CRJ200::placeseats()
{
    LoadState& state = m_session.state;
    const int placed = std::clamp(state.stationsInUse(), 0, kMarkerCapacity);
    for (int i = 0; i < placed; ++i) {
        state.stationpx[i] = seatMapX(state.stationx[i]);
        state.stationpy[i] = seatMapY(state.stationy[i]);
    }
}

int CRJ200::lastPerson() const
{
    return std::min(kLastPerson, m_session.state.stationsInUse() - 1);
}

bool CRJ200::holdInUse() const
{
    return kHold < m_session.state.stationsInUse();
}

bool CRJ200::underPoint(int station, double X, double Y) const
{
    const LoadState& state = m_session.state;
    return std::fabs(X - state.stationpx[station]) < kPersonReach &&
           std::fabs(Y - state.stationpy[station]) < kPersonReach;
}

bool CRJ200::underHold(double X, double Y) const
{
    const LoadState& state = m_session.state;
    return std::fabs(X - state.stationpx[kHold]) < kHoldHalfLength &&
           std::fabs(Y - state.stationpy[kHold]) < kHoldHalfWidth;
}

void CRJ200::Picture2_MouseDown(int Button, int Shift, double X, double Y)
{
    LoadState& state = m_session.state;
    // Neighbouring seats' boxes overlap a little: a click there handles each of them in turn.
    for (int i = 0; i <= lastPerson(); ++i) {
        if (!underPoint(i, X, Y))
            continue;
        if (Button != kLeftButton) {
            m_picture2->setCurrentPoint(X, Y);
            m_picture2->print(shortestNumber(state.stationweight[i]));
        } else if (state.stationweight[i] == 0) {
            const float weight = typedWeight(
                m_session.prompt.inputBox(state.stationname[i] + " weight in lbs",
                                          std::string(kPaxDetailsTitle), std::string(kDefaultWeight)));
            // A negative answer is kept as typed but neither drawn nor counted in the load.
            state.stationweight[i] = weight;
            if (weight > 0) {
                drawSeatDot(i);
                state.loadweight += weight;
            }
        } else {
            eraseSeatDot(i);
            state.loadweight -= state.stationweight[i];
            state.stationweight[i] = 0;
        }
    }

    if (holdInUse() && underHold(X, Y)) {
        if (state.stationweight[kHold] == 0) {
            const float weight = weightAnswer(
                m_session.prompt.inputBox(state.stationname[kHold] + " weight in lbs",
                                          std::string(kCargoDetailsTitle), std::string(kDefaultCargoWeight)));
            if (weight > 0) {
                state.stationweight[kHold] = weight;
                drawHoldBox();
                state.loadweight += weight;
            }
        } else {
            state.loadweight -= state.stationweight[kHold];
            state.stationweight[kHold] = 0;
            Picture2_MouseMove(Button, Shift, X, Y);
        }
    }
    runSummary();
}

std::vector<FocusStation> CRJ200::focusStations() const
{
    const LoadState& state = m_session.state;
    // The focus mark outlines what a click hits.
    const auto around = [&](int i, double halfLength, double halfWidth) {
        const double x = state.stationpx[i];
        const double y = state.stationpy[i];
        return FocusStation{i,
                            x,
                            y,
                            {static_cast<int>(x - halfLength), static_cast<int>(y - halfWidth),
                             static_cast<int>(2 * halfLength), static_cast<int>(2 * halfWidth)}};
    };
    std::vector<FocusStation> stations;
    for (int i = 0; i <= lastPerson(); ++i)
        stations.push_back(around(i, kPersonReach, kPersonReach));
    orderInRows(stations, state);
    if (holdInUse())
        stations.push_back(around(kHold, kHoldHalfLength, kHoldHalfWidth));
    return stations;
}

void CRJ200::pressStation(const FocusStation& station, int Button)
{
    Picture2_MouseDown(Button, 0, station.x, station.y);
}

void CRJ200::Picture2_MouseMove(int /*Button*/, int /*Shift*/, double X, double Y)
{
    const LoadState& state = m_session.state;
    m_picture2->clear();
    for (int i = 0; i <= lastPerson(); ++i) {
        if (state.stationweight[i] > 0)
            drawSeatDot(i);
    }
    if (holdInUse() && state.stationweight[kHold] > 0)
        drawHoldBox();
    const int last = holdInUse() ? kHold : lastPerson();
    for (int i = 0; i <= last; ++i) {
        if (underPoint(i, X, Y) && state.stationweight[i] > 0)
            drawInformationBox(i);
    }
}

void CRJ200::redraw()
{
    m_picture2->clear();
    markLoaded(*m_picture2);
}

void CRJ200::drawDeck(Canvas& picture)
{
    drawCabinView(picture, cabinPlanOf(type()));
    markLoaded(picture);
}

void CRJ200::markLoaded(Canvas& map)
{
    const int last = holdInUse() ? kHold : lastPerson();
    for (int i = 0; i <= last; ++i) {
        if (m_session.state.stationweight[i] > 0)
            drawSeatDot(map, i);
    }
}

void CRJ200::drawSeatDot(Canvas& map, int station)
{
    drawLoadedDot(map, m_session.state.stationpx[station], m_session.state.stationpy[station], kDotRadius);
}

void CRJ200::eraseSeatDot(int station)
{
    Canvas& map = *m_picture2;
    map.setFillStyle(FillStyle::Solid);
    map.setFillColor(kWhite);
    map.circle(m_session.state.stationpx[station], m_session.state.stationpy[station], kEraseRadius, kWhite);
}

void CRJ200::drawHoldBox()
{
    Canvas& map = *m_picture2;
    const double x = m_session.state.stationpx[kHold];
    const double y = m_session.state.stationpy[kHold];
    map.setFillStyle(FillStyle::DiagonalCross);
    map.setFillColor(kGreen);
    map.box(x - kHoldHalfLength, y - kHoldHalfWidth, x + kHoldHalfLength, y + kHoldHalfWidth, kBlack);
    map.setFillStyle(FillStyle::Solid);
}

void CRJ200::drawInformationBox(int station)
{
    const LoadState& state = m_session.state;
    drawStationLabel(*m_picture2, stationLabelText(state.stationname[station], state.stationweight[station]),
                     state.stationpx[station], state.stationpy[station], LabelPlacement{kInformationGap});
}

} // namespace quillet

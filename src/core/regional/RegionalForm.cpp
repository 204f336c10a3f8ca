#include "RegionalForm.h"

#include "CabinDrawing.h"
#include "platform/Format.h"

#include <algorithm>

namespace quillet {

std::string occupiedTooltip(std::string_view name, float weight)
{
    return std::string(name) + " " + format0(weight) + " lb.";
}

RegionalForm::RegionalForm(Session& session, const RegionalType& type)
    : RegionalLoadForm(session, type),
      m_cabin(session.makeCanvas(type.layout.cabin.width, type.layout.cabin.height))
{
    for (const StationRow& row : type.stations) {
        location.push_back({row.location, std::string(kEmptyTooltip)});
        const bool hatchedBox = row.marker.kind == MarkerKind::HatchedBox;
        Shape1.push_back({row.marker.kind, row.marker.rect, false, kGreen,
                          hatchedBox ? FillStyle::DiagonalCross : FillStyle::Solid});
    }
    drawCabin();
}

void RegionalForm::drawCabin()
{
    drawCabinView(*m_cabin, type());
}

void RegionalForm::drawDeck(Canvas& picture)
{
    drawCabinView(picture, type());
    for (const Marker& marker : Shape1) {
        if (!marker.visible)
            continue;
        const TwipsRect& r = marker.rect;
        picture.setFillStyle(marker.fillStyle);
        picture.setFillColor(marker.fillColor);
        if (marker.kind == MarkerKind::Circle)
            picture.circle(r.left + r.width / 2.0, r.top + r.height / 2.0, r.width / 2.0, marker.fillColor);
        else
            picture.box(r.left, r.top, r.left + r.width, r.top + r.height, marker.fillColor);
    }
    picture.setFillStyle(FillStyle::Transparent);
}

void RegionalForm::Form_Load()
{
    setUpType();
    // Positions another regional type left behind would still widen the balance span.
    LoadState& state = m_session.state;
    for (int i = stationCount(); i <= kClearedPositionsThrough; ++i) {
        state.stationx[i] = 0;
        state.stationy[i] = 0;
        state.stationz[i] = 0;
    }

    for (int i = 0; i < stationCount(); ++i)
        showEmpty(i);

    if (type().readsStoredLoadAtSetUp)
        mnuload_Click();
    runSummary();
}

void RegionalForm::location_Click(int index)
{
    if (index < 0 || index >= stationCount())
        return;
    LoadState& state = m_session.state;

    if (location[index].tooltip != kEmptyTooltip) {
        state.loadweight -= state.stationweight[index];
        state.stationweight[index] = 0;
        showEmpty(index);
    } else {
        const auto answer =
            m_session.prompt.inputBox(state.stationname[index] + " weight in lbs",
                                      std::string(kPaxDetailsTitle), std::string(kDefaultWeight));
        if (const float weight = weightAnswer(answer); weight > 0) {
            state.stationweight[index] = weight;
            state.loadweight += weight;
            showLoaded(index);
        }
    }
    runSummary();
}

std::vector<FocusStation> RegionalForm::focusStations() const
{
    const StationRoles& roles = type().roles;
    std::vector<FocusStation> persons;
    std::vector<FocusStation> holds;
    for (int i = 0; i < stationCount(); ++i) {
        const TwipsRect& spot = location[static_cast<std::size_t>(i)].rect;
        (i == roles.hold || i == roles.avionics ? holds : persons)
            .push_back({i, spot.centreX(), spot.centreY(), spot});
    }
    orderInRows(persons, m_session.state);
    orderInRows(holds, m_session.state);
    persons.insert(persons.end(), holds.begin(), holds.end());
    return persons;
}

void RegionalForm::pressStation(const FocusStation& station, int Button)
{
    if (Button == 1)
        location_Click(station.station);
}

void RegionalForm::Form_LostFocus()
{
    if (type().refreshesMainOnLostFocus)
        m_session.refreshMain();
}

void RegionalForm::redraw()
{
    // A hand-edited station file may name more stations than the form has hot spots.
    showStations(std::clamp(m_session.state.cfgstations, 0, stationCount()));
}

void RegionalForm::showPresetLoad()
{
    showStations(stationCount());
}

void RegionalForm::showStations(int count)
{
    for (int i = 0; i < count; ++i) {
        if (m_session.state.stationweight[i] > 0)
            showLoaded(i);
        else
            showEmpty(i);
    }
}

void RegionalForm::showLoaded(int station)
{
    Shape1[station].visible = true;
    location[station].tooltip = occupiedText(station);
}

void RegionalForm::showEmpty(int station)
{
    Shape1[station].visible = false;
    location[station].tooltip = kEmptyTooltip;
}

std::string RegionalForm::occupiedText(int station) const
{
    return occupiedTooltip(m_session.state.stationname[station], m_session.state.stationweight[station]);
}

} // namespace quillet

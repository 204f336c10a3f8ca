#include "RegionalForm.h"

#include "CabinDrawing.h"
#include "cfgfile/inputoutput.h"
#include "platform/Format.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quillet {

std::string occupiedTooltip(std::string_view name, float weight)
{
    return std::string(name) + " " + format0(weight) + " lb.";
}

float weightAnswer(const std::optional<std::string>& answer)
{
    const double value = val(answer.value_or(std::string()));
    // A number a single-precision weight cannot hold, or one too small to stay above 0 in it, is
    // no weight at all.
    if (!(value > 0) || value > std::numeric_limits<float>::max())
        return 0;
    return static_cast<float>(value);
}

RegionalForm::RegionalForm(Session& session, const RegionalType& type)
    : LoadForm(session), m_type(type),
      m_cabin(session.makeCanvas(type.layout.cabin.width, type.layout.cabin.height)),
      m_picture4(session.makeCanvas(type.layout.summary.Picture4.width, type.layout.summary.Picture4.height)),
      m_picture3(session.makeCanvas(type.layout.summary.Picture3.width, type.layout.summary.Picture3.height))
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
    drawCabinView(*m_cabin, m_type);
}

void RegionalForm::Form_Load()
{
    photo = m_session.picture(m_type.layout.photoFile);

    LoadState& state = m_session.state;
    const RegionalLimits& limits = m_type.limits;
    state.maxtakeoff = limits.maxtakeoff;
    state.maxlanding = limits.maxlanding;
    state.emptyweight = limits.emptyweight;
    state.maxfuel = limits.maxfuel;
    state.maxpax = limits.maxpax;
    state.maxzerofuel = limits.maxzerofuel;
    state.cfgstations = limits.cfgstations;
    state.nstations = limits.nstations;
    state.ncargo = limits.ncargo;
    state.nlower = limits.nlower;
    state.ncrew = limits.ncrew;
    state.seats1 = limits.seats1;
    state.seats2 = limits.seats2;
    state.seats3 = limits.seats3;
    for (int i = 0; i < stationCount(); ++i) {
        const StationRow& row = m_type.stations[static_cast<std::size_t>(i)];
        state.stationname[i] = row.name;
        state.stationx[i] = row.x;
        state.stationy[i] = row.y;
        state.stationz[i] = 0;
    }
    // Positions another regional type left behind would still widen the balance span.
    for (int i = stationCount(); i <= kClearedPositionsThrough; ++i) {
        state.stationx[i] = 0;
        state.stationy[i] = 0;
        state.stationz[i] = 0;
    }
    state.loadweight = 0;

    for (int i = 0; i < stationCount(); ++i)
        showEmpty(i);

    if (m_type.readsStoredLoadAtSetUp)
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

void RegionalForm::mnuload_Click()
{
    // The reader tells the user itself what went wrong; the form shows whatever it left.
    static_cast<void>(readcfg(m_session));
    redraw();
    runSummary();
}

void RegionalForm::mnusave_Click()
{
    static_cast<void>(writecfg(m_session));
}

void RegionalForm::mnulight_Click()
{
    placingPreset(m_type.presets.light);
}

void RegionalForm::mnumed_Click()
{
    placingPreset(m_type.presets.medium);
}

void RegionalForm::mnuheav_Click()
{
    heavyPreset(m_type.presets.heavy);
}

void RegionalForm::Form_LostFocus()
{
    if (m_type.refreshesMainOnLostFocus)
        m_session.refreshMain();
}

void RegionalForm::redraw()
{
    // A hand-edited station file may name more stations than the form has hot spots.
    const int shown = std::clamp(m_session.state.cfgstations, 0, stationCount());
    for (int i = 0; i < shown; ++i) {
        if (m_session.state.stationweight[i] > 0)
            showLoaded(i);
        else
            showEmpty(i);
    }
}

void RegionalForm::nopass()
{
    const StationRoles& roles = m_type.roles;
    int count = 0;
    for (int i = roles.firstPassenger; i <= roles.lastPassenger; ++i) {
        if (m_session.state.stationweight[i] > 0)
            ++count;
    }
    m_session.state.npax = count;
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

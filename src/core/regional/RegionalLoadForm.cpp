#include "RegionalLoadForm.h"

#include "RegionalPresets.h"
#include "load/StationInput.h"

#include <algorithm>

namespace quillet {

float weightAnswer(const std::optional<std::string>& answer)
{
    return std::max(typedWeight(answer), 0.0f);
}

RegionalLoadForm::RegionalLoadForm(Session& session, const RegionalType& type)
    : LoadForm(session), m_type(type),
      m_picture4(session.makeCanvas(type.layout.summary.Picture4.width, type.layout.summary.Picture4.height)),
      m_picture3(session.makeCanvas(type.layout.summary.Picture3.width, type.layout.summary.Picture3.height))
{
}

void RegionalLoadForm::setUpType()
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
    state.loadweight = 0;
}

void RegionalLoadForm::mnuload_Click()
{
    // The reader tells the user itself what went wrong; the form shows whatever it left.
    static_cast<void>(read());
    redraw();
    runSummary();
}

void RegionalLoadForm::mnusave_Click()
{
    static_cast<void>(save());
}

void RegionalLoadForm::mnulight_Click()
{
    applyPreset(m_type.presets.light);
}

void RegionalLoadForm::mnumed_Click()
{
    applyPreset(m_type.presets.medium);
}

void RegionalLoadForm::mnuheav_Click()
{
    applyPreset(m_type.presets.heavy);
}

void RegionalLoadForm::nopass()
{
    const StationRoles& roles = m_type.roles;
    int count = 0;
    for (int i = roles.firstPassenger; i <= roles.lastPassenger; ++i) {
        if (m_session.state.stationweight[i] > 0)
            ++count;
    }
    m_session.state.npax = count;
}

template <class Preset>
void RegionalLoadForm::applyPreset(const Preset& preset)
{
    RegionalPresetRun(m_session.state, m_session.random, m_type.roles, stationCount(),
                      m_type.presets.avionicsLoad)
        .run(preset);
    afterLoadChange();
}

void RegionalLoadForm::afterLoadChange()
{
    showPresetLoad();
    runSummary();
}

} // namespace quillet

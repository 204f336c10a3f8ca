#include "RegionalLoadForm.h"

#include "RegionalPresets.h"
#include "cfgfile/inputoutput.h"
#include "platform/Format.h"

#include <limits>

namespace quillet {

float weightAnswer(const std::optional<std::string>& answer)
{
    const double value = val(answer.value_or(std::string()));
    // A number a single-precision weight cannot hold, or one too small to stay above 0 in it, is
    // no weight at all.
    if (!(value > 0) || value > std::numeric_limits<float>::max())
        return 0;
    return static_cast<float>(value);
}

RegionalLoadForm::RegionalLoadForm(Session& session, const RegionalFormData& data)
    : LoadForm(session), m_data(data),
      m_picture4(session.makeCanvas(data.layout.summary.Picture4.width, data.layout.summary.Picture4.height)),
      m_picture3(session.makeCanvas(data.layout.summary.Picture3.width, data.layout.summary.Picture3.height))
{
}

void RegionalLoadForm::setUpLimits()
{
    photo = m_session.picture(m_data.layout.photoFile);

    LoadState& state = m_session.state;
    const RegionalLimits& limits = m_data.limits;
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
}

void RegionalLoadForm::mnuload_Click()
{
    // The reader tells the user itself what went wrong; the form shows whatever it left.
    static_cast<void>(readcfg(m_session));
    redraw();
    runSummary();
}

void RegionalLoadForm::mnusave_Click()
{
    static_cast<void>(writecfg(m_session));
}

void RegionalLoadForm::mnulight_Click()
{
    applyPreset(m_data.presets.light);
}

void RegionalLoadForm::mnumed_Click()
{
    applyPreset(m_data.presets.medium);
}

void RegionalLoadForm::mnuheav_Click()
{
    applyPreset(m_data.presets.heavy);
}

template <class Preset>
void RegionalLoadForm::applyPreset(const Preset& preset)
{
    RegionalPresetRun(m_session.state, m_session.random, m_data.roles, m_data.stations,
                      m_data.presets.avionicsLoad)
        .run(preset);
    showPresetLoad();
    runSummary();
}

} // namespace quillet

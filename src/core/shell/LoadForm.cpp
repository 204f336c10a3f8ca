#include "LoadForm.h"

#include "cfgfile/inputoutput.h"

namespace quillet {

void LoadForm::Form_Unload()
{
    runSummary();
    visible = false;
    m_session.refreshMain();
    m_session.showMain();
}

void LoadForm::applyPlan(const Plan& plan)
{
    LoadState& state = m_session.state;
    for (const auto& [station, weight] : plan.weights) {
        if (station >= 0 && station < kStationCapacity)
            state.stationweight[station] = weight;
    }
    state.loadweight = state.sumOfWeights();
    afterLoadChange();
}

bool LoadForm::Form_QueryUnload()
{
    if (!modified())
        return true;
    const std::string type = m_session.currentType();
    switch (m_session.prompt.askToSave(
        "The load of the " + type + " has not been saved.\n\nSave it before closing?", type)) {
    case SaveChoice::Save:
        mnusave_Click();
        return !modified();
    case SaveChoice::Discard:
        return true;
    case SaveChoice::Cancel:
        break;
    }
    return false;
}

bool LoadForm::undo()
{
    const LoadSnapshot* load = m_history.undo();
    show(load);
    return load != nullptr;
}

bool LoadForm::redo()
{
    const LoadSnapshot* load = m_history.redo();
    show(load);
    return load != nullptr;
}

void LoadForm::show(const LoadSnapshot* load)
{
    if (!load)
        return;
    load->restoreInto(m_session.state);
    afterLoadChange();
}

void LoadForm::keepHistoryFor(const std::string& type)
{
    if (type == m_historyType)
        return;
    m_history.clear();
    m_historyType = type;
}

Status LoadForm::read()
{
    Status status = readcfg(m_session);
    if (status)
        m_history.markStored(LoadSnapshot::of(m_session.state));
    return status;
}

Status LoadForm::save()
{
    Status status = writecfg(m_session);
    if (status) {
        m_history.markStored(LoadSnapshot::of(m_session.state));
        ++m_saves;
        m_savedAt = m_session.clock.now();
    }
    return status;
}

} // namespace quillet

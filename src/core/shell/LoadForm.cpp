#include "LoadForm.h"

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

} // namespace quillet

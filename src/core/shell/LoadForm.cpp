#include "LoadForm.h"

#include "cfgfile/inputoutput.h"
#include "platform/Format.h"

#include <algorithm>

namespace quillet {

namespace {

// Seats of one row lie within a foot of each other along the fuselage.
constexpr float kRowDepth = 1;

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace

void orderInRows(std::vector<FocusStation>& persons, const LoadState& state)
{
    const auto x = [&](const FocusStation& s) { return state.stationx[static_cast<std::size_t>(s.station)]; };
    const auto y = [&](const FocusStation& s) { return state.stationy[static_cast<std::size_t>(s.station)]; };
    std::stable_sort(persons.begin(), persons.end(),
                     [&](const FocusStation& a, const FocusStation& b) { return x(a) > x(b); });
    for (auto row = persons.begin(); row != persons.end();) {
        const float front = x(*row);
        const auto end =
            std::find_if(row, persons.end(), [&](const FocusStation& s) { return x(s) < front - kRowDepth; });
        std::stable_sort(row, end, [&](const FocusStation& a, const FocusStation& b) { return y(a) < y(b); });
        row = end;
    }
}

std::string LoadForm::spokenStation(int station) const
{
    if (station < 0 || station >= kStationCapacity)
        return {};
    const LoadState& state = m_session.state;
    const auto i = static_cast<std::size_t>(station);
    // A hand-edited station file may leave a name empty.
    std::string text =
        state.stationname[i].empty() ? "Station " + std::to_string(station + 1) : state.stationname[i];
    if (state.stationweight[i] == 0)
        return text + ", empty";
    text += ", " + format0(state.stationweight[i]) + " lb";
    // Only a loaded station shows its overload.
    if (state.stationweight[i] > 0 && !state.stationmsg[i].empty())
        text += ", " + std::string(trimmed(state.stationmsg[i]));
    return text;
}

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

#pragma once

#include "load/Planner.h"

#include <QDialog>
#include <optional>

class QComboBox;
class QDialogButtonBox;
class QDoubleSpinBox;
class QLabel;
class QSpinBox;

namespace quillet {

// "Load to Target": the passengers, the cargo or the zero-fuel weight, and where the centre of
// gravity should sit. Shows the planned result while the user types; OK is only enabled for a load
// that can be planned, and plan() then holds it.
class TargetDialog : public QDialog {
    Q_OBJECT
public:
    TargetDialog(const LoadState& state, StationGroups groups, QWidget* parent = nullptr);

    // The request as the fields stand.
    PlanRequest request() const;
    // The plan of the current request, or nothing when it is refused.
    const std::optional<Plan>& plan() const { return m_plan; }

private:
    void replan();

    const LoadState& m_state;
    StationGroups m_groups;
    PlanBounds m_bounds;
    std::optional<Plan> m_plan;

    QSpinBox* m_passengers = nullptr; // absent on a type without passenger seats
    QSpinBox* m_passengerWeight = nullptr;
    QComboBox* m_loadBy = nullptr;
    QSpinBox* m_cargo = nullptr;
    QSpinBox* m_zeroFuel = nullptr;
    QDoubleSpinBox* m_centre = nullptr;
    QLabel* m_preview = nullptr;
    QDialogButtonBox* m_buttons = nullptr;
};

} // namespace quillet

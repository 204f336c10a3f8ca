#pragma once

#include "RegionalLoadWindow.h"

#include <vector>

class QLabel;

namespace quillet {

class Application;
class MarkerWidget;
class RegionalForm;

// The window of a seat-label load form (Beech 1900D, EMB-120, DHC-8-300): the cabin top view with a
// hot spot and a marker on every station, around it what every regional window shows.
class RegionalWindow : public RegionalLoadWindow {
    Q_OBJECT
public:
    RegionalWindow(RegionalForm& form, Application& app);

    void sync() override;

protected:
    void focusOutEvent(QFocusEvent* event) override;

private:
    RegionalForm& m_regional;
    std::vector<QLabel*> m_hotSpots;
    std::vector<MarkerWidget*> m_markers;
};

} // namespace quillet

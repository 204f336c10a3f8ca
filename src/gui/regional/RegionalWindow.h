#pragma once

#include "shell/LoadFormWindow.h"
#include "shell/SummaryPanel.h"

#include <QString>

#include <memory>
#include <vector>

class QLabel;

namespace quillet {

class Application;
class MarkerWidget;
class PictureBox;
class RegionalForm;

// The window of a seat-label load form (Beech 1900D, EMB-120, DHC-8-300): the cabin top view with a
// hot spot and a marker on every station, the photograph, the weight summary and the balance.
class RegionalWindow : public LoadFormWindow {
    Q_OBJECT
public:
    RegionalWindow(RegionalForm& form, Application& app);

    void sync() override;

protected:
    void focusOutEvent(QFocusEvent* event) override;

private:
    void buildMenus();

    RegionalForm& m_regional;
    QWidget* m_client = nullptr;
    PictureBox* m_photo = nullptr;
    std::vector<QLabel*> m_hotSpots;
    std::vector<MarkerWidget*> m_markers;
    std::unique_ptr<SummaryPanel> m_summary;
};

// Adds the windows of the forms "Beech", "Emb120" and "DHC8".
void registerRegionalWindows(Application& app);

} // namespace quillet

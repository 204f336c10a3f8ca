#pragma once

#include "shell/LoadFormWindow.h"

#include <QString>
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
    QLabel* label(const char* name, const struct TwipsRect& rect);

    RegionalForm& m_regional;
    QWidget* m_client = nullptr;
    PictureBox* m_photo = nullptr;
    QString m_shownPhoto;
    std::vector<QLabel*> m_hotSpots;
    std::vector<MarkerWidget*> m_markers;
    QLabel* m_lblbow = nullptr;
    QLabel* m_lblpax = nullptr;
    QLabel* m_lblmf = nullptr;
    QLabel* m_lbltot = nullptr;
    QLabel* m_warning = nullptr;
    QLabel* m_lblpass = nullptr;
    QLabel* m_lblmaxtow = nullptr;
    QLabel* m_lblmaxfuel = nullptr;
};

// Adds the windows of the forms "Beech", "Emb120" and "DHC8".
void registerRegionalWindows(Application& app);

} // namespace quillet

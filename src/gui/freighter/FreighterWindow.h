#pragma once

#include "shell/LoadFormWindow.h"
#include "shell/SummaryPanel.h"

#include <memory>

namespace quillet {

class Application;
class DC10F;
class PictureBox;

// The window of the DC-10-30F load form: the decks drawn by the form, which take the mouse, the
// aircraft's picture, the weight summary and the balance.
class FreighterWindow : public LoadFormWindow {
    Q_OBJECT
public:
    FreighterWindow(DC10F& form, Application& app);

    void sync() override;

private:
    void buildMenus();

    DC10F& m_dc10f;
    PictureBox* m_decks = nullptr;
    PictureBox* m_photo = nullptr;
    std::unique_ptr<SummaryPanel> m_summary;
};

// Adds the window of the form "DC10F".
void registerFreighterWindows(Application& app);

} // namespace quillet

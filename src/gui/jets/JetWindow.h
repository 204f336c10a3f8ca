#pragma once

#include "shell/LoadFormWindow.h"
#include "shell/SummaryPanel.h"

#include <memory>

namespace quillet {

class Application;
class Boeing;
class PictureBox;

// The window of the jet load form: the decks drawn by the form, which take the mouse, the aircraft's
// picture, the weight summary and the balance.
class JetWindow : public LoadFormWindow {
    Q_OBJECT
public:
    JetWindow(Boeing& form, Application& app);

    void sync() override;

private:
    void buildMenus();

    Boeing& m_boeing;
    PictureBox* m_decks = nullptr;
    PictureBox* m_photo = nullptr;
    std::unique_ptr<SummaryPanel> m_summary;
};

// Adds the window of the form "Boeing".
void registerJetWindows(Application& app);

} // namespace quillet

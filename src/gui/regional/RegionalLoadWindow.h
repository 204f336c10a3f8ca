#pragma once

#include "shell/LoadFormWindow.h"
#include "shell/SummaryPanel.h"

#include <QString>

#include <memory>
#include <string_view>

namespace quillet {

class Application;
class PictureBox;
class RegionalLoadForm;

// What every regional load window shows around its cabin: the photograph, the summary panel and the
// File and preset menus, all placed where the type's layout says. A derived window adds the cabin.
class RegionalLoadWindow : public LoadFormWindow {
    Q_OBJECT
public:
    RegionalLoadWindow(RegionalLoadForm& form, Application& app);

    void sync() override;

protected:
    // A picture box on the client area, named for the accessibility bus after what it shows.
    PictureBox* pictureBox(std::string_view name, const TwipsRect& rect, const QString& shows);

private:
    void buildMenus();

    RegionalLoadForm& m_regionalForm;
    QWidget* m_client = nullptr;
    PictureBox* m_photo = nullptr;
    std::unique_ptr<SummaryPanel> m_summary;
};

} // namespace quillet

#include "FreighterWindow.h"

#include "freighter/DC10F.h"
#include "freighter/DC10FLayout.h"
#include "platform/PictureBox.h"
#include "platform/QtCanvas.h"
#include "platform/Twips.h"
#include "platform/Widgets.h"
#include "shell/Application.h"

#include <QMenuBar>

namespace quillet {

FreighterWindow::FreighterWindow(DC10F& form, Application& app) : LoadFormWindow(form, app), m_dc10f(form)
{
    setObjectName(QStringLiteral("DC10F"));
    buildMenus();

    auto* client = new QWidget(this);
    client->setFixedSize(twipsRect(0, 0, dc10f::kClientWidth, dc10f::kClientHeight).size());
    setCentralWidget(client);

    m_decks = new PictureBox(client);
    m_decks->setObjectName(QStringLiteral("Picture1"));
    m_decks->setAccessibleName(QStringLiteral("Decks: click a container or crew seat to load or empty it"));
    place(m_decks, dc10f::kPicture1);
    m_decks->setCanvas(dynamic_cast<QtCanvas*>(&form.Picture1()));
    m_decks->onMouseDown = [this](Qt::MouseButton button, double x, double y) {
        m_app.handle([this, button, x, y] { m_dc10f.Picture1_MouseDown(buttonNumber(button), 0, x, y); });
    };
    m_decks->onMouseMove = [this](Qt::MouseButtons, double x, double y) {
        m_app.handle([this, x, y] { m_dc10f.Picture1_MouseMove(0, 0, x, y); });
    };

    m_photo = new PictureBox(client);
    m_photo->setObjectName(QStringLiteral("Picture2"));
    m_photo->setAccessibleName(QStringLiteral("Aircraft picture"));
    place(m_photo, dc10f::kPicture2);

    m_summary = std::make_unique<SummaryPanel>(client, dc10f::kSummary, form);
    sync();
}

void FreighterWindow::buildMenus()
{
    const auto item = [this](QMenu* menu, const MenuItem& entry, void (DC10F::*handler)()) {
        addMenuItem(menu, entry,
                    [this, handler] { m_app.handle([this, handler] { (m_dc10f.*handler)(); }); });
    };
    QMenu* file = menuBar()->addMenu(latin(dc10f::kMnufile.caption));
    file->setObjectName(latin(dc10f::kMnufile.name));
    item(file, dc10f::kMnuload, &DC10F::mnuload_Click);
    item(file, dc10f::kMnusave, &DC10F::mnusave_Click);
    QMenu* presets = menuBar()->addMenu(latin(dc10f::kMnuauto.caption));
    presets->setObjectName(latin(dc10f::kMnuauto.name));
    item(presets, dc10f::kMnulight, &DC10F::mnulight_Click);
    item(presets, dc10f::kMnumed, &DC10F::mnumed_Click);
    item(presets, dc10f::kMnuheav, &DC10F::mnuheav_Click);
    addTargetItem(presets);
    addSheetItem(file);
}

void FreighterWindow::sync()
{
    setWindowTitle(toQString(m_dc10f.caption));
    showPhoto(m_photo, m_dc10f.photo);
    m_summary->sync(m_dc10f.labels);
}

void registerFreighterWindows(Application& app)
{
    app.addWindow("DC10F", [](LoadForm& form, Application& application) -> LoadFormWindow* {
        return new FreighterWindow(static_cast<DC10F&>(form), application);
    });
}

} // namespace quillet

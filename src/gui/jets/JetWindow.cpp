#include "JetWindow.h"

#include "jets/Boeing.h"
#include "jets/BoeingLayout.h"
#include "platform/PictureBox.h"
#include "platform/QtCanvas.h"
#include "platform/Twips.h"
#include "platform/Widgets.h"
#include "shell/Application.h"

#include <QMenuBar>

namespace quillet {

JetWindow::JetWindow(Boeing& form, Application& app) : LoadFormWindow(form, app), m_boeing(form)
{
    setObjectName(QStringLiteral("Boeing"));
    buildMenus();

    auto* client = new QWidget(this);
    client->setFixedSize(twipsRect(0, 0, boeing::kClientWidth, boeing::kClientHeight).size());
    setCentralWidget(client);

    m_decks = new PictureBox(client);
    m_decks->setObjectName(QStringLiteral("Picture1"));
    m_decks->setAccessibleName(QStringLiteral("Decks: click a seat or hold to load or empty it"));
    place(m_decks, boeing::kPicture1);
    m_decks->setCanvas(dynamic_cast<QtCanvas*>(&form.Picture1()));
    m_decks->onMouseDown = [this](Qt::MouseButton button, double x, double y) {
        m_app.handle([this, button, x, y] { m_boeing.Picture1_MouseDown(buttonNumber(button), 0, x, y); });
    };
    m_decks->onMouseMove = [this](Qt::MouseButtons, double x, double y) {
        m_app.handle([this, x, y] { m_boeing.Picture1_MouseMove(0, 0, x, y); });
    };

    m_photo = new PictureBox(client);
    m_photo->setObjectName(QStringLiteral("Picture2"));
    m_photo->setAccessibleName(QStringLiteral("Aircraft picture"));
    place(m_photo, boeing::kPicture2);

    m_summary = std::make_unique<SummaryPanel>(client, boeing::kSummary, form);
    sync();
}

void JetWindow::buildMenus()
{
    const auto item = [this](QMenu* menu, const MenuItem& entry, void (Boeing::*handler)()) {
        addMenuItem(menu, entry,
                    [this, handler] { m_app.handle([this, handler] { (m_boeing.*handler)(); }); });
    };
    QMenu* file = menuBar()->addMenu(latin(boeing::kMnufile.caption));
    file->setObjectName(latin(boeing::kMnufile.name));
    item(file, boeing::kMnuload, &Boeing::mnuload_Click);
    item(file, boeing::kMnusave, &Boeing::mnusave_Click);
    QMenu* presets = menuBar()->addMenu(latin(boeing::kMnuauto.caption));
    presets->setObjectName(latin(boeing::kMnuauto.name));
    item(presets, boeing::kMnuempty, &Boeing::mnuempty_Click);
    presets->addSeparator()->setObjectName(latin(boeing::kMnuline.name));
    item(presets, boeing::kMnulight, &Boeing::mnulight_Click);
    item(presets, boeing::kMnumed, &Boeing::mnumed_Click);
    item(presets, boeing::kMnuheav, &Boeing::mnuheav_Click);
    addTargetItem(presets);
    addSheetItem(file);
}

void JetWindow::sync()
{
    setWindowTitle(toQString(m_boeing.caption));
    showPhoto(m_photo, m_boeing.photo);
    m_summary->sync(m_boeing.labels);
}

void registerJetWindows(Application& app)
{
    app.addWindow("Boeing", [](LoadForm& form, Application& application) -> LoadFormWindow* {
        return new JetWindow(static_cast<Boeing&>(form), application);
    });
}

} // namespace quillet

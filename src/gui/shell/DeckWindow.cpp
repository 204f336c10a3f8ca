#include "DeckWindow.h"

#include "Application.h"
#include "platform/PictureBox.h"
#include "platform/QtCanvas.h"
#include "platform/Twips.h"
#include "shell/DeckForm.h"

#include <QMenuBar>

namespace quillet {

DeckWindow::DeckWindow(DeckForm& form, Application& app, const DeckWindowShape& shape)
    : LoadFormWindow(form, app), m_deckForm(form)
{
    setObjectName(latin(shape.formName));
    // The File menu comes first and the presets last on both forms.
    QMenu* file = nullptr;
    QMenu* presets = nullptr;
    for (const DeckWindowShape::Menu& entry : shape.menus) {
        QMenu* menu = menuBar()->addMenu(latin(entry.menu.caption));
        file = file ? file : menu;
        presets = menu;
        menu->setObjectName(latin(entry.menu.name));
        for (const DeckWindowShape::Item& item : entry.items) {
            if (!item.handler)
                menu->addSeparator()->setObjectName(latin(item.item.name));
            else
                addMenuItem(menu, item.item, [this, handler = item.handler] { m_app.handle(handler); });
        }
    }

    if (presets)
        addTargetItem(presets);
    if (file)
        addSheetItem(file);

    auto* client = new QWidget(this);
    client->setFixedSize(twipsRect(0, 0, shape.layout.clientWidth, shape.layout.clientHeight).size());
    setCentralWidget(client);

    m_decks = new PictureBox(client);
    m_decks->setObjectName(QStringLiteral("Picture1"));
    m_decks->setAccessibleName(latin(shape.decksDescription));
    place(m_decks, shape.layout.Picture1);
    m_decks->setCanvas(dynamic_cast<QtCanvas*>(&form.Picture1()));
    m_decks->onMouseDown = [this](Qt::MouseButton button, double x, double y) {
        m_app.handle([this, button, x, y] { m_deckForm.Picture1_MouseDown(buttonNumber(button), 0, x, y); });
    };
    m_decks->onMouseMove = [this](Qt::MouseButtons, double x, double y) {
        m_app.handle([this, x, y] { m_deckForm.Picture1_MouseMove(0, 0, x, y); });
    };

    m_photo = new PictureBox(client);
    m_photo->setObjectName(QStringLiteral("Picture2"));
    m_photo->setAccessibleName(QStringLiteral("Aircraft picture"));
    place(m_photo, shape.layout.Picture2);

    m_summary = std::make_unique<SummaryPanel>(client, shape.layout.summary, form);
    sync();
}

void DeckWindow::sync()
{
    setWindowTitle(toQString(m_deckForm.caption));
    showPhoto(m_photo, m_deckForm.photo);
    m_summary->sync(m_deckForm.labels);
}

} // namespace quillet

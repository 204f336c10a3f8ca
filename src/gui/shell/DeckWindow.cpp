#include "DeckWindow.h"

#include "Application.h"
#include "platform/PictureBox.h"
#include "platform/QtCanvas.h"
#include "platform/Twips.h"
#include "shell/DeckForm.h"

namespace quillet {

DeckWindow::DeckWindow(DeckForm& form, Application& app, const DeckWindowShape& shape)
    : LoadFormWindow(form, app), m_deckForm(form)
{
    setObjectName(latin(shape.formName));
    buildMenus(shape.menus);

    auto* client = new QWidget(this);
    client->setFixedSize(twipsRect(0, 0, shape.layout.clientWidth, shape.layout.clientHeight).size());
    setCentralWidget(client);

    m_decks = new PictureBox(client);
    m_decks->setObjectName(QStringLiteral("Picture1"));
    m_decks->setAccessibleName(latin(shape.decksDescription));
    place(m_decks, shape.layout.Picture1);
    m_decks->setCanvas(dynamic_cast<QtCanvas*>(&form.Picture1()));
    m_decks->onMouseDown = [this](Qt::MouseButton button, double x, double y) {
        forward("Click",
                [this, button, x, y] { m_deckForm.Picture1_MouseDown(buttonNumber(button), 0, x, y); });
    };
    m_decks->onMouseMove = [this](Qt::MouseButtons, double x, double y) {
        m_app.handle([this, x, y] { m_deckForm.Picture1_MouseMove(0, 0, x, y); });
    };
    loadByKeyboard(m_decks);

    m_photo = new PictureBox(client);
    m_photo->setObjectName(QStringLiteral("Picture2"));
    m_photo->setAccessibleName(QStringLiteral("Aircraft picture"));
    place(m_photo, shape.layout.Picture2);

    m_summary = std::make_unique<SummaryPanel>(client, shape.layout.summary, form);
    sync();
}

void DeckWindow::sync()
{
    showTitle(toQString(m_deckForm.caption));
    showPhoto(m_photo, m_deckForm.photo);
    m_summary->sync(m_deckForm.labels);
}

} // namespace quillet

#include "RegionalLoadWindow.h"

#include "platform/Accessibility.h"
#include "platform/PictureBox.h"
#include "platform/Twips.h"
#include "regional/RegionalLoadForm.h"
#include "shell/Application.h"

#include <QMenuBar>

namespace quillet {

RegionalLoadWindow::RegionalLoadWindow(RegionalLoadForm& form, Application& app)
    : LoadFormWindow(form, app), m_regionalForm(form)
{
    const RegionalType& type = form.type();
    const RegionalLayout& layout = type.layout;
    setObjectName(latin(type.form));
    setWindowTitle(latin(type.caption));
    setAccessibleName(latin(type.caption));
    buildMenus();

    m_client = new QWidget(this);
    m_client->setFixedSize(twipsRect(0, 0, layout.clientWidth, layout.clientHeight).size());
    setCentralWidget(m_client);

    m_photo = pictureBox(layout.photoName, layout.photo, QStringLiteral("Photograph of the ") + latin(type.type));
    m_summary = std::make_unique<SummaryPanel>(m_client, layout.summary, form);
}

PictureBox* RegionalLoadWindow::pictureBox(std::string_view name, const TwipsRect& rect, const QString& shows)
{
    auto* box = new PictureBox(m_client);
    box->setObjectName(latin(name));
    nameForScreenReaders(box, shows);
    place(box, rect);
    return box;
}

void RegionalLoadWindow::buildMenus()
{
    const RegionalMenus& menus = m_regionalForm.type().menus;
    const auto item = [this](QMenu* menu, const MenuItem& entry, void (RegionalLoadForm::*handler)()) {
        addMenuItem(menu, entry,
                    [this, handler] { m_app.handle([this, handler] { (m_regionalForm.*handler)(); }); });
    };
    QMenu* file = menuBar()->addMenu(latin(menus.mnufile.caption));
    file->setObjectName(latin(menus.mnufile.name));
    item(file, menus.mnuload, &RegionalLoadForm::mnuload_Click);
    item(file, menus.mnusave, &RegionalLoadForm::mnusave_Click);
    QMenu* presets = menuBar()->addMenu(latin(menus.mnuauto.caption));
    presets->setObjectName(latin(menus.mnuauto.name));
    item(presets, menus.mnulight, &RegionalLoadForm::mnulight_Click);
    item(presets, menus.mnumed, &RegionalLoadForm::mnumed_Click);
    item(presets, menus.mnuheav, &RegionalLoadForm::mnuheav_Click);
    addTargetItem(presets);
    addSheetItem(file);
}

void RegionalLoadWindow::sync()
{
    showPhoto(m_photo, m_regionalForm.photo);
    m_summary->sync(m_regionalForm.labels);
}

} // namespace quillet

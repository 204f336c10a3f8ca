#include "RegionalLoadWindow.h"

#include "platform/Accessibility.h"
#include "platform/PictureBox.h"
#include "platform/Twips.h"
#include "regional/RegionalLoadForm.h"
#include "shell/Application.h"

namespace quillet {

RegionalLoadWindow::RegionalLoadWindow(RegionalLoadForm& form, Application& app)
    : LoadFormWindow(form, app), m_regionalForm(form)
{
    const RegionalType& type = form.type();
    const RegionalLayout& layout = type.layout;
    setObjectName(latin(type.form));
    setAccessibleName(latin(type.caption));
    buildMenus();

    m_client = new QWidget(this);
    m_client->setFixedSize(twipsRect(0, 0, layout.clientWidth, layout.clientHeight).size());
    setCentralWidget(m_client);

    m_photo =
        pictureBox(layout.photoName, layout.photo, QStringLiteral("Photograph of the ") + latin(type.type));
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
    RegionalLoadForm& form = m_regionalForm;
    LoadFormWindow::buildMenus({{menus.mnufile,
                                 {{menus.mnuload, [&form] { form.mnuload_Click(); }},
                                  {menus.mnusave, [&form] { form.mnusave_Click(); }}}},
                                {menus.mnuauto,
                                 {{menus.mnulight, [&form] { form.mnulight_Click(); }},
                                  {menus.mnumed, [&form] { form.mnumed_Click(); }},
                                  {menus.mnuheav, [&form] { form.mnuheav_Click(); }}}}});
}

void RegionalLoadWindow::sync()
{
    showTitle(latin(m_regionalForm.type().caption));
    showPhoto(m_photo, m_regionalForm.photo);
    m_summary->sync(m_regionalForm.labels);
}

} // namespace quillet

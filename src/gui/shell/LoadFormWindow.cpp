#include "LoadFormWindow.h"

#include "Application.h"
#include "platform/PictureBox.h"
#include "platform/StationFocus.h"
#include "platform/Widgets.h"
#include "shell/LoadForm.h"

#include <QCloseEvent>

namespace quillet {

LoadFormWindow::LoadFormWindow(LoadForm& form, Application& app) : m_form(form), m_app(app) {}

void LoadFormWindow::closeEvent(QCloseEvent* event)
{
    // Closing is never refused; the form stays made for the rest of the run.
    if (m_form.visible)
        m_app.handle([this] { m_form.Form_Unload(); });
    event->accept();
}

void LoadFormWindow::loadByKeyboard(PictureBox* picture)
{
    new StationFocus(picture, m_form,
                     [this](const std::function<void()>& handler) { m_app.handle(handler); });
}

void LoadFormWindow::showPhoto(PictureBox* box, const std::filesystem::path& file)
{
    const QString shown = QString::fromStdString(file.string());
    if (shown == m_shownPhoto)
        return;
    m_shownPhoto = shown;
    box->setPicture(loadPicture(file, m_app.session().messages));
}

} // namespace quillet

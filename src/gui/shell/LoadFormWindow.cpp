#include "LoadFormWindow.h"

#include "Application.h"
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

} // namespace quillet

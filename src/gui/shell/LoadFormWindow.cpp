#include "LoadFormWindow.h"

#include "Application.h"
#include "TargetDialog.h"
#include "platform/PictureBox.h"
#include "platform/Widgets.h"
#include "shell/LoadForm.h"

#include <QAction>
#include <QCloseEvent>
#include <QMenu>

namespace quillet {

LoadFormWindow::LoadFormWindow(LoadForm& form, Application& app) : m_form(form), m_app(app) {}

void LoadFormWindow::closeEvent(QCloseEvent* event)
{
    // Closing is never refused; the form stays made for the rest of the run.
    if (m_form.visible)
        m_app.handle([this] { m_form.Form_Unload(); });
    event->accept();
}

void LoadFormWindow::showEvent(QShowEvent* event)
{
    fitOnScreen(this);
    QMainWindow::showEvent(event);
}

void LoadFormWindow::showPhoto(PictureBox* box, const std::filesystem::path& file)
{
    const QString shown = QString::fromStdString(file.string());
    if (shown == m_shownPhoto)
        return;
    m_shownPhoto = shown;
    box->setPicture(loadPicture(file, m_app.session().messages));
}

void LoadFormWindow::addTargetItem(QMenu* presets)
{
    presets->addSeparator()->setObjectName(QStringLiteral("mnutargetline"));
    QAction* action = presets->addAction(QStringLiteral("Load to &Target..."));
    action->setObjectName(QStringLiteral("mnutarget"));
    action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_T));
    connect(action, &QAction::triggered, this, &LoadFormWindow::loadToTarget);
}

void LoadFormWindow::loadToTarget()
{
    // Window-modal and not blocking: the rest of the program keeps running its events meanwhile.
    auto* dialog = new TargetDialog(m_app.session().state, m_form.stationGroups(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::accepted, this, [this, dialog] {
        if (const std::optional<Plan>& plan = dialog->plan())
            m_app.handle([this, applied = *plan] { m_form.applyPlan(applied); });
    });
    dialog->open();
}

} // namespace quillet

#include "LoadFormWindow.h"

#include "Application.h"
#include "LoadSheetPrint.h"
#include "TargetDialog.h"
#include "load/LoadSheet.h"
#include "platform/PictureBox.h"
#include "platform/Widgets.h"
#include "shell/LoadForm.h"

#include <QAction>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QToolBar>

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

void LoadFormWindow::addSheetItem(QMenu* file)
{
    file->addSeparator()->setObjectName(QStringLiteral("mnusheetline"));
    QAction* action = file->addAction(QStringLiteral("Load &Sheet..."));
    action->setObjectName(QStringLiteral("mnusheet"));
    action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_P));
    connect(action, &QAction::triggered, this, &LoadFormWindow::showLoadSheet);
}

LoadSheet LoadFormWindow::loadSheet() const
{
    const Session& session = m_app.session();
    return makeLoadSheet(session.state, m_form.stationGroups(), session.currentType(), session.clock.today());
}

void LoadFormWindow::showLoadSheet()
{
    auto* printer = new QPrinter(QPrinter::HighResolution);
    auto* preview = new QPrintPreviewDialog(printer, this);
    preview->setObjectName(QStringLiteral("LoadSheetPreview"));
    preview->setWindowTitle(QStringLiteral("Load Sheet"));
    preview->setAttribute(Qt::WA_DeleteOnClose);
    // Room for the whole tool bar, "Save as PDF..." included, and a readable page.
    preview->resize(860, 900);
    connect(preview, &QObject::destroyed, this, [printer] { delete printer; });
    // The sheet is laid out afresh for every page set-up the preview asks for.
    connect(preview, &QPrintPreviewDialog::paintRequested, this,
            [this](QPrinter* device) { paintLoadSheet(*device, loadSheet(), m_form); });
    if (auto* tools = preview->findChild<QToolBar*>()) {
        tools->addSeparator();
        QAction* save = tools->addAction(QStringLiteral("Save as PDF..."));
        save->setObjectName(QStringLiteral("mnusheetpdf"));
        connect(save, &QAction::triggered, this, [this, preview] { saveLoadSheet(preview); });
    }
    preview->open();
}

void LoadFormWindow::saveLoadSheet(QWidget* parent)
{
    const LoadSheet sheet = loadSheet();
    const QString offered = QDir(QDir::homePath()).filePath(QString::fromStdString(sheet.fileName));
    const QString file = QFileDialog::getSaveFileName(parent, QStringLiteral("Save as PDF"), offered,
                                                      QStringLiteral("PDF files (*.pdf)"));
    if (file.isEmpty())
        return;
    if (!saveLoadSheetPdf(file, sheet, m_form))
        QMessageBox::warning(parent, QStringLiteral("Save as PDF"),
                             QStringLiteral("The load sheet could not be written to %1.").arg(file));
}

} // namespace quillet

#include "LoadFormWindow.h"

#include "Application.h"
#include "LoadSheetPrint.h"
#include "SummaryPanel.h"
#include "TargetDialog.h"
#include "load/LoadSheet.h"
#include "platform/PictureBox.h"
#include "platform/StationFocus.h"
#include "platform/Twips.h"
#include "platform/Widgets.h"
#include "shell/LoadForm.h"

#include <QAction>
#include <QCloseEvent>
#include <QDir>
#include <QFileDialog>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QShortcut>
#include <QToolBar>

namespace quillet {

namespace {

// A step's name in a menu caption, where "&" would mark a shortcut letter.
QString menuText(const QString& caption, const std::string& step)
{
    if (step.empty())
        return caption;
    return caption + ' ' + toQString(step).replace('&', QStringLiteral("&&"));
}

} // namespace

LoadFormWindow::LoadFormWindow(LoadForm& form, Application& app) : m_form(form), m_app(app)
{
    m_shownSaves = form.saves();
    m_savedNote.setSingleShot(true);
    m_savedNote.setInterval(kSavedNoteMilliseconds);
    connect(&m_savedNote, &QTimer::timeout, this, [this] { sync(); });

    // Escape and Ctrl+W close the form as its close button does.
    for (const QKeySequence& keys : {QKeySequence(Qt::Key_Escape), QKeySequence(Qt::CTRL | Qt::Key_W)})
        connect(new QShortcut(keys, this), &QShortcut::activated, this, &QWidget::close);
}

void LoadFormWindow::closeEvent(QCloseEvent* event)
{
    // Closing can be refused only by the user, when asked about an unsaved load; the form stays
    // made for the rest of the run.
    bool closes = true;
    if (m_form.visible) {
        m_app.handle([this, &closes] {
            closes = m_form.Form_QueryUnload();
            if (closes)
                m_form.Form_Unload();
        });
    }
    if (closes)
        event->accept();
    else
        event->ignore();
}

void LoadFormWindow::showEvent(QShowEvent* event)
{
    fitOnScreen(this);
    QMainWindow::showEvent(event);
}

void LoadFormWindow::loadByKeyboard(PictureBox* picture)
{
    // A press is a click: one step of the undo history like any other.
    new StationFocus(picture, m_form,
                     [this](const std::function<void()>& handler) { forward("Click", handler); });
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
            forward("Load to Target", [this, applied = *plan] { m_form.applyPlan(applied); });
    });
    dialog->open();
}

void LoadFormWindow::buildMenus(const std::vector<Menu>& menus)
{
    QMenu* file = nullptr;
    for (const Menu& entry : menus) {
        QMenu* menu = menuBar()->addMenu(latin(entry.menu.caption));
        menu->setObjectName(latin(entry.menu.name));
        if (!file)
            file = menu;
        for (const MenuEntry& item : entry.items) {
            if (!item.handler) {
                menu->addSeparator()->setObjectName(latin(item.item.name));
                continue;
            }
            QString step = latin(item.item.caption).remove('&');
            QAction* action = addMenuItem(menu, item.item, [this, step, handler = item.handler] {
                forward(step.toStdString(), handler);
            });
            if (item.item.name == "mnusave")
                action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_S));
        }
        // The second menu holds the presets; planning a load is the last of them.
        if (menu != file && &entry == &menus[1])
            addTargetItem(menu);
    }
    if (!file)
        return;
    file->addSeparator();
    m_undo = addMenuItem(file, {"mnuundo", "&Undo"}, [this] { m_app.handle([this] { m_form.undo(); }); });
    m_undo->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
    m_redo = addMenuItem(file, {"mnuredo", "&Redo"}, [this] { m_app.handle([this] { m_form.redo(); }); });
    m_redo->setShortcuts(
        {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)});
    addSheetItem(file);
}

void LoadFormWindow::forward(std::string_view name, std::function<void()> handler)
{
    m_app.handle(
        [this, name = std::string(name), handler = std::move(handler)] { m_form.step(name, handler); });
}

void LoadFormWindow::showTitle(const QString& caption)
{
    if (m_form.saves() != m_shownSaves) {
        m_shownSaves = m_form.saves();
        m_savedNote.start();
    }
    QString title = caption + QStringLiteral("[*]");
    if (m_savedNote.isActive())
        title += QStringLiteral(" - saved at ") + toQString(formatTime(m_form.savedAt()));
    setWindowTitle(title);
    setWindowModified(m_form.visible && m_form.modified());

    if (m_undo) {
        const std::string undo = m_form.undoName();
        const std::string redo = m_form.redoName();
        m_undo->setText(menuText(QStringLiteral("&Undo"), undo));
        m_undo->setEnabled(!undo.empty());
        m_redo->setText(menuText(QStringLiteral("&Redo"), redo));
        m_redo->setEnabled(!redo.empty());
    }
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

#include "Application.h"

#include "ConfigDialog.h"
#include "LoadFormWindow.h"
#include "MainWindow.h"
#include "TextWindow.h"
#include "freighter/FreighterForms.h"
#include "freighter/FreighterWindows.h"
#include "jets/JetForms.h"
#include "jets/JetWindows.h"
#include "platform/QtCanvas.h"
#include "platform/QtPrompt.h"
#include "platform/Twips.h"
#include "platform/Widgets.h"
#include "regional/RegionalForms.h"
#include "regional/RegionalWindows.h"
#include "shell/AboutText.h"

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>

namespace quillet {

Application::Application(std::filesystem::path programFolder, Prompt* prompt)
{
    if (!prompt) {
        m_ownPrompt = std::make_unique<QtPrompt>();
        prompt = m_ownPrompt.get();
    }
    m_session = std::make_unique<Session>(*prompt, m_random, m_clock, std::move(programFolder));
    // Drawn at the density of the sharpest screen, so that decks stay sharp on a high-density one.
    m_session->makeCanvas = [](double width, double height) {
        return std::make_unique<QtCanvas>(width, height, Rgb{255, 255, 255}, qApp->devicePixelRatio());
    };
    m_form1 = std::make_unique<Form1>(*m_session, m_forms);
    registerRegionalForms(m_forms);
    registerRegionalWindows(*this);
    registerJetForms(m_forms);
    registerJetWindows(*this);
    registerFreighterForms(m_forms);
    registerFreighterWindows(*this);

    showMessage = [this](const std::string& text) {
        QMessageBox::warning(messageParent(), QStringLiteral("Quillet"), QString::fromStdString(text));
    };
    chooseFolder = [](QWidget* parent, const QString& caption, const QString& start) {
        return QFileDialog::getExistingDirectory(parent, caption, start);
    };

    m_main = std::make_unique<MainWindow>(*this);
    m_config = new ConfigDialog(*this, m_main.get());
    m_about =
        new TextWindow(QString::fromLatin1(kVersionCaption), QString::fromLatin1(kVersionText), m_main.get());
    m_about->setObjectName(QStringLiteral("About"));
    m_about->onClosed = [this] { m_form1->aboutVisible = false; };
    m_terms =
        new TextWindow(QString::fromLatin1(kTermsCaption), QString::fromLatin1(kTermsText), m_main.get());
    m_terms->setObjectName(QStringLiteral("Form2"));
    m_terms->onClosed = [this] { m_form1->form2Visible = false; };
}

Application::~Application()
{
    // Windows first: they refer to the forms.
    for (auto& [name, window] : m_windows)
        delete window;
    m_main.reset();
}

void Application::start()
{
    // Placed before it is first shown, so that the dialog and the messages of the start, which are
    // centred on it, open beside it rather than where the window system would put them first.
    centreOnScreen(m_main.get());
    m_starting = true;
    handle([this] { m_form1->Form_Load(); });
    m_starting = false;
}

QWidget* Application::messageParent() const
{
    // A message belongs to the window the user is working in; the start's belong to the main window.
    QWidget* active = QApplication::activeWindow();
    if (!m_starting && active && active->isVisible() && !qobject_cast<QMessageBox*>(active))
        return active;
    if (m_main->isVisible())
        return m_main.get();
    for (const auto& [name, window] : m_windows) {
        if (window->isVisible())
            return window;
    }
    return m_main.get();
}

void Application::handle(const std::function<void()>& handler)
{
    ++m_depth;
    handler();
    --m_depth;
    // A handler may open an input box whose own events arrive here; only the outermost brings the
    // windows in line.
    if (m_depth > 0)
        return;
    syncAll();
    for (const std::string& text : m_session->messages.take())
        showMessage(text);
    if (m_form1->ended)
        QApplication::quit();
}

void Application::bind(QLineEdit* edit, TextBoxState& box)
{
    connect(edit, &QLineEdit::textEdited, this,
            [this, &box](const QString& text) { handle([&box, text] { box.setText(fromQString(text)); }); });
    // The box shows the core's text again once the user has finished typing in it.
    connect(edit, &QLineEdit::editingFinished, this, [this, edit] {
        edit->setModified(false);
        handle([] {});
    });
}

void Application::bind(QComboBox* combo, ComboState& state)
{
    connect(combo, &QComboBox::activated, this,
            [this, &state](int index) { handle([&state, index] { state.setListIndex(index); }); });
}

LoadFormWindow* Application::window(const std::string& formName) const
{
    auto found = m_windows.find(formName);
    return found == m_windows.end() ? nullptr : found->second;
}

void Application::syncAll()
{
    m_main->sync();
    m_config->sync();

    for (const auto& [name, maker] : m_windowMakers) {
        LoadForm* form = m_forms.existing(name);
        if (!form)
            continue;
        LoadFormWindow*& window = m_windows[name];
        if (!window && form->visible)
            window = maker(*form, *this);
        if (!window)
            continue;
        window->sync();
        if (form->visible && !window->isVisible()) {
            window->show();
            window->raise();
            window->activateWindow();
        } else if (!form->visible && window->isVisible()) {
            window->hide();
        }
    }

    const auto showOrHide = [](QWidget* window, bool visible) {
        if (visible && !window->isVisible()) {
            window->show();
            window->raise();
        } else if (!visible && window->isVisible()) {
            window->hide();
        }
    };
    showOrHide(m_main.get(), m_form1->visible && !m_form1->ended);
    showOrHide(m_config, m_form1->form4Window().visible);
    showOrHide(m_about, m_form1->aboutVisible);
    showOrHide(m_terms, m_form1->form2Visible);
}

} // namespace quillet

#pragma once

#include "load/Session.h"
#include "platform/Date.h"
#include "platform/Random.h"
#include "shell/Form1.h"
#include "shell/FormRegistry.h"

#include <QObject>
#include <QString>

class QComboBox;
class QLineEdit;
class QWidget;

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>

namespace quillet {

class ConfigDialog;
class LoadFormWindow;
class MainWindow;
class TextWindow;

// The running program: the session and the core forms, and one window for each form that has been
// shown. Every event a window receives goes through `handle`, which runs the core's handler and then
// brings every window in line with the core's state and shows the messages the handler left.
class Application : public QObject {
    Q_OBJECT
public:
    using WindowMaker = std::function<LoadFormWindow*(LoadForm& form, Application& app)>;

    // `prompt` answers input boxes; nullptr for the Qt input box.
    explicit Application(std::filesystem::path programFolder, Prompt* prompt = nullptr);
    ~Application() override;

    // Runs the main window's start-up and shows the windows it asks for.
    void start();
    void handle(const std::function<void()>& handler);

    // Forwards a text box's edits and a combo box's choices to the core controls they show.
    void bind(QLineEdit* edit, TextBoxState& box);
    void bind(QComboBox* combo, ComboState& state);

    Session& session() { return *m_session; }
    Form1& form1() { return *m_form1; }
    FormRegistry& forms() { return m_forms; }
    MainWindow* mainWindow() const { return m_main.get(); }
    ConfigDialog* configDialog() const { return m_config; }
    // Makes the window of a load form the first time the form is shown.
    void addWindow(std::string formName, WindowMaker maker)
    {
        m_windowMakers[std::move(formName)] = std::move(maker);
    }
    // The window of a load form by its name ("Beech"), once it has been shown.
    LoadFormWindow* window(const std::string& formName) const;

    // The folder picker: the folder chosen, or an empty text when the user cancels.
    std::function<QString(QWidget* parent, const QString& caption, const QString& start)> chooseFolder;

    // Where messages for the user go; a message box by default.
    std::function<void(const std::string&)> showMessage;

private:
    void syncAll();
    // The window a message box is centred on.
    QWidget* messageParent() const;

    std::unique_ptr<Prompt> m_ownPrompt;
    SeededRandom m_random;
    SystemClock m_clock;
    std::unique_ptr<Session> m_session;
    FormRegistry m_forms;
    std::unique_ptr<Form1> m_form1;
    std::map<std::string, WindowMaker> m_windowMakers;
    std::map<std::string, LoadFormWindow*> m_windows;
    std::unique_ptr<MainWindow> m_main;
    ConfigDialog* m_config = nullptr;
    TextWindow* m_about = nullptr;
    TextWindow* m_terms = nullptr;
    int m_depth = 0;
    bool m_starting = false;
};

} // namespace quillet

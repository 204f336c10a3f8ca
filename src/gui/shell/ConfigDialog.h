#pragma once

#include <QDialog>
#include <functional>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;

namespace quillet {

class Application;
class Form4;

// The configuration dialog's window; not modal, so the main window stays usable beside it.
class ConfigDialog : public QDialog {
    Q_OBJECT
public:
    ConfigDialog(Application& app, QWidget* parent = nullptr);

    void sync();

    // Closing the dialog (or Escape) hands it back to the core, which stores the settings.
    void done(int result) override;

private:
    // A "..." button and a "Browse..." entry in the box's context menu, both opening the folder picker.
    void addFolderPicker(QLineEdit* box, const QString& caption, double left, double top, double width,
                         double height, const std::function<void()>& pick);
    void pickSimulatorFolder();
    void pickAircraftFolder();

    Application& m_app;
    Form4& m_form;
    QComboBox* m_combo1 = nullptr;
    QLineEdit* m_validDir = nullptr;
    QComboBox* m_combo2 = nullptr;
    QLineEdit* m_invalidDir = nullptr;
    QPushButton* m_add = nullptr;
    QLineEdit* m_simdir = nullptr;
    QCheckBox* m_check2 = nullptr;
};

} // namespace quillet

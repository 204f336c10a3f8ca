#pragma once

#include <QMainWindow>

namespace quillet {

class Application;
class LoadForm;

// The window of a load form: it places the widgets, forwards their events to the form and shows the
// form's state after each one.
class LoadFormWindow : public QMainWindow {
    Q_OBJECT
public:
    LoadFormWindow(LoadForm& form, Application& app);

    LoadForm& form() const { return m_form; }
    // Copies the form's state onto the widgets.
    virtual void sync() = 0;

protected:
    void closeEvent(QCloseEvent* event) override;

    LoadForm& m_form;
    Application& m_app;
};

} // namespace quillet

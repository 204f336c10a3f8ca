#pragma once

#include <QMainWindow>
#include <QString>

#include <filesystem>

namespace quillet {

class Application;
class LoadForm;
class PictureBox;

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
    // Shows the aircraft's photograph in its picture box, loading the file only when it changed.
    void showPhoto(PictureBox* box, const std::filesystem::path& file);
    // Lets the keyboard and screen readers load the form's stations on its cabin or decks.
    void loadByKeyboard(PictureBox* picture);

    LoadForm& m_form;
    Application& m_app;

private:
    QString m_shownPhoto;
};

} // namespace quillet

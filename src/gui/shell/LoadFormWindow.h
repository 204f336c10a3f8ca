#pragma once

#include <QMainWindow>
#include <QString>
#include <filesystem>

class QMenu;

namespace quillet {

class Application;
class LoadForm;
class PictureBox;
struct LoadSheet;

// The window of a load form: it places the widgets, forwards their events to the form and shows the
// form's state after each one.
class LoadFormWindow : public QMainWindow {
    Q_OBJECT
public:
    LoadFormWindow(LoadForm& form, Application& app);

    LoadForm& form() const { return m_form; }
    // The load sheet of the form's load as it stands.
    LoadSheet loadSheet() const;
    // Copies the form's state onto the widgets.
    virtual void sync() = 0;

protected:
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    // Shows the aircraft's photograph in its picture box, loading the file only when it changed.
    void showPhoto(PictureBox* box, const std::filesystem::path& file);
    // Ends a preset menu with a separator and "Load to Target..." (Ctrl+T), which opens the target
    // dialog and applies its plan to the form.
    void addTargetItem(QMenu* presets);
    // Opens the target dialog and, on OK, applies the plan.
    void loadToTarget();
    // Ends the File menu with a separator and "Load Sheet..." (Ctrl+P), which opens the load sheet's
    // print preview.
    void addSheetItem(QMenu* file);
    // The print preview of the load sheet as the form stands, with "Save as PDF...".
    void showLoadSheet();
    // Asks where to save the load sheet as PDF, offering the type string and the date, and saves it.
    void saveLoadSheet(QWidget* parent);

    LoadForm& m_form;
    Application& m_app;

private:
    QString m_shownPhoto;
};

} // namespace quillet

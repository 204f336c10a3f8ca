#pragma once

#include "shell/FormLayout.h"

#include <QMainWindow>
#include <QString>
#include <QTimer>
#include <filesystem>
#include <functional>
#include <string_view>
#include <vector>

class QAction;

class QMenu;

namespace quillet {

class Application;
class LoadForm;
class PictureBox;
struct LoadSheet;

// The window of a load form: it places the widgets, forwards their events to the form and shows the
// form's state after each one. Every change of the load it forwards is a step the user can undo.
class LoadFormWindow : public QMainWindow {
    Q_OBJECT
public:
    // A menu of the window and its items; an item without a handler is a separator.
    struct MenuEntry {
        MenuItem item;
        std::function<void()> handler;
    };
    struct Menu {
        MenuItem menu;
        std::vector<MenuEntry> items;
    };

    // How long the title tells that the load was saved.
    static constexpr int kSavedNoteMilliseconds = 4000;

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
    // Builds the menu bar. The first menu is the File menu: its save item takes Ctrl+S, and Undo and
    // Redo follow its items.
    void buildMenus(const std::vector<Menu>& menus);
    // Runs a handler of the form as one step of its undo history, named `name` unless it changes
    // exactly one station.
    void forward(std::string_view name, std::function<void()> handler);
    // The caption, the mark of an unsaved load, and for a moment after a save the time it was saved;
    // with the undo and redo items, which name their steps.
    void showTitle(const QString& caption);
    // Lets the keyboard and screen readers load the form's stations on its cabin or decks.
    void loadByKeyboard(PictureBox* picture);
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
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    int m_shownSaves = 0;
    QTimer m_savedNote;
};

} // namespace quillet

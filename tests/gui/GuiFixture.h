#pragma once

#include "ProgramFolder.h"
#include "platform/PictureBox.h"
#include "platform/Prompt.h"
#include "platform/QtCanvas.h"
#include "shell/AircraftTypes.h"
#include "shell/Application.h"
#include "shell/LoadFormWindow.h"
#include "shell/MainWindow.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QWidget>
#include <QWindow>
#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace quillet {

constexpr QRgb kGreenPixel = 0x00FF00;
constexpr QRgb kRedPixel = 0xFF0000;

// A window's title as the desktop shows it: "[*]" becomes "*" while the window is modified.
inline QString shownTitle(const QWidget* window)
{
    return window->windowHandle() ? window->windowHandle()->title() : window->windowTitle();
}

// A window's menus and their items as its menu bar lists them, "-" for a separator.
inline std::string menuTexts(const QWidget* window)
{
    QStringList texts;
    for (QAction* menu : window->findChild<QMenuBar*>()->actions()) {
        texts << menu->text();
        for (QAction* item : menu->menu()->actions())
            texts << (item->isSeparator() ? QStringLiteral("-") : item->text());
    }
    return texts.join(QLatin1Char('|')).toStdString();
}

// The whole program running on a program folder of its own.
class GuiFixture : public ::testing::Test {
protected:
    void start()
    {
        app = std::make_unique<Application>(dir.path(), &prompt);
        app->showMessage = [this](const std::string& text) { told.push_back(text); };
        app->start();
        QApplication::processEvents();
    }

    // A simulator whose aircraft list holds these types, each with this aircraft.cfg in a folder of its
    // own ("plane0", "plane1", ...) and its picture in the program folder; then the program started.
    void startWith(const std::vector<std::string>& types,
                   const std::string& cfg = "[fltsim.0]\r\ntitle=test\r\n", bool simulator = true)
    {
        if (simulator)
            dir.makeSimulator();
        std::vector<std::string> entries;
        for (const std::string& type : types) {
            const std::string folder = "plane" + std::to_string(entries.size());
            dir.makeAircraft(folder, "aircraft.cfg", cfg);
            entries.push_back(type + "," + folder);
            const std::string picture(findAircraftType(type)->picture);
            dir.write(picture, TempDir::readFile(std::filesystem::path(QUILLET_PICTURES) / picture));
        }
        dir.writeIni(dir.sim(), entries);
        start();
    }

    // The form of the index-th type in the aircraft list, opened with "Adjust".
    LoadFormWindow* adjust(int index = 0)
    {
        app->handle([&] {
            app->form1().Combo1.setListIndex(index);
            app->form1().Command2_Click();
        });
        return app->window(std::string(findAircraftType(app->form1().Combo1.text())->form));
    }

    // The type alone in the aircraft list, its form opened with "Adjust" and made the active window.
    LoadFormWindow* open(const std::string& type, const std::string& cfg = "[fltsim.0]\r\ntitle=test\r\n")
    {
        startWith({type}, cfg);
        LoadFormWindow* window = adjust();
        EXPECT_NE(window, nullptr) << type;
        if (window) {
            window->activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(window));
        }
        return window;
    }

    QMainWindow* main() const { return app->mainWindow(); }

    // The colours drawn in a pixel rectangle of a window's decks, edges included.
    std::set<QRgb> deck(QWidget* window, int left, int top, int right, int bottom) const
    {
        const QImage image = find<PictureBox>(window, "Picture1")->canvas()->image();
        std::set<QRgb> found;
        for (int y = top; y <= bottom; ++y) {
            for (int x = left; x <= right; ++x)
                found.insert(image.pixel(x, y) & 0xFFFFFF);
        }
        return found;
    }

    template <class T>
    T* find(QWidget* window, const char* name) const
    {
        T* widget = window->findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    // The text of a label of the window, the main window by default.
    QString text(const char* label, QWidget* window = nullptr) const
    {
        return find<QLabel>(window ? window : main(), label)->text();
    }

    ProgramFolder dir;
    ScriptedPrompt prompt;
    std::unique_ptr<Application> app;
    std::vector<std::string> told;
};

} // namespace quillet

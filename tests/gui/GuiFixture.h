#pragma once

#include "platform/Prompt.h"
#include "shell/Application.h"
#include "shell/MainWindow.h"

#include "ProgramFolder.h"

#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QWidget>
#include <QWindow>

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace quillet {

// The colours found in a pixel rectangle of a picture, edges included.
inline std::set<QRgb> coloursIn(const QImage& image, int left, int top, int right, int bottom)
{
    std::set<QRgb> found;
    for (int y = top; y <= bottom; ++y) {
        for (int x = left; x <= right; ++x)
            found.insert(image.pixel(x, y) & 0xFFFFFF);
    }
    return found;
}

// A window's title as the desktop shows it: "[*]" becomes "*" while the window is modified.
inline QString shownTitle(const QWidget* window)
{
    return window->windowHandle() ? window->windowHandle()->title() : window->windowTitle();
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

    QMainWindow* main() const { return app->mainWindow(); }

    template <class T>
    T* find(QWidget* window, const char* name) const
    {
        T* widget = window->findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
    QString text(const char* label) const { return find<QLabel>(main(), label)->text(); }

    ProgramFolder dir;
    ScriptedPrompt prompt;
    std::unique_ptr<Application> app;
    std::vector<std::string> told;
};

} // namespace quillet

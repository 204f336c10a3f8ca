#pragma once

#include "platform/Prompt.h"
#include "shell/Application.h"
#include "shell/MainWindow.h"

#include "TempDir.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QWidget>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace quillet {

// The whole program in a temporary program folder, with a simulator folder beside its files.
class GuiFixture : public ::testing::Test {
protected:
    std::string sim() const { return (dir.path() / "sim").string(); }

    void makeSimulator() const { dir.write("sim/fs2000.exe", "placeholder"); }
    void makeAircraft(const std::string& folder, const std::string& bytes = "[fltsim.0]\r\ntitle=test\r\n") const
    {
        dir.write("sim/aircraft/" + folder + "/aircraft.cfg", bytes);
    }
    void writeIni(const std::string& simfolder, const std::vector<std::string>& entries) const
    {
        std::string text = simfolder + "\r\n" + std::to_string(entries.size()) + "\r\n";
        for (const auto& entry : entries)
            text += entry + "\r\n";
        dir.write("quillet.ini", text);
    }

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

    TempDir dir;
    ScriptedPrompt prompt;
    std::unique_ptr<Application> app;
    std::vector<std::string> told;
};

} // namespace quillet

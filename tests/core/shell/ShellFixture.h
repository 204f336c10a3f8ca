#pragma once

#include "load/Session.h"
#include "shell/Form1.h"
#include "shell/FormRegistry.h"

#include "TempDir.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillet {

// A program folder in a temporary folder, with a simulator folder beside it, and the main window's
// logic running on them.
class ShellFixture : public ::testing::Test {
protected:
    // The simulator folder as the settings file names it.
    std::string sim() const { return (dir.path() / "sim").string(); }

    void makeSimulator() const { dir.write("sim/FS2000.EXE", "placeholder"); }
    void makeAircraft(const std::string& folder, const std::string& file = "aircraft.cfg") const
    {
        dir.write("sim/aircraft/" + folder + "/" + file, "[fltsim.0]\r\ntitle=test\r\n");
    }
    void writeIni(const std::string& simfolder, const std::vector<std::string>& entries) const
    {
        std::string text = simfolder + "\r\n" + std::to_string(entries.size()) + "\r\n";
        for (const auto& entry : entries)
            text += entry + "\r\n";
        dir.write("quillet.ini", text);
    }
    std::string ini() const { return dir.read("quillet.ini"); }
    // The waiting messages that contain a text.
    std::vector<std::string> told(const std::string& part) const
    {
        std::vector<std::string> found;
        for (const auto& message : session.messages.pending()) {
            if (message.find(part) != std::string::npos)
                found.push_back(message);
        }
        return found;
    }

    TempDir dir;
    ScriptedPrompt prompt;
    ScriptedRandom random;
    FixedClock clock{Date{2001, 3, 7}};
    Session session{prompt, random, clock, dir.path()};
    FormRegistry forms;
    Form1 form1{session, forms};
    LoadState& state = session.state;
};

} // namespace quillet

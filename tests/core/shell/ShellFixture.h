#pragma once

#include "load/Session.h"
#include "shell/Form1.h"
#include "shell/FormRegistry.h"

#include "ProgramFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace quillet {

// The main window's logic running on a program folder of its own.
class ShellFixture : public ::testing::Test {
protected:
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

    ProgramFolder dir;
    ScriptedPrompt prompt;
    ScriptedRandom random;
    FixedClock clock{Date{2001, 3, 7}};
    Session session{prompt, random, clock, dir.path()};
    FormRegistry forms;
    Form1 form1{session, forms};
    LoadState& state = session.state;
};

} // namespace quillet

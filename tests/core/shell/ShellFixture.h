#pragma once

#include "ProgramFolder.h"
#include "freighter/FreighterForms.h"
#include "jets/JetForms.h"
#include "load/Session.h"
#include "regional/RegionalForms.h"
#include "shell/AircraftTypes.h"
#include "shell/Form1.h"
#include "shell/FormRegistry.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace quillet {

// The main window's logic running on a program folder of its own.
class ShellFixture : public ::testing::Test {
protected:
    // The waiting messages, of this fixture's session or another, that contain a text.
    std::vector<std::string> told(const std::string& part) const { return told(part, session); }
    static std::vector<std::string> told(const std::string& part, const Session& from)
    {
        std::vector<std::string> found;
        for (const auto& message : from.messages.pending()) {
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

// A test run on every type, with every load form registered.
class EveryTypeFixture : public ShellFixture, public ::testing::WithParamInterface<AircraftType> {
protected:
    EveryTypeFixture()
    {
        registerRegionalForms(forms);
        registerJetForms(forms);
        registerFreighterForms(forms);
    }

    // Starts the program with the type alone in the menu, in an aircraft folder of its own.
    LoadForm& start()
    {
        dir.makeSimulator();
        dir.makeAircraft("plane");
        dir.writeIni(dir.sim(), {std::string(GetParam().type) + ",plane"});
        form1.Form_Load(); // lists the type and reads it
        return *forms.existing(GetParam().form);
    }
};

} // namespace quillet

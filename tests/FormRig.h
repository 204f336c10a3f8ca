#pragma once

#include "ProgramFolder.h"
#include "load/Session.h"
#include "platform/Date.h"
#include "platform/Prompt.h"
#include "platform/Random.h"

#include <string>

namespace quillet {

// A program folder with a simulator folder, the aircraft menu and a session over them: what a load
// form's tests open the form on.
class FormRig {
public:
    explicit FormRig(RandomSource* generator = nullptr)
        : session(prompt, generator ? *generator : random, clock, dir.path())
    {
        session.state.simfolder = dir.sim();
        session.currentType = [this] { return currentType; };
        session.refreshMain = [this] { ++mainRefreshes; };
    }

    // A type in the aircraft menu, with its aircraft.cfg in the simulator and its picture here.
    void addAircraft(const std::string& type, const std::string& folder, const std::string& cfg)
    {
        LoadState& state = session.state;
        state.menutype[state.nmenu] = type;
        state.menufolder[state.nmenu] = folder;
        ++state.nmenu;
        dir.makeAircraft(folder, "aircraft.cfg", cfg);
        dir.write(type + ".gif", "GIF89a");
    }

    ProgramFolder dir;
    ScriptedPrompt prompt;
    ScriptedRandom random;
    FixedClock clock{{2001, 3, 7}};
    Session session;
    std::string currentType;
    int mainRefreshes = 0;
};

} // namespace quillet

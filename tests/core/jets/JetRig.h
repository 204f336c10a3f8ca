#pragma once

#include "ProgramFolder.h"
#include "jets/Boeing.h"
#include "platform/Date.h"
#include "platform/Prompt.h"
#include "platform/Random.h"
#include "platform/RecordingCanvas.h"

#include <memory>
#include <numeric>
#include <string>

namespace quillet {

// A program folder with a simulator folder holding the jet types' aircraft.cfg files, the aircraft
// menu pointing at them, and a session over it all.
class JetRig {
public:
    explicit JetRig(RandomSource* generator = nullptr)
        : session(prompt, generator ? *generator : random, clock, dir.path())
    {
        LoadState& state = session.state;
        state.simfolder = dir.sim();
        const char* entries[][2] = {{"B737-300", "b737_300"},
                                    {"B767-300ER", "b767_300er"},
                                    {"MD-90-30", "md90_30"},
                                    {"DC-9-30F", "dc9_30f"},
                                    {"DC-8-71F", "dc8_71f"}};
        for (const auto& [type, folder] : entries) {
            state.menutype[state.nmenu] = type;
            state.menufolder[state.nmenu] = folder;
            ++state.nmenu;
            dir.makeAircraft(
                folder, "aircraft.cfg",
                "[fltsim.0]\r\ntitle=Test\r\n\r\n[WEIGHT_AND_BALANCE]\r\nmax_number_of_stations = 0\r\n");
            dir.write(std::string(type) + ".gif", "GIF89a");
        }
        session.currentType = [this] { return currentType; };
        session.refreshMain = [this] { ++mainRefreshes; };
    }

    // The form opened for a type the way "Adjust" opens it.
    Boeing& open(const std::string& type)
    {
        currentType = type;
        form = std::make_unique<Boeing>(session);
        form->Form_Load();
        return *form;
    }

    RecordingCanvas& picture() { return static_cast<RecordingCanvas&>(form->Picture1()); }

    float sumOfWeights() const
    {
        const auto& weights = session.state.stationweight;
        return std::accumulate(weights.begin(), weights.end(), 0.0f);
    }

    ProgramFolder dir;
    ScriptedPrompt prompt;
    ScriptedRandom random;
    FixedClock clock{{2001, 3, 7}};
    Session session;
    std::string currentType;
    std::unique_ptr<Boeing> form;
    int mainRefreshes = 0;
};

} // namespace quillet

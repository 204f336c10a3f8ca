#pragma once

#include "TempDir.h"
#include "regional/RegionalForm.h"

#include <memory>
#include <numeric>
#include <string>

namespace quillet {

// A program folder with the three photographs and a simulator folder holding an aircraft.cfg for
// each regional type, the aircraft menu pointing at them, and a session over it all.
class RegionalRig {
public:
    explicit RegionalRig(RandomSource* generator = nullptr)
        : session(prompt, generator ? *generator : random, clock, dir.path())
    {
        LoadState& state = session.state;
        state.simfolder = (dir.path() / "fs2000").string();
        const char* folders[] = {"beech", "emb120", "dash8"};
        for (int i = 0; i < 3; ++i) {
            state.menutype[i] = std::string(regionalTypes()[i]->type);
            state.menufolder[i] = folders[i];
            dir.write(
                std::string("fs2000/aircraft/") + folders[i] + "/aircraft.cfg",
                "[fltsim.0]\r\ntitle=Test\r\n\r\n[WEIGHT_AND_BALANCE]\r\nmax_number_of_stations = 0\r\n");
            dir.write(std::string(regionalTypes()[i]->layout.photoFile), "GIF89a");
        }
        state.nmenu = 3;
        session.currentType = [this] { return currentType; };
        session.refreshMain = [this] { ++mainRefreshes; };
    }

    // The type's form, set up and showing its stored load the way "Adjust" opens it.
    RegionalForm& open(const RegionalType& type)
    {
        currentType = std::string(type.type);
        form = std::make_unique<RegionalForm>(session, type);
        form->Form_Load();
        form->mnuload_Click();
        return *form;
    }

    float sumOfWeights() const
    {
        const auto& weights = session.state.stationweight;
        return std::accumulate(weights.begin(), weights.end(), 0.0f);
    }

    TempDir dir;
    ScriptedPrompt prompt;
    ScriptedRandom random;
    FixedClock clock{{2001, 3, 7}};
    Session session;
    std::string currentType;
    std::unique_ptr<RegionalForm> form;
    int mainRefreshes = 0;
};

} // namespace quillet

#pragma once

#include "TempDir.h"
#include "regional/CRJ200.h"
#include "regional/RegionalForm.h"

#include <memory>
#include <numeric>
#include <string>

namespace quillet {

// A program folder with the photographs and a simulator folder holding an aircraft.cfg for each
// regional type (the CRJ-200ER last), the aircraft menu pointing at them, and a session over it all.
class RegionalRig {
public:
    explicit RegionalRig(RandomSource* generator = nullptr)
        : session(prompt, generator ? *generator : random, clock, dir.path())
    {
        LoadState& state = session.state;
        state.simfolder = (dir.path() / "fs2000").string();
        const char* folders[] = {"beech", "emb120", "dash8", "crj200"};
        const std::string_view types[] = {beechType().type, emb120Type().type, dhc8Type().type,
                                          crj200Type().type};
        const std::string_view photos[] = {beechType().layout.photoFile, emb120Type().layout.photoFile,
                                           dhc8Type().layout.photoFile, crj200Type().layout.photoFile};
        for (int i = 0; i < 4; ++i) {
            state.menutype[i] = std::string(types[i]);
            state.menufolder[i] = folders[i];
            dir.write(
                std::string("fs2000/aircraft/") + folders[i] + "/aircraft.cfg",
                "[fltsim.0]\r\ntitle=Test\r\n\r\n[WEIGHT_AND_BALANCE]\r\nmax_number_of_stations = 0\r\n");
            dir.write(std::string(photos[i]), "GIF89a");
        }
        state.nmenu = 4;
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

    // The CRJ-200ER's form, set up and showing its stored load the way "Adjust" opens it.
    CRJ200& openCRJ200()
    {
        currentType = std::string(crj200Type().type);
        crj = std::make_unique<CRJ200>(session);
        crj->Form_Load();
        crj->mnuload_Click();
        return *crj;
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
    std::unique_ptr<CRJ200> crj;
    int mainRefreshes = 0;
};

} // namespace quillet

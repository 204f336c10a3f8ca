#pragma once

#include "ProgramFolder.h"
#include "freighter/DC10F.h"
#include "platform/Date.h"
#include "platform/Prompt.h"
#include "platform/Random.h"
#include "platform/RecordingCanvas.h"

#include <memory>
#include <string>

namespace quillet {

// A program folder with a simulator folder holding the DC-10-30F's aircraft.cfg, the aircraft menu
// pointing at it, and a session over it all.
class FreighterRig {
public:
    explicit FreighterRig(RandomSource* generator = nullptr)
        : session(prompt, generator ? *generator : random, clock, dir.path())
    {
        LoadState& state = session.state;
        state.simfolder = dir.sim();
        state.menutype[0] = "DC-10-30F";
        state.menufolder[0] = "dc10_30f";
        state.nmenu = 1;
        dir.makeAircraft(
            "dc10_30f", "aircraft.cfg",
            "[fltsim.0]\r\ntitle=DC-10\r\n\r\n[WEIGHT_AND_BALANCE]\r\nmax_number_of_stations = 0\r\n"
            "\r\n[flight_tuning]\r\ncruise_lift_scalar=1.0\r\n");
        dir.write("DC-10-30F.gif", "GIF89a");
        session.currentType = [this] { return currentType; };
    }

    // The form opened the way "Adjust" opens it.
    DC10F& open()
    {
        form = std::make_unique<DC10F>(session);
        form->Form_Load();
        return *form;
    }

    RecordingCanvas& picture() { return static_cast<RecordingCanvas&>(form->Picture1()); }

    ProgramFolder dir;
    ScriptedPrompt prompt;
    ScriptedRandom random;
    FixedClock clock{{2001, 3, 7}};
    Session session;
    std::string currentType = "DC-10-30F";
    std::unique_ptr<DC10F> form;
};

} // namespace quillet

#pragma once

#include "FormRig.h"
#include "freighter/DC10F.h"
#include "jets/Boeing.h"
#include "platform/RecordingCanvas.h"

#include <cctype>
#include <memory>
#include <string>

namespace quillet {

// Every deck type in the aircraft menu, each with its aircraft.cfg in a folder named after it
// ("B737-300" in "b737_300"), and a deck form of one kind.
template <class Form>
class DeckRig : public FormRig {
public:
    explicit DeckRig(RandomSource* generator = nullptr) : FormRig(generator)
    {
        for (const JetType& jet : jetTypes())
            addAircraft(std::string(jet.type), folderOf(std::string(jet.type)));
        addAircraft("DC-10-30F", folderOf("DC-10-30F"),
                    "[fltsim.0]\r\ntitle=DC-10\r\n\r\n[WEIGHT_AND_BALANCE]\r\nmax_number_of_stations = 0\r\n"
                    "\r\n[flight_tuning]\r\ncruise_lift_scalar=1.0\r\n");
    }

    static std::string folderOf(std::string type)
    {
        for (char& c : type)
            c = c == '-' ? '_' : static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        return type;
    }

    // The type's aircraft.cfg as the simulator reads it.
    std::string aircraftCfg(const std::string& type) const
    {
        return dir.read("sim/aircraft/" + folderOf(type) + "/aircraft.cfg");
    }

    // The form opened for a type the way "Adjust" opens it.
    Form& open(const std::string& type = "DC-10-30F")
    {
        currentType = type;
        form = std::make_unique<Form>(session);
        form->Form_Load();
        return *form;
    }

    RecordingCanvas& picture() { return static_cast<RecordingCanvas&>(form->Picture1()); }

    // A press on the station's place on the deck.
    void press(int station, int button = Form::kLeftButton)
    {
        form->Picture1_MouseDown(button, 0, session.state.stationpx[station],
                                 session.state.stationpy[station]);
    }

    std::unique_ptr<Form> form;
};

using JetRig = DeckRig<Boeing>;
using FreighterRig = DeckRig<DC10F>;

} // namespace quillet
